// The box of a failure at run time, byte for byte but for its saying, and the guard of the depth.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "emitted/endings.h"
#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

namespace fs = std::filesystem;

/// The box as it must come out for code 311.
std::string box(const std::string& file, const std::string& line, const std::string& shownLine) {
    const std::string rule = "------------------------------------------------------------";
    const std::string dimRule = "\033[38;5;242m  " + rule + "\033[0m\n";
    return "\n\033[1;31m" + rule +
           "\033[0m\n"
           "  🚨 [ \033[1;93mபொழில்-311\033[0m ] :: "
           "\033[1;31mபொருள் பிழை (இயக்கநேரம்)\033[0m\n"
           "\033[1;31m" +
           rule +
           "\033[0m\n"
           "  \033[1;34m📂 கோப்பு  \033[0m: " +
           file +
           "\n"
           "  \033[1;34m📍 இடம்    \033[0m: வரி " +
           line + "\n" + dimRule +
           "\033[1;36m  🔍 பிழை கண்டறியப்பட்ட பகுதி:\033[0m\n"
           "    " +
           shownLine +
           "\n"
           "       |  \033[1;93m        ▲\033[0m\n"
           "\033[1;31m       ╰── மச்சி, பட்டியல் எல்லை மீறல் (Index Out of Bounds).\033[0m\n" +
           dimRule +
           "\033[1;32m  💡 சரி செய்யும் முறை:\033[0m\n"
           "     நீ தேடுற இடம் பட்டியல்ல இல்ல மச்சி; 'நீளம்()' வச்சு செக் பண்ணு!\n" +
           dimRule + "\n  \033[1;93m✨ \"…\"\033[0m\n" + dimRule + "\n";
}

class RuntimeBox : public testing::Test {
protected:
    RuntimeBox() {
        std::string pattern = (fs::temp_directory_path() / "pozhil box XXXXXX").u8string();
        directory = mkdtemp(pattern.data());
        path = (directory / "நிரல்.பொழில்").u8string();
    }
    ~RuntimeBox() override { fs::remove_all(directory); }

    void write(const std::string& text) const { std::ofstream(path) << text; }

    void expectBox(const std::string& file, int line, const std::string& shownLine) const {
        const ProcessResult run = runForked([&] {
            pozhil_runtime_error("பொழில்-311", file, line);
            return 0;
        });
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(maskSaying(run.out), box(file, std::to_string(line), shownLine));
    }

    fs::path directory;
    std::string path;
};

TEST_F(RuntimeBox, ShowsTheLineOfTheSource) {
    write("ஒன்று\n  இரண்டு = 2\nமூன்று\n");
    expectBox(path, 1, "01 |  ஒன்று");
    expectBox(path, 2, "02 |    இரண்டு = 2");
}

TEST_F(RuntimeBox, ShowsLineNumbersOfOneTwoAndThreeDigits) {
    std::string text;
    for (int line = 1; line <= 120; line++) text += "வரி" + std::to_string(line) + "\n";
    write(text);
    expectBox(path, 7, "07 |  வரி7");
    expectBox(path, 10, "10 |  வரி10");
    expectBox(path, 99, "99 |  வரி99");
    expectBox(path, 100, "100 |  வரி100");
}

TEST_F(RuntimeBox, ShowsThePlaceholderIfTheSourceIsGone) {
    write("ஒன்று\n");
    fs::remove(path);
    expectBox(path, 1, "01 |  (கோப்பு கிடைக்கவில்லை)");
}

TEST_F(RuntimeBox, ShowsThePlaceholderForAnEmptyFileName) {
    expectBox("", 0, "00 |  (கோப்பு கிடைக்கவில்லை)");
}

TEST_F(RuntimeBox, OfALinePastTheEndShowsWhatWasReadLast) {
    write("ஒன்று\nகடைசி");
    expectBox(path, 9, "09 |  கடைசி");
    write("ஒன்று\nகடைசி\n");  // behind the last line end the last reading is empty
    expectBox(path, 9, "09 |  ");
}

TEST_F(RuntimeBox, OfAnEmptySourceShowsAnEmptyLine) {
    write("");
    expectBox(path, 1, "01 |  ");
}

TEST_F(RuntimeBox, HoldsASayingOfItsOwn) {
    const ProcessResult run = runForked([] {
        pozhil_runtime_error("பொழில்-311", "", 1);
        return 0;
    });
    EXPECT_NE(sayingOf(run.out), "");
}

TEST_F(RuntimeBox, ComesAfterWhatTheProgramPrinted) {
    const ProcessResult run = runForked([] {
        std::cout << "முன்பு" << std::endl;
        pozhil_runtime_error("பொழில்-311", "", 0);
        return 0;
    });
    EXPECT_EQ(maskSaying(run.out), "முன்பு\n" + box("", "0", "00 |  (கோப்பு கிடைக்கவில்லை)"));
}

TEST(RuntimeFailure, OfACodeThatTheCatalogueLacksThrows) {
    EXPECT_THROW(pozhil_runtime_error("பொழில்-000", "", 1), std::out_of_range);
}

TEST(RuntimeFailure, OfATryIsNotStopped) {
    EXPECT_EQ(codeOfEnding([] {
                  try {
                      pozhil_runtime_error("பொழில்-313", "", 1);
                  } catch (...) {
                  }
              }),
              "பொழில்-313");
}

TEST(RuntimeFailure, OfADivisionByZeroIsCaughtWithItsText) {
    std::string text;
    try {
        fn_div_any(1LL, 0LL);
    } catch (const std::exception& error) {
        text = error.what();
    }
    EXPECT_EQ(text, "சுழியத்தால் (0) வகுக்க முடியாது!");
}

/// Calls itself until `depth` calls are open at once.
int recurse(int depth) {
    CallTracker tracker("சுழல்.பொழில்");
    g_current_call_line = depth;
    return depth > 1 ? recurse(depth - 1) : g_call_depth;
}

TEST(CallDepth, Of150IsAllowed) {
    EXPECT_EQ(recurse(150), 150);
    EXPECT_EQ(g_call_depth, 0);
    EXPECT_EQ(MAX_CALL_DEPTH, 150);
}

TEST(CallDepth, Of151EndsTheProgramAtTheLatestCall) {
    const auto tooDeep = [] { recurse(151); };
    EXPECT_EQ(codeOfEnding(tooDeep), "பொழில்-335");
    EXPECT_TRUE(endsAt(tooDeep, "சுழல்.பொழில்", 2));  // set by the 150th call
}

int throwAtTheBottom(int depth) {
    CallTracker tracker("சுழல்.பொழில்");
    if (depth == 1) throw std::runtime_error("கீழே");
    return throwAtTheBottom(depth - 1);
}

TEST(CallDepth, IsRightAgainAfterAnException) {
    for (int round = 0; round < 3; round++) {
        EXPECT_THROW(throwAtTheBottom(100), std::runtime_error);
        EXPECT_EQ(g_call_depth, 0);
    }
    EXPECT_EQ(recurse(150), 150);
}

TEST(CallDepth, IsClearedBeforeTheReport) {
    g_call_depth = 150;
    const ProcessResult run = runForked([] {
        std::atexit([] { std::cout << "ஆழம் " << g_call_depth << std::endl; });
        CallTracker tracker("");
        return 0;
    });
    g_call_depth = 0;
    EXPECT_NE(run.out.find("ஆழம் 0\n"), std::string::npos);
}

}  // namespace
