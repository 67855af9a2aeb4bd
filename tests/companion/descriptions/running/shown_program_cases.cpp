// The programs of the descriptions as users run them: each prints what its description shows, and
// the wrong program of a code that running meets stops with that code.
#include <gtest/gtest.h>

#include "../../../documents/transcript.h"
#include "../../../examples/staging.h"
#include "companion/descriptions/codes.h"
#include "support/native_program.h"

namespace {

using companion::CodeDescription;
using companion::codeDescriptions;
using companion::CodeMoment;

const char* const kDescriptions = "../src/companion/descriptions/";
/// Memory for a program that would take all there is.
const std::vector<std::string> kInLittleMemory = {"prlimit", "--as=400000000"};

/// The report names the source as descriptions do.
std::string reportOf(const std::string& output) {
    std::string report = splitAtReport(output).report;
    const std::string own = "wrong.பொழில்";
    const std::size_t at = report.find(own);
    return at == std::string::npos ? report : report.replace(at, own.size(), "நிரல்.பொழில்");
}

void expectStop(const CodeDescription& code) {
    const std::string digits(code.digits);
    const std::string stem = POZHIL_ROOT "/src/companion/descriptions/codes/" + digits + "/wrong";
    const NativeProgram program("code_" + digits, stem + ".பொழில்");
    const ProcessResult built = program.compile();
    ASSERT_EQ(built.exitCode, 0) << digits << "\n" << built.err;
    const ProcessResult ran =
        program.run("", digits == "382" ? kInLittleMemory : std::vector<std::string>{});
    EXPECT_EQ(ran.exitCode, 1) << digits;
    EXPECT_NE(ran.out.find("பொழில்-" + digits), std::string::npos) << ran.out;
    expectGolden({digits, stem + ".பொழில்", stem + ".report"}, reportOf(ran.out));
    if (!testing::Test::HasFailure()) program.removeExecutable();
}

class CodeStops : public testing::Test {
public:
    explicit CodeStops(const CodeDescription& code) : code(code) {}
    void TestBody() override { expectStop(code); }

private:
    const CodeDescription& code;
};

const bool registered = [] {
    registerCases(std::string(kDescriptions) + "programs", ".out", [](const CaseFile& file) {
        const NativeProgram program = stage(file, "shown");
        expectGolden(file, outputOf(program, ""));
        if (!testing::Test::HasFailure()) program.removeExecutable();
    });
    for (const CodeDescription& code : codeDescriptions()) {
        if (code.moment != CodeMoment::Running) continue;
        testing::RegisterTest("CodeStops", ("stops_" + std::string(code.digits)).c_str(), nullptr,
                              nullptr, __FILE__, __LINE__,
                              [&code]() -> testing::Test* { return new CodeStops(code); });
    }
    return true;
}();

}  // namespace
