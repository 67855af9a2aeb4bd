// What the compiler refuses without a place: unknown functions, wrong counts.
#include "companion/check/check.h"
#include "companion/check/rule_tables.h"

namespace companion {

const RuleTable& nameRules() {
    static const RuleTable rules = {
        {"துணை-200", Severity::Error, "இந்த இடத்தை பொழில் C++ ஆக மாற்ற முடியாது: $0"},
    };
    return rules;
}

void checkWords(const CompiledSource&, Findings&) {}

void checkCalls(const CompiledSource&, Findings&) {}

}  // namespace companion
