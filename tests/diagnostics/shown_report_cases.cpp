// The reports that descriptions of codes show: what the compiler really says to the wrong program.
// Those of programs that stop when they run are held where these run.
#include <gtest/gtest.h>

#include <filesystem>

#include "../documents/transcript.h"
#include "support/case_files.h"
#include "support/generated_text.h"
#include "support/subprocess.h"

namespace fs = std::filesystem;

namespace {

const char* const kCodes = "../src/companion/descriptions/codes";

/// Status 0 for a program that is taken, or refused without a report.
ProcessResult refusalOf(const std::string& source) {
    return runForked([&] {
        fs::current_path(fs::u8path(POZHIL_ROOT));
        try {
            generate(source, "நிரல்.பொழில்");
        } catch (const std::exception&) {
        }
        return 0;
    });
}

TEST(ShownReports, AreWhatTheCompilerSays) {
    int count = 0;
    for (const CaseFile& file : findCases(kCodes, ".report")) {
        if (fs::u8path(file.source).stem() != "wrong") continue;
        const ProcessResult result = refusalOf(readText(file.source));
        if (result.exitCode == 0) continue;
        EXPECT_EQ(result.exitCode, 1) << file.source;
        expectGolden(file, plainReport(result.out));
        count++;
    }
    EXPECT_GT(count, 50);
}

}  // namespace
