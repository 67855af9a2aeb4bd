#include "companion/check/marks_signs.h"

#include <algorithm>
#include <iterator>

#include "lexer/utf8.h"

namespace companion {

namespace {

struct SignRange {
    char32_t first;
    char32_t last;
    SignKind kind;
};

constexpr SignRange kRanges[] = {
    {0x0085, 0x0085, SignKind::Blank},       {0x00A0, 0x00A0, SignKind::Blank},
    {0x00AD, 0x00AD, SignKind::Invisible},   {0x034F, 0x034F, SignKind::Invisible},
    {0x0370, 0x058F, SignKind::OtherScript}, {0x0590, 0x05FF, SignKind::OtherScript},
    {0x061C, 0x061C, SignKind::Invisible},   {0x0620, 0x064A, SignKind::OtherScript},
    {0x0900, 0x0B7F, SignKind::OtherScript}, {0x0C00, 0x0DFF, SignKind::OtherScript},
    {0x1680, 0x1680, SignKind::Blank},       {0x180E, 0x180E, SignKind::Invisible},
    {0x2000, 0x200A, SignKind::Blank},       {0x200B, 0x200F, SignKind::Invisible},
    {0x2028, 0x2029, SignKind::Blank},       {0x202A, 0x202E, SignKind::Invisible},
    {0x202F, 0x202F, SignKind::Blank},       {0x205F, 0x205F, SignKind::Blank},
    {0x2060, 0x206F, SignKind::Invisible},   {0x2800, 0x2800, SignKind::Blank},
    {0x3000, 0x3000, SignKind::Blank},       {0x3164, 0x3164, SignKind::Blank},
    {0xFE00, 0xFE0F, SignKind::Invisible},   {0xFEFF, 0xFEFF, SignKind::Invisible},
    {0xFFF9, 0xFFFB, SignKind::Invisible},   {0x11300, 0x1137F, SignKind::OtherScript},
    {0xE0000, 0xE01EF, SignKind::Invisible},
};

struct SignRow {
    char32_t character;
    SignKind kind;
    const char* meant;
};

constexpr SignRow kSigns[] = {
    {0x00AB, SignKind::Quote, "\""},           {0x00BB, SignKind::Quote, "\""},
    {0x2018, SignKind::Quote, "\""},           {0x2019, SignKind::Quote, "\""},
    {0x201B, SignKind::Quote, "\""},           {0x201C, SignKind::Quote, "\""},
    {0x201D, SignKind::Quote, "\""},           {0x201E, SignKind::Quote, "\""},
    {0x201F, SignKind::Quote, "\""},           {0x2032, SignKind::Quote, "\""},
    {0x2033, SignKind::Quote, "\""},           {0x2039, SignKind::Quote, "\""},
    {0x203A, SignKind::Quote, "\""},           {0x300C, SignKind::Quote, "\""},
    {0x300D, SignKind::Quote, "\""},           {0xFF02, SignKind::Quote, "\""},
    {0xFF07, SignKind::Quote, "\""},

    {0x00D7, SignKind::Operator, "பெருக்கு"},   {0x00F7, SignKind::Operator, "வகு"},
    {0x2010, SignKind::Operator, "கழி"},       {0x2011, SignKind::Operator, "கழி"},
    {0x2012, SignKind::Operator, "கழி"},       {0x2013, SignKind::Operator, "கழி"},
    {0x2014, SignKind::Operator, "கழி"},       {0x2015, SignKind::Operator, "கழி"},
    {0x2044, SignKind::Operator, "வகு"},       {0x2212, SignKind::Operator, "கழி"},
    {0x2215, SignKind::Operator, "வகு"},       {0x2217, SignKind::Operator, "பெருக்கு"},
    {0x2260, SignKind::Operator, "சமமில்லை"},   {0x2264, SignKind::Operator, "சிறிதுசமம்"},
    {0x2265, SignKind::Operator, "பெரிதுசமம்"}, {0x2A7D, SignKind::Operator, "சிறிதுசமம்"},
    {0x2A7E, SignKind::Operator, "பெரிதுசமம்"}, {0x2715, SignKind::Operator, "பெருக்கு"},
    {0x2716, SignKind::Operator, "பெருக்கு"},   {0x2795, SignKind::Operator, "கூட்டு"},
    {0x2796, SignKind::Operator, "கழி"},       {0x2797, SignKind::Operator, "வகு"},

    {0x037E, SignKind::Punctuation, ";"},      {0x0589, SignKind::Punctuation, ":"},
    {0x060C, SignKind::Punctuation, ","},      {0x061B, SignKind::Punctuation, ";"},
    {0x061F, SignKind::Punctuation, "?"},      {0x066C, SignKind::Punctuation, ","},
    {0x201A, SignKind::Punctuation, ","},      {0x2192, SignKind::Punctuation, "=>"},
    {0x21D2, SignKind::Punctuation, "=>"},     {0x2236, SignKind::Punctuation, ":"},
    {0x3001, SignKind::Punctuation, ","},      {0x3002, SignKind::Punctuation, "."},
    {0x3010, SignKind::Punctuation, "["},      {0x3011, SignKind::Punctuation, "]"},
    {0xA789, SignKind::Punctuation, ":"},      {0xFE50, SignKind::Punctuation, ","},
    {0xFE55, SignKind::Punctuation, ":"},      {0xFE59, SignKind::Punctuation, "("},
    {0xFE5A, SignKind::Punctuation, ")"},      {0xFF61, SignKind::Punctuation, "."},
    {0xFF64, SignKind::Punctuation, ","},
};

/// Where the ten digits of a script begin; those of Tamil are digits of the language.
constexpr char32_t kZeros[] = {0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66,
                               0x0AE6, 0x0B66, 0x0C66, 0x0CE6, 0x0D66, 0x0DE6,
                               0x0E50, 0x0ED0, 0x0F20, 0x1040, 0xFF10};

/// The full-width forms of ASCII stand in its order.
constexpr char32_t kFullWidthFirst = 0xFF01;
constexpr char32_t kFullWidthLast = 0xFF5E;

Sign fullWidthSign(char32_t character) {
    const std::string ascii(1, static_cast<char>(character - kFullWidthFirst + '!'));
    const AsciiOperator known = asciiOperatorAt(ascii);
    if (!known.word.empty()) return {SignKind::Operator, std::string(known.word)};
    return {SignKind::Punctuation, ascii};
}

// The longer ones first. An empty word: the sign stays, or has no word.
constexpr AsciiOperator kAsciiOperators[] = {
    {"===", "சமம்"},
    {"!==", "சமமில்லை"},
    {"==", "சமம்"},
    {"!=", "சமமில்லை"},
    {"<=", "சிறிதுசமம்"},
    {">=", "பெரிதுசமம்"},
    {"<>", "சமமில்லை"},
    {"<<", "இடதுஇருமை"},
    {">>", "வலதுஇருமை"},
    {"&&", "மற்றும்"},
    {"||", "அல்லது"},
    {"++", "ஒன்றுசேர்"},
    {"--", "ஒன்றுகழி"},
    {"+=", "கூட்டிசேர்"},
    {"-=", "கழிசேர்"},
    {"*=", "பெருக்குசேர்"},
    {"/=", "வகுசேர்"},
    {"%=", "மீதிசேர்"},
    {"->", "=>"},
    {"=>", ""},
    {"**", ""},
    {"+", "கூட்டு"},
    {"-", "கழி"},
    {"*", "பெருக்கு"},
    {"/", "வகு"},
    {"%", "மீதி"},
    {"<", "சிறிது"},
    {">", "பெரிது"},
    {"&", "பெருக்குஇருமை"},
    {"|", "கூட்டுஇருமை"},
    {"^", "வேறுஇருமை"},
    {"~", "எதிர்இருமை"},
};

}  // namespace

CodePoint codePointAt(std::string_view text, std::size_t at) {
    constexpr char32_t kBroken = 0xFFFD;
    const auto width = static_cast<std::size_t>(getUTF8SequenceLength(text[at]));
    const auto first = static_cast<unsigned char>(text[at]);
    if (width == 1) return {first < 0x80 ? first : kBroken, 1};
    if (at + width > text.size()) return {kBroken, 1};
    char32_t value = first & (0xFFU >> (width + 1));
    for (std::size_t next = 1; next < width; next++) {
        const auto byte = static_cast<unsigned char>(text[at + next]);
        if ((byte & 0xC0U) != 0x80U) return {kBroken, 1};
        value = (value << 6U) | (byte & 0x3FU);
    }
    return {value, width};
}

Sign signOf(char32_t character) {
    for (const char32_t zero : kZeros) {
        if (character < zero || character > zero + 9) continue;
        return {SignKind::Digit, std::string(1, static_cast<char>('0' + (character - zero)))};
    }
    const auto* row = std::find_if(std::begin(kSigns), std::end(kSigns), [&](const SignRow& sign) {
        return sign.character == character;
    });
    if (row != std::end(kSigns)) return {row->kind, row->meant};
    if (character >= kFullWidthFirst && character <= kFullWidthLast) {
        return fullWidthSign(character);
    }
    for (const SignRange& range : kRanges) {
        if (character >= range.first && character <= range.last) return {range.kind, ""};
    }
    return {SignKind::Plain, ""};
}

AsciiOperator asciiOperatorAt(std::string_view text) {
    for (const AsciiOperator& row : kAsciiOperators) {
        if (text.substr(0, row.sign.size()) == row.sign) return row;
    }
    return {"", ""};
}

std::string_view wordInFrontOf(std::string_view word) {
    if (word == "கழி") return "குறை";
    if (word == "கூட்டு") return "மிகை";
    return word;
}

}  // namespace companion
