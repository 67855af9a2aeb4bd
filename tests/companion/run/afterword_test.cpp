// What is said behind g++'s words and behind those of a program that broke down.
#include "companion/run/afterword.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <set>

#include "companion/run/afterword_tables.h"

namespace {

/// A text of five lines, of which the third and the fourth come from the source's second.
const companion::GeneratedText kFiveLines = {"1\n2\n3\n4\n5\n", {0, 1, 2, 2, 0}};

const companion::SourceText& twoLines() {
    static const companion::SourceText text("a.பொழில்", "ஒன்று\n    அச்சிடு(x)\n");
    return text;
}

std::string explain(const std::string& words) {
    return companion::afterRefusal(words, kFiveLines, twoLines());
}

bool isTold(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(AfterRefusal, ShowsTheLineAndTheNameThatGppQuotes) {
    const std::string text = explain(
        "/t/generated.cpp: In function ‘int main()’:\n"
        "/t/generated.cpp:3:7: error: ‘fn_கூடு’ was not declared in this scope\n");
    EXPECT_EQ(text.rfind("\n💡 வரி 2: அச்சிடு(x)\n   'கூடு' என்ற செயல்", 0), 0U) << text;
}

TEST(AfterRefusal, TakesTheNameOutOfADeclaration) {
    const auto withName = [](const std::string& quoted) {
        return explain("generated.cpp:3:7: error: redefinition of " + quoted + "\n");
    };
    EXPECT_TRUE(
        isTold(withName("‘std::any fn_கூடு(std::any, std::any)’"), "'கூடு' என்ற பெயர் இருமுறை"));
    EXPECT_TRUE(isTold(withName("‘std::any அ’"), "'அ' என்ற பெயர் இருமுறை"));
    EXPECT_TRUE(isTold(withName("'std::any fn_கூடு(std::any)'"), "'கூடு' என்ற பெயர் இருமுறை"));
}

TEST(AfterRefusal, ReadsNamesThatGppWritesAsNumbers) {
    const std::string text =
        explain("generated.cpp:3:7: error: 'fn_\\U00000b95\\U00000bc2_a1' was not declared\n");
    EXPECT_TRUE(isTold(text, "'கூ_a1' என்ற செயல்")) << text;
}

TEST(AfterRefusal, PrefersTheFirstErrorThatItKnows) {
    const std::string text = explain(
        "generated.cpp:2:1: error: something new\n"
        "generated.cpp:3:1: error: invalid digit \"8\" in octal constant\n"
        "generated.cpp:2:1: error: break statement not within loop or switch\n");
    EXPECT_TRUE(isTold(text, "வரி 2:")) << text;
    EXPECT_TRUE(isTold(text, "முன்னே நிற்கும் 0-ஐ")) << text;
}

TEST(AfterRefusal, FindsTheLineThatAskedForAnErrorInAHeader) {
    const std::string text = explain(
        "/usr/include/any: In instantiation of ‘X’:\n"
        "/t/generated.cpp:4:7:   required from here\n"
        "/usr/include/any:9:1: error: no match for ‘operator-’\n");
    EXPECT_TRUE(isTold(text, "வரி 2:")) << text;
}

TEST(AfterRefusal, TellsNoLineThatItDoesNotKnow) {
    const std::string text = explain("/t/generated.cpp:5:1: error: something new\n");
    EXPECT_EQ(text, "\n💡 " + std::string(companion::kUnknownRefusal) + "\n");
}

TEST(AfterRefusal, PassesOverNotesAndWarnings) {
    EXPECT_FALSE(companion::holdsRefusal("generated.cpp:3:1: warning: overflow\n"));
    EXPECT_FALSE(companion::holdsRefusal("generated.cpp:3:1: note: no error at all\n"));
    EXPECT_FALSE(companion::holdsRefusal(""));
    EXPECT_TRUE(companion::holdsRefusal("generated.cpp:3:1: error: expected\n"));
    EXPECT_TRUE(companion::holdsRefusal("g++: fatal error: Killed signal terminated program\n"));
    EXPECT_TRUE(companion::holdsRefusal("x.o: undefined reference to `y'\n"));
}

TEST(AfterRefusal, ReadsThroughColours) {
    const std::string coloured =
        "\033[01m\033[K/t/generated.cpp:3:7:\033[m\033[K \033[01;31m\033[Kerror: \033[m\033[Kinvalid "
        "operands \033]8;;https://x\aof types\033]8;;\a\r\n";
    EXPECT_EQ(companion::withoutColours(coloured),
              "/t/generated.cpp:3:7: error: invalid operands of types\n");
    EXPECT_TRUE(isTold(explain(coloured), "வரி 2:"));
}

/// The signal that the words tell of; 0 for a program that came to its own end.
int signalIn(const std::string& words) {
    const auto breakdown = companion::findBreakdown(words);
    return breakdown ? breakdown->signal : 0;
}

TEST(Breakdowns, AreToldByTheShellsWord) {
    EXPECT_EQ(signalIn("Segmentation fault\n"), SIGSEGV);
    EXPECT_EQ(signalIn("Segmentation fault (core dumped)\n"), SIGSEGV);
    EXPECT_EQ(signalIn("Floating point exception\n"), SIGFPE);
    EXPECT_EQ(signalIn("Killed\n"), SIGKILL);
    EXPECT_EQ(signalIn("Aborted\n"), SIGABRT);
    EXPECT_EQ(signalIn(""), 0);
    EXPECT_EQ(signalIn("a warning about Segmentation fault\n"), 0) << "not the shell's";
}

TEST(Breakdowns, AreToldByTheExceptionFirst) {
    const auto messageIn = [](const std::string& exception) {
        const auto breakdown = companion::findBreakdown(
            "terminate called after throwing an instance of '" + exception + "\nAborted\n");
        return breakdown ? std::string(breakdown->message) : "";
    };
    EXPECT_TRUE(isTold(messageIn("std::bad_any_cast'\n  what():  bad any_cast"), "என்னவகை(x)"));
    EXPECT_TRUE(isTold(messageIn("std::out_of_range'\n  what():  stoll"), "அளவை விடப் பெரியது"));
    EXPECT_TRUE(isTold(messageIn("std::out_of_range'\n  what():  map::at"), "நீளம்(x)"));
    EXPECT_TRUE(isTold(messageIn("std::invalid_argument'\n  what():  stod"), "உரையில் எண் இல்லை"));
    EXPECT_TRUE(
        isTold(messageIn("std::runtime_error'\n  what():  சுழியத்தால் (0) வகுக்க முடியாது!"), "0-ஆல்"));
    EXPECT_TRUE(isTold(messageIn("Something'\n  what():  Segmentation fault"), "'முயற்சி', 'பிடி'"));
}

TEST(Tables, HoldNoRowThatAnEarlierOneHides) {
    const auto& rows = companion::kRefusalPatterns;
    for (const auto& row : rows) {
        const std::string words = std::string(row.mark) + " " + std::string(row.with);
        const std::string text = explain("generated.cpp:3:1: error: " + words + "\n");
        const std::string begin(row.message.substr(0, row.message.find('$')));
        EXPECT_TRUE(isTold(text, begin)) << row.mark << " is told as\n" << text;
    }
    std::set<std::string_view> marks;
    for (const auto& row : companion::kEndPatterns) {
        EXPECT_TRUE(marks.insert(row.mark).second) << row.mark;
    }
}

}  // namespace
