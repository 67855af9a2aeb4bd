// What to write instead where a refusal of the compiler can only have one cause.
#pragma once

#include <optional>

#include "companion/check/compiled_source.h"
#include "companion/check/finding.h"

namespace companion {

/// The correction of what the compiler refused; nothing if several could be meant.
std::optional<Correction> correctionOf(const CompiledSource& compiled);

}  // namespace companion
