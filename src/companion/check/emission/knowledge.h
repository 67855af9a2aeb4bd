// What is known of a program's names: gathered in walks over it until nothing more comes, so that
// it holds for every order in which the program may run.
#pragma once

#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "companion/check/emission/kinds.h"

namespace companion {

class Knowledge {
public:
    /// What the program-wide variable `name` may hold.
    Facts variable(const std::string& name) const;
    bool isGiven(const std::string& name) const { return variables.count(name) != 0; }
    void give(const std::string& name, const Facts& facts) { join(variables[name], facts); }

    /// What a parameter or a loop's variable, known by its node, may hold.
    Facts local(const void* node) const;
    void giveLocal(const void* node, const Facts& facts) { join(locals[node], facts); }

    /// What a property of that name may hold, whichever object it is of.
    Facts property(const std::string& name) const;
    void giveProperty(const std::string& name, const Facts& facts) {
        join(properties[name], facts);
    }

    /// What the function `name` gives back.
    Facts result(const std::string& name) const;
    void giveResult(const std::string& name, const Facts& facts) { join(results[name], facts); }

    /// Functions and methods that run inside a முயற்சி: what ends them is caught.
    void runInTry(const std::string& name) { hasGrown |= tried.insert(name).second; }
    bool runsInTry(const std::string& name) const { return tried.count(name) != 0; }

    /// True once after each growth.
    bool takeGrowth();

    /// From here on a name without facts is known to get none.
    bool isComplete = false;
    bool isApplication = false;  ///< Widgets give names values too.

private:
    void join(Facts& into, const Facts& facts);

    std::unordered_map<std::string, Facts> variables;
    std::unordered_map<const void*, Facts> locals;
    std::unordered_map<std::string, Facts> properties;
    std::unordered_map<std::string, Facts> results;
    std::unordered_set<std::string> tried;
    bool hasGrown = false;
};

}  // namespace companion
