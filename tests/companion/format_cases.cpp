// Sources in any layout, and what they become (.formatted).
#include <gtest/gtest.h>

#include "companion/format/format.h"
#include "support/case_files.h"

namespace {

const char* const kFormatLane = "companion/format";

void expectFormatted(const CaseFile& file) {
    const auto result = companion::formatted(readText(file.source));
    expectGolden(file, result.value_or("⋯\n"));
    if (result) {
        EXPECT_EQ(companion::formatted(*result), result);
    }
}

const bool areFormatCasesRegistered = [] {
    registerCases(kFormatLane, ".formatted", expectFormatted);
    return true;
}();

TEST(Formatted, HasNoFilesThatNobodyReads) {
    for (const std::string& file : findStrayFiles(kFormatLane, ".formatted")) ADD_FAILURE() << file;
}

}  // namespace
