// Programs that call every function of the module library, and beside each what it prints.
#include <gtest/gtest.h>

#include <filesystem>

#include "../examples/staging.h"
#include "support/front_end.h"

namespace fs = std::filesystem;

namespace {

const bool registered = [] {
    registerCases("library_programs", ".out", [](const CaseFile& file) {
        expectGolden(file, outputOf(stage(file, "library"), ""));
    });
    return true;
}();

TEST(LibraryPrograms, CallEveryFunction) {
    std::string programs;
    for (const CaseFile& file : findCases("library_programs", ".out")) {
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
