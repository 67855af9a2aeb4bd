// The programs of the descriptions as users run them: each prints what its description shows, and
// the wrong program of a code that running meets stops with that code.
#include <gtest/gtest.h>

#include "../../../documents/transcript.h"
#include "../../../examples/staging.h"
#include "../../cases_in_one.h"
#include "companion/descriptions/codes.h"
#include "support/native_program.h"

namespace {

using companion::CodeDescription;
using companion::codeDescriptions;
using companion::CodeMoment;

const char* const kShown = "../src/companion/descriptions/programs";

/// The report names the source as descriptions do.
std::string reportOf(const std::string& output) {
    std::string report = splitAtReport(output).report;
    const std::string own = "wrong.பொழில்";
    const std::size_t at = report.find(own);
    return at == std::string::npos ? report : report.replace(at, own.size(), "நிரல்.பொழில்");
}

/// A program that would take all the memory there is gets little, so it is built alone.
const char* const kOutOfMemory = "382";

CaseFile stopOf(const CodeDescription& code) {
    const std::string digits(code.digits);
    const std::string stem = POZHIL_ROOT "/src/companion/descriptions/codes/" + digits + "/wrong";
    return {"stops_" + digits, stem + ".பொழில்", stem + ".report"};
}

std::vector<CaseFile> findStops() {
    std::vector<CaseFile> stops;
    for (const CodeDescription& code : codeDescriptions()) {
        if (code.moment == CodeMoment::Running && code.digits != kOutOfMemory)
            stops.push_back(stopOf(code));
    }
    return stops;
}

/// The shown programs and those that stop, each of which may import from the library.
std::vector<CaseFile> findPrograms() {
    std::vector<CaseFile> programs = findCases(kShown, ".out");
    const std::vector<CaseFile> stops = findStops();
    programs.insert(programs.end(), stops.begin(), stops.end());
    return staged(casesToRun(programs), "shown");
}

struct Together : CasesInOne {
    Together() : CasesInOne("shown_together", findPrograms()) {}
    const std::string complaint = build();
};

const Together& together() {
    static const Together programs;
    EXPECT_EQ(programs.complaint, "");
    return programs;
}

ProcessResult runInLittleMemory(const CaseFile& stop) {
    const NativeProgram program(stop.name, stop.source);
    const ProcessResult built = program.compile();
    EXPECT_EQ(built.exitCode, 0) << built.err;
    return program.run("", {"prlimit", "--as=400000000"});
}

void expectStop(const CodeDescription& code) {
    const CaseFile stop = stopOf(code);
    const ProcessResult ran =
        code.digits == kOutOfMemory ? runInLittleMemory(stop) : together().run(stop, "");
    EXPECT_EQ(ran.exitCode, 1) << stop.name;
    EXPECT_NE(ran.out.find("பொழில்-" + std::string(code.digits)), std::string::npos) << ran.out;
    expectGolden(stop, reportOf(ran.out));
}

class CodeStops : public testing::Test {
public:
    explicit CodeStops(const CodeDescription& code) : code(code) {}
    void TestBody() override { expectStop(code); }

private:
    const CodeDescription& code;
};

const bool registered = [] {
    registerCases(kShown, ".out", [](const CaseFile& file) {
        expectGolden(file, outputOf(together().run(file, "")));
    });
    for (const CodeDescription& code : codeDescriptions()) {
        if (code.moment != CodeMoment::Running) continue;
        testing::RegisterTest("CodeStops", stopOf(code).name.c_str(), nullptr, nullptr, __FILE__,
                              __LINE__,
                              [&code]() -> testing::Test* { return new CodeStops(code); });
    }
    return true;
}();

}  // namespace
