#include "companion/completion/known_words.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "companion/completion/tamil_letters.h"
#include "companion/completion/typed_word.h"
#include "companion/descriptions/description.h"
#include "companion/explain/spelling.h"
#include "lexer/characters.h"

namespace companion::completion {

namespace {

/// What a word costs beside a spelling by the rules, of which the likeliest costs nothing.
constexpr double kDocumentWord = -3.0;
constexpr double kEverydayWord = -1.6;
constexpr double kProseWord = -1.0;
constexpr double kLeftOut = 0.45;          ///< A letter of the word that wasn't typed.
constexpr double kTypedTooMuch = 1.8;      ///< A letter that was typed and isn't in the word.
constexpr double kOther = 2.0;             ///< One in the place of another.
constexpr std::size_t kShortestProse = 3;  ///< In letters of three bytes.
constexpr std::size_t kLongestKnown = 60;

struct KnownWord {
    std::string_view word;
    double cost;
};
using WordsBySound = std::unordered_map<std::string, std::vector<KnownWord>>;

/// Tamil letters alone that the scanner takes in names.
bool isPlainTamil(std::string_view word) {
    if (word.size() % 3 != 0) return false;
    for (std::size_t at = 0; at < word.size(); at += 3) {
        const std::string_view letter = word.substr(at, 3);
        const bool isTamil = letter.substr(0, 2) == "\xE0\xAE" || letter.substr(0, 2) == "\xE0\xAF";
        const bool isGrantha =
            letter == "ஜ" || letter == "ஷ" || letter == "ஸ" || letter == "ஹ" || letter == "ஃ";
        if (!isTamil || isGrantha) return false;
    }
    return true;
}

template <typename Take>
void eachWordOf(std::string_view prose, Take take) {
    std::size_t begin = 0;
    for (std::size_t at = 0; at <= prose.size(); at++) {
        const bool goesOn =
            at < prose.size() && !isAsciiMark(static_cast<unsigned char>(prose[at]));
        if (goesOn) continue;
        if (at > begin) take(prose.substr(begin, at - begin));
        begin = at + 1;
    }
}

class KnownWords {
public:
    KnownWords();
    const WordsBySound& all() const { return bySound; }

private:
    void add(std::string_view word, double cost);
    void addProse(std::string_view prose);

    std::unordered_set<std::string_view> added;
    WordsBySound bySound;
};

KnownWords::KnownWords() {
    for (const std::string_view word : everydayWords()) add(word, kEverydayWord);
    for (const auto* table : {&wordDescriptions(), &widgetDescriptions()}) {
        for (const Description& row : *table) {
            add(row.word, kEverydayWord);
            addProse(row.summary);
            addProse(row.trap);
        }
    }
    for (const PropertyDescription& row : propertyDescriptions()) {
        add(row.word, kEverydayWord);
        addProse(row.summary);
    }
}

void KnownWords::add(std::string_view word, double cost) {
    if (word.size() > kLongestKnown || !isPlainTamil(word) || !added.insert(word).second) return;
    bySound[soundOf(word)].push_back({word, cost});
}

void KnownWords::addProse(std::string_view prose) {
    eachWordOf(prose, [&](std::string_view word) {
        if (word.size() >= 3 * kShortestProse) add(word, kProseWord);
    });
}

const WordsBySound& knownWords() {
    static const KnownWords words;
    return words.all();
}

/// Letters of a full sound that are often typed for others, and what that costs.
constexpr struct {
    char typed;
    char meant;
    double cost;
} kMistyped[] = {
    {'t', 'T', 0.45}, {'T', 't', 1.4}, {'l', 'z', 0.45}, {'i', 'E', 0.3},
    {'u', 'O', 0.3},  {'e', 'E', 0.3}, {'o', 'O', 0.3},
};

double costOfOther(char typed, char meant) {
    if (typed == meant) return 0;
    for (const auto& row : kMistyped) {
        if (row.typed == typed && row.meant == meant) return row.cost;
    }
    return kOther;
}

/// How far the word is from what was typed, as full sounds: who types leaves letters out more often
/// than they put some in.
double differencesOf(std::string_view typed, std::string_view word) {
    const std::string meant = fullSoundOf(word);
    std::vector<double> row(meant.size() + 1);
    for (std::size_t at = 0; at <= meant.size(); at++) row[at] = kLeftOut * static_cast<double>(at);
    for (const char letter : typed) {
        double diagonal = row[0];
        row[0] += kTypedTooMuch;
        for (std::size_t at = 0; at < meant.size(); at++) {
            const double other = diagonal + costOfOther(letter, meant[at]);
            diagonal = row[at + 1];
            row[at + 1] = std::min({other, diagonal + kTypedTooMuch, row[at] + kLeftOut});
        }
    }
    return row.back();
}

class Candidates {
public:
    explicit Candidates(std::string_view typed)
        : sounds(soundsOf(inSmallLetters(typed))), full(fullSoundOf(inSmallLetters(typed))) {}

    void offer(std::string_view word, double cost) {
        const auto same = [&](const Spelling& known) { return known.word == word; };
        const auto known = std::find_if(found.begin(), found.end(), same);
        if (known == found.end()) {
            found.push_back({std::string(word), cost});
        } else {
            known->cost = std::min(known->cost, cost);
        }
    }
    void offerDocument(const std::vector<std::string>& words) {
        for (const std::string& word : words) {
            if (word.size() > kLongestKnown) continue;
            const bool isAlike =
                std::find(sounds.begin(), sounds.end(), soundOf(word)) != sounds.end();
            if (isAlike) offer(word, kDocumentWord + differencesOf(full, word));
        }
    }
    void offerKnown() {
        for (const std::string& sound : sounds) {
            const auto words = knownWords().find(sound);
            if (words == knownWords().end()) continue;
            for (const KnownWord& known : words->second) {
                offer(known.word, known.cost + differencesOf(full, known.word));
            }
        }
    }
    std::vector<std::string> best(std::size_t most) {
        std::stable_sort(found.begin(), found.end(),
                         [](const Spelling& a, const Spelling& b) { return a.cost < b.cost; });
        std::vector<std::string> candidates;
        for (Spelling& spelling : found) {
            if (candidates.size() == most) break;
            candidates.push_back(std::move(spelling.word));
        }
        return candidates;
    }

private:
    const std::vector<std::string> sounds;
    const std::string full;
    std::vector<Spelling> found;
};

/// The candidates for letters alone.
std::vector<std::string> tamilForLetters(std::string_view typed,
                                         const std::vector<std::string>& documentWords,
                                         bool withKnownWords, std::size_t most) {
    const std::vector<Spelling> made = spellingsOf(typed, most);
    if (made.empty()) return {};
    Candidates candidates(typed);
    candidates.offerDocument(documentWords);
    if (withKnownWords) candidates.offerKnown();
    for (const Spelling& spelling : made) candidates.offer(spelling.word, spelling.cost);
    return candidates.best(most);
}

bool joinsWords(char byte) { return byte == '_' || isAsciiDigit(byte); }

}  // namespace

std::vector<std::string> tamilFor(std::string_view typed,
                                  const std::vector<std::string>& documentWords,
                                  bool withKnownWords, std::size_t most) {
    const auto isJoint = [](char byte) { return joinsWords(byte); };
    const auto* joint = std::find_if(typed.begin(), typed.end(), isJoint);
    const auto end = static_cast<std::size_t>(joint - typed.begin());
    auto candidates = tamilForLetters(typed.substr(0, end), documentWords, withKnownWords, most);
    if (joint == typed.end()) return candidates;
    // முதல்_எண்: what is written behind the joint has the say, the likeliest stands before it.
    const auto next =
        static_cast<std::size_t>(std::find_if_not(joint, typed.end(), isJoint) - typed.begin());
    if (candidates.empty()) return {};
    const std::string before = candidates.front() + std::string(typed.substr(end, next - end));
    if (next == typed.size()) return {before};
    candidates = tamilFor(typed.substr(next), documentWords, withKnownWords, most);
    for (std::string& candidate : candidates) candidate.insert(0, before);
    return candidates;
}

}  // namespace companion::completion
