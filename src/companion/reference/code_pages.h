// The pages of the diagnostics: what each means, a program that meets it, its report, the program
// put right.
#pragma once

#include <vector>

#include "companion/reference/markdown.h"

namespace companion::reference {

/// All codes in one table.
MarkdownPage codesPage();
/// The codes themselves, a page for each hundred.
std::vector<MarkdownPage> codePages();

}  // namespace companion::reference
