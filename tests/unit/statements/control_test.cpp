// Conditions, loops, switch, try, return: what their nodes hold, and where refusals stand when
// the words are spread over lines as no source spreads them.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

const Token kFourthColon = mark(TokenType::COLON, 4);

template <typename Node>
const Node& only(const Parsed& parsed) {
    return dynamic_cast<const Node&>(*parsed.program.statements.at(0));
}

TEST(Statements, LeaveTheirLineAtZero) {
    const Parsed parsed = parse(
        "\nஅ()\nஅ = 1\nஅச்சிடு(1)\nஎனில் அ:\n    விடு\nசுற்று அ:\n    விடு\n"
        "ஒவ்வொன்றாக அ இல் ஆ:\n    விடு\nதேர்வு அ:\n    நிலை 1:\n        விடு\n"
        "முயற்சி:\n    விடு\nபிடி:\n    விடு\nகாத்திரு 1\nநிறுத்து\nதொடர்\nவிடு\nபுதுப்பி()\n"
        "செயல் அ():\n    திரும்பு\nகட்டமைப்பு ஆ:\n    இ = 1\nவடிவமைப்பு ஈ:\n    செயல் உ(தான்)\n");
    ASSERT_EQ(parsed.program.statements.size(), 16U);
    for (const auto& statement : parsed.program.statements) EXPECT_EQ(statement->line, 0);
    const auto& function =
        dynamic_cast<const FunctionDefinitionStatement&>(*parsed.program.statements[13]);
    EXPECT_EQ(function.body->line, 0);
    EXPECT_EQ(function.body->statements.at(0)->line, 0);
    const auto& structure =
        dynamic_cast<const StructDefinitionStatement&>(*parsed.program.statements[14]);
    EXPECT_EQ(structure.fields.at(0)->line, 0);
}

TEST(Refresh, RefusesBothParenthesesAtItsOwnLine) {
    const Token refresh{TokenType::REFRESH, "புதுப்பி", 2};
    EXPECT_TRUE(refusedTokens({refresh, number("1", 5)}, "பொழில்-203", 2));
    EXPECT_TRUE(
        refusedTokens({refresh, mark(TokenType::LEFT_PAREN, 3), number("1", 5)}, "பொழில்-204", 2));
    EXPECT_TRUE(refusedTokens({refresh}, "பொழில்-203", 2));
}

TEST(If, RefusesAMissingConditionAtTheTokenBehindIt) {
    EXPECT_TRUE(refusedTokens({word("எனில்", 2), kFourthColon}, "பொழில்-221", 4));
    EXPECT_TRUE(refusedTokens({word("எனில்", 2), mark(TokenType::NEWLINE, 3)}, "பொழில்-221", 3));
    EXPECT_TRUE(refusedTokens({word("எனில்", 2)}, "பொழில்-201", 9));
}

TEST(If, RefusesAMissingColonAtTheCurrentLine) {
    EXPECT_TRUE(refusedTokens({word("எனில்", 2), name("அ", 3), word("விடு", 5)}, "பொழில்-202", 5));
    EXPECT_TRUE(refusedTokens({word("எனில்", 2), name("அ", 3)}, "பொழில்-202", 9));
}

TEST(If, HoldsANullElseBranchWithoutOne) {
    const Parsed parsed = parse("எனில் அ:\n    விடு\n");
    EXPECT_EQ(only<IfStatement>(parsed).elseBranch, nullptr);
}

TEST(If, HoldsAFurtherIfOrABlockAsElseBranch) {
    const Parsed parsed = parse("எனில் அ:\n    விடு\nஇல்லைஎனில் ஆ:\n    விடு\nஇல்லை:\n    விடு\n");
    const Statement* second = only<IfStatement>(parsed).elseBranch.get();
    const auto* further = dynamic_cast<const IfStatement*>(second);
    ASSERT_NE(further, nullptr);
    EXPECT_NE(dynamic_cast<const BlockStatement*>(further->elseBranch.get()), nullptr);
}

TEST(If, TakesElseOnlyBehindItsBlock) {
    EXPECT_TRUE(refused("எனில் அ:\n    விடு\nவிடு\nஇல்லை:\n    விடு\n", "பொழில்-201", 4));
    EXPECT_TRUE(refused("எனில் அ:\n    விடு\nஇல்லை:\n    விடு\nஇல்லை:\n    விடு\n", "பொழில்-201", 5));
    EXPECT_TRUE(
        refused("எனில் அ:\n    விடு\nஇல்லை:\n    விடு\nஇல்லைஎனில் ஆ:\n    விடு\n", "பொழில்-201", 5));
}

TEST(If, ReadsTheDisplayStatesColonAsAnAssignment) {
    EXPECT_TRUE(refused("எனில் காட்சி_நிலை.அ:\n    விடு\n", "பொழில்-201", 1));
    EXPECT_TRUE(refused("எனில் காட்சி_நிலை.அ: 1\n    விடு\n", "பொழில்-202", 1));
    EXPECT_TRUE(accepted("எனில் காட்சி_நிலை.அ சமம் 1:\n    விடு\n"));
}

TEST(While, RefusesAMissingConditionAtTheTokenBehindIt) {
    EXPECT_TRUE(refusedTokens({word("சுற்று", 2), kFourthColon}, "பொழில்-222", 4));
    EXPECT_TRUE(refusedTokens({word("சுற்று", 2), mark(TokenType::NEWLINE, 3)}, "பொழில்-222", 3));
    EXPECT_TRUE(refusedTokens({word("சுற்று", 2), name("அ", 3), word("விடு", 5)}, "பொழில்-202", 5));
}

TEST(For, RefusesWhatIsNoNameAndAMissingWord) {
    const Token loop = word("ஒவ்வொன்றாக", 2);
    EXPECT_TRUE(refusedTokens({loop, number("5", 3)}, "பொழில்-223", 3));
    EXPECT_TRUE(refusedTokens({loop}, "பொழில்-223", 9));
    EXPECT_TRUE(refusedTokens({loop, name("அ", 3), name("இல்", 5)}, "பொழில்-223", 5));
    EXPECT_TRUE(refusedTokens({loop, name("அ", 3)}, "பொழில்-223", 9));
    EXPECT_TRUE(refusedTokens({loop, name("அ", 3), word("இல்", 3), name("ஆ", 3), number("1", 6)},
                              "பொழில்-202", 6));
}

TEST(For, KeepsItsVariablesToken) {
    const Parsed parsed = parse("\nஒவ்வொன்றாக உரை இல் பட்டி:\n    விடு\n");
    const auto& loop = only<ForStatement>(parsed);
    EXPECT_EQ(loop.variable.type, TokenType::TEXT);
    EXPECT_EQ(loop.variable.text, "உரை");
    EXPECT_EQ(loop.variable.line, 2);
}

TEST(Switch, RefusesItsHeaderAtTheWordsLine) {
    const Token choice = word("தேர்வு", 2);
    const Token end = mark(TokenType::NEWLINE, 5);
    EXPECT_TRUE(refusedTokens({choice, name("அ", 3), end}, "பொழில்-202", 2));
    EXPECT_TRUE(
        refusedTokens({choice, name("அ", 3), kFourthColon, word("நிலை", 5)}, "பொழில்-202", 2));
    EXPECT_TRUE(refusedTokens({choice, name("அ", 3), kFourthColon, end, end, word("நிலை", 7)},
                              "பொழில்-202", 2));
}

TEST(Switch, PassesLineEndsBehindItsHeader) {
    const Token end = mark(TokenType::NEWLINE, 2);
    EXPECT_EQ(treeOf(parserOver({word("தேர்வு"), name("அ"), kFourthColon, end, end, end,
                                 mark(TokenType::INDENT), mark(TokenType::DEDENT)})
                         .parseStatement(false)),
              "switch\n  subject\n    name அ @1\n");
}

TEST(Switch, NeedsItsDedent) {
    EXPECT_TRUE(refusedTokens({word("தேர்வு"), name("அ"), kFourthColon, mark(TokenType::NEWLINE),
                               mark(TokenType::INDENT), mark(TokenType::NEWLINE)},
                              "பொழில்-292", 9));
}

TEST(Switch, RefusesAnythingButItsWords) {
    const std::vector<Token> header = {word("தேர்வு"), name("அ"), kFourthColon,
                                       mark(TokenType::NEWLINE), mark(TokenType::INDENT)};
    for (const Token& stray : {word("விடு", 6), name("நிலை", 6), name("மற்றவை", 6),
                               mark(TokenType::INDENT, 6), mark(TokenType::COLON, 6)}) {
        std::vector<Token> tokens = header;
        tokens.push_back(stray);
        EXPECT_TRUE(refusedTokens(tokens, "பொழில்-224", 6));
    }
}

TEST(Switch, RefusesASecondDefaultBehindItsColon) {
    const std::vector<Token> block = {mark(TokenType::NEWLINE), mark(TokenType::INDENT),
                                      word("விடு"), mark(TokenType::DEDENT)};
    std::vector<Token> tokens = {
        word("தேர்வு"),           name("அ"),     kFourthColon, mark(TokenType::NEWLINE),
        mark(TokenType::INDENT), word("மற்றவை"), kFourthColon};
    tokens.insert(tokens.end(), block.begin(), block.end());
    tokens.insert(tokens.end(), {word("மற்றவை", 6), mark(TokenType::COLON, 7), number("1", 8)});
    EXPECT_TRUE(refusedTokens(tokens, "பொழில்-225", 8));
}

TEST(Switch, HoldsANullDefaultWithoutOne) {
    const Parsed parsed = parse("தேர்வு அ:\n    நிலை 1:\n        விடு\n");
    EXPECT_EQ(only<SwitchStatement>(parsed).defaultBlock, nullptr);
    EXPECT_EQ(only<SwitchStatement>(parsed).cases.size(), 1U);
}

TEST(TryCatch, CallsTheErrorByItsWordUnlessItIsNamed) {
    const std::string head = "முயற்சி:\n    விடு\n";
    EXPECT_EQ(only<TryCatchStatement>(parse(head + "பிடி:\n    விடு\n")).errorName, "பிழை");
    EXPECT_EQ(only<TryCatchStatement>(parse(head + "பிடி():\n    விடு\n")).errorName, "பிழை");
    EXPECT_EQ(only<TryCatchStatement>(parse(head + "பிடி(அ):\n    விடு\n")).errorName, "அ");
}

TEST(TryCatch, RefusesItsParenthesisAtThatLine) {
    EXPECT_TRUE(
        refusedTokens({word("முயற்சி"), kFourthColon, mark(TokenType::NEWLINE),
                       mark(TokenType::INDENT), word("விடு"), mark(TokenType::DEDENT),
                       word("பிடி", 5), mark(TokenType::LEFT_PAREN, 6), name("e", 7), name("f", 8)},
                      "பொழில்-204", 6));
}

TEST(TryCatch, RefusesAMissingCatchAtTheCurrentLine) {
    EXPECT_TRUE(refusedTokens({word("முயற்சி"), kFourthColon, mark(TokenType::NEWLINE),
                               mark(TokenType::INDENT), mark(TokenType::DEDENT), name("பிடி", 6)},
                              "பொழில்-210", 6));
}

TEST(Return, IsRefusedAtItsOwnLine) {
    EXPECT_TRUE(refusedTokens({word("திரும்பு", 2), number("1", 3)}, "பொழில்-233", 2));
}

TEST(Return, IsBareBeforeALineEndAndADedent) {
    for (const TokenType kind : {TokenType::NEWLINE, TokenType::DEDENT}) {
        Parser parser = parserOver({word("திரும்பு"), mark(kind)});
        parser.functionDepth = 1;
        EXPECT_EQ(treeOf(parser.parseReturnStatement()), "return\n  null\n");
        EXPECT_EQ(parser.current, 1);
    }
}

TEST(Return, NeedsAValueBeforeAnythingElse) {
    Parser parser = parserOver({word("திரும்பு")}, 9);
    parser.functionDepth = 1;
    EXPECT_TRUE(refuses("பொழில்-201", 9, [&] { parser.parseReturnStatement(); }));
}

TEST(OneWordStatements, TakeOneToken) {
    Parser parser = parserAt("நிறுத்து தொடர் விடு அ()");
    EXPECT_EQ(treeOf(parser.parseBreakStatement()), "break\n");
    EXPECT_EQ(treeOf(parser.parseContinueStatement()), "continue\n");
    EXPECT_EQ(treeOf(parser.parsePassStatement()), "pass\n");
    EXPECT_EQ(parser.current, 3);
}

}  // namespace
