// The programs of tests/programs once more, built with the address and undefined-behaviour
// sanitizers: each must print what it prints without them, and nothing on standard error.
#include <gtest/gtest.h>

#include "companion/cases_in_one.h"

namespace {

struct Together : CasesInOne {
    Together()
        : CasesInOne("sanitized_programs", casesToRun(findCases("programs", ".out")),
                     Build::Sanitized) {}
    const std::string complaint = build();
};

const bool registered = [] {
    registerCases("programs", ".out", [](const CaseFile& file) {
        static const Together programs;
        ASSERT_EQ(programs.complaint, "");
        expectOutcome(file, programs.run(file, inputOf(file)));
    });
    return true;
}();

}  // namespace
