// Programs, and beside each what it prints.
#include <gtest/gtest.h>

#include "companion/cases_in_one.h"

namespace {

struct Together : CasesInOne {
    Together() : CasesInOne("programs_together", casesToRun(findCases("programs", ".out"))) {}
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
