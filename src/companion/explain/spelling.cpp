#include "companion/explain/spelling.h"

#include <algorithm>
#include <vector>

#include "lexer/utf8.h"

namespace companion {

namespace {

constexpr SoundRow kConsonants[] = {
    {"க", "k"}, {"ங", "n"}, {"ச", "s"}, {"ஞ", "n"}, {"ட", "t"}, {"ண", "n"}, {"த", "t"}, {"ந", "n"},
    {"ப", "p"}, {"ம", "m"}, {"ய", "y"}, {"ர", "r"}, {"ல", "l"}, {"வ", "v"}, {"ழ", "l"}, {"ள", "l"},
    {"ற", "r"}, {"ன", "n"}, {"ஸ", "s"}, {"ஷ", "s"}, {"ஜ", "s"}, {"ஹ", "k"},
};

constexpr SoundRow kVowels[] = {
    {"அ", "a"}, {"ஆ", "a"}, {"இ", "i"},  {"ஈ", "i"}, {"உ", "u"}, {"ஊ", "u"},
    {"எ", "e"}, {"ஏ", "e"}, {"ஐ", "ai"}, {"ஒ", "o"}, {"ஓ", "o"}, {"ஔ", "au"},
};

constexpr SoundRow kSigns[] = {
    {"ா", "a"}, {"ி", "i"},  {"ீ", "i"},  {"ு", "u"}, {"ூ", "u"},  {"ெ", "e"},
    {"ே", "e"}, {"ை", "ai"}, {"ொ", "o"}, {"ோ", "o"}, {"ௌ", "au"}, {"்", ""},
};

/// In Latin letters, in the order in which they are put in the place of others.
constexpr SoundRow kLatin[] = {
    {"zh", "l"},  {"sh", "s"}, {"ch", "s"}, {"th", "t"}, {"dh", "t"}, {"ndr", "nr"}, {"ttr", "rr"},
    {"tr", "rr"}, {"ng", "n"}, {"oo", "u"}, {"ee", "i"}, {"d", "t"},  {"g", "k"},    {"b", "p"},
    {"w", "v"},   {"c", "s"},  {"j", "s"},  {"h", ""},   {"_", ""},   {"-", ""},
};

template <std::size_t count>
const SoundRow* soundRow(const SoundRow (&rows)[count], std::string_view letter) {
    for (const SoundRow& row : rows) {
        if (row.letter == letter) return &row;
    }
    return nullptr;
}

/// A consonant sounds with an `a` unless a sign follows.
std::string soundOfTamil(std::string_view word) {
    std::string sound;
    bool isOpen = false;
    const auto close = [&] {
        if (isOpen) sound += 'a';
        isOpen = false;
    };
    for (const std::string_view letter : splitCodePoints(word)) {
        if (const SoundRow* sign = soundRow(kSigns, letter)) {
            isOpen = false;
            sound += sign->sound;
            continue;
        }
        close();
        if (const SoundRow* consonant = soundRow(kConsonants, letter)) {
            sound += consonant->sound;
            isOpen = true;
        } else if (const SoundRow* vowel = soundRow(kVowels, letter)) {
            sound += vowel->sound;
        } else if (letter.size() == 1) {
            sound += letter;
        }
    }
    close();
    return sound;
}

void replaceSounds(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

}  // namespace

std::string soundOf(std::string_view word) {
    std::string sound = soundOfTamil(word);
    for (const SoundRow& row : kLatin) replaceSounds(sound, row.letter, row.sound);
    sound.erase(std::unique(sound.begin(), sound.end()), sound.end());
    return sound;
}

SoundRows consonantSounds() { return {std::begin(kConsonants), std::end(kConsonants)}; }
SoundRows vowelSounds() { return {std::begin(kVowels), std::end(kVowels)}; }
SoundRows signSounds() { return {std::begin(kSigns), std::end(kSigns)}; }
SoundRows latinSounds() { return {std::begin(kLatin), std::end(kLatin)}; }

int editDistance(std::string_view one, std::string_view other) {
    const auto left = splitCodePoints(one);
    const auto right = splitCodePoints(other);
    std::vector<int> row(right.size() + 1);
    for (std::size_t at = 0; at <= right.size(); at++) row[at] = static_cast<int>(at);
    for (std::size_t i = 0; i < left.size(); i++) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i) + 1;
        for (std::size_t j = 0; j < right.size(); j++) {
            const int changed = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row[right.size()];
}

}  // namespace companion
