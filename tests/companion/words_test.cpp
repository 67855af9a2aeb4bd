// What the rules by the words alone say beside a report, and where they keep silent.
#include <gtest/gtest.h>

#include "companion/check/check.h"
#include "support/case_files.h"

namespace {

/// The codes of the companion's own findings in `text`, each with its line.
std::string ownCodes(const std::string& text) {
    const companion::SourceText source("test.பொழில்", text);
    std::string codes;
    for (const companion::Finding& finding : companion::checkSource(source, readFile)) {
        if (finding.code.rfind("துணை-", 0) != 0) continue;
        codes += finding.code + "@" + std::to_string(finding.line) + " ";
    }
    return codes;
}

TEST(Words, OfOtherLanguagesMayBeNames) {
    const std::string refused = "அ பெரிது 3\n";
    EXPECT_EQ(ownCodes("print \"அ\"\n" + refused), "துணை-217@1 ");
    for (const char* line :
         {"print = 5\n", "print(5)\n", "print.சேர்(5)\n", "print[0] = 5\n", "print கூட்டிசேர் 5\n"}) {
        EXPECT_EQ(ownCodes(line + refused), "") << line;
    }
}

TEST(Words, InAnOpenParenthesisCountInTheRefusedLineAlone) {
    EXPECT_EQ(ownCodes("அ = 1\nபொத்தான்(\n    if: 5)\nஅ பெரிது 3\n"), "");
}

TEST(Reports, OfAMissingColonAreNoMatterOfIndentation) {
    EXPECT_EQ(ownCodes("அ = 5\nஎனில் அ பெரிது 3\n    அச்சிடு(1)\n"), "");
    EXPECT_EQ(ownCodes("அ = 5\nஎனில் அ பெரிது 3:\nஅச்சிடு(1)\n"), "துணை-606@3 ");
}

TEST(Reports, AreAdvisedOnInTheirOwnLineAlone) {
    EXPECT_EQ(ownCodes("அ = 5\nஅ பெரிது 6\nஅ சமம் 6\n"), "");
    EXPECT_EQ(ownCodes("அ = 5\nஅ சமம் 6\nஅ பெரிது 6\n"), "துணை-605@2 ");
}

}  // namespace
