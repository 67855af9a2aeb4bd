// The programs of tests/programs once more, built with the address and undefined-behaviour
// sanitizers: each must print what it prints without them, and nothing on standard error.
#include "support/native_program.h"

namespace {

const bool registered = [] {
    registerCases("programs", ".out",
                  [](const CaseFile& file) { expectProgram(file, Build::Sanitized); });
    return true;
}();

}  // namespace
