// Keywords that a blank splits in two.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"
#include "unit/lexer/word_rows.h"

namespace {

TEST(KeywordSpacing, SplitKeywordIsRefused) {
    EXPECT_TRUE(scanRefused("அச் சிடு", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("எ னில்", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("a\nஎ னில் a:\n", "பொழில்-112", 2));
}

TEST(KeywordSpacing, IsLookedAtAnewWhereverAWordStands) {
    EXPECT_TRUE(scanRefused("எ = 1\nஎ = எ\nஎ னில்", "பொழில்-112", 3));
}

TEST(KeywordSpacing, WordsOfEveryTableAreFound) {
    for (const char* split : {
             "தொட ர்", "ரகசி யம்", "வி னை", "புது ப்பி", "மெ ய்", "எதிர் இருமை", "மி கை",  // first rules
             "எ னில்",                                                                 // conditions
             "பொத் தான்", "வரை யறை", "எழுத்து ரு",                                       // web
             "துள் ளல்", "மெல்ல_ மாறு",                                                  // animation
             "கூட் டு", "ஒன்று சேர்",                                                    // operators
             "கூட்டி சேர்", "பெ இசேர்",                                                  // assignments
         }) {
        EXPECT_TRUE(scanRefused(split, "பொழில்-112", 1)) << split;
    }
}

TEST(KeywordSpacing, AnyBlanksAndTabsMayStandBetween) {
    EXPECT_TRUE(scanRefused("எ\tனில்", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("எ  \t  னில்", "பொழில்-112", 1));
}

TEST(KeywordSpacing, SecondHalfEndsLikeAWord) {
    for (const char mark : std::string("(){};=,:?.[]*+\"#\n\r\t ")) {
        EXPECT_TRUE(scanRefused(std::string("எ னில்") + mark, "பொழில்-112", 1)) << mark;
    }
    EXPECT_EQ(describe(scan("எ னில்a")), "IDENTIFIER:எ IDENTIFIER:னில்a END_OF_FILE");
    EXPECT_EQ(describe(scan("எ னில்1")), "IDENTIFIER:எ IDENTIFIER:னில்1 END_OF_FILE");
}

TEST(KeywordSpacing, SecondHalfMayBeginWithASign) {
    EXPECT_TRUE(scanRefused("மெய ்", "பொழில்-112", 1));
}

TEST(KeywordSpacing, AcrossALineEndPasses) {
    EXPECT_EQ(describe(scan("அச்\nசிடு")), "IDENTIFIER:அச் NEWLINE:\\n IDENTIFIER:சிடு END_OF_FILE");
    EXPECT_EQ(describe(scan("அச் \nசிடு")), "IDENTIFIER:அச் NEWLINE:\\n IDENTIFIER:சிடு END_OF_FILE");
    EXPECT_TRUE(scanRefused("எ\nனில்", "பொழில்-113", 2));  // the half alone is near its keyword
}

TEST(KeywordSpacing, AcrossAnythingButBlanksPasses) {
    EXPECT_EQ(describe(scan("அச்\rசிடு")), "IDENTIFIER:அச் IDENTIFIER:சிடு END_OF_FILE");
    EXPECT_EQ(describe(scan("அச் ஃஃ ஃஃ சிடு")), "IDENTIFIER:அச் IDENTIFIER:சிடு END_OF_FILE");
    EXPECT_EQ(describe(scan("அச்.சிடு")), "IDENTIFIER:அச் DOT:. IDENTIFIER:சிடு END_OF_FILE");
    EXPECT_EQ(describe(scan("அச்(சிடு")), "IDENTIFIER:அச் LEFT_PAREN:( IDENTIFIER:சிடு END_OF_FILE");
}

TEST(KeywordSpacing, SplitIntoThreePasses) {
    EXPECT_EQ(describe(scan("அச் சி டு")), "IDENTIFIER:அச் IDENTIFIER:சி IDENTIFIER:டு END_OF_FILE");
}

TEST(KeywordSpacing, FirstHalfThatIsAKeywordPasses) {
    EXPECT_EQ(describe(scan("இல் லை")), "KEYWORD:இல் IDENTIFIER:லை END_OF_FILE");
    EXPECT_EQ(describe(scan("கூட்டு இருமை")), "OPERATOR:கூட்டு IDENTIFIER:இருமை END_OF_FILE");
    EXPECT_EQ(describe(scan("இல்லை எனில்")), "KEYWORD:இல்லை KEYWORD:எனில் END_OF_FILE");
}

TEST(KeywordSpacing, SecondHalfMayBeAKeywordItself) {
    EXPECT_TRUE(scanRefused("உள்_ இவெ", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("கரை_ நிறம்", "பொழில்-112", 1));
}

TEST(KeywordSpacing, WordsThatTheTablesMakePlainPass) {
    EXPECT_EQ(describe(scan("அடை யாளம்")), "IDENTIFIER:அடை IDENTIFIER:யாளம் END_OF_FILE");
    EXPECT_EQ(describe(scan("உரைசீர மைப்பு")), "IDENTIFIER:உரைசீர IDENTIFIER:மைப்பு END_OF_FILE");
}

TEST(KeywordSpacing, FindsTheDatabaseWordsBehindTheirDot) {
    EXPECT_TRUE(scanRefused("நிகழ்நேர.தரவு சேர்", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("நிகழ்நேர. தரவுபடி", "பொழில்-112", 1));
    EXPECT_EQ(kindNames(scan("நிகழ்நேர .தரவுபடி")), "IDENTIFIER DOT IDENTIFIER END_OF_FILE");
}

TEST(KeywordSpacing, LeavesTheCursorBehindTheFirstWord) {
    Lexer lexer("பெயர்  எண்", "test.பொழில்");
    EXPECT_EQ(lexer.getNextToken().text, "பெயர்");
    EXPECT_EQ(lexer.position, 15);
    EXPECT_EQ(lexer.getNextToken().text, "எண்");
}

TEST(KeywordSpacing, IsReportedWithItsLine) {
    try {
        scan("a\n  அச் சிடு(1)\nb\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "  அச் சிடு(1)");
    }
}

/// A keyword may be cut wherever its first half is a name.
template <std::size_t Count>
void expectEveryCutRefused(const WordRow (&rows)[Count]) {
    for (const WordRow& row : rows) {
        const std::string word = row.word;
        if (Lexer("", "").lookupKeyword(word) == TokenType::IDENTIFIER ||
            word.find('.') != std::string::npos || word == "எலிவேஷன்") {
            continue;
        }
        for (std::size_t cut = 3; cut < word.size(); cut += 3) {
            const std::string first = word.substr(0, cut);
            if (word.find_first_of("_") < cut) break;  // bytes no longer go in threes
            if (Lexer("", "").lookupKeyword(first) != TokenType::IDENTIFIER) continue;
            EXPECT_TRUE(scanRefused(first + " " + word.substr(cut), "பொழில்-112", 1)) << word;
        }
    }
}

TEST(KeywordSpacing, EveryWordIsFoundAtEveryCut) {
    expectEveryCutRefused(kFirstRows);
    expectEveryCutRefused(kIfRows);
    expectEveryCutRefused(kWebRows);
    expectEveryCutRefused(kAnimationRows);
    expectEveryCutRefused(kOperatorsRows);
    expectEveryCutRefused(kAssignmentsRows);
}

}  // namespace
