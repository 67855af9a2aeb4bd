// Where the names of a program are given a value and where they are read. All but parameters, loop
// variables and nested functions live in one table that the whole program shares.
#pragma once

#include <map>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include "companion/check/compiled_source.h"

namespace companion {

/// Whose code a use stands in.
struct Surroundings {
    /// The outermost function or method; null at the top level.
    const FunctionDefinitionStatement* function = nullptr;
    bool isInLambda = false;
    bool isInField = false;  ///< In a structure's field, which is read where an object is made.
    bool isLocal = false;    ///< The name is a parameter, a loop variable or a nested function.
};

struct NameRead {
    const VariableAccess* node;
    Surroundings in;
};

struct NameWrite {
    const AssignmentExpression* node;
    Surroundings in;
};

struct NameCall {
    const CallExpression* node;
    const VariableAccess* callee;
    Surroundings in;
};

struct NameUses {
    std::vector<NameRead> reads;  ///< Without the callees of calls.
    std::vector<NameWrite> writes;
    std::vector<NameCall> calls;
    /// Names that have a value in the shared table at some time.
    std::set<std::string> given;
    std::set<std::string> assigned;  ///< By `=` or a compound word.
    std::set<std::string> loopVariables;
    std::set<std::string> parameters;
    /// Methods, fields, and whatever else is stored in an object.
    std::set<std::string> members;
    std::unordered_set<const Expression*> localReads;
    /// The literal names of widgets; `hasOpenIdentifiers` if one of them isn't written out.
    std::set<std::string> identifiers;
    std::set<std::string> inputs;  ///< Those of text boxes, which can be read by their name.
    bool hasOpenIdentifiers = false;
};

NameUses findNameUses(const CompiledSource& compiled);

/// The assignment's word is `=`: it needs no value that stood there before.
bool isPlainAssignment(const AssignmentExpression& assignment);

/// What an input widget answers to: `பெயர்.உரைதரவு`. The name before the dot is the widget's, no
/// variable is read.
bool isInputMember(const std::string& member);

bool isReceiverName(const std::string& name);

}  // namespace companion
