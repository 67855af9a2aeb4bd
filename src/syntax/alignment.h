// The words for alignments.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "syntax/node.h"
#include "syntax/widgets.h"

/// The words of all alignments, in their order.
std::vector<std::string_view> alignmentWords();

/// The alignment of that word; nothing for any other word.
std::optional<சீரமைப்பு_வகை> alignmentNamed(const std::string& word);

/// The word that a value names: a variable's name or a member's; "" for anything else.
std::string wordOf(const Expression& value);
