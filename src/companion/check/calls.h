// The rules about calls, a function a topic. Each adds what it finds; none is run for a source that
// the generator took, since it would have refused all of this.
#pragma once

#include "companion/check/compiled_source.h"
#include "companion/check/findings.h"
#include "companion/check/names_uses.h"

namespace companion {

/// What the rules about calls look at.
struct CallCheck {
    const CompiledSource& compiled;
    const NameUses& uses;
    Findings& findings;

    /// True where the compiler's own report stands already.
    bool isTold(Range range) const;
    /// True where the compiler stopped without a report.
    bool isHiddenRefusal(Range range) const;
};

/// Calls by a name: unknown names, and counts.
void checkNamedCalls(const CallCheck& check);
/// Calls of members, elements, results and literals.
void checkOtherCalls(const CallCheck& check);
/// What no text can be made for: shares in a calculation, grids without columns, weights.
void checkValues(const CallCheck& check);

}  // namespace companion
