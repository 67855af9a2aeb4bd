// The pages of the words that properties take, and the pictures on them.
#pragma once

#include <vector>

#include "companion/reference/markdown.h"
#include "companion/reference/reference.h"

namespace companion::reference {

MarkdownPage coloursPage();
std::vector<ReferenceFile> colourPictures();

/// Alignments and triggers.
MarkdownPage placesPage();

MarkdownPage curvesPage();
/// One for each form; curves that are the same share it.
std::vector<ReferenceFile> curvePictures();

}  // namespace companion::reference
