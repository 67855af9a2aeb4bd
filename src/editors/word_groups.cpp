#include "editors/word_groups.h"

#include <algorithm>
#include <map>
#include <set>

#include "companion/descriptions/description.h"
#include "generator/known_words.h"
#include "lexer/word_tables.h"
#include "ui/widget_frame.h"

namespace editors {

namespace {

using companion::WordKind;
using Words = std::set<std::string>;

/// What holds statements, though it is written with parentheses as widgets are.
constexpr std::string_view kCodeSections[] = {"வரையறை", "நிகழ்நேர.தரவுசேர்", "நிகழ்நேர.தரவுமாற்று",
                                              "நிகழ்நேர.தரவுஅழி", "நிகழ்நேர.தரவுபடி"};

Words reservedWords(bool (*isWanted)(TokenType)) {
    Words words;
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &WEB_KEYWORDS, &ANIMATION_KEYWORDS,
                              &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS, &INC_DEC_KEYWORDS}) {
        for (const auto& row : *table) {
            if (isWanted(lookUpWord(row.first))) words.insert(row.first);
        }
    }
    return words;
}

Words describedAs(WordKind kind) {
    Words words;
    for (const auto* table : {&companion::wordDescriptions(), &companion::widgetDescriptions()}) {
        for (const companion::Description& row : *table) {
            if (row.kind == kind) words.emplace(row.word);
        }
    }
    return words;
}

void add(Words& words, const std::vector<std::string_view>& more) {
    words.insert(more.begin(), more.end());
}

void remove(Words& words, const Words& others) {
    for (const std::string& word : others) words.erase(word);
}

bool isKeyword(TokenType kind) { return kind == TokenType::KEYWORD || kind == TokenType::PRIVATE; }

bool isOperator(TokenType kind) {
    switch (kind) {
        case TokenType::OPERATOR:
        case TokenType::ASSIGN_OPERATOR:
        case TokenType::INCREMENT:
        case TokenType::DECREMENT:
        case TokenType::BIT_NOT:
        case TokenType::UNARY_PLUS:
        case TokenType::UNARY_MINUS: return true;
        default: return false;
    }
}

Words builtInWords() {
    Words words = describedAs(WordKind::BuiltIn);
    add(words, builtinNames());
    remove(words, describedAs(WordKind::Keyword));
    return words;
}

Words memberWords() {
    Words words = describedAs(WordKind::Member);
    add(words, inputCallNames());
    add(words, inputPropertyNames());
    add(words, timeFieldNames());
    return words;
}

Words keywords() {
    Words words = reservedWords(isKeyword);
    remove(words, builtInWords());
    return words;
}

/// Described as keywords, and plain names to the scanner; the constants' is only a beginning.
Words receiverWords() {
    Words words = describedAs(WordKind::Keyword);
    remove(words, reservedWords([](TokenType) { return true; }));
    words.erase("மாறிலி");
    return words;
}

Words widgetNames() {
    Words words = describedAs(WordKind::Widget);
    add(words, widgetWords());
    return words;
}

Words codeSections() { return {std::begin(kCodeSections), std::end(kCodeSections)}; }

Words sections() {
    Words words = describedAs(WordKind::Application);
    remove(words, codeSections());
    return words;
}

/// Besides the described ones, whatever of the tables is neither widget nor section nor code.
Words propertyWords() {
    Words words = reservedWords([](TokenType kind) {
        return !isKeyword(kind) && !isOperator(kind) && kind != TokenType::BOOLEAN;
    });
    remove(words, builtInWords());
    remove(words, widgetNames());
    remove(words, sections());
    remove(words, codeSections());
    for (const auto& row : companion::propertyDescriptions()) words.emplace(row.word);
    return words;
}

Words reservedProperties() {
    Words words = propertyWords();
    remove(words, widgetNames());
    remove(words, keywords());
    for (auto at = words.begin(); at != words.end();) {
        at = lookUpWord(*at) == TokenType::IDENTIFIER ? words.erase(at) : std::next(at);
    }
    return words;
}

Words valueWords() {
    Words words;
    for (const auto& row : companion::valueDescriptions()) words.emplace(row.word);
    return words;
}

Words truths() {
    return reservedWords([](TokenType kind) { return kind == TokenType::BOOLEAN; });
}

Words operators() { return reservedWords(isOperator); }

struct GroupRow {
    Group group;
    Words (*words)();
};

constexpr GroupRow kGroups[] = {
    {Group::Keyword, keywords},
    {Group::Operator, operators},
    {Group::Truth, truths},
    {Group::BuiltIn, builtInWords},
    {Group::Member, memberWords},
    {Group::Receiver, receiverWords},
    {Group::Widget, widgetNames},
    {Group::Section, sections},
    {Group::CodeSection, codeSections},
    {Group::Property, propertyWords},
    {Group::ReservedProperty, reservedProperties},
    {Group::Value, valueWords},
};

using Groups = std::map<Group, std::vector<std::string>>;

Groups allGroups() {
    Groups groups;
    for (const GroupRow& row : kGroups) {
        const Words words = row.words();
        groups[row.group].assign(words.begin(), words.end());
    }
    return groups;
}

}  // namespace

const std::vector<std::string>& wordsOf(Group group) {
    static const Groups groups = allGroups();
    return groups.at(group);
}

bool isOf(Group group, std::string_view word) {
    const auto& words = wordsOf(group);
    return std::binary_search(words.begin(), words.end(), word);
}

}  // namespace editors
