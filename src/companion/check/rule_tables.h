// The families of rules: each table stands in the file of what it belongs to.
#pragma once

#include <vector>

#include "companion/check/rules.h"

namespace companion {

using RuleTable = std::vector<Rule>;

const RuleTable& markRules();    ///< துணை-1..: marks that nobody sees.
const RuleTable& nameRules();    ///< துணை-2..: what the compiler refuses without a place.
const RuleTable& nativeRules();  ///< துணை-3..: what only g++ refuses.
const RuleTable& stopRules();    ///< துணை-4..: what ends the program.
const RuleTable& habitRules();   ///< துணை-5..: what runs and is wrong.
const RuleTable& kindRules();    ///< துணை-58.: the same, by the kinds of values.
const RuleTable& hintRules();    ///< துணை-6..: a word that helps.

}  // namespace companion
