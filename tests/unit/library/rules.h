// What a function of a package may and may not do, checked on its tree. Each rule returns its
// complaints, one a line, and none for a tree that keeps it.
#pragma once

#include <string>
#include <vector>

#include "syntax/node.h"

using Complaints = std::vector<std::string>;

/// Names that a call expands in place.
bool isBuiltin(const std::string& name);

/// Names that the program's functions create for all by assigning them.
std::vector<std::string> sharedNames(const Program& program);

/// Top-level statements other than functions: they would run ahead of the importer's.
Complaints statementsThatRun(const Program& program);

/// Calls of what is neither a built-in that works in every program nor a function that stands
/// before, calls with a wrong number of arguments, and functions inside functions.
Complaints callsOutOfReach(const Program& program);

/// Functions and shared variables that bear a built-in's name, or each other's.
Complaints shadowedNames(const Program& program);

/// Members other than appending to a list and the fields of a time just taken.
Complaints memberAccess(const Program& program);

/// Functions, shared variables, assigned parameters and called parameters without the prefix:
/// the first three would meet the importer's names, the last would be taken for its functions.
Complaints namesWithoutPrefix(const Program& program, const std::string& prefix);

/// Walks over what isn't a variable or a range, ranges elsewhere, and assignments to the variable
/// of a walk.
Complaints brokenWalks(const Program& program);

/// A bare length as an index or in native arithmetic, and texts that read as colours.
Complaints misusedValues(const Program& program);

/// Returns against what the function's name says, and arithmetic on texts and lists.
Complaints kindMistakes(const Program& program);
