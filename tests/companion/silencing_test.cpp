// What a comment at a finding's line silences, and what it doesn't.
#include <gtest/gtest.h>

#include "companion/check/check.h"
#include "files.h"

namespace {

std::string codesIn(const std::string& text) {
    std::string codes;
    for (const auto& finding : companion::checkSource({"test.பொழில்", text}, readFile)) {
        codes += std::to_string(finding.line) + ":" + finding.code + " ";
    }
    return codes;
}

TEST(Silencing, IsByTheCodeInTheLinesOwnComment) {
    EXPECT_EQ(codesIn("அச்சிடு(புதியது)\n"), "1:துணை-502 ");
    EXPECT_EQ(codesIn("அச்சிடு(புதியது) ஃ துணை-502\n"), "");
    EXPECT_EQ(codesIn("அச்சிடு(புதியது) ஃ தெரியும்: துணை-502\n"), "");
    EXPECT_EQ(codesIn("அச்சிடு(புதியது) ஃ துணை-501\n"), "1:துணை-502 ");
    EXPECT_EQ(codesIn("ஃ துணை-502\nஅச்சிடு(புதியது)\n"), "2:துணை-502 ");
}

TEST(Silencing, LeavesTheCompilersOwnRefusals) {
    EXPECT_EQ(codesIn("எனில் மெய் ஃ பொழில்-202\n"), "1:பொழில்-202 ");
}

TEST(Silencing, OfWhatTheCompilerRefusesTellsTheRefusalItself) {
    EXPECT_EQ(codesIn("புதியசெயல்(1)\n"), "1:துணை-203 ");
    EXPECT_EQ(codesIn("புதியசெயல்(1) ஃ துணை-203\n"), "1:துணை-200 ");
}

}  // namespace
