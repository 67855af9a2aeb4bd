// What a value can be while a program runs, and what its text is in C++.
#pragma once

#include <cstdint>

#include "syntax/var_type.h"

namespace companion {

/// A set of kinds of dynamic values. Empty means that no value is known to get there.
using Kinds = std::uint32_t;

constexpr Kinds kNoKinds = 0;
constexpr Kinds kWhole = 1U << 0U;
constexpr Kinds kCount = 1U << 1U;  ///< What நீளம் gives: no cast takes it for a whole number.
constexpr Kinds kDecimal = 1U << 2U;
constexpr Kinds kSeconds = 1U << 3U;  ///< What நேரம்.வினாடிகள் gives: no cast takes it at all.
constexpr Kinds kText = 1U << 4U;
constexpr Kinds kLetter = 1U << 5U;
constexpr Kinds kTruth = 1U << 6U;
constexpr Kinds kList = 1U << 7U;
constexpr Kinds kMap = 1U << 8U;
constexpr Kinds kObject = 1U << 9U;
constexpr Kinds kFunction = 1U << 10U;
constexpr Kinds kTime = 1U << 11U;
constexpr Kinds kEmpty = 1U << 12U;  ///< A name that was never given anything.
constexpr Kinds kNull = 1U << 13U;
constexpr Kinds kDigits = 1U << 14U;  ///< A number in quotes.
constexpr Kinds kTyped = 1U << 15U;   ///< A text that was typed in.
constexpr Kinds kAnyKind = (1U << 16U) - 1;

constexpr Kinds kNumbers = kWhole | kCount | kDecimal;
constexpr Kinds kWholeTexts = kText | kDigits | kTyped;
constexpr Kinds kTexts = kWholeTexts | kLetter;

constexpr bool isWithin(Kinds kinds, Kinds others) {
    return kinds != kNoKinds && (kinds & ~others) == 0;
}

/// The C++ type that the text of an expression yields.
enum class Cpp {
    Any,
    LongLong,
    LongDouble,
    Double,
    Int,
    Bool,
    Text,
    Letter,
    List,
    Map,
    Function,
    Time,
    Object,
    Null,
    Unknown,  ///< Nothing is asked of it.
};

/// What may be held: the kinds, and those of its elements.
struct Facts {
    Kinds kinds = kNoKinds;
    Kinds elements = kNoKinds;
    bool isOnlyZero = false;  ///< Nothing but a zero that is written out.
};
constexpr Facts kAnything = {kAnyKind, kAnyKind};

/// What is known of the text of an expression.
struct Value {
    Cpp cpp = Cpp::Unknown;
    Facts facts = kAnything;
    VarType guess = VarType::Dynamic;  ///< What the compiler takes it for.
    int arity = -1;                    ///< Of a function.
    bool isLvalue = false;
    bool isConst = false;
    bool isLiteralZero = false;  ///< C++ takes it for a null pointer too.
};

/// The kinds of a value of that C++ type, once it is held as a dynamic value.
Kinds kindsOf(Cpp cpp);

/// A value whose text yields `cpp`.
Value valueOf(Cpp cpp, VarType guess = VarType::Dynamic);
/// One that is held dynamically.
Value anyOf(Kinds kinds, VarType guess = VarType::Dynamic, Kinds elements = kAnyKind);

bool isArithmetic(Cpp cpp);

/// True if a comparison of two such values can ever hold: numbers with numbers, texts with texts,
/// truth values with each other.
bool canBeEqual(Kinds left, Kinds right);

}  // namespace companion
