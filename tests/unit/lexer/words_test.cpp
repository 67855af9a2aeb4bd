// Words: what they are made of, and the database words with a dot inside.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

TEST(Words, AreRunsOfLettersDigitsAndUnderscores) {
    EXPECT_EQ(describe(scan("abc _x a1_b அ1 மதிப்பு_2 Zஅz")),
              "IDENTIFIER:abc IDENTIFIER:_x IDENTIFIER:a1_b IDENTIFIER:அ1 IDENTIFIER:மதிப்பு_2 "
              "IDENTIFIER:Zஅz END_OF_FILE");
}

TEST(Words, MayBeOfAnyScript) {
    EXPECT_EQ(describe(scan("été 中文 😀")),
              "IDENTIFIER:été IDENTIFIER:中文 IDENTIFIER:😀 END_OF_FILE");
}

TEST(Words, MayHoldTamilDigitsBehindTheFirstLetter) {
    EXPECT_EQ(describe(scan("அ௧")), "IDENTIFIER:அ௧ END_OF_FILE");
}

TEST(Words, EndAtEveryTerminator) {
    for (const char mark : std::string("(){}=,:?.[]*")) {
        const auto tokens = scan(std::string("அக") + mark);
        ASSERT_EQ(tokens.size(), 3U) << mark;
        EXPECT_EQ(tokens[0].text, "அக") << mark;
        EXPECT_EQ(tokens[1].text, std::string(1, mark));
    }
    EXPECT_EQ(describe(scan("அ;")), "IDENTIFIER:அ NEWLINE:; END_OF_FILE");
}

TEST(Words, EndAtQuotes) {
    EXPECT_EQ(describe(scan("அ\"ஆ\"இ'ஈ'")),
              "IDENTIFIER:அ STRING:ஆ IDENTIFIER:இ CHARACTER:ஈ END_OF_FILE");
}

TEST(Words, TakeMalformedBytesOneByOne) {
    const auto tokens = scan("\xFF\x80 a");
    ASSERT_EQ(kindNames(tokens), "IDENTIFIER IDENTIFIER END_OF_FILE");
    EXPECT_EQ(tokens[0].text, "\xFF\x80");
}

TEST(DatabaseWords, AreSingleTokens) {
    EXPECT_EQ(describe(scan("நிகழ்நேர.தரவுசேர் நிகழ்நேர.தரவுமாற்று நிகழ்நேர.தரவுஅழி "
                            "நிகழ்நேர.தரவுபடி(")),
              "RTDB_INSERT:நிகழ்நேர.தரவுசேர் RTDB_UPDATE:நிகழ்நேர.தரவுமாற்று "
              "RTDB_DELETE:நிகழ்நேர.தரவுஅழி RTDB_READ:நிகழ்நேர.தரவுபடி LEFT_PAREN:( END_OF_FILE");
}

TEST(DatabaseWords, WithAnyOtherTailAreNames) {
    EXPECT_EQ(describe(scan("நிகழ்நேர.தரவு")), "IDENTIFIER:நிகழ்நேர.தரவு END_OF_FILE");
    EXPECT_EQ(describe(scan("நிகழ்நேர. a")), "IDENTIFIER:நிகழ்நேர. IDENTIFIER:a END_OF_FILE");
    EXPECT_EQ(describe(scan("நிகழ்நேர.")), "IDENTIFIER:நிகழ்நேர. END_OF_FILE");
}

TEST(DatabaseWords, TailGoesUnchecked) {
    EXPECT_EQ(describe(scan("நிகழ்நேர.+ஜ\"-/ a")),
              "IDENTIFIER:நிகழ்நேர.+ஜ\"-/ IDENTIFIER:a END_OF_FILE");
    EXPECT_EQ(describe(scan("நிகழ்நேர.5%b")), "IDENTIFIER:நிகழ்நேர.5%b END_OF_FILE");
}

TEST(DatabaseWords, TailEndsAtATerminator) {
    EXPECT_EQ(describe(scan("நிகழ்நேர.தரவுபடி.a")),
              "RTDB_READ:நிகழ்நேர.தரவுபடி DOT:. IDENTIFIER:a END_OF_FILE");
    EXPECT_EQ(describe(scan("நிகழ்நேர..a")), "IDENTIFIER:நிகழ்நேர. DOT:. IDENTIFIER:a END_OF_FILE");
}

TEST(DatabaseWords, FirstHalfAloneIsAName) {
    EXPECT_EQ(describe(scan("நிகழ்நேர")), "IDENTIFIER:நிகழ்நேர END_OF_FILE");
    EXPECT_EQ(describe(scan("நிகழ்நேர .a")), "IDENTIFIER:நிகழ்நேர DOT:. IDENTIFIER:a END_OF_FILE");
}

TEST(DatabaseWords, FirstHalfMustBeTheWholeWord) {
    EXPECT_EQ(describe(scan("xநிகழ்நேர.a")), "IDENTIFIER:xநிகழ்நேர DOT:. IDENTIFIER:a END_OF_FILE");
}

}  // namespace
