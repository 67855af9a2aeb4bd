#include "companion/check/rules.h"

#include <algorithm>
#include <stdexcept>

#include "companion/check/rule_tables.h"

namespace companion {

const std::vector<Rule>& allRules() {
    static const std::vector<Rule> rules = [] {
        std::vector<Rule> all;
        for (const RuleTable& table : {markRules(), nameRules(), nativeRules(), stopRules(),
                                       habitRules(), kindRules(), hintRules()}) {
            all.insert(all.end(), table.begin(), table.end());
        }
        return all;
    }();
    return rules;
}

const Rule& ruleOf(std::string_view code) {
    const auto& rules = allRules();
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [&](const Rule& rule) { return rule.code == code; });
    if (found == rules.end()) throw std::logic_error("no such rule: " + std::string(code));
    return *found;
}

std::string messageOf(const Rule& rule, const std::vector<std::string>& parts) {
    std::string message;
    for (std::size_t at = 0; at < rule.message.size(); at++) {
        const char mark = rule.message[at];
        if (mark != '$') {
            message += mark;
            continue;
        }
        const auto index = static_cast<std::size_t>(rule.message.at(++at) - '0');
        message += parts.at(index);
    }
    return message;
}

}  // namespace companion
