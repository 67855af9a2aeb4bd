// Placeholders in the three kinds of text, and what replaces them.
#include "writing/marks.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace {

std::string filled(const std::string& text, const MarkStyle& style) {
    std::ostringstream out;
    fillMarks(out, text, style, [&](std::string_view name) {
        if (name == "UNKNOWN") return false;
        out << "<" << name << ">";
        return true;
    });
    return out.str();
}

TEST(Marks, StandInIdentifiersOrAlone) {
    EXPECT_EQ(filled("f(POZHIL_A, x_POZHIL_B_2, POZHIL_C)", kCodeMarks), "f(<A>, x_<B_2>, <C>)");
}

TEST(Marks, EndInFrontOfTrailingUnderscoresAndSmallLetters) {
    EXPECT_EQ(filled("isOpen_POZHIL_ID_now POZHIL_ID__", kCodeMarks), "isOpen_<ID>_now <ID>__");
}

TEST(Marks, WithoutANameAreText) {
    EXPECT_EQ(filled("POZHIL_ POZHIL_small $ $a POZHIL_X", kCodeMarks),
              "POZHIL_ POZHIL_small $ $a <X>");
    EXPECT_EQ(filled("$ $a $A", kTableMarks), "$ $a <A>");
}

TEST(Marks, OfThePageStandBetweenBraces) {
    EXPECT_EQ(filled("a {{{ தலைப்பு }}} {{{ஆ}}} {{{ SCRIPT }}}", kPageMarks),
              "a <தலைப்பு> {{{ஆ}}} <SCRIPT>");
    EXPECT_EQ(filled("{{{ open", kPageMarks), "{{{ open");
}

TEST(Marks, ThatAreNotKnownStay) {
    EXPECT_EQ(filled("$A $UNKNOWN $B", kTableMarks), "<A> $UNKNOWN <B>");
    EXPECT_EQ(filled("{{{ UNKNOWN }}}", kPageMarks), "{{{ UNKNOWN }}}");
}

TEST(Marks, MayBeginInsideOneThatIsNotKnown) {
    std::ostringstream out;
    fillMarks(out, "{{{ if ({{{ A }}}", kPageMarks, [&](std::string_view name) {
        if (name != "A") return false;
        out << "x";
        return true;
    });
    EXPECT_EQ(out.str(), "{{{ if (x");
}

TEST(Marks, InWhatIsFilledInAreNotLookedAtAgain) {
    std::ostringstream out;
    fillMarks(out, "$A$B", kTableMarks, [&](std::string_view name) {
        out << "$" << (name == "A" ? "B" : "A");
        return true;
    });
    EXPECT_EQ(out.str(), "$B$A");
}

}  // namespace
