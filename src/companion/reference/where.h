// Where a word is explained: the guide's chapter in which it comes first, and the reference's page.
#pragma once

#include <vector>

#include "companion/reference/entries.h"
#include "companion/reference/markdown.h"
#include "companion/reference/reference.h"

namespace companion::reference {

/// The first chapter that uses the word as what the entry is; without one, the first in which the
/// word stands at all. Null if it stands in none.
const Chapter* chapterOf(const Entry& entry, const std::vector<Chapter>& chapters);

MarkdownPage wherePage(const std::vector<Chapter>& chapters);

}  // namespace companion::reference
