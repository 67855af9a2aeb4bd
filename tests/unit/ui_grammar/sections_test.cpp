// What no source can show of an application's sections: they are entered without their word, and
// the head reads a screen size.
#include <gtest/gtest.h>

#include "support/tree_printer.h"
#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

using Section = std::unique_ptr<Statement> (Parser::*)();

struct SectionRow {
    Section section;
    const char* code;
};
const SectionRow kSections[] = {
    {&Parser::parseWebApp, "பொழில்-241"},          {&Parser::parseUIBody, "பொழில்-242"},
    {&Parser::parseHeader, "பொழில்-243"},          {&Parser::parseDefinition, "பொழில்-244"},
    {&Parser::parseDatabaseManager, "பொழில்-241"}, {&Parser::parseFirebaseConfig, "பொழில்-241"},
};

TEST(Section, IsEnteredOnItsWordAlone) {
    for (const SectionRow& row : kSections) {
        Parser parser = parserOver({number("1", 3)});
        EXPECT_TRUE(refuses(row.code, 3, [&] { (parser.*row.section)(); })) << row.code;
        Parser empty = parserOver({}, 2);
        EXPECT_TRUE(refuses(row.code, 2, [&] { (empty.*row.section)(); })) << row.code;
    }
}

TEST(Section, StopsBehindItsParenthesis) {
    const std::pair<const char*, Section> rows[] = {
        {"தலைமை()", &Parser::parseHeader},
        {"குமரி()", &Parser::parseUIBody},
        {"வரையறை()", &Parser::parseDefinition},
        {"தரவுத்தளமேலாண்மை()", &Parser::parseDatabaseManager},
        {"பயர்பேசு_அமைப்பு()", &Parser::parseFirebaseConfig},
    };
    for (const auto& [text, section] : rows) {
        Parser parser = parserOver(scanAs(TokenType::UNKNOWN, {}, text + std::string(" அ")));
        const auto node = (parser.*section)();
        EXPECT_EQ(node == nullptr, section == &Parser::parseUIBody) << text;
        EXPECT_EQ(parser.peek().text, "அ") << text;
    }
}

TEST(Section, NamesItsNodeAndLeavesTheRest) {
    Parser parser = parserOver(scanAs(TokenType::UNKNOWN, {}, "தலைமை(சின்னம்: \"அ\")"));
    const auto node = parser.parseHeader();
    const auto& head = dynamic_cast<const HeaderNode&>(*node);
    EXPECT_EQ(head.name, "தலைமை");
    EXPECT_TRUE(head.children.empty());
    EXPECT_FALSE(head.flag);
    EXPECT_EQ(head.line, 0);
    EXPECT_TRUE(head.screen.useDefault);
    EXPECT_EQ(head.screen.width, 0);
    EXPECT_EQ(head.screen.height, 0);
}

TEST(Application, IsNotFlagged) {
    const Parsed parsed = parse("வலைதளம்(தலைமை() குமரி() வரையறை())");
    const auto& app = dynamic_cast<const WebAppNode&>(*parsed.program.statements.at(0));
    EXPECT_FALSE(app.flag);
    EXPECT_EQ(app.line, 0);
    EXPECT_EQ(app.databaseManager, nullptr);
    EXPECT_EQ(app.body, nullptr);
}

/// The head of hand-made tokens in which the four words of a screen size are keywords.
std::unique_ptr<HeaderNode> headOf(const std::string& items) {
    Parser parser = parserOver(
        scanAs(TokenType::KEYWORD, {"சுற்றளவு", "அதுவே", "அகலம்", "உயரம்"}, "தலைமை(" + items + ")"));
    auto node = parser.parseHeader();
    EXPECT_TRUE(parser.is_at_end());
    return std::unique_ptr<HeaderNode>(dynamic_cast<HeaderNode*>(node.release()));
}

TEST(ScreenSize, IsReadWhereItsWordsAreKeywords) {
    EXPECT_TRUE(headOf("சுற்றளவு: அதுவே")->screen.useDefault);
    const auto head = headOf("சுற்றளவு: அகலம்: 300 உயரம்: 400.5, சின்னம்: \"அ\"");
    EXPECT_FALSE(head->screen.useDefault);
    EXPECT_EQ(head->screen.width, 300.0F);
    EXPECT_EQ(head->screen.height, 400.5F);
    EXPECT_EQ(head->properties.size(), 1U);
    EXPECT_EQ(headOf("சுற்றளவு: அகலம்: 300, உயரம்: 400")->screen.height, 400.0F);
    EXPECT_EQ(headOf("சுற்றளவு: உயரம்: 400")->screen.width, 0.0F);
}

TEST(ScreenSize, IsInNumbers) {
    EXPECT_TRUE(refuses("பொழில்-243", 1, [] { headOf("சுற்றளவு: அகலம்: \"300\""); }));
    EXPECT_TRUE(refuses("பொழில்-243", 1, [] { headOf("சுற்றளவு: அகலம்: 1 உயரம்: மெய்"); }));
    EXPECT_TRUE(refuses("பொழில்-202", 1, [] { headOf("சுற்றளவு அதுவே"); }));
    EXPECT_TRUE(refuses("பொழில்-202", 1, [] { headOf("சுற்றளவு: அகலம் 5"); }));
}

TEST(ScreenSize, IsAnUnknownKeyToTheScanner) {
    const Parsed parsed = parse("வலைதளம்(தலைமை(சுற்றளவு: அதுவே) குமரி() வரையறை())");
    const auto& app = dynamic_cast<const WebAppNode&>(*parsed.program.statements.at(0));
    const auto& head = dynamic_cast<const HeaderNode&>(*app.header);
    EXPECT_TRUE(head.screen.useDefault);
    EXPECT_TRUE(head.properties.empty());
}

TEST(Head, TakesTheBackgroundAsAPlainWordToo) {
    Parser parser =
        parserOver(scanAs(TokenType::IDENTIFIER, {"பின்னணி"}, "தலைமை(பின்னணி: வண்ணம்.பச்சை)"));
    const auto node = parser.parseHeader();
    EXPECT_EQ(dynamic_cast<const HeaderNode&>(*node).properties.count("பின்னணி"), 1U);
    Parser wrong = parserOver(scanAs(TokenType::IDENTIFIER, {"பின்னணி"}, "தலைமை(பின்னணி: 5)"));
    EXPECT_TRUE(refuses("பொழில்-362", 1, [&] { wrong.parseHeader(); }));
}

TEST(Properties, AreBuiltInPlace) { EXPECT_TRUE(parserOver({}).parseProperties().empty()); }

TEST(ReturnStatement, InALogicSectionNeedsAFunction) {
    EXPECT_TRUE(accepted("வலைதளம்(தலைமை() குமரி() வரையறை(\n    செயல் f():\n        திரும்பு 1\n))"));
    EXPECT_EQ(refusalOf("வலைதளம்(தலைமை() குமரி() வரையறை(திரும்பு 1))"), "பொழில்-233");
}

}  // namespace
