#include "unit/ui_grammar/widget_sources.h"

#include <algorithm>

#include "support/tree_printer.h"

WidgetSource::WidgetSource(const std::string& source) : parsed(parse(source)) {}

const WidgetNode& WidgetSource::node() const {
    return dynamic_cast<const WidgetNode&>(*parsed.program.statements.at(0));
}

const WidgetNode& WidgetSource::child(std::size_t index) const {
    return dynamic_cast<const WidgetNode&>(*node().children.at(index));
}

std::string WidgetSource::property(const std::string& key) const {
    const auto found = node().properties.find(key);
    return found == node().properties.end() ? "none" : printTree(*found->second);
}

std::string WidgetSource::keys() const {
    std::string text;
    for (const auto& property : node().properties) {
        text += (text.empty() ? "" : " ") + property.first;
    }
    return text;
}

std::string refusalOf(const std::string& source) {
    try {
        parse(source);
        return "none";
    } catch (const Refusal& refusal) {
        return refusal.code;
    }
}

std::vector<Token> scanAs(TokenType kind, const std::vector<std::string>& words,
                          const std::string& text) {
    std::vector<Token> tokens = scan(text);
    tokens.pop_back();
    for (Token& token : tokens) {
        if (std::find(words.begin(), words.end(), token.text) != words.end()) token.type = kind;
    }
    return tokens;
}
