// How tightly the operators with two sides bind.
#pragma once

#include <string_view>

/// The levels, from the loosest on. Those before kBitwiseOr are the logical ones.
enum OperatorLevel {
    kLogicalOr = 1,
    kLogicalAnd,
    kBitwiseOr,
    kBitwiseXor,
    kBitwiseAnd,
    kEquality,
    kComparison,
    kShift,
    kTerm,
    kFactor,
};

/// The level of the operator `word`; 0 for any other word.
int levelOfOperator(std::string_view word);
