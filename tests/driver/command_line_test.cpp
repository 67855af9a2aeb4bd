// Arguments, the choice of the source, and the version screen.
#include <sys/stat.h>

#include "driver/paths.h"
#include "driver/processes.h"
#include "driver/workplace.h"

namespace {

const std::string kVersionScreen =
    "\n"
    "\033[1;36m  ┌──────────────────────────────────────────────┐\n"
    "  │                  பொழில்                   │\n"
    "  └──────────────────────────────────────────────┘\033[0m\n"
    "        \033[1;33m\"எளிய தமிழில், வலிய தொழில்நுட்பம்!\"\033[0m\n\n"
    "    \033[1;37mபதிப்பு      \033[0m: மு-பதிப்பு - 0.2\n"
    "    \033[1;37mஉருவாக்கம்    \033[0m: Velanar (வேளாணர்)\n"
    "    \033[1;37mதளம்         \033[0m: Linux\n\n"
    "\033[1;32m"
    "     முச்சங்கம் கண்டு அகிலம் ஆண்ட தாய்மொழி, இன்று நம்  மௌனத்தால் மறையக்கூடாது!  \n"
    "     மொழியை இழந்தால் நம் முகவரியே அழிந்துவிடும்... விழித்தெழு! \n"
    "     இனி தொழில்நுட்ப உலகையும் நம் தமிழால் ஆள்வோம்!\033[0m\n\n";

const std::string kInformation =
    "ℹ️ "
    "கோப்புப் பெயர் தரப்படவில்லை. தானாகவே 'முதன்மை.பொழில்' எடுக்கப்படுகிறது...\n";
const std::string kNoSource = "பிழை: செல்லாத கோப்பு அல்லது கோப்பு இல்லை! ❌\n";

// A source that ends in a tab stops in the scanner: enough to see which file was taken.
const std::string kStopsInScanner = "\t";
const std::string kScanFailure =
    "\033[1;31m🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!\033[0m\n";

class CommandLine : public Workplace {
protected:
    void expectRun(const std::vector<std::string>& arguments, int status, const std::string& out,
                   const std::string& err) const {
        const ProcessResult run = compile(arguments);
        EXPECT_EQ(run.exitCode, status);
        EXPECT_EQ(run.out, out);
        EXPECT_EQ(run.err, err);
    }
};

TEST_F(CommandLine, NothingGivenAndNothingThere) {
    expectRun({}, 1, "",
              "பிழை: இயலவில்லை! \n"
              "பயன்பாடு: ./பொழில் <கோப்புப்பெயர்.பொழில்>\n"
              "அல்லது 'முதன்மை.பொழில்' என்ற கோப்பை உருவாக்கவும்.\n");
}

TEST_F(CommandLine, OptionsAloneWithoutDefaultSource) {
    expectRun({"--வலை"}, 1, "", kNoSource);
    expectRun({"--கண்காணி"}, 1, "", kNoSource);
    expectRun({"prog.txt"}, 1, "", kNoSource);
    expectRun({""}, 1, "", kNoSource);
    expectRun({"பொழில்"}, 1, "", kNoSource);
}

TEST_F(CommandLine, NothingGivenTakesTheDefaultSource) {
    write("முதன்மை.பொழில்", kStopsInScanner);
    expectRun({}, 1, kInformation, kScanFailure);
}

TEST_F(CommandLine, OtherExtensionIsAsGoodAsNoPath) {
    fakeCompiler("echo ஓடியது");
    writeFileText(object, "");
    write("prog.txt", kStopsInScanner);
    write("முதன்மை.பொழில்", "அச்சிடு(1)\n");
    expectRun({"prog.txt"}, 0, kInformation + kBanner + titleOf("முதன்மை.பொழில்") + "ஓடியது\n", "");
}

TEST_F(CommandLine, LastSourceWins) {
    fakeCompiler("echo ஓடியது");
    writeFileText(object, "");
    write("a.பொழில்", kStopsInScanner);
    write("b.பொழில்", "அச்சிடு(77)\n");
    expectRun({"a.பொழில்", "b.பொழில்"}, 0, kBanner + titleOf("b.பொழில்") + "ஓடியது\n", "");
    EXPECT_NE(readFileText(cache / "generated.cpp").find("77LL"), std::string::npos);
}

TEST_F(CommandLine, VersionScreen) {
    expectRun({"--version"}, 0, kVersionScreen, "");
    expectRun({"--பதிப்பு"}, 0, kVersionScreen, "");
    expectRun({"-v"}, 0, kVersionScreen, "");
    expectRun({"--வலை", "-v"}, 0, kVersionScreen, "");
}

TEST_F(CommandLine, VersionScreenOpensNoSource) {
    // Opening a pipe that nobody writes to would hang.
    ASSERT_EQ(mkfifo((work / "a.பொழில்").c_str(), 0600), 0);
    expectRun({"a.பொழில்", "--version", "--வலை", "b.பொழில்"}, 0, kVersionScreen, "");
    EXPECT_FALSE(std::filesystem::exists(cache));
}

TEST_F(CommandLine, VersionOfADirectoryWithDefaultSourceSaysNothingOfIt) {
    write("முதன்மை.பொழில்", kStopsInScanner);
    expectRun({"prog.txt", "-v"}, 0, kVersionScreen, "");
}

TEST_F(CommandLine, MissingSource) {
    expectRun({"இல்லாதது.பொழில்"}, 1, "", "பிழை: 'இல்லாதது.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
    expectRun({".பொழில்"}, 1, "", "பிழை: '.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
}

TEST_F(CommandLine, UnknownLocaleIsPassedOver) {
    const ProcessResult run = compile({"-v"}, {"", {"LC_ALL=xx_YY.nothing"}, "", 60});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, kVersionScreen);
    EXPECT_EQ(run.err, "");
}

TEST(Paths, EndingIsComparedByBytes) {
    EXPECT_TRUE(hasEnding("a.பொழில்", ".பொழில்"));
    EXPECT_TRUE(hasEnding(".பொழில்", ".பொழில்"));
    EXPECT_TRUE(hasEnding("a", ""));
    EXPECT_FALSE(hasEnding("பொழில்", ".பொழில்"));
    EXPECT_FALSE(hasEnding("a.பொழில்.txt", ".பொழில்"));
    EXPECT_FALSE(hasEnding("", "a"));
}

TEST(Paths, SeamsPassThrough) {
    EXPECT_EQ(getSafeMinGWPath("C:\\அ ஆ/இ"), "C:\\அ ஆ/இ");
    injectEmscriptenEnvironment("/இல்லை");
    EXPECT_FALSE(fileExists("/இல்லை"));
    EXPECT_TRUE(fileExists(POZHIL_ROOT "/உள்ளடக்கம்"));
}

TEST(Paths, AppDirectoryIsThatOfTheRunningExecutable) {
    const auto self = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(getAppDirectory(), self.parent_path().u8string());
}

TEST(Paths, CommandReturnsTheRawStatus) {
    EXPECT_EQ(run_command("exit 3"), 3 << 8);
    EXPECT_EQ(run_command("true"), 0);
}

}  // namespace
