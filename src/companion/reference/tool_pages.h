// The pages of what surrounds a program: commands and files, limits, words that are taken.
#pragma once

#include "companion/reference/markdown.h"

namespace companion::reference {

/// Commands, scripts, files, ports, environment.
MarkdownPage commandsPage();
MarkdownPage limitsPage();
/// Words that do nothing and can be no name.
MarkdownPage reservedPage();

}  // namespace companion::reference
