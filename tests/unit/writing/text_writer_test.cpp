// Lines, blocks and templates.
#include "writing/text_writer.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

namespace {

class Writer : public testing::Test {
protected:
    std::string filled(const std::string& text, const Fills& fills) {
        out.str("");
        writer.fill(text, fills);
        return out.str();
    }

    std::string failure(const std::string& text, const Fills& fills) {
        try {
            writer.fill(text, fills);
        } catch (const std::logic_error& error) {
            return error.what();
        }
        return "filled";
    }

    std::ostringstream out;
    int level = 0;
    TextWriter writer{out, level};
};

TEST_F(Writer, IndentsByFourBlanksALevel) {
    level = 2;
    writer.line("a;");
    EXPECT_EQ(out.str(), "        a;\n");
}

TEST_F(Writer, WritesABlockOneLevelDeeper) {
    level = 1;
    writer.block(
        "if (a) ", [&] { writer.line("b;"); }, " // end\n");
    EXPECT_EQ(out.str(), "    if (a) {\n        b;\n    } // end\n");
    EXPECT_EQ(level, 1);
}

TEST_F(Writer, LeavesTheLineBehindBracesOpen) {
    out << "else ";
    writer.braces([&] { writer.line("b;"); });
    EXPECT_EQ(out.str(), "else {\n    b;\n}");
}

TEST_F(Writer, FillsATemplateAtItsIndentation) {
    level = 1;
    EXPECT_EQ(filled("int x_POZHIL_ID = 1;\n{\n    f(POZHIL_NAME);\n}\n\nend;\n",
                     {{"ID", "7"}, {"NAME", "\"அ\""}}),
              "    int x_7 = 1;\n    {\n        f(\"அ\");\n    }\n\n    end;\n");
}

TEST_F(Writer, StreamsIntoAHoleAtItsIndentation) {
    level = 1;
    const Fills fills = {{"CHILD", [&] { writer.line("child();"); }}, {"NOTHING", [] {}}};
    EXPECT_EQ(filled("a;\n    POZHIL_CHILD;\nPOZHIL_NOTHING;\nb;\n", fills),
              "    a;\n        child();\n    b;\n");
    EXPECT_EQ(level, 1);
}

TEST_F(Writer, StreamsInPlaceWhereMoreStandsOnTheLine) {
    EXPECT_EQ(filled("f(POZHIL_VALUE);\n", {{"VALUE", [&] { out << "1LL"; }}}), "f(1LL);\n");
}

TEST_F(Writer, TakesATextAloneOnItsLineAsText) {
    EXPECT_EQ(filled("    POZHIL_CALL;\n", {{"CALL", "f()"}}), "    f();\n");
}

TEST_F(Writer, ResolvesSwitches) {
    const std::string text = "#if POZHIL_ON\na;\n#else\nb;\n#endif\nc;\n";
    EXPECT_EQ(filled(text, {{"ON", true}}), "a;\nc;\n");
    EXPECT_EQ(filled(text, {{"ON", false}}), "b;\nc;\n");
}

TEST_F(Writer, ResolvesSwitchesInsideEachOther) {
    const std::string text =
        "#if POZHIL_A\n    #if POZHIL_B\nab;\n    #else\na;\n    #endif\n#else\nno;\n#endif\n";
    EXPECT_EQ(filled(text, {{"A", true}, {"B", true}}), "ab;\n");
    EXPECT_EQ(filled(text, {{"A", true}, {"B", false}}), "a;\n");
    EXPECT_EQ(filled(text, {{"A", false}, {"B", true}}), "no;\n");
}

TEST_F(Writer, PassesOtherDirectivesThroughAtTheMargin) {
    level = 1;
    const std::string text =
        "#ifdef WEB\na;\n#else\nb;\n#endif\n#if POZHIL_A\n#ifdef X\nc;\n#endif\n#endif\n";
    EXPECT_EQ(filled(text, {{"A", false}}), "#ifdef WEB\n    a;\n#else\n    b;\n#endif\n");
    EXPECT_EQ(filled(text, {{"A", true}}),
              "#ifdef WEB\n    a;\n#else\n    b;\n#endif\n#ifdef X\n    c;\n#endif\n");
}

TEST_F(Writer, RefusesAPlaceholderThatIsNotFilled) {
    EXPECT_EQ(failure("a(POZHIL_NAME);\n", {}), "placeholder NAME isn't filled");
    EXPECT_EQ(failure("#if POZHIL_ON\n#endif\n", {}), "placeholder ON isn't filled");
    EXPECT_EQ(failure("#if POZHIL_ON\nPOZHIL_NAME;\n#endif\n", {{"ON", false}}),
              "placeholder NAME isn't filled")
        << "also where it is left out";
}

TEST_F(Writer, RefusesAFillWithoutAPlace) {
    EXPECT_EQ(failure("a;\n", {{"NAME", "x"}}), "placeholder NAME has no place");
    EXPECT_EQ(failure("#if POZHIL_ON\nPOZHIL_NAME;\n#endif\n", {{"ON", false}, {"NAME", "x"}}),
              "filled");
}

TEST_F(Writer, RefusesAFillOfTheWrongKind) {
    EXPECT_EQ(failure("a(POZHIL_ON);\n", {{"ON", true}}), "placeholder ON is a switch");
    EXPECT_EQ(failure("#if POZHIL_NAME\n#endif\n", {{"NAME", "x"}}),
              "placeholder NAME is no switch");
}

TEST_F(Writer, RefusesDirectivesWithoutTheirCounterpart) {
    EXPECT_EQ(failure("#if POZHIL_ON\na;\n", {{"ON", true}}), "a directive isn't closed");
    EXPECT_EQ(failure("a;\n#endif\n", {}), "a directive isn't opened");
}

}  // namespace
