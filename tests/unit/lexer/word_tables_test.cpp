// Every word's kind, and the order of the tables that decides it.
#include "lexer/word_tables.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <unordered_map>

#include "support/front_end.h"
#include "unit/lexer/word_rows.h"

namespace {

TokenType lookUp(const std::string& word) { return Lexer("", "").lookupKeyword(word); }

template <std::size_t Count>
void expectSameRows(const std::unordered_map<std::string, TokenType>& table,
                    const WordRow (&rows)[Count]) {
    EXPECT_EQ(table.size(), Count);
    for (const WordRow& row : rows) {
        const auto found = table.find(row.word);
        ASSERT_NE(found, table.end()) << row.word;
        EXPECT_EQ(found->second, row.kind) << row.word;
    }
}

/// What the rules give for a word: its first row in the order of the tables.
std::unordered_map<std::string, TokenType> firstKinds() {
    std::unordered_map<std::string, TokenType> kinds;
    const auto add = [&](const auto& rows) {
        for (const WordRow& row : rows) kinds.emplace(row.word, row.kind);
    };
    add(kFirstRows);
    add(kIfRows);
    add(kWebRows);
    add(kAnimationRows);
    add(kOperatorsRows);
    add(kAssignmentsRows);
    add(kIncrementsRows);
    return kinds;
}

TEST(WordTables, HoldTheirRows) {
    expectSameRows(IF_KEYWORDS, kIfRows);
    expectSameRows(WEB_KEYWORDS, kWebRows);
    expectSameRows(ANIMATION_KEYWORDS, kAnimationRows);
    expectSameRows(OPERATOR_KEYWORDS, kOperatorsRows);
    expectSameRows(ASSIGN_KEYWORDS, kAssignmentsRows);
    expectSameRows(INC_DEC_KEYWORDS, kIncrementsRows);
}

TEST(WordTables, GiveEveryWordItsFirstKind) {
    const auto kinds = firstKinds();
    ASSERT_EQ(kinds.size(), 182U);
    for (const auto& [word, kind] : kinds) EXPECT_EQ(lookUp(word), kind) << word;
}

TEST(WordTables, GiveAnyOtherWordIdentifier) {
    for (const char* word : {"", "a", "அ", "மதிப்பு", "அச்சிட", "அச்சிடு ", "print", "நிகழ்நேர",
                             "நிகழ்நேர.", "தரவுபடி", "ஜன்னல்"}) {
        EXPECT_EQ(lookUp(word), TokenType::IDENTIFIER) << word;
    }
}

TEST(WordTables, FirstWordsShadowTableRows) {
    EXPECT_EQ(lookUp("மூலம்"), TokenType::KEYWORD);
    EXPECT_EQ(lookUp("வகை"), TokenType::KEYWORD);
    EXPECT_EQ(lookUp("உரைசீரமைப்பு"), TokenType::IDENTIFIER);
}

TEST(WordTables, WidgetWordsShadowAnimationRows) {
    EXPECT_EQ(lookUp("நிறம்"), TokenType::BACKGROUND);
    EXPECT_EQ(lookUp("அகலம்"), TokenType::WIDTH);
    EXPECT_EQ(lookUp("உயரம்"), TokenType::HEIGHT);
    EXPECT_EQ(lookUp("வளைவு"), TokenType::CORNER_CURVE);
}

TEST(WordTables, OperatorsShadowIncrements) {
    EXPECT_EQ(lookUp("ஒன்றுசேர்"), TokenType::ASSIGN_OPERATOR);
    EXPECT_EQ(lookUp("ஒன்றுகழி"), TokenType::ASSIGN_OPERATOR);
}

TEST(WordTables, SomeKindsNeverComeOut) {
    for (const auto& [word, kind] : firstKinds()) {
        for (const TokenType never :
             {TokenType::SOURCE, TokenType::ANIMATION_CURVE, TokenType::ANIMATE_COLOUR,
              TokenType::ANIMATE_WIDTH, TokenType::ANIMATE_HEIGHT, TokenType::ANIMATE_CURVE,
              TokenType::INCREMENT, TokenType::DECREMENT, TokenType::RESERVED_28,
              TokenType::RESERVED_130, TokenType::RESERVED_132, TokenType::RESERVED_136}) {
            if (std::string(word) == "எழுத்துரு") continue;  // the one word left to SOURCE
            EXPECT_NE(lookUp(word), never) << word;
        }
    }
    EXPECT_EQ(lookUp("எழுத்துரு"), TokenType::SOURCE);
}

TEST(WordTables, EveryWordScansToItsKind) {
    for (const auto& [word, kind] : firstKinds()) {
        if (word == "எலிவேஷன்") continue;  // its Grantha letter never reaches the tables
        const std::vector<Token> tokens = scan(word);
        ASSERT_EQ(tokens.size(), 2U) << word;
        EXPECT_EQ(tokens[0].type, kind) << word;
        EXPECT_EQ(tokens[0].text, word);
    }
}

}  // namespace
