// How near what was typed is to a word: by its letters, by its sound, by its English names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace companion::completion {

/// Nearer ones come first.
enum class Closeness {
    Whole,          ///< The word itself, or nothing was typed.
    Prefix,         ///< Its beginning.
    English,        ///< One of its English names.
    Sound,          ///< As a Tamil speaker types it in Latin letters.
    SoundPrefix,    ///< The beginning of that, or of an English name.
    EnglishInside,  ///< The beginning of a further word of an English name.
    Consonants,     ///< Its consonants alone.
    ConsonantPrefix,
    None,
};

/// A word with all that it is found by.
struct FoundBy {
    FoundBy(std::string_view word, std::string_view english = {});

    std::string word;
    std::string sound;
    std::string consonants;
    std::vector<std::string> english;  ///< In small letters, without blanks.
    std::vector<std::string> inside;   ///< What follows the blanks of English names.
};

class TypedWord {
public:
    explicit TypedWord(std::string_view typed);

    Closeness closenessTo(const FoundBy& word) const;
    bool isLatin() const { return !sounds.empty(); }

private:
    bool soundsLike(const FoundBy& word) const;
    bool beginsLike(const FoundBy& word) const;
    Closeness closenessOfConsonants(const FoundBy& word) const;

    std::string typed;
    std::string lower;
    std::vector<std::string> sounds;      ///< None for what isn't typed in Latin letters.
    std::vector<std::string> consonants;  ///< Of each sound.
};

/// True for an ASCII letter.
bool isLatinLetter(char byte);
bool beginsWith(std::string_view text, std::string_view beginning);
std::string inSmallLetters(std::string_view text);

}  // namespace companion::completion
