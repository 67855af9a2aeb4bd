#include "companion/completion/typed_word.h"

#include <algorithm>

#include "companion/descriptions/properties_of.h"
#include "companion/explain/spelling.h"

namespace companion::completion {

namespace {

/// A single consonant begins half of all words.
constexpr std::size_t kFewestConsonants = 2;

bool anyBeginsWith(const std::vector<std::string>& texts, std::string_view beginning) {
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::string& text) { return beginsWith(text, beginning); });
}

/// Where both begin with vowels these have to be the same: எனில் is no நீல.
bool beginAlike(std::string_view sound, std::string_view typed) {
    const std::string one = consonantsOf(sound.substr(0, 1));
    const std::string other = consonantsOf(typed.substr(0, 1));
    return one.empty() && other.empty() ? sound.substr(0, 1) == typed.substr(0, 1)
                                        : one.empty() == other.empty();
}

}  // namespace

bool isLatinLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool beginsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

std::string inSmallLetters(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
    }
    return lower;
}

FoundBy::FoundBy(std::string_view word, std::string_view english)
    : word(word), sound(soundOf(inSmallLetters(word))), consonants(consonantsOf(sound)) {
    for (const std::string_view name : listedWords(english)) {
        std::string joined;
        for (std::size_t at = 0; at < name.size(); at++) {
            if (name[at] == ' ') {
                inside.push_back(inSmallLetters(name.substr(at + 1)));
            } else {
                joined += name[at];
            }
        }
        this->english.push_back(inSmallLetters(joined));
    }
}

TypedWord::TypedWord(std::string_view typed) : typed(typed), lower(inSmallLetters(typed)) {
    if (std::none_of(typed.begin(), typed.end(), isLatinLetter)) return;
    sounds = soundsOf(lower);
    for (const std::string& sound : sounds) consonants.push_back(consonantsOf(sound));
}

Closeness TypedWord::closenessTo(const FoundBy& word) const {
    if (typed.empty() || typed == word.word) return Closeness::Whole;
    if (beginsWith(word.word, typed)) return Closeness::Prefix;
    if (!isLatin()) return Closeness::None;
    if (std::find(word.english.begin(), word.english.end(), lower) != word.english.end()) {
        return Closeness::English;
    }
    if (soundsLike(word)) return Closeness::Sound;
    if (beginsLike(word) || anyBeginsWith(word.english, lower)) return Closeness::SoundPrefix;
    if (anyBeginsWith(word.inside, lower)) return Closeness::EnglishInside;
    return closenessOfConsonants(word);
}

/// "prnt" is print as "achdu" is அச்சிடு.
Closeness TypedWord::closenessOfConsonants(const FoundBy& word) const {
    const std::string letters = consonantsOf(lower);
    const auto isMeant = [&](const std::string& name) {
        return letters.size() >= kFewestConsonants && name.substr(0, 1) == lower.substr(0, 1) &&
               consonantsOf(name) == letters;
    };
    if (std::any_of(word.english.begin(), word.english.end(), isMeant)) {
        return Closeness::Consonants;
    }
    if (!beginAlike(word.sound, sounds.front())) return Closeness::None;
    Closeness closeness = Closeness::None;
    for (const std::string& typed : consonants) {
        if (typed.size() < kFewestConsonants) continue;
        if (typed == word.consonants) return Closeness::Consonants;
        if (beginsWith(word.consonants, typed)) closeness = Closeness::ConsonantPrefix;
    }
    return closeness;
}

bool TypedWord::soundsLike(const FoundBy& word) const {
    return std::find(sounds.begin(), sounds.end(), word.sound) != sounds.end();
}

bool TypedWord::beginsLike(const FoundBy& word) const {
    return std::any_of(sounds.begin(), sounds.end(), [&](const std::string& sound) {
        return !sound.empty() && beginsWith(word.sound, sound);
    });
}

}  // namespace companion::completion
