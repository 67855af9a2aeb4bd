// Scripts, clock and loop of the browser. A script is its own text: see recording.h for what is
// done with it. As in the real one, a comma outside parentheses ends a script.
#pragma once

#include "emitted/widgets/recording.h"

#define EM_ASM(code, ...) ((void)stand_in::script(#code, stand_in::list(__VA_ARGS__)))
#define EM_ASM_INT(code, ...) ((int)stand_in::script(#code, stand_in::list(__VA_ARGS__)))
#define EM_ASM_DOUBLE(code, ...) (stand_in::script(#code, stand_in::list(__VA_ARGS__)))

#define EMSCRIPTEN_KEEPALIVE __attribute__((used))

using em_callback_func = void (*)();

double emscripten_get_now();
void emscripten_run_script(const char* script);
void emscripten_set_main_loop(em_callback_func, int framesPerSecond, int simulateEndlessLoop);
