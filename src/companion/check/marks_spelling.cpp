#include "companion/check/marks_spelling.h"

#include <iterator>

namespace companion {

namespace {

// A Tamil character is three bytes; the first is the same for all of them.
constexpr std::size_t kWidth = 3;

struct Replacement {
    std::string_view from;
    std::string_view to;
};

// Both orders: the parts are typed as they are drawn, too. The last is the letter, not the sign.
constexpr Replacement kSplitSigns[] = {
    {"\u0BC6\u0BBE", "\u0BCA"}, {"\u0BC7\u0BBE", "\u0BCB"}, {"\u0BC6\u0BD7", "\u0BCC"},
    {"\u0BBE\u0BC6", "\u0BCA"}, {"\u0BBE\u0BC7", "\u0BCB"}, {"\u0BD7\u0BC6", "\u0BCC"},
    {"\u0B92\u0BD7", "\u0B94"},
};

constexpr std::string_view kLengthMark = "\u0BD7";

constexpr Replacement kLookAlikes[] = {
    {"\u0BE7", "\u0B95"},        // ௧ க
    {"\u0BE8", "\u0B89"},        // ௨ உ
    {"\u0BEA", "\u0B9A"},        // ௪ ச
    {"\u0BED", "\u0B8E"},        // ௭ எ
    {"\u0BEE", "\u0B85"},        // ௮ அ
    {"\u0B92\u0BB3", "\u0B94"},  // ஒள ஔ
    {"\u0BC6\u0BB3", "\u0BCC"},  // ெள ௌ
};

/// ா to ், or the length mark ௗ: what sits on a letter.
bool isSign(std::string_view word, std::size_t at) {
    if (at + kWidth > word.size() || word[at] != '\xE0') return false;
    const auto second = static_cast<unsigned char>(word[at + 1]);
    const auto third = static_cast<unsigned char>(word[at + 2]);
    if (second == 0xAE) return third >= 0xBE && third <= 0xBF;
    return second == 0xAF && ((third >= 0x80 && third <= 0x8D) || third == 0x97);
}

const Replacement* replacementAt(const Replacement* begin, const Replacement* end,
                                 std::string_view word, std::size_t at) {
    for (const Replacement* row = begin; row != end; row++) {
        if (word.compare(at, row->from.size(), row->from) == 0) return row;
    }
    return nullptr;
}

const Replacement* splitSignAt(std::string_view word, std::size_t at) {
    return replacementAt(std::begin(kSplitSigns), std::end(kSplitSigns), word, at);
}

/// A ள with a sign of its own is a ள.
const Replacement* lookAlikeAt(std::string_view word, std::size_t at) {
    const Replacement* row =
        replacementAt(std::begin(kLookAlikes), std::end(kLookAlikes), word, at);
    if (row == nullptr || row->from.size() == kWidth) return row;
    return isSign(word, at + row->from.size()) ? nullptr : row;
}

/// True for the characters with which a row of the tables begins: ஒ, ா, ெ, ே, ௗ and digits.
bool beginsRow(std::string_view word, std::size_t at) {
    if (at + kWidth > word.size()) return false;
    const auto second = static_cast<unsigned char>(word[at + 1]);
    const auto third = static_cast<unsigned char>(word[at + 2]);
    if (second == 0xAE) return third == 0x92 || third == 0xBE;
    return second == 0xAF && (third == 0x86 || third == 0x87 || third >= 0x97);
}

using FindReplacement = const Replacement* (*)(std::string_view, std::size_t);

std::string replaced(std::string_view word, FindReplacement find) {
    std::string result;
    for (std::size_t at = 0; at < word.size();) {
        const Replacement* row = find(word, at);
        if (row == nullptr) {
            result += word[at++];
        } else {
            result += row->to;
            at += row->from.size();
        }
    }
    return result;
}

}  // namespace

Spelling spellingOf(std::string_view word) {
    Spelling spelling;
    bool isBehindSign = false;
    for (std::size_t at = 0; at < word.size();) {
        if (word[at] != '\xE0') {
            at++;
            isBehindSign = false;
            continue;
        }
        const bool sign = isSign(word, at);
        const bool couldBeOdd = beginsRow(word, at);
        const Replacement* split = couldBeOdd ? splitSignAt(word, at) : nullptr;
        if (split != nullptr) {
            spelling.isSplit = true;
            at += split->from.size();
            isBehindSign = true;
            continue;
        }
        const bool isStray = sign && (isBehindSign || word.compare(at, kWidth, kLengthMark) == 0);
        if (isStray && spelling.strayAt == std::string_view::npos) spelling.strayAt = at;
        if (couldBeOdd && lookAlikeAt(word, at) != nullptr) spelling.isLookAlike = true;
        isBehindSign = sign;
        at += kWidth;
    }
    return spelling;
}

std::string composed(std::string_view word) { return replaced(word, splitSignAt); }

std::string withUsualLetters(std::string_view word) { return replaced(word, lookAlikeAt); }

}  // namespace companion
