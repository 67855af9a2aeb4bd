// The grammar by which editors and the site colour sources.
#pragma once

#include <string>
#include <string_view>

namespace editors {

/// `frame` is the grammar with marks such as ⟨keywords⟩ where the compiler's words stand. Throws
/// std::invalid_argument for a mark that means nothing, and for one that isn't in the frame.
std::string grammarOf(std::string_view frame);

}  // namespace editors
