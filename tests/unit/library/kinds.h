// The kind of an expression as far as it can be told before the program runs.
#pragma once

#include <map>
#include <set>
#include <string>

#include "syntax/node.h"
#include "syntax/var_type.h"

class Kinds {
public:
    std::set<std::string> locals;              ///< Parameters and loop variables: always dynamic.
    std::map<std::string, VarType> variables;  ///< What was last assigned, in source order.

    VarType of(const Expression& expression) const;

private:
    VarType ofCall(const Expression& callee) const;
    VarType ofOperation(const std::string& word, VarType left, VarType right) const;
};
