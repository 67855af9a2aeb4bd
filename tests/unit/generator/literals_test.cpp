// The text of literals and of the print statement.
#include <gtest/gtest.h>

#include <stdexcept>

#include "support/generated_text.h"

namespace {

const Program kNoProgram;

class Writing : public testing::Test {
protected:
    std::string written() const { return generator.out.str(); }

    Generator generator{kNoProgram, {}, {}, {}, "முதல்\nஇரண்டு\n", "test.பொழில்"};
};

template <typename Node>
std::string written(const std::string& value) {
    Generator generator(kNoProgram, {}, {}, {}, "", "");
    const Node node(value);
    generator.visitExpression(&node);
    return generator.out.str();
}

TEST(NumberText, HasTheSuffixOfLongLong) {
    EXPECT_EQ(written<NumberLiteral>("0"), "0LL");
    EXPECT_EQ(written<NumberLiteral>("42"), "42LL");
    EXPECT_EQ(written<NumberLiteral>("9223372036854775807"), "9223372036854775807LL");
}

TEST(NumberText, KeepsItsDigits) { EXPECT_EQ(written<NumberLiteral>("007"), "007LL"); }

TEST(NumberText, PassesUpToTheUnsignedRange) {
    EXPECT_EQ(written<NumberLiteral>("9223372036854775808"), "9223372036854775808LL");
    EXPECT_EQ(written<NumberLiteral>("10000000000000000000"), "10000000000000000000LL");
    EXPECT_EQ(written<NumberLiteral>("18446744073709551615"), "18446744073709551615LL");
}

TEST(NumberText, RefusesWhatIsGreater) {
    EXPECT_TRUE(refuses("பொழில்-305", 0, [] { written<NumberLiteral>("18446744073709551616"); }));
    EXPECT_TRUE(refuses("பொழில்-305", 0, [] { written<NumberLiteral>("99999999999999999999"); }));
    EXPECT_TRUE(refuses("பொழில்-305", 3, [] { generate("\n\nஅச்சிடு(100000000000000000000)\n"); }));
}

TEST(NumberText, OfATamilLiteralThrows) {
    EXPECT_THROW(written<NumberLiteral>("௧௨"), std::invalid_argument);
    EXPECT_THROW(generate("அச்சிடு(௧)"), std::invalid_argument);
}

TEST(DecimalText, HasTheSuffixOfLongDouble) {
    EXPECT_EQ(written<DoubleLiteral>("3.14"), "3.14L");
    EXPECT_EQ(written<DoubleLiteral>("1."), "1.L");
    EXPECT_EQ(written<DoubleLiteral>("0.10"), "0.10L");
}

TEST(StringText, IsWrittenByteForByte) {
    EXPECT_EQ(written<StringLiteral>("வணக்கம்"), "std::string(u8\"வணக்கம்\")");
    EXPECT_EQ(written<StringLiteral>(""), "std::string(u8\"\")");
    EXPECT_EQ(written<StringLiteral>(R"(a\n\\'%)"), R"(std::string(u8"a\n\\'%"))");
}

TEST(CharacterText, IsAPozhilChar) {
    EXPECT_EQ(written<CharLiteral>("அ"), "_PozhilChar{std::string(u8\"அ\")}");
    EXPECT_EQ(written<CharLiteral>("abc"), "_PozhilChar{std::string(u8\"abc\")}");
}

TEST(BooleanText, IsTrueForOneWordOnly) {
    EXPECT_EQ(written<BooleanLiteral>("மெய்"), "true");
    EXPECT_EQ(written<BooleanLiteral>("பொய்"), "false");
    EXPECT_EQ(written<BooleanLiteral>("true"), "false");
}

TEST_F(Writing, PrintsTouchingValues) {
    std::vector<std::unique_ptr<Expression>> expressions;
    expressions.push_back(std::make_unique<NumberLiteral>("1"));
    expressions.push_back(std::make_unique<StringLiteral>("அ"));
    const PrintStatement print(std::move(expressions));
    generator.visitPrintStatement(&print);
    EXPECT_EQ(written(),
              "std::cout << fn_any_to_string(1LL) << fn_any_to_string(std::string(u8\"அ\")) << "
              "std::endl");
}

TEST_F(Writing, PrintsALineEndForNothing) {
    const PrintStatement print({});
    generator.visitPrintStatement(&print);
    EXPECT_EQ(written(), "std::cout << std::endl");
}

TEST_F(Writing, IndentsStatementsAndEndsThem) {
    const PrintStatement print({});
    generator.indentLevel = 2;
    generator.visitStatement(&print);
    EXPECT_EQ(written(), "        std::cout << std::endl;\n");
}

TEST_F(Writing, IndentsByFourBlanksALevel) {
    generator.indent();
    EXPECT_EQ(written(), "");
    generator.indentLevel = 3;
    generator.indent();
    EXPECT_EQ(written(), std::string(12, ' '));
}

TEST_F(Writing, LogicBlockHoldsItsStatementsInOrder) {
    auto body = std::make_unique<BlockStatement>();
    std::vector<std::unique_ptr<Expression>> one;
    one.push_back(std::make_unique<NumberLiteral>("1"));
    body->statements.push_back(std::make_unique<PrintStatement>(std::move(one)));
    body->statements.push_back(
        std::make_unique<PrintStatement>(std::vector<std::unique_ptr<Expression>>{}));
    const LogicBlockNode logic(std::move(body));
    generator.generateLogic(&logic);
    EXPECT_EQ(written(),
              "std::cout << fn_any_to_string(1LL) << std::endl;\nstd::cout << std::endl;\n");
}

TEST_F(Writing, LogicMayBeAbsent) {
    const LogicBlockNode empty(nullptr);
    const PassStatement other;
    generator.generateLogic(nullptr);
    generator.generateLogic(&other);
    generator.generateLogic(&empty);
    EXPECT_EQ(written(), "");
}

}  // namespace
