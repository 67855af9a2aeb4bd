#include "companion/check/emission/kinds.h"

#include <algorithm>
#include <iterator>

namespace companion {

Kinds kindsOf(Cpp cpp) {
    switch (cpp) {
        case Cpp::LongLong: return kWhole;
        case Cpp::LongDouble: return kDecimal;
        case Cpp::Double: return kSeconds;
        case Cpp::Int: return kCount;
        case Cpp::Bool: return kTruth;
        case Cpp::Text: return kText;
        case Cpp::Letter: return kLetter;
        case Cpp::List: return kList;
        case Cpp::Map: return kMap;
        case Cpp::Function: return kFunction;
        case Cpp::Time: return kTime;
        case Cpp::Object: return kObject;
        case Cpp::Null: return kNull;
        case Cpp::Any:
        case Cpp::Unknown: break;
    }
    return kAnyKind;
}

Value valueOf(Cpp cpp, VarType guess) {
    Value value;
    value.cpp = cpp;
    value.facts.kinds = kindsOf(cpp);
    value.guess = guess;
    return value;
}

Value anyOf(Kinds kinds, VarType guess, Kinds elements) {
    Value value;
    value.cpp = Cpp::Any;
    value.facts = {kinds, elements};
    value.guess = guess;
    return value;
}

bool canBeEqual(Kinds left, Kinds right) {
    if (left == kNoKinds || right == kNoKinds) return true;
    constexpr Kinds kFamilies[] = {kNumbers, kTexts, kTruth};
    return std::any_of(std::begin(kFamilies), std::end(kFamilies),
                       [&](Kinds family) { return (left & family) != 0 && (right & family) != 0; });
}

bool isArithmetic(Cpp cpp) {
    return cpp == Cpp::LongLong || cpp == Cpp::LongDouble || cpp == Cpp::Double ||
           cpp == Cpp::Int || cpp == Cpp::Bool;
}

}  // namespace companion
