// The grammar by which editors and the site colour sources.
#pragma once

#include <string>
#include <string_view>

namespace editors {

/// How a grammar is written: for most editors and the site, for Vim, for Kate. In Json a mark is a
/// pattern for any of the words; in the others ⟨any keywords⟩ is that, and ⟨all keywords⟩ a list of
/// them.
enum class Notation { Json, Vim, Xml };

/// `frame` is the grammar with marks such as ⟨keywords⟩ where the compiler's words stand. Throws
/// std::invalid_argument for a mark that means nothing, and for one that isn't in the frame.
std::string grammarOf(std::string_view frame, Notation notation);

}  // namespace editors
