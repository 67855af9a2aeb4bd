// The checks of a word's letters: lone signs, Grantha letters, long signs on vowels, invisible
// marks.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"
#include "unit/spelling/code_points.h"

namespace {

std::string identifierAlone(const std::string& word) {
    return "IDENTIFIER:" + word + " END_OF_FILE";
}

TEST(LoneSign, AtAWordsStartIsRefused) {
    for (int sign = 0x0BBE; sign <= 0x0BCD; sign++) {
        EXPECT_TRUE(scanRefused(codePoint(sign), "பொழில்-106", 1)) << std::hex << sign;
        EXPECT_TRUE(scanRefused("a\n" + codePoint(sign) + "க", "பொழில்-106", 2)) << std::hex << sign;
    }
}

TEST(LoneSign, NeighboursOfTheSignsPass) {
    // The length mark of ஔ and the anusvara lie outside the range.
    for (const int letter : {0x0BBD, 0x0BCE, 0x0BD7, 0x0B82, 0x0BB9 + 1}) {
        EXPECT_EQ(describe(scan(codePoint(letter))), identifierAlone(codePoint(letter))) << letter;
    }
}

TEST(LoneSign, InsideAWordPasses) {
    for (const char* word : {"கி", "கிி", "க்ி", "aி", "_ி", "க1ு", "அி", "அ்"}) {
        EXPECT_EQ(describe(scan(word)), identifierAlone(word));
    }
}

TEST(LoneSign, BehindATerminatorOrQuoteStartsAWord) {
    EXPECT_TRUE(scanRefused("a.ி", "பொழில்-106", 1));
    EXPECT_TRUE(scanRefused("(ா", "பொழில்-106", 1));
    EXPECT_TRUE(scanRefused("\"a\"ி", "பொழில்-106", 1));
    EXPECT_TRUE(scanRefused("கா ி", "பொழில்-106", 1));
    EXPECT_TRUE(scanRefused("50%ு", "பொழில்-106", 1));
}

TEST(GranthaLetter, IsRefusedAnywhereInAWord) {
    for (const char* letter : {"ஜ", "ஷ", "ஸ", "ஹ"}) {
        const std::string grantha = letter;
        EXPECT_TRUE(scanRefused(grantha, "பொழில்-115", 1)) << letter;
        EXPECT_TRUE(scanRefused(grantha + "ன்னல்", "பொழில்-115", 1)) << letter;
        EXPECT_TRUE(scanRefused("a\nரா" + grantha + "ா", "பொழில்-115", 2)) << letter;
        EXPECT_TRUE(scanRefused("கா" + grantha, "பொழில்-115", 1)) << letter;
        EXPECT_TRUE(scanRefused("a" + grantha, "பொழில்-115", 1)) << letter;
    }
}

TEST(GranthaLetter, NeighboursPass) {
    for (const int letter : {0x0B9B, 0x0B9D, 0x0BB5, 0x0BB6, 0x0BBA}) {
        EXPECT_EQ(describe(scan(codePoint(letter))), identifierAlone(codePoint(letter))) << letter;
    }
    EXPECT_EQ(describe(scan("ஶ்ரீ")), identifierAlone("ஶ்ரீ"));
}

TEST(GranthaLetter, InAKeywordIsRefusedToo) { EXPECT_TRUE(scanRefused("எலிவேஷன்", "பொழில்-115", 1)); }

TEST(GranthaLetter, InAMemberNameIsRefusedToo) {
    EXPECT_TRUE(scanRefused("a.ராஜா", "பொழில்-115", 1));
}

TEST(LongSign, OnAnIndependentVowelIsRefused) {
    for (int vowel = 0x0B85; vowel <= 0x0B94; vowel++) {
        EXPECT_TRUE(scanRefused(codePoint(vowel) + "ா", "பொழில்-114", 1)) << std::hex << vowel;
    }
    EXPECT_TRUE(scanRefused("a\nஅாறு", "பொழில்-114", 2));
}

TEST(LongSign, OnAVowelInsideAWordIsRefused) {
    EXPECT_TRUE(scanRefused("கஅா", "பொழில்-114", 1));
    EXPECT_TRUE(scanRefused("a_இா", "பொழில்-114", 1));
}

TEST(LongSign, OnAnythingElsePasses) {
    for (const char* word : {"கா", "காா", "aா", "_ா", "அ_ா", "அகா", "எஃா", "éா"}) {
        EXPECT_EQ(describe(scan(word)), identifierAlone(word));
    }
    EXPECT_EQ(describe(scan(codePoint(0x0B95) + "ா")), identifierAlone("கா"));
    EXPECT_EQ(describe(scan("a" + codePoint(0x0B84) + "ா")),
              identifierAlone("a" + codePoint(0x0B84) + "ா"));
}

TEST(LongSign, OtherSignsOnAVowelPass) {
    for (int sign = 0x0BBF; sign <= 0x0BCD; sign++) {
        const std::string word = "அ" + codePoint(sign);
        EXPECT_EQ(describe(scan(word)), identifierAlone(word));
    }
}

TEST(InvisibleMark, IsRefusedAnywhereInAWord) {
    for (int mark = 0x200C; mark <= 0x200F; mark++) {
        EXPECT_TRUE(scanRefused(codePoint(mark), "பொழில்-117", 1)) << std::hex << mark;
        EXPECT_TRUE(scanRefused(codePoint(mark) + "க", "பொழில்-117", 1)) << std::hex << mark;
        EXPECT_TRUE(scanRefused("a\nக" + codePoint(mark) + "ள்", "பொழில்-117", 2))
            << std::hex << mark;
        EXPECT_TRUE(scanRefused("கள்" + codePoint(mark), "பொழில்-117", 1)) << std::hex << mark;
        EXPECT_TRUE(scanRefused("(" + codePoint(mark) + ")", "பொழில்-117", 1)) << std::hex << mark;
    }
}

TEST(InvisibleMark, InAKeywordIsRefusedToo) {
    EXPECT_TRUE(scanRefused("அச்" + codePoint(0x200C) + "சிடு", "பொழில்-117", 1));
}

TEST(InvisibleMark, NeighboursAndOtherMarksPass) {
    // The zero-width space and the byte order mark are word characters.
    for (const int mark : {0x200A, 0x200B, 0x2010, 0x202A, 0x2060, 0x204C, 0xFEFF}) {
        EXPECT_EQ(describe(scan(codePoint(mark))), identifierAlone(codePoint(mark)))
            << std::hex << mark;
        const std::string word = "க" + codePoint(mark) + "ள்";
        EXPECT_EQ(describe(scan(word)), identifierAlone(word)) << std::hex << mark;
    }
}

TEST(InvisibleMark, CutOffByTheEndPasses) {
    EXPECT_EQ(describe(scan("\xE2\x80")), identifierAlone("\xE2\x80"));
}

TEST(Letters, AreReportedWithTheirLine) {
    try {
        scan("a\nஅ = \"ஜ\" இணை ஜன்னல்\nb\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.code, "பொழில்-115");
        EXPECT_EQ(refusal.message, "அனுமதிக்கப்படாத கிரந்த எழுத்துக்கள் உள்ளன.");
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "அ = \"ஜ\" இணை ஜன்னல்");
        EXPECT_EQ(refusal.fix, "நம்ம மொழியின் தூய தமிழ் எழுத்துக்களைப் பயன்படுத்தப் பரிந்துரைக்கப்படுகிறது.");
    }
}

}  // namespace
