// The report itself, byte for byte.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <streambuf>
#include <string>

#include "error_handler.h"
#include "support/generated_text.h"
#include "support/saying.h"
#include "support/side_by_side.h"
#include "support/subprocess.h"

namespace {

struct Report {
    பிழைவகை kind = SYNTAX_ERROR;
    int line = 7;
    std::string lineText = "அச்சிடு(1";
};

ProcessResult print(const Report& report) {
    return runForked([&]() -> int {
        ErrorHandler::அறிக்கை(report.kind, "பொழில்-204", "அடைப்பு விடுபட்டுள்ளது.", "கோப்பு.பொழில்",
                             report.line, report.lineText, "அடைப்பை மூடு!");
    });
}

/// The report of `report` with the two rows that vary given.
std::string expected(const std::string& title, const std::string& place,
                     const std::string& lineRow) {
    return "\n\033[1;31m------------------------------------------------------------\033[0m\n"
           "  🚨 [ \033[1;93mபொழில்-204\033[0m ] :: \033[1;31m" +
           title +
           "\033[0m\n"
           "\033[1;31m------------------------------------------------------------\033[0m\n"
           "  \033[1;34m📂 கோப்பு  \033[0m: கோப்பு.பொழில்\n"
           "  \033[1;34m📍 இடம்    \033[0m: வரி " +
           place +
           "\n"
           "\033[2;37m  ------------------------------------------------------------\033[0m\n"
           "\033[1;36m  🔍 பிழை கண்டறியப்பட்ட பகுதி:\033[0m\n" +
           lineRow +
           "\n"
           "       |  \033[1;93m        ▲\033[0m\n"
           "\033[1;31m       ╰── மச்சி, அடைப்பு விடுபட்டுள்ளது.\033[0m\n"
           "\033[2;37m  ------------------------------------------------------------\033[0m\n"
           "\033[1;32m  💡 சரி செய்யும் முறை:\033[0m\n"
           "     அடைப்பை மூடு!\n"
           "\033[2;37m  ------------------------------------------------------------\033[0m\n"
           "  \033[1;93m✨ \"…\"\033[0m\n"
           "\033[2;37m  ------------------------------------------------------------\033[0m\n"
           "\n";
}

void expectReport(const Report& report, const std::string& text) {
    const ProcessResult result = print(report);
    const std::string actual = maskSaying(result.out);
    EXPECT_TRUE(actual == text) << sideBySide(text, actual);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, 1);
}

const std::string kTitle = "இலக்கணப் பிழை";

TEST(Report, PutsAZeroBeforeALineBelowTen) {
    expectReport({}, expected(kTitle, "7", "    07 |  அச்சிடு(1"));
    expectReport({SYNTAX_ERROR, 9, "x"}, expected(kTitle, "9", "    09 |  x"));
}

TEST(Report, ShowsALineFromTenOn) {
    expectReport({SYNTAX_ERROR, 12, "அச்சிடு(1"}, expected(kTitle, "12", "    12 |  அச்சிடு(1"));
    expectReport({SYNTAX_ERROR, 10, "x"}, expected(kTitle, "10", "    10 |  x"));
}

TEST(Report, LetsALongNumberPushTheBar) {
    expectReport({SYNTAX_ERROR, 100, "x"}, expected(kTitle, "100", "    100 |  x"));
}

TEST(Report, PutsAZeroBeforeZeroAndNegativeLines) {
    expectReport({SYNTAX_ERROR, 0, "x"}, expected(kTitle, "0", "    00 |  x"));
    expectReport({SYNTAX_ERROR, -3, "x"}, expected(kTitle, "-3", "    0-3 |  x"));
}

TEST(Report, ShowsAnEmptyLineWithItsPointer) {
    expectReport({SYNTAX_ERROR, 7, ""}, expected(kTitle, "7", "    07 |  "));
}

TEST(Report, ShowsTheLineAsItStands) {
    expectReport({SYNTAX_ERROR, 7, "\t  x 😀"}, expected(kTitle, "7", "    07 |  \t  x 😀"));
}

TEST(Report, NamesTheClass) {
    const struct {
        int kind;
        const char* title;
    } rows[] = {
        {0, "சொல் பிழை"},      {1, "இலக்கணப் பிழை"}, {2, "பொருள் பிழை"}, {3, "செயல்பாட்டுப் பிழை"},
        {4, "இயக்கநேரப் பிழை"}, {5, "பிழை"},        {7, "பிழை"},
    };
    for (const auto& row : rows) {
        expectReport({static_cast<பிழைவகை>(row.kind), 7, "x"},
                     expected(row.title, "7", "    07 |  x"));
    }
}

TEST(Report, NumbersItsClasses) {
    EXPECT_EQ(LEXICAL_ERROR, 0);
    EXPECT_EQ(SYNTAX_ERROR, 1);
    EXPECT_EQ(SEMANTIC_ERROR, 2);
    EXPECT_EQ(OPERATION_ERROR, 3);
    EXPECT_EQ(RUNTIME_ERROR, 4);
}

/// Passes on what is written to it, with a mark wherever it is flushed.
class FlushMarker : public std::streambuf {
protected:
    int_type overflow(int_type byte) override {
        std::fputc(byte, stderr);
        return byte;
    }
    int sync() override {
        std::fputs("<flush>", stderr);
        return 0;
    }
};

TEST(Report, FlushesAtTheEndOfEachRow) {
    const ProcessResult result = runForked([]() -> int {
        std::cout.rdbuf(new FlushMarker);  // lives on: the stream is flushed once more at the exit
        ErrorHandler::அறிக்கை(SYNTAX_ERROR, "", "", "", 1, "", "");
    });
    // Sixteen rows, an empty line ahead of them and one behind; the one ahead isn't flushed.
    EXPECT_EQ(countOf("\n", result.err), 18);
    EXPECT_EQ(countOf("\n<flush>", result.err), 17);
    EXPECT_EQ(result.err.find("\n\033[1;31m---"), 0U);
}

TEST(Report, RunsStaticDestructors) {
    const ProcessResult result = runForked([]() -> int {
        std::atexit([] { std::fputs("ended", stderr); });
        ErrorHandler::அறிக்கை(SYNTAX_ERROR, "", "", "", 1, "", "");
    });
    EXPECT_EQ(result.err, "ended");
    EXPECT_EQ(result.exitCode, 1);
}

TEST(GeneratorReport, PutsDetailInBrackets) {
    const ProcessResult result = runForked([]() -> int {
        const Program program;
        Generator(program, {}, {}, {}, "முதல்\nஇரண்டு\n", "கோப்பு.பொழில்").பிழை("பொழில்-315", 2, "அளவு");
    });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.out.find("பொருள் பிழை"), std::string::npos);
    EXPECT_NE(result.out.find("    02 |  இரண்டு\n"), std::string::npos);
    EXPECT_NE(result.out.find("மச்சி, மாறிலியை (Constant) மாற்ற முயற்சி. (அளவு)\033[0m\n"),
              std::string::npos);
}

TEST(GeneratorReport, OfACodeThatTheCatalogueLacksIsOneLine) {
    const ProcessResult result = runForked([]() -> int {
        const Program program;
        Generator(program, {}, {}, {}, "", "").பிழை("பொழில்-999", 1, "அளவு");
    });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "பொழில்-399: அறியப்படாத பிழை (பொழில்-999)\n");
}

}  // namespace
