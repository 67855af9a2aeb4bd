// Functions and parameter lists: what hand-made tokens and the tables show beside the trees.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

const Token kOpen = mark(TokenType::LEFT_PAREN, 3);
const Token kClose = mark(TokenType::RIGHT_PAREN, 4);
const Token kComma = mark(TokenType::COMMA, 4);

/// A whole function around a parameter list.
std::vector<Token> functionWith(const std::vector<Token>& parameters) {
    std::vector<Token> tokens = {word("செயல்", 2), name("அ", 2), kOpen};
    tokens.insert(tokens.end(), parameters.begin(), parameters.end());
    tokens.insert(tokens.end(),
                  {kClose, mark(TokenType::COLON, 4), mark(TokenType::NEWLINE, 4),
                   mark(TokenType::INDENT, 5), word("விடு", 5), mark(TokenType::DEDENT, 6)});
    return tokens;
}

testing::AssertionResult functionRefused(const std::vector<Token>& tokens, const std::string& code,
                                         int line, bool isMethod = false) {
    return refuses(code, line,
                   [&] { parserOver(tokens, 9).parseFunctionDefinitionStatement(isMethod); });
}

TEST(Function, IsPublicAndKeepsItsNamesToken) {
    Parser parser = parserOver(functionWith({}));
    const auto statement = parser.parseStatement(false);
    const auto& function = dynamic_cast<const FunctionDefinitionStatement&>(*statement);
    EXPECT_FALSE(function.isPrivate);
    EXPECT_EQ(function.name.text, "அ");
    EXPECT_EQ(function.name.line, 2);
    EXPECT_EQ(parser.functionDepth, 0);
}

TEST(Function, NeedsANameAtTheCurrentLine) {
    EXPECT_TRUE(functionRefused({word("செயல்", 2), kOpen}, "பொழில்-231", 3));
    EXPECT_TRUE(functionRefused({word("செயல்", 2)}, "பொழில்-231", 9));
}

TEST(Function, RefusesItsParenthesesAtTheNamesLine) {
    EXPECT_TRUE(functionRefused({word("செயல்", 1), name("அ", 2), number("1", 3)}, "பொழில்-203", 2));
    EXPECT_TRUE(functionRefused(
        {word("செயல்", 1), name("அ", 2), kOpen, name("ஆ", 4), number("1", 5)}, "பொழில்-204", 2));
    EXPECT_TRUE(functionRefused({word("செயல்", 1), name("அ", 2)}, "பொழில்-203", 2));
}

TEST(Function, NeedsAColonAtTheCurrentLine) {
    EXPECT_TRUE(functionRefused({word("செயல்", 2), name("அ", 2), kOpen, kClose, word("விடு", 5)},
                                "பொழில்-202", 5));
}

TEST(Function, EntersTheTableBeforeItsBodyIsParsed) {
    Parser parser = parserAt("செயல் அ(ஆ, மாற்று இ):\n    )\n");
    EXPECT_TRUE(refuses("பொழில்-209", 2, [&] { parser.parseStatement(false); }));
    ASSERT_EQ(parser.functionParameters.count("அ"), 1U);
    const std::vector<Param>& parameters = parser.functionParameters["அ"];
    ASSERT_EQ(parameters.size(), 2U);
    EXPECT_EQ(parameters[0].name.text, "ஆ");
    EXPECT_FALSE(parameters[0].isMutable);
    EXPECT_EQ(parameters[1].name.text, "இ");
    EXPECT_TRUE(parameters[1].isMutable);
}

TEST(Function, EntersTheTableBehindItsColon) {
    Parser parser = parserAt("செயல் அ(ஆ) விடு\n");
    EXPECT_TRUE(refuses("பொழில்-202", 1, [&] { parser.parseStatement(false); }));
    EXPECT_TRUE(parser.functionParameters.empty());
}

TEST(Function, RaisesTheDepthForItsBodyAlone) {
    Parser parser = parserAt("செயல் அ():\n    செயல் ஆ():\n        )\n");
    EXPECT_TRUE(refuses("பொழில்-209", 3, [&] { parser.parseStatement(false); }));
    EXPECT_EQ(parser.functionDepth, 2);
    EXPECT_EQ(parse("செயல் அ():\n    செயல் ஆ():\n        விடு\n").parser->functionDepth, 0);
}

TEST(Method, StaysOutOfTheTable) {
    Parser parser = parserAt("செயல் அ(தான்):\n    விடு\n");
    EXPECT_NE(parser.parseFunctionDefinitionStatement(true), nullptr);
    EXPECT_TRUE(parser.functionParameters.empty());
}

TEST(Method, NeedsItsReceiverFirstAtTheNamesLine) {
    EXPECT_TRUE(functionRefused(functionWith({}), "பொழில்-271", 2, true));
    EXPECT_TRUE(functionRefused(functionWith({name("ஆ")}), "பொழில்-271", 2, true));
    EXPECT_TRUE(
        functionRefused(functionWith({name("ஆ"), kComma, name("தான்")}), "பொழில்-271", 2, true));
}

TEST(Method, TakesEitherReceiver) {
    for (const char* const receiver : {"தான்", "self"}) {
        EXPECT_NE(parserOver(functionWith({name(receiver)})).parseFunctionDefinitionStatement(true),
                  nullptr);
        EXPECT_NE(parserOver(functionWith({word("மாற்று"), name(receiver), kComma, name("ஆ")}))
                      .parseFunctionDefinitionStatement(true),
                  nullptr);
    }
}

TEST(Method, NeedsItsColonBeforeItsReceiver) {
    EXPECT_TRUE(functionRefused({word("செயல்"), name("அ"), kOpen, kClose, word("விடு", 7)},
                                "பொழில்-202", 7, true));
}

TEST(Parameters, TakeTheReferenceMarkAsAnIdentifierToo) {
    Parser parser = parserOver(functionWith({name("மாற்று"), name("ஆ"), kComma, name("இ")}));
    parser.parseStatement(false);
    EXPECT_EQ(printTables(parser), "function அ(&ஆ, இ)\n");
}

TEST(Parameters, SkipLineEndsBeforeANameAlone) {
    const Token lineEnd = mark(TokenType::NEWLINE, 4);
    EXPECT_NE(parserOver(functionWith({lineEnd, name("ஆ"), kComma, lineEnd, lineEnd, name("இ")}))
                  .parseStatement(false),
              nullptr);
    EXPECT_TRUE(functionRefused(functionWith({name("ஆ"), lineEnd}), "பொழில்-204", 2));
    EXPECT_TRUE(functionRefused(functionWith({lineEnd}), "பொழில்-232", 4));
    EXPECT_TRUE(functionRefused(functionWith({word("மாற்று"), lineEnd, name("ஆ")}), "பொழில்-232", 4));
}

TEST(Parameters, RefuseWhatIsNoNameAtItsLine) {
    EXPECT_TRUE(functionRefused(functionWith({number("5", 7)}), "பொழில்-232", 7));
    EXPECT_TRUE(functionRefused(functionWith({name("ஆ"), kComma}), "பொழில்-232", 4));
    EXPECT_TRUE(functionRefused(functionWith({name("ஆ"), kComma, text("இ", 8)}), "பொழில்-232", 8));
    EXPECT_TRUE(functionRefused(functionWith({word("மாற்று", 7)}), "பொழில்-232", 4));
}

TEST(Parameters, MayRepeatAName) {
    EXPECT_EQ(printTables(*parse("செயல் அ(ஆ, ஆ):\n    விடு\n").parser), "function அ(ஆ, ஆ)\n");
}

}  // namespace
