// The rules about what runs and is wrong, a function a topic.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "companion/check/compiled_source.h"
#include "companion/check/findings.h"
#include "companion/check/names_uses.h"

namespace companion {

struct HabitCheck {
    const CompiledSource& compiled;
    const NameUses& uses;
    Findings& findings;

    /// Adds a finding, unless the node is a module's.
    void add(std::string_view code, std::optional<Range> range,
             const std::vector<std::string>& parts = {}) const {
        if (range) findings.add(code, *range, parts);
    }
    /// The same, unless it is told already that the program ends here or isn't built.
    void addUnlessGraver(std::string_view code, std::optional<Range> range,
                         const std::vector<std::string>& parts = {}) const {
        if (!range || findings.holds("துணை-3", *range) || findings.holds("துணை-4", *range)) return;
        findings.add(code, *range, parts);
    }
};

void checkNameHabits(const HabitCheck& check);
void checkFunctionHabits(const HabitCheck& check);
void checkFlowHabits(const HabitCheck& check);
void checkLoopHabits(const HabitCheck& check);
void checkComparisonHabits(const HabitCheck& check);
void checkValueHabits(const HabitCheck& check);
void checkPageHabits(const HabitCheck& check);
/// Where the compiler's report stands and a word more helps.
void checkReports(const HabitCheck& check);

/// The expression without the parentheses around it.
const Expression& withoutGrouping(const Expression& expression);

/// True for a text with letters of more than one byte.
bool isBeyondAscii(const std::string& text);

}  // namespace companion
