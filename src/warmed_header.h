// What scripts/warm_header.sh precompiles: the headers of the generated text, the structures of the
// text that every program carries, and the declarations of what the diagnostics object holds of it.

// Programs are small and their loops long: this much is worth its time. It has to stand in front of
// the library's own functions, which are part of every line. Numbers wrap around as they do
// without it; the sanitizers are to see one that does. Who asks for more on the command line gets
// it.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__OPTIMIZE__)
#pragma GCC optimize("Og", "wrapv")
#endif

#include "emitted/includes.cpp"
#include "held_runtime.h"
#include "plain_casts.h"

#define POZHIL_INSTANCE extern template
#include "instances.h"
#undef POZHIL_INSTANCE
