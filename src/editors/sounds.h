// How words sound, as data for the site's search, which goes by the companion's rules.
#pragma once

#include <string>

namespace editors {

/// JSON: the rows of letters and sounds, and the sound of each word of the language as an example.
std::string soundRows();

}  // namespace editors
