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

constexpr SoundRow kSignSounds[] = {
    {"ா", "a"}, {"ி", "i"},  {"ீ", "i"},  {"ு", "u"}, {"ூ", "u"},  {"ெ", "e"},
    {"ே", "e"}, {"ை", "ai"}, {"ொ", "o"}, {"ோ", "o"}, {"ௌ", "au"}, {"்", ""},
};

/// In Latin letters, in the order in which they are put in the place of others. What follows a
/// vowel as ய is as often written i, so both are one.
constexpr SoundRow kLatin[] = {
    {"zh", "l"},   {"sh", "s"},  {"ch", "s"}, {"th", "T"}, {"dh", "T"}, {"ndr", "nr"}, {"ng", "nk"},
    {"ttr", "rr"}, {"tr", "rr"}, {"oo", "u"}, {"ee", "i"}, {"ae", "e"}, {"ea", "e"},   {"oa", "o"},
    {"ou", "au"},  {"ow", "au"}, {"d", "t"},  {"T", "t"},  {"g", "k"},  {"q", "k"},    {"x", "ks"},
    {"b", "p"},    {"f", "p"},   {"w", "v"},  {"c", "s"},  {"j", "s"},  {"z", "l"},    {"h", ""},
    {"_", ""},     {"-", ""},    {"y", "i"},  {"uv", "u"},
};

/// The same where nothing is passed over. Capital T is த, which Latin letters tell from ட.
constexpr SoundRow kFullLatin[] = {
    {"gn", "n"},   {"zh", "z"},    {"sh", "s"},  {"ch", "s"},  {"th", "T"},   {"dh", "T"},
    {"ndr", "nr"}, {"tTr", "TTr"}, {"tT", "TT"}, {"ng", "nk"}, {"nkk", "nk"}, {"ttr", "rr"},
    {"tr", "rr"},  {"cs", "ss"},   {"ee", "ii"}, {"oo", "uu"}, {"ae", "EE"},  {"ea", "EE"},
    {"oa", "OO"},  {"d", "t"},     {"g", "k"},   {"b", "p"},   {"f", "p"},    {"w", "v"},
    {"c", "s"},    {"j", "s"},     {"h", ""},    {"_", ""},    {"-", ""},
};

/// Letters that sound in two ways, the likelier first.
struct TwoSounds {
    std::string_view letters;
    std::string_view first;
    std::string_view second;
};
constexpr TwoSounds kTwoSounds[] = {
    {"ee", "i", "e"},     {"oo", "u", "o"},   {"aha", "aa", "aka"}, {"ahu", "au", "aku"},
    {"uhu", "uu", "uku"}, {"oh", "o", "oku"}, {"tr", "tr", "t-r"},  {"aai", "ai", "ay"},
};
constexpr std::size_t kMostSounds = 8;

/// Beginnings that are heard otherwise than they are written.
constexpr SoundRow kBeginnings[] = {
    {"ye", "e"}, {"vo", "o"}, {"gn", "n"}, {"jn", "n"}, {"ny", "n"}, {"nj", "n"},
};

/// Vowels that are long, and consonants, for a sound that tells them apart.
constexpr SoundRow kFullLetters[] = {
    {"ழ", "z"},  {"த", "T"},  {"ஆ", "aa"}, {"ா", "aa"}, {"ஈ", "ii"}, {"ீ", "ii"},
    {"ஊ", "uu"}, {"ூ", "uu"}, {"ஏ", "EE"}, {"ே", "EE"}, {"ஓ", "OO"}, {"ோ", "OO"},
};

template <std::size_t count>
const SoundRow* soundRow(const SoundRow (&rows)[count], std::string_view letter) {
    for (const SoundRow& row : rows) {
        if (row.letter == letter) return &row;
    }
    return nullptr;
}

/// The row of `letter`, those of a full sound first if it is asked for.
template <std::size_t count>
const SoundRow* soundRow(const SoundRow (&rows)[count], std::string_view letter, bool isFull) {
    const SoundRow* row = soundRow(rows, letter);
    const SoundRow* full = row != nullptr && isFull ? soundRow(kFullLetters, letter) : nullptr;
    return full != nullptr ? full : row;
}

/// A consonant sounds with an `a` unless a sign follows.
std::string soundOfTamil(std::string_view word, bool isFull) {
    std::string sound;
    bool isOpen = false;
    const auto close = [&] {
        if (isOpen) sound += 'a';
        isOpen = false;
    };
    for (const std::string_view letter : splitCodePoints(word)) {
        if (const SoundRow* sign = soundRow(kSignSounds, letter, isFull)) {
            isOpen = false;
            sound += sign->sound;
            continue;
        }
        close();
        if (const SoundRow* consonant = soundRow(kConsonants, letter, isFull)) {
            sound += consonant->sound;
            isOpen = true;
        } else if (const SoundRow* vowel = soundRow(kVowels, letter, isFull)) {
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
    std::string sound = soundOfTamil(word, false);
    for (const SoundRow& row : kLatin) replaceSounds(sound, row.letter, row.sound);
    sound.erase(std::unique(sound.begin(), sound.end()), sound.end());
    return sound;
}

std::vector<std::string> soundsOf(std::string_view typed) {
    std::vector<std::string> ways = {std::string(typed)};
    for (const TwoSounds& row : kTwoSounds) {
        const std::size_t count = ways.size();
        for (std::size_t at = 0; at < count && ways.size() < kMostSounds; at++) {
            std::string other = ways[at];
            replaceSounds(other, row.letters, row.second);
            if (other != ways[at]) ways.push_back(std::move(other));
            replaceSounds(ways[at], row.letters, row.first);
        }
    }
    for (const SoundRow& row : kBeginnings) {
        if (typed.substr(0, row.letter.size()) != row.letter) continue;
        const std::string rest(typed.substr(row.letter.size()));
        ways.push_back(std::string(row.sound) + rest);
    }
    std::vector<std::string> sounds;
    for (const std::string& way : ways) {
        std::string sound = soundOf(way);
        const bool isKnown = std::find(sounds.begin(), sounds.end(), sound) != sounds.end();
        if (!isKnown) sounds.push_back(std::move(sound));
    }
    return sounds;
}

std::string fullSoundOf(std::string_view word) {
    std::string sound = soundOfTamil(word, true);
    for (const SoundRow& row : kFullLatin) replaceSounds(sound, row.letter, row.sound);
    return sound;
}

std::string consonantsOf(std::string_view sound) {
    constexpr std::string_view kVowelLetters = "aeiou";
    std::string consonants;
    for (const char letter : sound) {
        const bool isVowel = kVowelLetters.find(letter) != std::string_view::npos;
        const bool isRepeated = !consonants.empty() && consonants.back() == letter;
        if (!isVowel && !isRepeated) consonants += letter;
    }
    return consonants;
}

SoundRows consonantSounds() { return {std::begin(kConsonants), std::end(kConsonants)}; }
SoundRows vowelSounds() { return {std::begin(kVowels), std::end(kVowels)}; }
SoundRows signSounds() { return {std::begin(kSignSounds), std::end(kSignSounds)}; }
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
