#include "companion/completion/tamil_letters.h"

#include <algorithm>
#include <map>
#include <set>

#include "companion/completion/typed_word.h"
#include "lexer/utf8.h"

namespace companion::completion {

namespace {

constexpr std::size_t kLongest = 40;     ///< Letters of a word that is still spelled.
constexpr std::size_t kMostTried = 200;  ///< Spellings that are looked at.
constexpr std::string_view kPulli = "்";
constexpr double kLongAtEnd = 0.6;  ///< Of a last ஆ that was typed short.

struct Choice {
    std::string_view letters;
    double cost;
};

// ---- Consonants ----

/// Tamil letters, the last one without its vowel, by what is typed. The first is the likeliest; an
/// empty one ends the row.
struct ConsonantRow {
    std::string_view typed;
    Choice choices[3];
};

/// Longer rows stand ahead of shorter ones that they begin with.
constexpr ConsonantRow kConsonants[] = {
    {"ththth", {{"த்த", 0}}},
    {"thth", {{"த்த", 0}}},
    {"dhdh", {{"த்த", 0}}},
    {"tth", {{"த்த", 0}}},
    {"nthth", {{"ந்த", 0}}},
    {"nth", {{"ந்த", 0}}},
    {"ndh", {{"ந்த", 0}}},
    {"nndr", {{"ன்ற", 0}}},
    {"ndr", {{"ன்ற", 0}}},
    {"ntr", {{"ன்ற", 0}, {"ந்திர", 4}}},
    {"nd", {{"ண்ட", 0}, {"ந்த", 1}}},
    {"nt", {{"ண்ட", 0}, {"ந்த", 0.9}}},
    {"Nd", {{"ண்ட", 0}}},
    {"ngk", {{"ங்க", 0}}},
    {"ng", {{"ங்க", 0}}},
    {"nk", {{"ங்க", 0}}},
    {"nj", {{"ஞ்ச", 0}}},
    {"nch", {{"ஞ்ச", 0}}},
    {"gn", {{"ஞ", 0}, {"க்ன", 3}}},
    {"ny", {{"ஞ", 0}, {"ன்ய", 1}}},
    {"nn", {{"ன்ன", 0}, {"ண்ண", 0.8}}},
    {"NN", {{"ண்ண", 0}}},
    {"N", {{"ண", 0}}},
    {"n", {{"ன", 0}, {"ண", 1}, {"ந", 3}}},
    {"ttr", {{"ற்ற", 0}}},
    {"tr", {{"ற்ற", 0}, {"ட்ர", 2}}},
    {"tt", {{"ட்ட", 0}, {"த்த", 1.5}, {"ற்ற", 2.5}}},
    {"dd", {{"ட்ட", 0}}},
    {"th", {{"த", 0}, {"த்த", 1.6}}},
    {"dh", {{"த", 0}}},
    {"t", {{"ட", 0}, {"த", 1.2}, {"ட்ட", 1.6}}},
    {"d", {{"ட", 0}, {"த", 1.2}}},
    {"cchch", {{"ச்ச", 0}}},
    {"chch", {{"ச்ச", 0}}},
    {"cch", {{"ச்ச", 0}}},
    {"tch", {{"ச்ச", 0}}},
    {"ss", {{"ச்ச", 0}, {"ச", 1}}},
    {"ch", {{"ச", 0}, {"ச்ச", 1.4}}},
    {"sh", {{"ச", 0}, {"ச்ச", 2}}},
    {"s", {{"ச", 0}}},
    {"ck", {{"க்க", 0}}},
    {"c", {{"ச", 0}, {"க", 2}}},
    {"j", {{"ச", 0}}},
    {"zh", {{"ழ", 0}}},
    {"z", {{"ழ", 0}}},
    {"LL", {{"ள்ள", 0}}},
    {"L", {{"ள", 0}}},
    {"ll", {{"ல்ல", 0}, {"ள்ள", 0.8}}},
    {"l", {{"ல", 0}, {"ள", 0.9}, {"ழ", 1.8}}},
    {"rr", {{"ற்ற", 0}, {"ற", 0.9}}},
    {"RR", {{"ற்ற", 0}}},
    {"R", {{"ற", 0}}},
    {"r", {{"ர", 0}, {"ற", 1.1}}},
    {"mm", {{"ம்ம", 0}}},
    {"m", {{"ம", 0}}},
    {"kk", {{"க்க", 0}}},
    {"gg", {{"க்க", 0}}},
    {"kh", {{"க", 0}}},
    {"gh", {{"க", 0}}},
    {"k", {{"க", 0}, {"க்க", 1.5}}},
    {"g", {{"க", 0}}},
    {"q", {{"க", 0}}},
    {"x", {{"க்ச", 0}}},
    {"pp", {{"ப்ப", 0}}},
    {"bb", {{"ப்ப", 0}}},
    {"ph", {{"ப", 0}}},
    {"bh", {{"ப", 0}}},
    {"p", {{"ப", 0}, {"ப்ப", 1.5}}},
    {"b", {{"ப", 0}}},
    {"f", {{"ப", 0}}},
    {"yy", {{"ய்ய", 0}}},
    {"y", {{"ய", 0}}},
    {"vv", {{"வ்வ", 0}}},
    {"v", {{"வ", 0}, {"வ்வ", 1.5}}},
    {"w", {{"வ", 0}}},
    {"h", {{"க", 0}}},
};

/// At a word's beginning, where other letters stand than within.
constexpr ConsonantRow kFirstConsonants[] = {
    {"ny", {{"ஞ", 0}}},
    {"gn", {{"ஞ", 0}}},
    {"nj", {{"ஞ", 0}}},
    {"nn", {{"ந", 0}}},
    {"N", {{"ந", 0}}},
    {"n", {{"ந", 0}}},
    {"th", {{"த", 0}}},
    {"dh", {{"த", 0}}},
    {"t", {{"த", 0}, {"ட", 1.5}}},
    {"d", {{"த", 0}, {"ட", 1.3}}},
    {"r", {{"ர", 0}}},
    {"l", {{"ல", 0}}},
    {"L", {{"ல", 0}}},
    {"R", {{"ர", 0}}},
    {"h", {{"", 0}}},
    {"k", {{"க", 0}}},
    {"p", {{"ப", 0}}},
    {"v", {{"வ", 0}}},
    {"ch", {{"ச", 0}}},
    {"sh", {{"ச", 0}}},
    {"s", {{"ச", 0}}},
};

// ---- Vowels ----

struct VowelRow {
    std::string_view typed;
    Choice letters[2];  ///< At a word's beginning.
    Choice signs[2];    ///< Behind a consonant.
};

constexpr VowelRow kVowels[] = {
    {"aai", {{"ஆய்", 0}}, {{"ாய்", 0}}},
    {"aay", {{"ஆய்", 0}}, {{"ாய்", 0}}},
    {"aa", {{"ஆ", 0}}, {{"ா", 0}}},
    {"ai", {{"ஐ", 0}}, {{"ை", 0}}},
    {"au", {{"ஔ", 0}, {"அவு", 1}}, {{"ௌ", 0}}},
    {"ae", {{"ஏ", 0}}, {{"ே", 0}}},
    {"A", {{"ஆ", 0}}, {{"ா", 0}}},
    {"a", {{"அ", 0}, {"ஆ", 1.4}}, {{"", 0}, {"ா", 1.4}}},
    {"ii", {{"ஈ", 0}}, {{"ீ", 0}}},
    {"I", {{"ஈ", 0}}, {{"ீ", 0}}},
    {"i", {{"இ", 0}, {"ஈ", 1.7}}, {{"ி", 0}, {"ீ", 1.7}}},
    {"uu", {{"ஊ", 0}}, {{"ூ", 0}}},
    {"U", {{"ஊ", 0}}, {{"ூ", 0}}},
    {"u", {{"உ", 0}, {"ஊ", 1.7}}, {{"ு", 0}, {"ூ", 1.7}}},
    {"ee", {{"ஈ", 0}, {"ஏ", 0.7}}, {{"ீ", 0}, {"ே", 0.7}}},
    {"ea", {{"ஏ", 0}}, {{"ே", 0}}},
    {"ei", {{"எய்", 0}, {"ஏ", 1.2}}, {{"ெய்", 0}, {"ை", 1.2}}},
    {"E", {{"ஏ", 0}}, {{"ே", 0}}},
    {"e", {{"எ", 0}, {"ஏ", 1.0}}, {{"ெ", 0}, {"ே", 1.0}}},
    {"oo", {{"ஊ", 0}, {"ஓ", 0.7}}, {{"ூ", 0}, {"ோ", 0.7}}},
    {"oa", {{"ஓ", 0}}, {{"ோ", 0}}},
    {"oi", {{"ஒய்", 0}}, {{"ொய்", 0}}},
    {"ou", {{"ஔ", 0}}, {{"ௌ", 0}}},
    {"ow", {{"ஔ", 0}, {"ஓ", 1}}, {{"ௌ", 0}, {"ோ", 1}}},
    {"O", {{"ஓ", 0}}, {{"ோ", 0}}},
    {"o", {{"ஒ", 0}, {"ஓ", 1.0}}, {{"ொ", 0}, {"ோ", 1.0}}},
};

bool isVowel(char letter) {
    return std::string_view("aeiouAEIOU").find(letter) != std::string_view::npos;
}

template <typename Table>
auto rowFor(const Table& table, std::string_view rest) {
    const auto row = std::find_if(std::begin(table), std::end(table),
                                  [&](const auto& row) { return beginsWith(rest, row.typed); });
    return row == std::end(table) ? nullptr : &*row;
}

// ---- A word as a row of choices ----

using Choices = std::vector<std::pair<std::string, double>>;

class SpelledWord {
public:
    explicit SpelledWord(std::string_view typed) : typed(typed) {}

    /// False for what holds anything but letters.
    bool read();
    std::vector<Spelling> likeliest(std::size_t most) const;

private:
    void readConsonant();
    void readVowel();
    bool endsPlural() const;
    void preferLongEnd(std::string_view vowel, Choices& choices) const;
    void glide(std::string_view before);
    bool atEnd() const { return at >= typed.size(); }

    const std::string_view typed;
    std::size_t at = 0;
    bool isOpen = false;  ///< A consonant waits for its vowel.
    std::string_view lastVowel;
    std::vector<Choices> parts;
};

bool SpelledWord::read() {
    if (typed.empty() || typed.size() > kLongest) return false;
    if (!std::all_of(typed.begin(), typed.end(), isLatinLetter)) return false;
    while (!atEnd()) {
        if (isVowel(typed[at])) {
            readVowel();
        } else {
            readConsonant();
        }
    }
    // A word of one consonant would be nothing but a mei.
    if (isOpen && parts.size() > 1) parts.push_back({{std::string(kPulli), 0}});
    return true;
}

/// No mei begins a word: what is typed without its vowel there gets the shortest one.
void SpelledWord::readConsonant() {
    const std::string_view rest = typed.substr(at);
    const bool isFirst = parts.empty();
    if (isOpen) {
        const bool begins = parts.size() == 1;
        parts.push_back({{begins ? "ி" : std::string(kPulli), 0}});
    }
    const ConsonantRow* row = isFirst ? rowFor(kFirstConsonants, rest) : nullptr;
    if (row == nullptr) row = rowFor(kConsonants, rest);
    if (row == nullptr) {
        at++;
        return;
    }
    Choices choices;
    for (const Choice& choice : row->choices) {
        if (!choice.letters.empty()) choices.emplace_back(choice.letters, choice.cost);
    }
    if (row->typed == "l" && endsPlural()) std::swap(choices[0].first, choices[1].first);
    at += row->typed.size();
    lastVowel = {};
    isOpen = !choices.empty();
    if (isOpen) parts.push_back(std::move(choices));
}

/// கள் behind a consonant or a second vowel: மரங்கள், விடைகள், but பகல்.
bool SpelledWord::endsPlural() const {
    constexpr std::size_t kEnding = 2;
    if (at < kEnding + 1) return false;
    const std::string_view ending = typed.substr(at - kEnding, kEnding);
    if (ending != "ga" && ending != "ka") return false;
    const std::string_view stem = typed.substr(0, at - kEnding);
    int vowels = 0;
    for (std::size_t letter = 0; letter < stem.size(); letter++) {
        if (isVowel(stem[letter]) && (letter == 0 || !isVowel(stem[letter - 1]))) vowels++;
    }
    return vowels > 1 || (vowels == 1 && !isVowel(stem.back()));
}

void SpelledWord::readVowel() {
    const std::string_view rest = typed.substr(at);
    const VowelRow* row = rowFor(kVowels, rest);
    // "ay" ahead of a consonant or at the end is ஐ; "aay" ahead of a vowel is ஆ and ய.
    const auto vowelBehind = [&](std::size_t letters) {
        return rest.size() > letters && isVowel(rest[letters]);
    };
    if (row->typed == "aay" && vowelBehind(3)) row = rowFor(kVowels, "aa");
    if (row->typed == "aai" && vowelBehind(3)) row = rowFor(kVowels, "aa");
    if (row->typed == "a" && beginsWith(rest, "ay") && rest.size() > 2 && !vowelBehind(2) &&
        rest[2] != 'y') {
        row = rowFor(kVowels, "ai");
    }
    if (row->typed == "ow" && vowelBehind(2)) row = rowFor(kVowels, "o");
    if (!isOpen && !lastVowel.empty()) glide(lastVowel);
    Choices choices;
    for (const Choice& choice : isOpen ? row->signs : row->letters) {
        if (choice.cost > 0 || choices.empty()) choices.emplace_back(choice.letters, choice.cost);
    }
    const std::size_t begin = at;
    at += row->typed.size();
    if (atEnd()) preferLongEnd(row->typed, choices);
    lastVowel = typed.substr(begin, at - begin);
    isOpen = false;
    parts.push_back(std::move(choices));
}

/// Words end in ஏ and ஓ, never in எ and ஒ; those that name people end in ஆ: அம்மா, அப்பா, அக்கா.
void SpelledWord::preferLongEnd(std::string_view vowel, Choices& choices) const {
    if (choices.size() < 2) return;
    const bool isPerson = vowel == "a" && parts.size() == 2 && isVowel(typed.front()) &&
                          splitCodePoints(parts.back().front().first).size() == 3;
    const bool isLong = vowel == "e" || vowel == "o" || isPerson;
    if (isLong) std::swap(choices[0].first, choices[1].first);
    if (vowel == "a") choices[1].second = kLongAtEnd;
}

/// What is said between two vowels: ய behind இ, ஈ, எ, ஏ, ஐ, else வ.
void SpelledWord::glide(std::string_view before) {
    const char last = before.back();
    const bool isFront = last == 'i' || last == 'e' || last == 'I' || last == 'E';
    parts.push_back({{isFront ? "ய" : "வ", 0}});
    isOpen = true;
}

/// Goes from each spelling to those that are dearer by one choice, the cheapest first.
std::vector<Spelling> SpelledWord::likeliest(std::size_t most) const {
    using Picked = std::vector<std::size_t>;
    std::set<std::pair<double, Picked>> open = {{0, Picked(parts.size(), 0)}};
    std::set<Picked> seen;
    std::vector<Spelling> spellings;
    while (!open.empty() && spellings.size() < most && seen.size() < kMostTried) {
        const auto [cost, picked] = *open.begin();
        open.erase(open.begin());
        if (!seen.insert(picked).second) continue;
        std::string word;
        for (std::size_t part = 0; part < parts.size(); part++) {
            word += parts[part][picked[part]].first;
        }
        spellings.push_back({std::move(word), cost});
        for (std::size_t part = 0; part < parts.size(); part++) {
            if (picked[part] + 1 >= parts[part].size()) continue;
            Picked other = picked;
            const double before = parts[part][other[part]].second;
            other[part]++;
            open.insert({cost - before + parts[part][other[part]].second, std::move(other)});
        }
    }
    return spellings;
}

/// Which consonants follow which within Tamil words; all double ones are left out.
constexpr struct {
    char first;
    std::string_view second;
} kMeetings[] = {
    {'n', "dtrjckgbpmvys"},
    {'m', "pby"},
    {'l', "vkgympb"},
    {'r', "vkgtdmpbscjyz"},
    {'z', "vkgcstd"},
    {'y', "vkgtdcsn"},
    {'t', "rpkc"},
    {'d', "rpkc"},
    {'k', "s"},
    {'v', "y"},
};

bool mayMeet(char first, char second) {
    for (const auto& row : kMeetings) {
        if (row.first == first) return row.second.find(second) != std::string_view::npos;
    }
    return false;
}

/// Each consonant once, whatever is written for it.
std::string withoutDoubles(std::string_view typed) {
    std::string letters;
    for (const char letter : inSmallLetters(typed)) {
        const bool isTail = letter == 'h' && !letters.empty() && !isVowel(letters.back());
        const bool isDouble = !letters.empty() && letters.back() == letter && !isVowel(letter);
        if (!isTail && !isDouble) letters += letter;
    }
    return letters;
}

}  // namespace

std::vector<Spelling> spellingsOf(std::string_view typed, std::size_t most) {
    // A capital at the beginning alone is a sentence's, not a letter's.
    std::string letters(typed);
    if (!letters.empty()) letters[0] = inSmallLetters(letters.substr(0, 1)).front();
    SpelledWord word(letters);
    if (!word.read()) return {};
    return word.likeliest(most);
}

bool isReadable(std::string_view typed) {
    const std::string letters = withoutDoubles(typed);
    int consonants = 0;
    for (std::size_t at = 0; at < letters.size(); at++) {
        consonants = isVowel(letters[at]) ? 0 : consonants + 1;
        if (consonants < 2) continue;
        const bool isLoud = letters.substr(at - 1, 2) == "dr" || letters.substr(at - 1, 2) == "tr";
        const bool isAtEdge = at == 1 || at + 1 == letters.size();
        if (isAtEdge || !mayMeet(letters[at - 1], letters[at])) return false;
        if (consonants > 2 && !isLoud) return false;
    }
    return std::any_of(letters.begin(), letters.end(), isVowel);
}

}  // namespace companion::completion
