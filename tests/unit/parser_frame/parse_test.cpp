// The top-level loop: its guard, stray tokens, statements that go ahead.
#include <gtest/gtest.h>

#include "support/front_end.h"
#include "unit/parser_frame/handmade.h"

namespace {

std::string printLines(int count) {
    std::string source;
    for (int i = 0; i < count; i++) source += "அச்சிடு(1)\n";
    return source;
}

std::unique_ptr<Statement> printing(const std::string& digits) {
    std::vector<std::unique_ptr<Expression>> expressions;
    expressions.push_back(std::make_unique<NumberLiteral>(digits));
    return std::make_unique<PrintStatement>(std::move(expressions));
}

/// The one number that the statement prints.
std::string printed(const std::unique_ptr<Statement>& statement) {
    const auto* print = dynamic_cast<const PrintStatement*>(statement.get());
    if (print == nullptr || print->expressions.size() != 1) return "no print of one value";
    const auto* literal = dynamic_cast<const NumberLiteral*>(print->expressions[0].get());
    return literal == nullptr ? "no number" : literal->value;
}

TEST(Parse, OfNothingIsEmpty) {
    EXPECT_TRUE(parserOver({}).parse().statements.empty());
    EXPECT_TRUE(parse("\n\nஃ விளக்கம்\n").program.statements.empty());
}

TEST(Parse, KeepsTheOrder) {
    const Parsed parsed = parse("அச்சிடு(1)\n\n\nஅச்சிடு(2)\nஅச்சிடு(3)");
    ASSERT_EQ(parsed.program.statements.size(), 3U);
    EXPECT_EQ(printed(parsed.program.statements[0]), "1");
    EXPECT_EQ(printed(parsed.program.statements[1]), "2");
    EXPECT_EQ(printed(parsed.program.statements[2]), "3");
}

TEST(Parse, NeedsNoLineEndBetweenStatements) {
    EXPECT_EQ(parse("அச்சிடு(1) அச்சிடு(2)").program.statements.size(), 2U);
}

TEST(Parse, StopsAtTheFirstEndOfFile) {
    const Parsed parsed = parse("அச்சிடு(1) ");
    EXPECT_EQ(parsed.parser->tokens.size(), 6U);
    EXPECT_EQ(parsed.parser->current, 4);
}

TEST(Parse, FindsABlockOpenAtTheFirstEndOfFile) {
    EXPECT_TRUE(refused("எனில் மெய்:\n    அச்சிடு(1) ", "பொழில்-292", 2));
    EXPECT_TRUE(refused("எனில் மெய்:\n    அச்சிடு(1)\n    ", "பொழில்-292", 3));
    EXPECT_TRUE(accepted("எனில் மெய்:\n    அச்சிடு(1)"));
}

TEST(Parse, DropsStrayTokens) {
    Program program =
        parserOver({mark(TokenType::DEDENT), mark(TokenType::NEWLINE), mark(TokenType::DEDENT),
                    word("அச்சிடு"), number("1"), mark(TokenType::DEDENT), mark(TokenType::DEDENT),
                    mark(TokenType::NEWLINE), word("அச்சிடு"), number("2")})
            .parse();
    ASSERT_EQ(program.statements.size(), 2U);
    EXPECT_EQ(printed(program.statements[0]), "1");
    EXPECT_EQ(printed(program.statements[1]), "2");
}

TEST(Parse, RefusesAnIndentedStatement) {
    EXPECT_TRUE(refused("    அச்சிடு(1)\n", "பொழில்-111", 1));
    EXPECT_TRUE(refused("அச்சிடு(1)\n\n    அச்சிடு(2)\n", "பொழில்-111", 3));
}

TEST(Parse, RefusesATokenThatBeginsNothing) {
    EXPECT_TRUE(refused("அச்சிடு(1)\n:\n", "பொழில்-201", 2));
}

TEST(ParseGuard, LetsAHundredThousandAndOneStatementsPass) {
    EXPECT_EQ(parse(printLines(100001)).program.statements.size(), 100001U);
}

TEST(ParseGuard, RefusesTheNext) { EXPECT_TRUE(refused(printLines(100002), "பொழில்-291", 100002)); }

TEST(ParseGuard, CountsDroppedTokensAsRounds) {
    std::vector<Token> tokens(100001, mark(TokenType::DEDENT, 5));
    tokens.insert(tokens.begin(), mark(TokenType::NEWLINE));  // passed ahead of the first round
    EXPECT_TRUE(parserOver(tokens).parse().statements.empty());
    tokens.push_back(mark(TokenType::DEDENT, 6));
    EXPECT_TRUE(refuses("பொழில்-291", 6, [&] { parserOver(tokens).parse(); }));
}

TEST(ParseGuard, DoesNotCountLineEnds) {
    std::vector<Token> tokens(200000, mark(TokenType::NEWLINE));
    tokens.push_back(word("அச்சிடு"));
    tokens.push_back(number("1"));
    EXPECT_EQ(parserOver(tokens).parse().statements.size(), 1U);
}

TEST(Hoisting, PutsStatementsAheadInTheirOrder) {
    Parser parser = parserOver({word("அச்சிடு"), number("3"), word("அச்சிடு"), number("4")});
    parser.hoistedStatements.push_back(printing("1"));
    parser.hoistedStatements.push_back(printing("2"));
    const Program program = parser.parse();
    ASSERT_EQ(program.statements.size(), 4U);
    EXPECT_EQ(printed(program.statements[0]), "1");
    EXPECT_EQ(printed(program.statements[1]), "2");
    EXPECT_EQ(printed(program.statements[2]), "3");
    EXPECT_EQ(printed(program.statements[3]), "4");
}

TEST(Hoisting, MakesAProgramByItself) {
    Parser parser = parserOver({});
    parser.hoistedStatements.push_back(printing("1"));
    EXPECT_EQ(parser.parse().statements.size(), 1U);
}

}  // namespace
