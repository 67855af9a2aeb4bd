// How words sound in Latin letters, and how far two words are apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace companion {

/// How `word`, of Tamil or small Latin letters, sounds, roughly: the many ways in which one Tamil
/// word is written in Latin letters come out alike (achchidu, acchitu, acidu).
std::string soundOf(std::string_view word);

/// All the ways in which `typed`, of small Latin letters, may sound: "ee" is ஈ or ஏ, "oo" is ஊ or
/// ஓ. The likeliest comes first.
std::vector<std::string> soundsOf(std::string_view typed);

/// How `word` sounds with all that soundOf passes over: long vowels, doubled consonants, ழ, த.
std::string fullSoundOf(std::string_view word);

/// The consonants of a sound, for words that were typed without vowels.
std::string consonantsOf(std::string_view sound);

/// A letter, or letters that are written for one, and how it sounds.
struct SoundRow {
    std::string_view letter;
    std::string_view sound;
};
using SoundRows = std::vector<SoundRow>;

/// The rows that soundOf goes by, for those who tell sounds without it. A consonant sounds with an
/// `a` unless a sign follows; Latin letters are replaced row by row, in this order; of equal
/// letters side by side one is left.
SoundRows consonantSounds();
SoundRows vowelSounds();
SoundRows signSounds();
SoundRows latinSounds();

/// The least number of letters to put in, leave out or change.
int editDistance(std::string_view one, std::string_view other);

}  // namespace companion
