// Kinds that a name or an operator alone tells: what the generator's guesses are made of.
#pragma once

#include <string_view>

#include "syntax/var_type.h"

/// The kind of what a call of `name` gives, as far as the name tells; Dynamic for any other.
/// `isStructure`: a structure of that name is known.
VarType kindOfCallResult(std::string_view name, bool isStructure);

/// The kind of an operation over sides of these kinds.
VarType kindOfOperation(std::string_view op, VarType left, VarType right);

/// True for the parts of a time that are whole numbers.
bool isWholeTimeField(std::string_view name);
