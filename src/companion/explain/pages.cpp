#include "companion/explain/pages.h"

#include "companion/descriptions/names.h"
#include "error_codes.h"
#include "parser/operator_levels.h"

namespace companion {

namespace {

constexpr std::size_t kMostRelated = 10;

/// The words separated by commas, each once.
class WordList {
public:
    void add(std::string_view word) {
        for (const std::string_view known : words) {
            if (known == word) return;
        }
        words.push_back(word);
    }
    std::size_t size() const { return words.size(); }
    std::string text() const {
        std::string all;
        for (const std::string_view word : words) {
            if (!all.empty()) all += ", ";
            all += word;
        }
        return all;
    }

private:
    std::vector<std::string_view> words;
};

/// Words that the same program shows, and those spelled alike.
std::string relatedTo(const Description& word) {
    WordList related;
    for (const auto* words : {&wordDescriptions(), &widgetDescriptions()}) {
        for (const Description& other : *words) {
            if (other.word == word.word || related.size() == kMostRelated) continue;
            if (!word.example.empty() && other.example == word.example) related.add(other.word);
        }
    }
    return related.text();
}

/// True if `widget` is one of those that read the property.
bool isReadBy(const PropertyDescription& property, std::string_view widget) {
    const std::string all = ", " + std::string(property.widgets) + ", ";
    return all.find(", " + std::string(widget) + ", ") != std::string::npos;
}

std::string propertiesOf(const Description& widget) {
    WordList read;
    for (const PropertyDescription& property : propertyDescriptions()) {
        if (isReadBy(property, widget.word)) read.add(property.word);
    }
    return read.text();
}

/// The operators with two sides from `tightest` to `loosest`.
std::string operatorsBetween(int tightest, int loosest) {
    WordList found;
    for (int level = tightest; level >= loosest; level--) {
        for (const Description& word : wordDescriptions()) {
            if (word.kind == WordKind::Operator && levelOfOperator(word.word) == level) {
                found.add(word.word);
            }
        }
    }
    return found.text();
}

void addOrder(Page& page, const Description& word) {
    if (isPrefixOperator(word)) {
        page.addProse("எது முதலில்?",
                      "இரண்டு பக்கமுள்ள எல்லாக் கணக்குக்கும் முன்பே, தன் வலப்பக்கத்தை மட்டும் எடுக்கும்.");
        return;
    }
    const int level = word.kind == WordKind::Operator ? levelOfOperator(word.word) : 0;
    if (level == 0) return;
    std::string text;
    const auto tell = [&](const char* when, const std::string& words) {
        if (words.empty()) return;
        if (!text.empty()) text += "\n";
        text += std::string(when) + ": " + words + ".";
    };
    tell("இதற்கு முன் நடப்பவை", operatorsBetween(kFactor, level + 1));
    tell("இதோடு, இடமிருந்து வலமாக", operatorsBetween(level, level));
    tell("இதற்குப் பின் நடப்பவை", operatorsBetween(level - 1, kLogicalOr));
    page.addProse("எது முதலில்?", text);
}

const char* nameOfSeverity(Severity severity) {
    switch (severity) {
        case Severity::Error: return "பிழை";
        case Severity::Warning: return "எச்சரிக்கை";
        case Severity::Hint: return "குறிப்பு";
    }
    return "";
}

/// The message with an ellipsis where the source brings a part.
std::string withoutParts(std::string_view message) {
    std::string text;
    for (std::size_t at = 0; at < message.size(); at++) {
        if (message[at] != '$') {
            text += message[at];
            continue;
        }
        text += "…";
        at++;
    }
    return text;
}

}  // namespace

Page pageOf(const Description& word) {
    Page page{std::string(word.word), nameOf(word.kind), {}};
    page.addProse("", word.summary);
    page.addProgram("எழுதும் முறை", word.form);
    page.addProgram("எடுத்துக்காட்டு", word.example);
    page.addProgram("திரையில் வருவது", word.prints);
    page.addProse("கவனம்", word.trap);
    addOrder(page, word);
    if (word.kind == WordKind::Widget || word.kind == WordKind::Application) {
        page.addProse("பண்புகள்", propertiesOf(word));
    }
    page.addProse("தொடர்புடையவை", relatedTo(word));
    return page;
}

Page pageOf(const std::vector<PropertyDescription>& meanings) {
    Page page{std::string(meanings.at(0).word), nameOf(WordKind::Property), {}};
    for (const PropertyDescription& meaning : meanings) {
        std::string text(meaning.summary);
        const auto tell = [&](const char* what, std::string_view told) {
            if (!told.empty()) text += "\n" + std::string(what) + std::string(told);
        };
        tell("மதிப்பு: ", meaning.value);
        tell("எழுதாவிட்டால்: ", meaning.defaultValue);
        tell("எழுதும் இடம்: ", placeOf(meaning));
        tell("கவனம்: ", meaning.trap);
        page.addProse(meaning.widgets, text);
    }
    return page;
}

Page pageOf(const ValueDescription& value) {
    Page page{std::string(value.word), nameOf(value.group), {}};
    page.addProse("", value.summary);
    return page;
}

Page pageOf(const CodeDescription& code) {
    const std::string name = "பொழில்-" + std::string(code.digits);
    const பிழைதகவல்& entry = பிழை_அகராதி.at(name);
    Page page{name, momentOf(code.moment), {}};
    page.addProse("", entry.விளக்கம்);
    page.addProse("ஏன் வந்தது?", code.text);
    page.addProse("தீர்வு", entry.தீர்வு);
    page.addProgram("இப்படி எழுதினால் வரும்", code.wrong);
    page.addProgram("இப்படி எழுது", code.right);
    return page;
}

Page pageOf(const Rule& rule) {
    Page page{std::string(rule.code), nameOfSeverity(rule.severity), {}};
    page.addProse("", withoutParts(rule.message));
    if (rule.severity != Severity::Error) {
        page.addProse("தெரிந்தே எழுதியதா?",
                      "வரியின் முடிவில் ஃ " + std::string(rule.code) + " என்று எழுதினால் இது வராது.");
    }
    return page;
}

}  // namespace companion
