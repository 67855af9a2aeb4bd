// What held_runtime.h declares, compiled: src/error_handler.cpp includes it for console programs,
// scripts/warm_web.sh makes an object of it for applications.
#include "emitted/includes.cpp"
#include "error_codes.h"
#include "error_handler.h"

#ifndef POZHIL_HELD
#define POZHIL_HELD
#endif
#include "held_runtime.h"

// Here the variables are of a kind of their own: src/emitted/variables.cpp is what others define.
PozhilVariables global_vars;

void PozhilVariables::lookUp(const char* name, Known& place) {
    place = {name, &(*this)[std::string(name)]};
}

#include "emitted/animations.cpp"
#include "emitted/any_to_json.cpp"
#include "emitted/any_to_string.cpp"
#include "emitted/arithmetic.cpp"
#include "emitted/comparison.cpp"
#include "emitted/element_access.cpp"
#include "emitted/files.cpp"
#include "emitted/globals.cpp"
#include "emitted/indices.cpp"
#include "emitted/input.cpp"
#include "emitted/input_state.cpp"
#include "emitted/length.cpp"
#include "emitted/module_path.cpp"
#include "emitted/negation.cpp"
#include "emitted/number_reading.cpp"
#include "emitted/number_values.cpp"
#include "emitted/properties.cpp"
#include "emitted/removal.cpp"
#include "emitted/rounding.cpp"
#include "emitted/runtime_failure.cpp"
#include "emitted/screen_size.cpp"
#include "emitted/scroll_state.cpp"
#include "emitted/text.cpp"
#include "emitted/time.cpp"
#include "emitted/type_names.cpp"
