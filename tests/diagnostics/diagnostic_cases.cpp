// Sources that are refused, and beside each the whole report. The folder is the code.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/case_files.h"
#include "support/deep_stack.h"
#include "support/generated_text.h"
#include "support/saying.h"
#include "support/subprocess.h"

namespace fs = std::filesystem;

namespace {

void expectReport(const CaseFile& file) {
    const fs::path path = fs::u8path(file.source);
    const std::string code = "பொழில்-" + path.parent_path().filename().u8string();
    const std::string source = readText(file.source);

    // The line where a source gets too deep must not hang on how wide the build's frames are.
    const ProcessResult result = runForked([&] {
        runOnStack(kDeepStack, [&] { generate(source, path.filename().u8string()); });
        return 0;
    });
    EXPECT_EQ(result.exitCode, 1) << file.source << " isn't refused";
    EXPECT_EQ(result.err, "");
    ASSERT_NE(result.out.find("🚨 [ \033[1;93m" + code + "\033[0m ]"), std::string::npos)
        << file.source << " is refused otherwise:\n"
        << result.out;
    expectGolden(file, maskSaying(result.out));
}

const bool registered = [] {
    registerCases("diagnostics", ".report", expectReport);
    return true;
}();

}  // namespace
