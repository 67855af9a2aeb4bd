// Strings and characters.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

TEST(String, HoldsWhatStandsBetweenTheQuotes) {
    EXPECT_EQ(describe(scan("\"வணக்கம், world! 😀 (1) ஃஃ ஜ ி\"")),
              "STRING:வணக்கம், world! 😀 (1) ஃஃ ஜ ி END_OF_FILE");
}

TEST(String, MayBeEmpty) {
    const auto tokens = scan("\"\"");
    ASSERT_EQ(kindNames(tokens), "STRING END_OF_FILE");
    EXPECT_EQ(tokens[0].text, "");
}

TEST(String, KnowsNoEscapes) {
    EXPECT_EQ(scan(R"("a\nb\\")")[0].text, R"(a\nb\\)");
    EXPECT_EQ(describe(scan(R"("a\")")), R"(STRING:a\ END_OF_FILE)");
    EXPECT_TRUE(scanRefused(R"("a\"b")", "பொழில்-102", 1));
}

TEST(String, MayHoldSingleQuotes) { EXPECT_EQ(scan("\"'அ'\"")[0].text, "'அ'"); }

TEST(String, KeepsLineEndsAndDoesNotCountThem) {
    const auto tokens = scan("\"ஒன்று\nஇரண்டு\r\n\"\na\n");
    ASSERT_EQ(kindNames(tokens), "STRING NEWLINE IDENTIFIER NEWLINE END_OF_FILE");
    EXPECT_EQ(tokens[0].text, "ஒன்று\nஇரண்டு\r\n");
    EXPECT_EQ(tokens[0].line, 1);
    EXPECT_EQ(tokens[1].line, 1);
    EXPECT_EQ(tokens[2].line, 2);
}

TEST(String, StandsDirectlyBesideOthers) {
    EXPECT_EQ(describe(scan("a\"b\"'c'1")),
              "IDENTIFIER:a STRING:b CHARACTER:c NUMBER:1 END_OF_FILE");
}

TEST(String, LeftOpenIsRefused) {
    EXPECT_TRUE(scanRefused("\"", "பொழில்-102", 1));
    EXPECT_TRUE(scanRefused("a\nb \"அ", "பொழில்-102", 2));
    EXPECT_TRUE(scanRefused("a\n\"b\nc\nd", "பொழில்-102", 2));
}

TEST(String, LeftOpenIsReportedWithTheLineItBegan) {
    try {
        scan("a\n  b \"அ\nc");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.code, "பொழில்-102");
        EXPECT_EQ(refusal.message, "சரத்தை (String) நிறைவு செய்யும் '\"' விடுபட்டுள்ளது.");
        EXPECT_EQ(refusal.file, "test.பொழில்");
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "  b \"அ");
        EXPECT_EQ(refusal.fix, "வரியின் இறுதியில் ஒரு இரட்டை மேற்கோள் குறியைச் சேர்த்துச் சரி செய்!");
    }
}

TEST(Character, HoldsWhatStandsBetweenTheQuotes) {
    EXPECT_EQ(describe(scan("'அ' 'a' '\"' '😀'")),
              "CHARACTER:அ CHARACTER:a CHARACTER:\" CHARACTER:😀 END_OF_FILE");
}

TEST(Character, MayBeOfAnyLength) {
    EXPECT_EQ(scan("'வணக்கம் உலகம்'")[0].text, "வணக்கம் உலகம்");
    EXPECT_EQ(scan(R"('\n')")[0].text, R"(\n)");
}

TEST(Character, EmptyIsRefused) {
    EXPECT_TRUE(scanRefused("''", "பொழில்-105", 1));
    EXPECT_TRUE(scanRefused("a\n'''", "பொழில்-105", 2));
}

TEST(Character, LeftOpenIsRefused) {
    EXPECT_TRUE(scanRefused("'", "பொழில்-103", 1));
    EXPECT_TRUE(scanRefused("'அ", "பொழில்-103", 1));
    EXPECT_TRUE(scanRefused("a\n'அ\n'", "பொழில்-103", 2));
    EXPECT_TRUE(scanRefused("'\n'", "பொழில்-103", 1));
}

}  // namespace
