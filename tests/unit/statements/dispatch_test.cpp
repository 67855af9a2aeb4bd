// Which test of parseStatement takes a token: each row by the tokens that meet it, and by those
// that just miss it.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

std::string treeOfFirst(Parser parser, bool inStruct = false) {
    return treeOf(parser.parseStatement(inStruct));
}

/// The first statement's tree, from tokens.
std::string tree(std::vector<Token> tokens, bool inStruct = false) {
    return treeOfFirst(parserOver(std::move(tokens), 9), inStruct);
}

testing::AssertionResult refusedFirst(const std::string& source, const std::string& code,
                                      bool inStruct = false) {
    return refuses(code, 1, [&] { parserAt(source).parseStatement(inStruct); });
}

const char* const kStatementWords[] = {
    "வடிவமைப்பு", "நூஇறக்கி", "அச்சிடு", "எனில்",     "முயற்சி", "சுற்று", "காத்திரு", "தேர்வு",
    "ஒவ்வொன்றாக",  "நிறுத்து", "தொடர்",   "கட்டமைப்பு", "விடு",   "வகை",   "செயல்",    "திரும்பு",
};

TEST(Dispatch, TakesAWordOnlyAsAKeyword) {
    for (const char* const text : kStatementWords) {
        EXPECT_EQ(tree({name(text), mark(TokenType::LEFT_PAREN), mark(TokenType::RIGHT_PAREN)}),
                  std::string("expression\n  call @1\n    name ") + text + " @1\n    arguments\n");
    }
}

TEST(Dispatch, TakesRefreshByItsKind) {
    const Token refresh{TokenType::REFRESH, "எதுவும்", 1};
    EXPECT_EQ(tree({refresh, mark(TokenType::LEFT_PAREN), mark(TokenType::RIGHT_PAREN)}),
              "refresh\n");
}

TEST(Dispatch, TakesAnEnumerationOnlyBeforeAnIdentifier) {
    EXPECT_EQ(treeOfFirst(parserAt("வகை அ:\n    ஆ\n")), "null\n");
    EXPECT_EQ(treeOfFirst(parserAt("வகை = 3\n")),
              "expression\n  assign வகை = @1\n    number 3 @1\n");
    EXPECT_TRUE(refusedFirst("வகை உரை:\n    ஆ\n", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("வகை வகை:\n    ஆ\n", "பொழில்-201"));
}

TEST(Dispatch, TakesAFunctionUnlessItIsAssignedTo) {
    EXPECT_EQ(treeOfFirst(parserAt("செயல் = 1")),
              "expression\n  assign செயல் = @1\n    number 1 @1\n");
    EXPECT_TRUE(refusedFirst("செயல்(1)", "பொழில்-231"));
    EXPECT_TRUE(refusedFirst("செயல் கூட்டிசேர் 1", "பொழில்-231"));
}

TEST(Dispatch, MakesAFunctionOfAStructureAMethod) {
    const std::string source = "செயல் அ(ஆ):\n    விடு\n";
    EXPECT_TRUE(refusedFirst(source, "பொழில்-271", true));
    EXPECT_EQ(treeOfFirst(parserAt(source)), "function அ(ஆ)\n  block\n    pass\n");
}

TEST(Dispatch, LeavesPublicToAStructure) {
    Parser parser = parserAt("பொது()");
    EXPECT_EQ(parser.parseStatement(true), nullptr);
    EXPECT_EQ(parser.current, 0);
    EXPECT_EQ(treeOf(parser.parseStatement(false)),
              "expression\n  call @1\n    name பொது\n    arguments\n");
}

TEST(Dispatch, GivesNullForLayoutAndLeavesIt) {
    for (const TokenType kind : {TokenType::DEDENT, TokenType::NEWLINE}) {
        for (const bool inStruct : {false, true}) {
            Parser parser = parserOver({mark(kind), number("1")});
            EXPECT_EQ(parser.parseStatement(inStruct), nullptr);
            EXPECT_EQ(parser.current, 0);
        }
    }
}

TEST(Dispatch, RefusesIndentation) {
    EXPECT_TRUE(refusedTokens({mark(TokenType::INDENT, 4)}, "பொழில்-111", 4));
    EXPECT_TRUE(refusedTokens({mark(TokenType::INDENT, 4)}, "பொழில்-111", 4, true));
    EXPECT_TRUE(refusedTokens(
        {mark(TokenType::INDENT, 4), word("வினை", 4), mark(TokenType::COLON, 4)}, "பொழில்-111", 4));
}

TEST(Dispatch, RefusesTheEnd) { EXPECT_TRUE(refusedTokens({}, "பொழில்-201", 9)); }

TEST(LambdaScan, SeesTheWordAndAColonBehindIt) {
    EXPECT_TRUE(refusedFirst("அ = வினை (ஆ): ஆ", "பொழில்-234"));
    EXPECT_TRUE(refusedFirst("அ = ஆ ? வினை : இ", "பொழில்-234"));
    EXPECT_TRUE(refusedFirst("அ = ஆ ? \"வினை\" : இ", "பொழில்-234"));
    EXPECT_EQ(treeOfFirst(parserAt("அ = ஆ ? இ : \"வினை\"")),
              "expression\n  assign அ = @1\n    ternary @1\n      name ஆ @1\n      name இ @1\n"
              "      string \"வினை\" @1\n");
}

TEST(LambdaScan, EndsWithTheLine) {
    const std::vector<Token> overTwoLines = {name("அ"), mark(TokenType::LEFT_PAREN), text("வினை"),
                                             mark(TokenType::RIGHT_PAREN),
                                             mark(TokenType::COLON, 2)};
    EXPECT_EQ(tree(overTwoLines),
              "expression\n  call @1\n    name அ @1\n    arguments\n      string \"வினை\" @1\n");
}

TEST(LambdaScan, EndsAtASemicolon) {
    EXPECT_EQ(treeOfFirst(parserAt("அ(\"வினை\");ஆ = இ ? ஈ : உ")),
              "expression\n  call @1\n    name அ @1\n    arguments\n      string \"வினை\" @1\n");
    EXPECT_TRUE(accepted("அ(\"வினை\");ஆ = இ ? ஈ : உ"));
}

TEST(LambdaScan, BeginsAtTheStatement) {
    EXPECT_TRUE(accepted("அச்சிடு(வினை (அ): அ) ஆ()"));
    EXPECT_TRUE(accepted("அச்சிடு(வினை (அ): அ) ஆ = இ ? ஈ : உ"));
    EXPECT_TRUE(refused("ஆ() அச்சிடு(வினை (அ): அ)", "பொழில்-234", 1));
    EXPECT_TRUE(refused("அச்சிடு(வினை (அ): அ) ஆ() இ = வினை (அ): அ", "பொழில்-234", 1));
}

TEST(LambdaScan, GoesAheadOfTheOtherRefusals) {
    EXPECT_TRUE(refusedFirst(") வினை (அ): அ", "பொழில்-234"));
    EXPECT_TRUE(refusedFirst("ஆ 5 வினை (அ): அ", "பொழில்-234"));
    EXPECT_TRUE(refusedFirst("1, வினை (அ): அ]", "பொழில்-234"));
    EXPECT_TRUE(refusedFirst("ஆ = வினை (அ): அ", "பொழில்-234", true));
}

TEST(LambdaScan, LeavesTheStatementsOfWordsAlone) {
    EXPECT_EQ(treeOfFirst(parserAt("காத்திரு வினை (அ): அ")),
              "wait\n  lambda (அ) @1\n    name அ @1\n");
    EXPECT_TRUE(accepted("எனில் வினை (அ): அ:\n    விடு\n"));
}

TEST(ClosingBrackets, BeginNoStatement) {
    for (const TokenType kind :
         {TokenType::RIGHT_PAREN, TokenType::RIGHT_BRACE, TokenType::RIGHT_BRACKET}) {
        EXPECT_TRUE(refusedTokens({mark(kind, 3)}, "பொழில்-209", 3));
        EXPECT_TRUE(refusedTokens({mark(kind, 3)}, "பொழில்-209", 3, true));
    }
}

TEST(MissingEquals, IsSeenBeforeThreeKinds) {
    for (const TokenType kind : {TokenType::NUMBER, TokenType::STRING, TokenType::LEFT_BRACE}) {
        EXPECT_TRUE(refusedTokens({name("அ", 2), mark(kind, 2)}, "பொழில்-208", 2));
        EXPECT_TRUE(refusedTokens({name("அ", 2), mark(kind, 2)}, "பொழில்-208", 2, true));
    }
}

TEST(MissingEquals, IsNotSeenBeforeOthers) {
    EXPECT_TRUE(refusedFirst("அ 50%", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("அ 'ஆ'", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("அ மெய்", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("அ ஆ", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("வகை 5", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("உரை 5", "பொழில்-201"));
}

TEST(MissingEquals, NeedsOneLine) {
    EXPECT_TRUE(refusedTokens({name("அ", 1), number("5", 2)}, "பொழில்-201", 2));
}

TEST(StrayBracket, IsLookedForBehindANumberAndAComma) {
    EXPECT_TRUE(refusedFirst("1, 2]", "பொழில்-209"));
    EXPECT_TRUE(refusedFirst("1 ]", "பொழில்-209"));
    EXPECT_TRUE(refusedFirst(", 2]", "பொழில்-209"));
    EXPECT_TRUE(refusedFirst("1;]", "பொழில்-209"));
    EXPECT_TRUE(refusedFirst("1, 2", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst(", 2", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("\"அ\", 2]", "பொழில்-201"));
    EXPECT_TRUE(refusedFirst("1, 2)", "பொழில்-201"));
}

TEST(StrayBracket, NeedsOneLine) {
    EXPECT_TRUE(refusedTokens({number("1", 1), mark(TokenType::RIGHT_BRACKET, 2)}, "பொழில்-201", 2));
}

TEST(Field, IsANameWithEquals) {
    EXPECT_EQ(treeOfFirst(parserAt("அ = [1]"), true),
              "field அ kind 0\n  list @1\n    number 1 @1\n");
    EXPECT_TRUE(refusedFirst("உரை = 1", "பொழில்-210", true));
    EXPECT_TRUE(refusedFirst("அ.ஆ = 1", "பொழில்-210", true));
    EXPECT_TRUE(refusedFirst("அ கூட்டிசேர் 1", "பொழில்-210", true));
    EXPECT_TRUE(refusedFirst("அ()", "பொழில்-210", true));
}

TEST(PlainStatement, MayEndInTheReservedOperator) {
    const std::vector<Token> tokens = {name("அ"), {TokenType::RESERVED_136, "op", 1}};
    EXPECT_EQ(tree(tokens), "increment op\n  name அ @1\n");
    EXPECT_EQ(tree(tokens, true), "increment op\n  name அ @1\n");
}

TEST(PlainStatement, LeavesEveryAssignmentToTheExpression) {
    for (const TokenType kind :
         {TokenType::EQUALS, TokenType::ASSIGN_OPERATOR, TokenType::INCREMENT, TokenType::DECREMENT,
          TokenType::RESERVED_132}) {
        EXPECT_EQ(tree({name("அ"), {kind, "op", 1}, number("1")}),
                  "expression\n  assign அ op @1\n    number 1 @1\n");
    }
}

}  // namespace
