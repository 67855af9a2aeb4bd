// Press handlers: which words open statements, in which widget.
#include <gtest/gtest.h>

#include "support/tree_printer.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

/// A handler that one statement fills, or one value.
struct HandlerRow {
    const char* text;
    bool byKeyword;
    bool byDatabaseWord;
};
const HandlerRow kHandlers[] = {
    {"அச்சிடு(1)", true, false},
    {"எனில் 1:\n    அ = 1\n", true, false},
    {"சுற்று 1:\n    அ = 1\n", true, false},
    {"காத்திரு 1", true, false},
    {"நிறுத்து", true, false},
    {"விடு", true, false},
    {"மூலம் = 1", true, false},
    {"வகை = 1", true, false},
    {"இப்போதுநேரம்()", true, false},
    {"நிகழ்நேர.தரவுசேர்(1) {}", false, true},
    {"நிகழ்நேர.தரவுமாற்று(1) {}", false, true},
    {"நிகழ்நேர.தரவுஅழி(1)", false, true},
    {"கூடு()", false, false},
    {"செல்க(1)", false, false},
    {"அ = 1", false, false},
    {"5", false, false},
    {"x => x", false, false},
    {"உரை(1)", false, false},
};

void expectHandler(const std::string& widget, const HandlerRow& row, bool isStatement) {
    const WidgetSource source(widget + "(அழுத்தினால்(" + row.text + "))\n");
    EXPECT_EQ(source.node().onTapStatements.size(), isStatement ? 1U : 0U) << widget << row.text;
    EXPECT_EQ(source.keys(), isStatement ? "" : "அழுத்தினால்") << widget << row.text;
}

TEST(Press, OpensStatementsByKeywordOrDatabaseWord) {
    for (const HandlerRow& row : kHandlers) {
        expectHandler("பொத்தான்", row, row.byKeyword || row.byDatabaseWord);
        expectHandler("பட்டியல்_உருப்படி", row, row.byKeyword);
    }
}

TEST(Press, IsAReadToAGenericWidgetAlone) {
    const std::string handler = "(அழுத்தினால்(நிகழ்நேர.தரவுபடி(1) {}))\n";
    EXPECT_EQ(WidgetSource("பொத்தான்" + handler).node().onTapStatements.size(), 1U);
    for (const char* widget : {"பட்டியல்_உருப்படி", "பெட்டி", "உரைபொத்தான்"}) {
        EXPECT_EQ(refusalOf(widget + handler), "பொழில்-201") << widget;
    }
}

TEST(Press, IsOneValueToABoxAndATextButton) {
    for (const char* widget : {"பெட்டி", "உரைபொத்தான்"}) {
        for (const HandlerRow& row : kHandlers) {
            const std::string text = row.text;
            if (text.find('\n') != std::string::npos || text.rfind("காத்திரு", 0) == 0) {
                // A keyword is a name here, and what follows it is too much.
                EXPECT_EQ(refusalOf(widget + std::string("(அழுத்தினால்(") + text + "))\n"),
                          "பொழில்-204")
                    << text;
                continue;
            }
            expectHandler(widget, row, false);
        }
        EXPECT_EQ(WidgetSource(widget + std::string("(\nஅழுத்தினால்(வினை(): f()))\n"))
                      .property("அழுத்தினால்")
                      .rfind("lambda", 0),
                  0U);
    }
}

TEST(Press, BehindAColonIsAlwaysOneValue) {
    for (const char* widget : {"பொத்தான்", "பட்டியல்_உருப்படி", "பெட்டி", "உரைபொத்தான்"}) {
        const WidgetSource source(widget + std::string("(\nஅழுத்தினால்: வினை(): அச்சிடு(1))\n"));
        EXPECT_EQ(source.keys(), "அழுத்தினால்") << widget;
        EXPECT_TRUE(source.node().onTapStatements.empty()) << widget;
        EXPECT_EQ(refusalOf(widget + std::string("(அழுத்தினால்)")), "பொழில்-202") << widget;
    }
}

/// `வினை` is a keyword: its handler is a statement, and there the arrow forms alone are lambdas.
TEST(Press, RefusesALambdaInParentheses) {
    EXPECT_EQ(refusalOf("பொத்தான்(\nஅழுத்தினால்(வினை(): கூடு()))"), "பொழில்-234");
    EXPECT_EQ(refusalOf("பட்டியல்_உருப்படி(\nஅழுத்தினால்(வினை(): கூடு()))"), "பொழில்-234");
}

/// Indentation inside the handler is counted from its own parenthesis; a box doesn't count it.
TEST(Press, CountsIndentationUnlessABoxHoldsIt) {
    const std::string handler = "(\n    அழுத்தினால்(\nகூடு()\n    )\n)\n";
    EXPECT_EQ(refusalOf("பொத்தான்" + handler), "பொழில்-204");
    EXPECT_EQ(refusalOf("பட்டியல்_உருப்படி" + handler), "பொழில்-204");
    EXPECT_EQ(refusalOf("உரைபொத்தான்" + handler), "பொழில்-204");
    EXPECT_EQ(refusalOf("பெட்டி" + handler), "none");
}

}  // namespace
