// Alignment, the text style, and the style blocks of buttons and other widgets.
#include "number_text.h"
#include "parser/parser.h"
#include "syntax/alignment.h"

namespace {

const std::string* textOf(const Expression& value) {
    const auto* literal = nodeAs<StringLiteral>(&value);
    return literal == nullptr ? nullptr : &literal->value;
}

// ---- Text style: each key reads the kinds of value it knows and leaves the rest alone ----

void setColor(TextStyle& style, const Expression& value) {
    if (const std::string* text = textOf(value)) {
        style.color = *text;
    } else if (const auto* variable = nodeAs<VariableAccess>(&value)) {
        style.color = variable->name;
    } else if (const auto* color = nodeAs<ColorExpression>(&value)) {
        style.color = color->isHex ? color->hexValue : color->colorName;
    }
}

void setFontSize(TextStyle& style, const Expression& value) {
    if (const auto* whole = nodeAs<NumberLiteral>(&value)) {
        style.fontSize = floatOf(whole->value);
    } else if (const auto* decimal = nodeAs<DoubleLiteral>(&value)) {
        style.fontSize = floatOf(decimal->value);
    }
}

void setFontWeight(TextStyle& style, const Expression& value) {
    if (const std::string* text = textOf(value)) {
        style.fontWeight = *text == "தடிமனான" || *text == "bold" ? "700" : "400";
    } else if (const auto* number = nodeAs<NumberLiteral>(&value)) {
        style.fontWeight = number->value;
    }
}

void setTextAlign(TextStyle& style, const Expression& value) {
    const std::string* text = textOf(value);
    const std::string word = text == nullptr ? wordOf(value) : *text;
    if (text != nullptr || !word.empty()) style.textAlign = word;
}

void setFontFamily(TextStyle& style, const Expression& value) {
    if (const std::string* text = textOf(value)) style.fontFamily = *text;
}

void setUnderline(TextStyle& style, const Expression& value) {
    if (const auto* truth = nodeAs<BooleanLiteral>(&value)) {
        style.underline = truth->value == "மெய்";
    }
}

struct TextStyleRow {
    const char* key;
    void (*set)(TextStyle& style, const Expression& value);  ///< Null: goes to the properties.
};
const TextStyleRow kTextStyle[] = {
    {"நிறம்", setColor},
    {"அளவு", setFontSize},
    {"தடிமன்", setFontWeight},
    {"சீரமைப்பு", setTextAlign},
    {"உரைசீரமைப்பு", setTextAlign},
    {"எழுத்துரு", setFontFamily},
    {"அடிக்குறிப்பு", setUnderline},
    {"அகலம்", nullptr},
    {"உயரம்", nullptr},
    {"வளைவு", nullptr},
    {"பின்னணி", nullptr},
    {"நிழல்", nullptr},
};

/// The keys of a button's style block.
struct ButtonStyleRow {
    TokenType kind;
    const char* word;
    const char* storedUnder;
};
const ButtonStyleRow kButtonStyle[] = {
    {TokenType::BUTTON_BACKGROUND, "பொபின்னணி", "style_பின்னணி"},
    {TokenType::TEXT_COLOUR, "எழுத்து_நிறம்", "style_எழுத்து_நிறம்"},
    {TokenType::CORNER_CURVE, "வளைவு", "style_வளைவு"},
    {TokenType::SHADOW, "நிழல்", "style_நிழல்"},
    {TokenType::WIDTH, "அகலம்", "style_அகலம்"},
    {TokenType::HEIGHT, "உயரம்", "style_உயரம்"},
    {TokenType::IDENTIFIER, "மேம்படுத்தப்பட்ட_நிறம்", "style_மேம்படுத்தப்பட்ட_நிறம்"},
    {TokenType::BORDER_COLOUR, "கரை_நிறம்", "style_கரை_நிறம்"},
    {TokenType::BORDER_SIZE, "கரை_அளவு", "style_கரை_அளவு"},
};

const ButtonStyleRow* buttonStyleRow(const Token& token) {
    for (const ButtonStyleRow& row : kButtonStyle) {
        if (token.type == row.kind && token.text == row.word) return &row;
    }
    return nullptr;
}

}  // namespace

/// alignment = "சீரமைப்பு" ":" expression
/// Only the word is kept: a name's or a member's. One that the table lacks changes nothing, nor
/// does a text.
bool Parser::parseAlignmentItem(WidgetParts& parts) {
    if (!checkWord("சீரமைப்பு")) return false;
    advance();
    auto value = parseValue();
    parts.alignment = alignmentNamed(wordOf(*value)).value_or(parts.alignment);
    drop(std::move(value));
    return true;
}

/// style-block = word "(" { key ":" expression } ")"
/// Anything but a key with its colon is passed over.
bool Parser::parseStyleItem(WidgetParts& parts, TokenType kind, const char* word, const Kinds& keys,
                            std::string (*storedKey)(const std::string&)) {
    if (!checkWord(kind, word)) return false;
    const int line = advance().line;
    openParenthesis();
    bracketLoop(line, [&] {
        const bool isKey = checkKey(keys);
        const std::string key = advance().text;
        if (isKey) parseValueOf(parts.properties, storedKey(key));
    });
    return true;
}

/// button-style = "பொ_பாணி" "(" { key ":" expression } ")"
/// Raises 202 for a key of the table without a colon; other words are passed over.
bool Parser::parseButtonStyleItem(WidgetParts& parts) {
    if (!check(TokenType::BUTTON_STYLE)) return false;
    const int line = advance().line;
    openParenthesis();
    bracketLoop(line, [&] {
        const ButtonStyleRow* row = buttonStyleRow(peek());
        advance();
        if (row != nullptr) parseValueOf(parts.properties, row->storedUnder);
    });
    return true;
}

/// text-style = ( "உரைபாணி" | style word ) "(" { text-style-entry } ")"
bool Parser::parseTextStyleItem(WidgetParts& parts) {
    if (!check(TokenType::STYLE) && !checkWord("உரைபாணி")) return false;
    const int line = advance().line;
    openParenthesis();
    bracketLoop(line, [&] { parseTextStyleEntry(parts); });
    return true;
}

/// text-style-entry = key ":" expression [ "," ]
/// Raises 252 for what can't be a key. An unknown key is parsed and dropped.
void Parser::parseTextStyleEntry(WidgetParts& parts) {
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::STYLE,        TokenType::NUMBER,
                               TokenType::BACKGROUND, TokenType::HEIGHT,       TokenType::SOURCE,
                               TokenType::WIDTH,      TokenType::CORNER_CURVE, TokenType::SHADOW};
    if (!checkAny(keys)) பிழை("பொழில்-252", peek().line);
    const std::string key = advance().text;
    skipNewlines();
    expectColon();
    skipNewlines();
    auto value = parseExpression();
    for (const TextStyleRow& row : kTextStyle) {
        if (key != row.key) continue;
        if (row.set != nullptr) {
            row.set(parts.textStyle, *value);
        } else {
            setProperty(parts.properties, "style_" + key, std::move(value));
        }
        break;
    }
    drop(std::move(value));
    takeComma();
}
