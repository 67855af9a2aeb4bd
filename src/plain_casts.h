// Casts that the generated text writes around what is no std::any: a parameter, the variable of a
// loop. The library's own would make a std::any of it and take the value out again. Only for a
// variable of the very kind that is asked for: every other cast is the library's, and fails, or is
// refused, as it is there.
#pragma once

namespace std {

template <class Value, class Variable>
enable_if_t<is_same_v<Value, remove_const_t<Variable>> && is_same_v<Value, long long>, Value>
any_cast(Variable& variable) {
    return variable;
}

template <class Value, class Variable>
enable_if_t<is_same_v<Value, remove_const_t<Variable>> && is_same_v<Value, shared_ptr<_StructBase>>,
            const Value&>
any_cast(Variable& variable) {
    return variable;
}

}  // namespace std
