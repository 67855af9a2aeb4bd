// The parser's cursor and the helpers that every grammar uses.
#include <gtest/gtest.h>

#include "support/front_end.h"
#include "unit/parser_frame/handmade.h"

namespace {

const Token kPrint = word("அச்சிடு");
const Token kAdd = {TokenType::OPERATOR, "கூட்டு", 1};

TEST(Parser, StartsAtTheFirstToken) {
    Parser parser({mark(TokenType::END_OF_FILE)}, "source", "file.பொழில்");
    EXPECT_EQ(parser.current, 0);
    EXPECT_EQ(parser.functionDepth, 0);
    EXPECT_EQ(parser.source, "source");
    EXPECT_EQ(parser.filename, "file.பொழில்");
    EXPECT_EQ(parser.tokens.size(), 1U);
    EXPECT_TRUE(parser.functionParameters.empty());
    EXPECT_TRUE(parser.structDefinitions.empty());
    EXPECT_TRUE(parser.abstractStructDefinitions.empty());
    EXPECT_TRUE(parser.importedFiles.empty());
    EXPECT_TRUE(parser.hoistedStatements.empty());
    EXPECT_TRUE(parser.enumerations.empty());
}

TEST(Advance, ReturnsTheTokenItLeaves) {
    Parser parser = parserOver({number("1"), number("2")});
    EXPECT_EQ(parser.peek().text, "1");
    EXPECT_EQ(parser.advance().text, "1");
    EXPECT_EQ(parser.peek().text, "2");
    EXPECT_EQ(parser.advance().text, "2");
    EXPECT_TRUE(parser.is_at_end());
}

TEST(Advance, AtTheEndReturnsTheLastTokenAgain) {
    Parser parser = parserOver({number("1")});
    parser.advance();
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(parser.advance().text, "1");
        EXPECT_EQ(parser.current, 1);
    }
}

TEST(Check, ComparesTheKind) {
    Parser parser = parserOver({number("1")});
    EXPECT_TRUE(parser.check(TokenType::NUMBER));
    EXPECT_FALSE(parser.check(TokenType::STRING));
    EXPECT_EQ(parser.current, 0);
}

TEST(Check, IsFalseAtTheEnd) {
    Parser parser = parserOver({});
    EXPECT_TRUE(parser.is_at_end());
    EXPECT_FALSE(parser.check(TokenType::END_OF_FILE));
}

TEST(CheckKeyword, NeedsKindAndText) {
    Parser parser = parserOver({kPrint, {TokenType::IDENTIFIER, "அச்சிடு", 1}});
    EXPECT_TRUE(parser.checkKeyword("அச்சிடு"));
    EXPECT_FALSE(parser.checkKeyword("சுற்று"));
    parser.advance();
    EXPECT_FALSE(parser.checkKeyword("அச்சிடு"));
    parser.advance();
    EXPECT_FALSE(parser.checkKeyword(""));
}

TEST(Match, TakesAnOperatorOfTheList) {
    Parser parser = parserOver({kAdd});
    EXPECT_TRUE(parser.match({"கழி", "கூட்டு"}));
    EXPECT_EQ(parser.current, 1);
}

TEST(Match, LeavesAnythingElse) {
    Parser parser = parserOver({kAdd, word("கூட்டு")});
    EXPECT_FALSE(parser.match({"கழி"}));
    EXPECT_FALSE(parser.match({}));
    EXPECT_EQ(parser.current, 0);
    parser.advance();
    EXPECT_FALSE(parser.match({"கூட்டு"}));
    EXPECT_EQ(parser.current, 1);
    parser.advance();
    EXPECT_FALSE(parser.match({"", "கூட்டு"}));
}

TEST(Consume, TakesTheToken) {
    Parser parser = parserOver({number("7", 3)});
    const Token token = parser.consume(TokenType::NUMBER, "பொழில்-204");
    EXPECT_EQ(token.text, "7");
    EXPECT_EQ(token.line, 3);
    EXPECT_TRUE(parser.is_at_end());
}

TEST(Consume, RefusesAtTheCurrentLine) {
    Parser parser = parserOver({number("7", 3)});
    EXPECT_TRUE(
        refuses("பொழில்-204", 3, [&] { parser.consume(TokenType::RIGHT_PAREN, "பொழில்-204"); }));
}

TEST(Consume, RefusesAtTheGivenLine) {
    Parser parser = parserOver({number("7", 3)});
    EXPECT_TRUE(
        refuses("பொழில்-205", 2, [&] { parser.consume(TokenType::RIGHT_BRACKET, "பொழில்-205", 2); }));
    EXPECT_TRUE(
        refuses("பொழில்-205", 0, [&] { parser.consume(TokenType::RIGHT_BRACKET, "பொழில்-205", 0); }));
}

TEST(Consume, RefusesAtTheEnd) {
    Parser parser = parserOver({}, 9);
    EXPECT_TRUE(refuses("பொழில்-202", 9, [&] { parser.consume(TokenType::COLON, "பொழில்-202"); }));
    EXPECT_TRUE(
        refuses("பொழில்-202", 9, [&] { parser.consume(TokenType::END_OF_FILE, "பொழில்-202"); }));
}

TEST(SkipNewlines, StopsAtIndentation) {
    Parser parser =
        parserOver({mark(TokenType::NEWLINE), mark(TokenType::NEWLINE), mark(TokenType::INDENT),
                    mark(TokenType::NEWLINE), mark(TokenType::DEDENT)});
    parser.skipNewlines();
    EXPECT_EQ(parser.current, 2);
    parser.skipNewlines();
    EXPECT_EQ(parser.current, 2);
    parser.advance();
    parser.skipNewlines();
    EXPECT_EQ(parser.current, 4);
}

TEST(HandleIndentation, CountsAndPasses) {
    Parser parser = parserOver(
        {mark(TokenType::INDENT), mark(TokenType::INDENT), mark(TokenType::DEDENT), number("1")});
    int depth = 0;
    EXPECT_TRUE(parser.handleIndentation(depth));
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(parser.current, 3);
    EXPECT_TRUE(parser.handleIndentation(depth));
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(parser.current, 3);
}

TEST(HandleIndentation, MayEndAtZero) {
    Parser parser = parserOver({mark(TokenType::DEDENT), mark(TokenType::DEDENT)});
    int depth = 2;
    EXPECT_TRUE(parser.handleIndentation(depth));
    EXPECT_EQ(depth, 0);
    EXPECT_TRUE(parser.is_at_end());
}

TEST(HandleIndentation, LeavesNewlines) {
    Parser parser = parserOver({mark(TokenType::NEWLINE), mark(TokenType::INDENT)});
    int depth = 0;
    EXPECT_TRUE(parser.handleIndentation(depth));
    EXPECT_EQ(parser.current, 0);
}

/// The line at which a DEDENT on `line` is refused below depth 0.
testing::AssertionResult dedentRefused(int line, int reportedLine) {
    Parser parser = parserOver({mark(TokenType::DEDENT, line)}, line);
    int depth = 0;
    auto result = refuses("பொழில்-204", reportedLine, [&] { parser.handleIndentation(depth); });
    if (parser.current != 0) return testing::AssertionFailure() << "the token was taken";
    return result;
}

TEST(HandleIndentation, RefusesBelowZeroAtTheLineBefore) {
    EXPECT_TRUE(dedentRefused(2, 1));
    EXPECT_TRUE(dedentRefused(3, 2));
    EXPECT_TRUE(dedentRefused(100, 99));
}

TEST(HandleIndentation, KnowsNoLineZero) {
    EXPECT_TRUE(dedentRefused(1, 1));
    EXPECT_TRUE(dedentRefused(0, 0));
}

TEST(LineText, CountsFromOne) {
    Parser parser({mark(TokenType::END_OF_FILE)}, "முதல்\n\n  மூன்று\r\nநான்கு", "");
    EXPECT_EQ(parser.getLineText(1), "முதல்");
    EXPECT_EQ(parser.getLineText(2), "");
    EXPECT_EQ(parser.getLineText(3), "  மூன்று\r");
    EXPECT_EQ(parser.getLineText(4), "நான்கு");
}

TEST(LineText, IsEmptyWhereThereIsNoLine) {
    Parser parser({mark(TokenType::END_OF_FILE)}, "முதல்\n", "");
    EXPECT_EQ(parser.getLineText(2), "");
    EXPECT_EQ(parser.getLineText(0), "");
    EXPECT_EQ(parser.getLineText(-1), "");
    EXPECT_EQ(parser.getLineText(1000), "");
}

TEST(LineText, OfAnEmptySourceSaysSo) {
    Parser parser({mark(TokenType::END_OF_FILE)}, "", "");
    EXPECT_EQ(parser.getLineText(1), "(சோர்ஸ் கோடு கிடைக்கவில்லை)");
    EXPECT_EQ(parser.getLineText(0), "(சோர்ஸ் கோடு கிடைக்கவில்லை)");
}

TEST(ParserRefusal, CarriesAllFields) {
    Parser parser = parserOver({});
    try {
        parser.பிழை("பொழில்-204", 2);
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, SYNTAX_ERROR);
        EXPECT_EQ(refusal.code, "பொழில்-204");
        EXPECT_EQ(refusal.message, "எதிர்பார்க்கப்பட்ட ')' விடுபட்டுள்ளது.");
        EXPECT_EQ(refusal.file, "test.பொழில்");
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "இரண்டு");
        EXPECT_EQ(refusal.fix, "திறந்த அடைப்புக்குறியைச் சரியாக மூடினால் பொழில் ஓடும்!");
        return;
    }
    FAIL() << "nothing was refused";
}

TEST(ParserRefusal, OfACodeThatTheCatalogueLacksThrows) {
    Parser parser = parserOver({number("1")});
    EXPECT_THROW(parser.பிழை("பொழில்-999", 1), std::out_of_range);
    EXPECT_THROW(parser.consume(TokenType::COLON, "பொழில்-000"), std::out_of_range);
}

}  // namespace
