// The print statement and the literals.
#include <gtest/gtest.h>

#include "support/front_end.h"
#include "unit/parser_frame/handmade.h"

namespace {

/// How many values the only statement of `source` prints; -1 if it is no print statement.
int valuesOf(const std::string& source) {
    const Parsed parsed = parse(source);
    if (parsed.program.statements.size() != 1) return -1;
    const Statement* statement = parsed.program.statements[0].get();
    const auto* print = dynamic_cast<const PrintStatement*>(statement);
    return print == nullptr ? -1 : static_cast<int>(print->expressions.size());
}

TEST(Print, TakesValuesInParentheses) {
    EXPECT_EQ(valuesOf("அச்சிடு(\"அ\")"), 1);
    EXPECT_EQ(valuesOf("அச்சிடு(\"அ\", 1)"), 2);
    EXPECT_EQ(valuesOf("அச்சிடு (1, 2.5, 'அ', மெய், \"\")\n"), 5);
}

TEST(Print, TakesValuesWithoutParentheses) {
    EXPECT_EQ(valuesOf("அச்சிடு \"அ\""), 1);
    EXPECT_EQ(valuesOf("அச்சிடு \"அ\", 1\n"), 2);
}

TEST(Print, MayPrintNothing) { EXPECT_EQ(valuesOf("அச்சிடு()\n"), 0); }

TEST(Print, AloneIsRefused) {
    EXPECT_TRUE(refused("அச்சிடு\n", "பொழில்-201", 1));
    EXPECT_TRUE(refused("அச்சிடு(1)\nஅச்சிடு", "பொழில்-201", 2));
    EXPECT_TRUE(refused("அச்சிடு)\n", "பொழில்-201", 1));
}

TEST(Print, RefusesATrailingComma) {
    EXPECT_TRUE(refused("அச்சிடு(1,)\n", "பொழில்-201", 1));
    EXPECT_TRUE(refused("அச்சிடு 1,\n", "பொழில்-201", 1));
}

TEST(Print, RefusesAnOpenParenthesisAtItsLine) {
    EXPECT_TRUE(refused("அச்சிடு(1)\nஅச்சிடு(2\nஅச்சிடு(3)\n", "பொழில்-204", 2));
    EXPECT_TRUE(refused("அச்சிடு(1 2)\n", "பொழில்-204", 1));
    Parser parser = parserOver({word("அச்சிடு", 2), mark(TokenType::LEFT_PAREN, 3), number("1", 4),
                                mark(TokenType::NEWLINE, 5)});
    EXPECT_TRUE(refuses("பொழில்-204", 3, [&] { parser.parsePrintStatement(); }));
}

TEST(Print, OwnsItsParenthesis) {
    const std::string source = "அச்சிடு(1) கூட்டு 2\n";
    Parser parser(scan(source), source, "test.பொழில்");
    const auto statement = parser.parsePrintStatement();
    const auto* print = dynamic_cast<const PrintStatement*>(statement.get());
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(print->expressions.size(), 1U);
    EXPECT_EQ(parser.peek().text, "கூட்டு");
    EXPECT_TRUE(refused(source, "பொழில்-201", 1));
}

TEST(Print, LeavesItsLineAtZero) {
    const Parsed parsed = parse("\n\nஅச்சிடு(1)\n");
    ASSERT_EQ(parsed.program.statements.size(), 1U);
    EXPECT_EQ(parsed.program.statements[0]->line, 0);
}

/// Parses `source`, which stands on line 3, as one expression.
std::unique_ptr<Expression> parseLiteral(const std::string& source) {
    const std::string text = "\n\n" + source;
    return Parser(scan(text), text, "test.பொழில்").parseExpression();
}

template <typename Node>
void expectLiteral(const std::string& source, const std::string& value) {
    const auto expression = parseLiteral(source);
    const auto* literal = dynamic_cast<const Node*>(expression.get());
    ASSERT_NE(literal, nullptr) << source;
    EXPECT_EQ(literal->value, value);
    EXPECT_EQ(literal->line, 3);
}

TEST(Literals, OfEveryKind) {
    expectLiteral<NumberLiteral>("42", "42");
    expectLiteral<NumberLiteral>("௧௨", "௧௨");
    expectLiteral<DoubleLiteral>("3.14", "3.14");
    expectLiteral<DoubleLiteral>("1.", "1.");
    expectLiteral<StringLiteral>("\"வணக்கம்\\n\"", "வணக்கம்\\n");
    expectLiteral<StringLiteral>("\"\"", "");
    expectLiteral<StringLiteral>("\"1.5\"", "1.5");
    expectLiteral<CharLiteral>("'அ'", "அ");
    expectLiteral<BooleanLiteral>("மெய்", "மெய்");
    expectLiteral<BooleanLiteral>("பொய்", "பொய்");
}

TEST(Literals, StandDirectlyOnTheirBase) {
    EXPECT_EQ(Statement().line, 0);
    EXPECT_EQ(Expression().line, 0);
    EXPECT_EQ(NumberLiteral("1").line, 0);
}

TEST(ParseStatement, GivesNullForLineEndsAndLeavesThem) {
    for (const TokenType kind : {TokenType::NEWLINE, TokenType::DEDENT}) {
        Parser parser = parserOver({mark(kind)});
        EXPECT_EQ(parser.parseStatement(false), nullptr);
        EXPECT_EQ(parser.current, 0);
    }
}

TEST(Program, CanBeMoved) {
    Program program = parse("அச்சிடு(1)").program;
    Program other;
    other = std::move(program);
    EXPECT_EQ(other.statements.size(), 1U);
}

}  // namespace
