// The pages of words that stand in any program.
#pragma once

#include "companion/reference/markdown.h"

namespace companion::reference {

MarkdownPage keywordsPage();
MarkdownPage marksPage();
/// Operators, how tightly they bind, and the words that change a variable.
MarkdownPage operatorsPage();
/// Built-in calls with arguments, results and failures.
MarkdownPage builtInsPage();
/// Words behind a dot.
MarkdownPage membersPage();

}  // namespace companion::reference
