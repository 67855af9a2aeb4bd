// The part of a page that explains one word, whatever its kind.
#pragma once

#include <string_view>

#include "companion/descriptions/description.h"
#include "companion/reference/entries.h"
#include "companion/reference/markdown.h"

namespace companion::reference {

/// What the word does, its names elsewhere, how it is written.
void writeMeaning(MarkdownPage& page, const Description& word);
/// Its trap and its program.
void writeUse(MarkdownPage& page, const Description& word);

/// A section of its own, with a heading that links name: meaning and use.
void writeSection(MarkdownPage& page, int level, const Description& word, const Entry& entry);

}  // namespace companion::reference
