// Quoted text and comments are never looked at.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/front_end.h"
#include "unit/spelling/code_points.h"

namespace {

const std::vector<std::string>& refusedElsewhere() {
    static const std::vector<std::string> texts = {
        "ிக",
        "ா",
        "ஜன்னல்",
        "ஷ",
        "எலிவேஷன்",
        "அா",
        "12அ",
        "12௩",
        "௧௨3",
        "அச் சிடு",
        "எ னில்",
        "விலை",
        "தலைமைக",
        "12+3",
        " \t",
        codePoint(0x200C),
        codePoint(0x200D),
        codePoint(0x200E),
        codePoint(0x200F),
        "க" + codePoint(0x200D) + "ள்",
    };
    return texts;
}

TEST(FreeText, InStrings) {
    for (const std::string& text : refusedElsewhere()) {
        EXPECT_EQ(describe(scan("\"" + text + "\"")), "STRING:" + text + " END_OF_FILE");
    }
}

TEST(FreeText, InCharacters) {
    for (const std::string& text : refusedElsewhere()) {
        EXPECT_EQ(describe(scan("'" + text + "'")), "CHARACTER:" + text + " END_OF_FILE");
    }
}

TEST(FreeText, InLineComments) {
    for (const std::string& text : refusedElsewhere()) {
        EXPECT_EQ(describe(scan("a ஃ " + text + "\n")), "IDENTIFIER:a NEWLINE:\\n END_OF_FILE")
            << text;
        EXPECT_EQ(describe(scan("ஃ" + text + "\na")), "IDENTIFIER:a END_OF_FILE") << text;
    }
}

TEST(FreeText, InBlockComments) {
    for (const std::string& text : refusedElsewhere()) {
        EXPECT_EQ(describe(scan("a ஃஃ " + text + "\n" + text + " ஃஃ\n")),
                  "IDENTIFIER:a NEWLINE:\\n END_OF_FILE")
            << text;
    }
}

TEST(FreeText, KeywordsBesideStringsAreWhole) {
    EXPECT_EQ(kindNames(scan("அச்சிடு \"எ\" \"னில்\"")), "KEYWORD STRING STRING END_OF_FILE");
}

TEST(FreeText, RefusedBesideTheQuotes) {
    EXPECT_TRUE(scanRefused("\"ஜ\" ஜ", "பொழில்-115", 1));
    EXPECT_TRUE(scanRefused("ஃஃ ஜ ஃஃ ஜ", "பொழில்-115", 1));
}

TEST(FreeText, OfSeveralLinesShortensTheLinesBehindIt) {
    EXPECT_TRUE(scanRefused("\"a\nb\nc\"\nஜ", "பொழில்-115", 2));
    EXPECT_TRUE(scanRefused("ஃஃ a\nb\nc ஃஃ\nஜ", "பொழில்-115", 4));
}

}  // namespace
