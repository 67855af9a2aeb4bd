// Words of Latin letters in Tamil ones, by the rules by which Tamil is commonly typed: amma is
// அம்மா, thamizh is தமிழ்.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace companion::completion {

/// One way to write what was typed. The dearer, the less likely.
struct Spelling {
    std::string word;
    double cost;
};

/// The likeliest spellings, at most `most`, the likeliest first. None for what isn't Latin letters
/// alone. Only letters that may stand in names are written.
std::vector<Spelling> spellingsOf(std::string_view typed, std::size_t most);

/// True if `typed` has the vowels that a Tamil word needs between its consonants.
bool isReadable(std::string_view typed);

}  // namespace companion::completion
