#include "companion/check/emission/knowledge.h"

#include <utility>

namespace companion {

Facts Knowledge::variable(const std::string& name) const {
    const auto found = variables.find(name);
    if (found != variables.end()) return found->second;
    if (!isComplete) return {};
    return isApplication ? kAnything : Facts{kEmpty, kNoKinds};
}

/// One that no call reaches may be reached in ways that nobody sees.
Facts Knowledge::local(const void* node) const {
    const auto found = locals.find(node);
    if (found != locals.end()) return found->second;
    return isComplete ? kAnything : Facts{};
}

/// One that nothing in sight writes may be an input's, or is told when the program runs.
Facts Knowledge::property(const std::string& name) const {
    const auto found = properties.find(name);
    if (found != properties.end()) return found->second;
    return isComplete ? kAnything : Facts{};
}

/// A function without a return gives an empty value.
Facts Knowledge::result(const std::string& name) const {
    const auto found = results.find(name);
    if (found != results.end()) return found->second;
    return isComplete ? Facts{kEmpty, kNoKinds} : Facts{};
}

bool Knowledge::takeGrowth() { return std::exchange(hasGrown, false); }

void Knowledge::join(Facts& into, const Facts& facts) {
    const Facts before = into;
    const bool isFirst = into.kinds == kNoKinds;
    into.kinds |= facts.kinds;
    into.elements |= facts.elements;
    if (facts.kinds != kNoKinds) {
        into.isOnlyZero = facts.isOnlyZero && (isFirst || before.isOnlyZero);
    }
    hasGrown |= into.kinds != before.kinds || into.elements != before.elements ||
                into.isOnlyZero != before.isOnlyZero;
}

}  // namespace companion
