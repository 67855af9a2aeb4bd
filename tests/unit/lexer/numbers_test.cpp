// Numbers and percentages, western and Tamil.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"

namespace {

TEST(WesternNumber, IsTakenAsWritten) {
    EXPECT_EQ(describe(scan("0 42 007 3.14 99999999999999999999")),
              "NUMBER:0 NUMBER:42 NUMBER:007 NUMBER:3.14 NUMBER:99999999999999999999 END_OF_FILE");
}

TEST(WesternNumber, MayEndInADot) {
    EXPECT_EQ(describe(scan("1.")), "NUMBER:1. END_OF_FILE");
    EXPECT_EQ(describe(scan("1.)")), "NUMBER:1. RIGHT_PAREN:) END_OF_FILE");
}

TEST(WesternNumber, DoesNotBeginWithADot) {
    EXPECT_EQ(describe(scan(".5")), "DOT:. NUMBER:5 END_OF_FILE");
}

TEST(WesternNumber, RefusesASecondDot) {
    EXPECT_TRUE(scanRefused("1.2.3", "பொழில்-104", 1));
    EXPECT_TRUE(scanRefused("1..", "பொழில்-104", 1));
    EXPECT_TRUE(scanRefused("a\n1.2.", "பொழில்-104", 2));
}

TEST(WesternNumber, EndsAtEveryTerminator) {
    for (const char mark : std::string("(){}=,:?[]*")) {
        const auto tokens = scan(std::string("12") + mark);
        ASSERT_EQ(tokens.size(), 3U) << mark;
        EXPECT_EQ(tokens[0].type, TokenType::NUMBER) << mark;
        EXPECT_EQ(tokens[0].text, "12") << mark;
        EXPECT_EQ(tokens[1].text, std::string(1, mark));
    }
    EXPECT_EQ(describe(scan("12;")), "NUMBER:12 NEWLINE:; END_OF_FILE");
}

TEST(WesternNumber, EndsAtWhiteSpace) {
    EXPECT_EQ(describe(scan("1\t2\r3\n4")),
              "NUMBER:1 NUMBER:2 NUMBER:3 NEWLINE:\\n NUMBER:4 END_OF_FILE");
}

TEST(WesternNumber, HasNoSign) { EXPECT_TRUE(scanRefused("-5", "பொழில்-101", 1)); }

TEST(WesternPercentage, TakesTheMark) {
    EXPECT_EQ(describe(scan("50% 1.5% 2.%")),
              "PERCENTAGE:50% PERCENTAGE:1.5% PERCENTAGE:2.% END_OF_FILE");
    EXPECT_EQ(describe(scan("50%)")), "PERCENTAGE:50% RIGHT_PAREN:) END_OF_FILE");
}

TEST(WesternPercentage, EndsBehindTheMark) {
    EXPECT_EQ(describe(scan("50%அ")), "PERCENTAGE:50% IDENTIFIER:அ END_OF_FILE");
    EXPECT_TRUE(scanRefused("50%%", "பொழில்-101", 1));
}

TEST(WesternPercentage, NeedsTheMarkAtOnce) {
    Lexer lexer("5 %", "test.பொழில்");
    EXPECT_EQ(lexer.getNextToken().type, TokenType::NUMBER);
    EXPECT_TRUE(refuses("பொழில்-101", 1, [&] { lexer.getNextToken(); }));
}

TEST(TamilNumber, KeepsItsDigits) {
    EXPECT_EQ(describe(scan("௧௨")), "NUMBER:௧௨ END_OF_FILE");
    EXPECT_EQ(describe(scan("௦௧௨௩௪௫௬௭௮௯")), "NUMBER:௦௧௨௩௪௫௬௭௮௯ END_OF_FILE");
}

TEST(TamilNumber, KnowsNoDecimalPoint) {
    EXPECT_EQ(describe(scan("௧.௫")), "NUMBER:௧ DOT:. NUMBER:௫ END_OF_FILE");
    EXPECT_EQ(describe(scan("௧.௨.௩")), "NUMBER:௧ DOT:. NUMBER:௨ DOT:. NUMBER:௩ END_OF_FILE");
    EXPECT_EQ(describe(scan("௧.5")), "NUMBER:௧ DOT:. NUMBER:5 END_OF_FILE");
}

TEST(TamilNumber, EndsAtEveryTerminator) {
    for (const char mark : std::string("(){}=,:?.[]*")) {
        const auto tokens = scan(std::string("௧௨") + mark);
        ASSERT_EQ(tokens.size(), 3U) << mark;
        EXPECT_EQ(tokens[0].type, TokenType::NUMBER) << mark;
        EXPECT_EQ(tokens[0].text, "௧௨") << mark;
        EXPECT_EQ(tokens[1].text, std::string(1, mark));
    }
    EXPECT_EQ(describe(scan("௧;")), "NUMBER:௧ NEWLINE:; END_OF_FILE");
}

TEST(TamilNumber, TenHundredAndThousandAreNoDigits) {
    EXPECT_EQ(describe(scan("௰ ௱ ௲")), "IDENTIFIER:௰ IDENTIFIER:௱ IDENTIFIER:௲ END_OF_FILE");
}

TEST(TamilPercentage, TakesTheMark) {
    EXPECT_EQ(describe(scan("௫௦%")), "PERCENTAGE:௫௦% END_OF_FILE");
    EXPECT_TRUE(scanRefused("௫௦ %", "பொழில்-101", 1));
}

}  // namespace
