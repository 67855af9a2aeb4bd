// The catalogue of the companion's own rules: the code of each, how grave it is, and its words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/check/finding.h"

namespace companion {

/// A rule as its table tells it.
struct Rule {
    std::string_view code;  ///< "துணை-" and three digits.
    Severity severity;
    /// What, why and what to write, in two short sentences; $0, $1 ... stand for what the source
    /// brings.
    std::string_view message;
};

/// All rules, in the order of their codes.
const std::vector<Rule>& allRules();

/// The rule of `code`. Throws std::logic_error for a code that no table holds.
const Rule& ruleOf(std::string_view code);

/// The rule's message with its marks filled in.
std::string messageOf(const Rule& rule, const std::vector<std::string>& parts);

}  // namespace companion
