// Functions that JavaScript calls by name, bound before main.
#pragma once

#include "emitted/widgets/recording.h"

namespace emscripten {

template <typename Function>
void function(const char* name, Function) {
    stand_in::bound().push_back(name);
}

}  // namespace emscripten

#define EMSCRIPTEN_BINDINGS(group)                            \
    static void bind_##group();                               \
    static const bool bound_##group = (bind_##group(), true); \
    static void bind_##group()
