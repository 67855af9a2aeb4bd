// Programs, and beside each what it prints.
#include "support/native_program.h"

namespace {

const bool registered = [] {
    registerCases("programs", ".out", [](const CaseFile& file) { expectProgram(file); });
    return true;
}();

}  // namespace
