// How words sound in Latin letters, and how far two words are apart.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// How `word`, of Tamil or small Latin letters, sounds, roughly: the many ways in which one Tamil
/// word is written in Latin letters come out alike (achchidu, acchitu, acidu).
std::string soundOf(std::string_view word);

/// The least number of letters to put in, leave out or change.
int editDistance(std::string_view one, std::string_view other);

}  // namespace companion
