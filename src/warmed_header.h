// What scripts/warm_header.sh precompiles: the headers of the generated text, the catalogue, and
// the declarations of the instances that the diagnostics object holds.
#include "emitted/includes.cpp"
#include "error_codes.h"

#define POZHIL_INSTANCE extern template
#include "instances.h"
#undef POZHIL_INSTANCE
