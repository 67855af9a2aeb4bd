// The check of one source: reads, never builds or runs.
#pragma once

#include <vector>

#include "companion/check/compiled_source.h"
#include "companion/check/finding.h"
#include "companion/check/findings.h"

namespace companion {

/// What stands wrong in `source`, in the order of the places. Whatever the text holds, it returns.
std::vector<Finding> checkSource(const SourceText& source, const ModuleReader& readModule);

/// The same for a source that went through the compiler already.
std::vector<Finding> checkSource(const CompiledSource& compiled);

// The families of rules.
void checkMarks(const SourceText& source, Findings& findings);
/// For a source that the scanner took.
void checkWords(const CompiledSource& compiled, Findings& findings);
/// The rest for a source that was parsed.
void checkCalls(const CompiledSource& compiled, Findings& findings);
void checkEmission(const CompiledSource& compiled, Findings& findings);
void checkHabits(const CompiledSource& compiled, Findings& findings);

}  // namespace companion
