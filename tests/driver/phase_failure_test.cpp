// What a first build shows for an exception of each phase, and for a diagnostic.
#include "driver/console_texts.h"
#include "driver/phases.h"
#include "driver/workplace.h"

namespace {

const std::string kScanLine =
    "\033[1;31m🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!\033[0m\n";
const std::string kParseLine =
    "\033[1;31m🚨 (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!\033[0m\n";
const std::string kGenerateLine =
    "\033[1;31m🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!\033[0m\n";

class PhaseFailure : public Workplace {
protected:
    /// The line of the phase is all that a run says.
    void expectFailure(const std::string& source, const std::string& line) const {
        write("a.பொழில்", source);
        const ProcessResult run = compile({"a.பொழில்"});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, line);
    }
};

TEST_F(PhaseFailure, ScanOfATextThatEndsInATab) { expectFailure("அச்சிடு(1)\n\t", kScanLine); }

TEST_F(PhaseFailure, ParseOfAShareThatNoNumberHolds) {
    expectFailure(kShareTooLarge, kParseLine);
    EXPECT_FALSE(std::filesystem::exists(cache));
}

TEST_F(PhaseFailure, GenerateOfTamilDigits) {
    expectFailure("அச்சிடு(௧௨)\n", kGenerateLine);
    EXPECT_TRUE(std::filesystem::is_directory(cache)) << "made before the generator runs";
    EXPECT_FALSE(std::filesystem::exists(cache / "generated.cpp"));
}

TEST_F(PhaseFailure, GenerateOfAStaticErrorDropsItsText) {
    expectFailure("அச்சிடு(வர்க்கமூலம்(1, 2))\n", kGenerateLine);
}

// A code that the catalogue lacks is in no source's power to raise. So what becomes of it is shown
// by the function that main runs each phase with.
TEST(Phases, CodeThatTheCatalogueLacksIsShownByTheLineAlone) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(runPhase([] { Lexer("", "").பிழை("பொழில்-999"); }, kScanFailure));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), kScanLine);

    testing::internal::CaptureStderr();
    const auto parse = [] {
        Parser({Token{TokenType::END_OF_FILE, "", 1}}, "", "").பிழை("பொழில்-999", 1);
    };
    EXPECT_FALSE(runPhase(parse, kParseFailure));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), kParseLine);
}

TEST_F(PhaseFailure, DiagnosticGoesToStandardOutput) {
    write("a.பொழில்", "அச்சிடு(1)\nஅச்சிடு(\"திறந்தது\n");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("பொழில்-102"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find("✨ பொழில் ->"), std::string::npos) << "no title for a refused source";
    EXPECT_FALSE(std::filesystem::exists(cache));
}

TEST_F(PhaseFailure, CacheDirectoryThatCannotBeMadeEndsAbnormally) {
    write("a.பொழில்", "அச்சிடு(1)\n");
    // Not even root makes a directory there.
    const ProcessResult readOnly = compile({"a.பொழில்"}, {"", {"TMPDIR=/proc"}, "", 60});
    EXPECT_EQ(readOnly.signal, SIGABRT);
    EXPECT_EQ(readOnly.out, "");
}

TEST_F(PhaseFailure, TemporaryDirectoryThatIsNoneEndsAbnormally) {
    write("a.பொழில்", "அச்சிடு(1)\n");
    const std::string file = "TMPDIR=" + (work / "a.பொழில்").u8string();
    EXPECT_EQ(compile({"a.பொழில்"}, {"", {file}, "", 60}).signal, SIGABRT);
    EXPECT_EQ(compile({"a.பொழில்"}, {"", {"TMPDIR=/இல்லை"}, "", 60}).signal, SIGABRT);
}

}  // namespace
