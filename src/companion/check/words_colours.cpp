// Colours that nobody knows: an unknown name, or a short number, is black without a word.
#include <set>
#include <string>

#include "companion/check/names_letters.h"
#include "companion/check/words.h"
#include "ui/colours.h"

namespace companion {

namespace {

struct ColourName {
    const char* english;
    const char* tamil;
};
const ColourName kColourNames[] = {
    {"white", "வெள்ளை"},    {"black", "கருப்பு"}, {"red", "சிவப்பு"},   {"green", "பச்சை"},
    {"blue", "நீலம்"},       {"yellow", "மஞ்சள்"},  {"orange", "ஆரஞ்சு"}, {"purple", "ஊதா"},
    {"pink", "இளஞ்சிவப்பு"}, {"grey", "சாம்பல்"},   {"gray", "சாம்பல்"},   {"brown", "பழுப்பு"},
    {"skyblue", "வானநீலம்"}, {"gold", "தங்கம்"},    {"silver", "வெள்ளி"}, {"lime", "சுண்ணாம்பு"},
    {"navy", "கடல்நீலம்"},
};

bool isColourKey(TokenType kind) {
    switch (kind) {
        case TokenType::BACKGROUND:
        case TokenType::BOX_BACKGROUND:
        case TokenType::BUTTON_BACKGROUND:
        case TokenType::FIELD_BACKGROUND:
        case TokenType::TEXT_COLOUR:
        case TokenType::BORDER_COLOUR:
        case TokenType::SELECTED_COLOUR:
        case TokenType::UNSELECTED_COLOUR: return true;
        default: return false;
    }
}

bool isKnownColour(const std::string& name) {
    const PozhilColor colour = parsePozhilColor(name, false);
    return name == "கருப்பு" || colour.r + colour.g + colour.b > 0;
}

/// The colour that was meant, or else one that is known.
std::string meantColour(const std::string& name) {
    std::set<std::string> known;
    for (const ColourName& row : kColourNames) {
        if (name == row.english) return row.tamil;
        known.insert(row.tamil);
    }
    return nearestName(name, known).value_or("நீலம்");
}

void checkColourText(const WordCheck& check, int index, bool isInHead) {
    const std::string& text = check.at(index).text;
    constexpr std::size_t kShortestNumber = 7;
    if (text.empty()) return;
    if (text[0] == '#') {
        if (text.size() < kShortestNumber) check.add("துணை-538", index, {text});
    } else if (isInHead) {
        check.add("துணை-539", index, {text});
    } else if (!isKnownColour(text)) {
        check.add("துணை-537", index, {text, meantColour(text)});
    }
}

}  // namespace

void checkColours(const WordCheck& check) {
    int depth = 0;
    int headDepth = 0;  // inside which parenthesis the head of an application stands; 0: none
    for (int i = 0; i + 3 < check.count(); i++) {
        const TokenType kind = check.at(i).type;
        if (kind == TokenType::LEFT_PAREN && ++depth > 0 && i > 0 &&
            check.at(i - 1).type == TokenType::HEADER) {
            headDepth = depth;
        }
        if (kind == TokenType::RIGHT_PAREN && depth-- == headDepth) headDepth = 0;
        const bool isColour = depth > 0 && isColourKey(kind) &&
                              check.at(i + 1).type == TokenType::COLON &&
                              check.at(i + 2).type == TokenType::STRING;
        const TokenType behind = check.at(i + 3).type;
        if (!isColour || behind == TokenType::OPERATOR || behind == TokenType::QUESTION) continue;
        checkColourText(check, i + 2, headDepth == depth);
    }
}

}  // namespace companion
