// Programs that call every function of the module library, and beside each what it prints.
#include <gtest/gtest.h>

#include <filesystem>

#include "companion/cases_in_one.h"
#include "examples/staging.h"
#include "support/front_end.h"

namespace fs = std::filesystem;

namespace {

const char* const kLane = "library_programs";

struct Together : CasesInOne {
    Together()
        : CasesInOne("library_together", staged(casesToRun(findCases(kLane, ".out")), "library")) {}
    const std::string complaint = build();
};

const bool registered = [] {
    registerCases(kLane, ".out", [](const CaseFile& file) {
        static const Together programs;
        ASSERT_EQ(programs.complaint, "");
        expectGolden(file, outputOf(programs.run(file, "")));
    });
    return true;
}();

TEST(LibraryPrograms, CallEveryFunction) {
    std::string programs;
    for (const CaseFile& file : findCases(kLane, ".out")) {
        programs += readText(file.source);
    }
    int functions = 0;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::u8path(POZHIL_ROOT "/தொகுப்புகள்"))) {
        if (entry.path().extension() != fs::u8path(".பொழில்")) continue;
        const Parsed package = parse(readText(entry.path().u8string()));
        for (const auto& function : package.parser->functionParameters) {
            functions++;
            EXPECT_NE(programs.find(function.first + "("), std::string::npos) << function.first;
        }
    }
    EXPECT_GT(functions, 0);
}

}  // namespace
