// Structures, abstract structures and enumerations: nodes, tables, and the ends that only
// hand-made tokens can lack.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

const Token kColon = mark(TokenType::COLON, 2);
const Token kLineEnd = mark(TokenType::NEWLINE, 2);
const Token kIndent = mark(TokenType::INDENT, 3);
const Token kDedent = mark(TokenType::DEDENT, 8);
const Token kOpenParen = mark(TokenType::LEFT_PAREN, 4);
const Token kCloseParen = mark(TokenType::RIGHT_PAREN, 6);
const Token kEquals = mark(TokenType::EQUALS, 5);

const std::vector<Token> kLineEnds = {kLineEnd, kLineEnd};
const std::vector<Token> kMethod = {word("செயல்", 4), name("ஆ", 4), kOpenParen, name("தான்", 4),
                                    kCloseParen};
const std::vector<Token> kMethodBody = {kColon, kLineEnd, kIndent, word("விடு", 5), kDedent};

std::vector<Token> operator+(std::vector<Token> left, const std::vector<Token>& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

std::vector<Token> opening(const char* keyword) {
    return {word(keyword, 2), name("அ", 2), kColon, kLineEnd, kIndent};
}

const StructDefinitionStatement& structureAt(const Parsed& parsed, std::size_t place) {
    return dynamic_cast<const StructDefinitionStatement&>(*parsed.program.statements.at(place));
}

TEST(Structure, WithoutAParentNamesItself) {
    const Parsed parsed = parse("\nகட்டமைப்பு அ:\n    ஆ = 1\n");
    const auto& structure = structureAt(parsed, 0);
    EXPECT_FALSE(structure.hasParent);
    EXPECT_FALSE(structure.flag);
    EXPECT_EQ(structure.parentName.text, "அ");
    EXPECT_EQ(structure.parentName.line, 2);
    EXPECT_EQ(structure.name.text, "அ");
}

TEST(Structure, KeepsItsParentsToken) {
    const Parsed parsed = parse("கட்டமைப்பு அ:\n    ஆ = 1\nகட்டமைப்பு இ(அ):\n    ஈ = 1\n");
    const auto& structure = structureAt(parsed, 1);
    EXPECT_TRUE(structure.hasParent);
    EXPECT_FALSE(structure.flag);
    EXPECT_EQ(structure.parentName.text, "அ");
    EXPECT_EQ(structure.parentName.line, 3);
}

TEST(Structure, EntersItsTableAsTheTreesNode) {
    const Parsed parsed = parse("கட்டமைப்பு அ:\n    ஆ = 1\nவடிவமைப்பு இ:\n    செயல் ஈ(தான்)\n");
    EXPECT_EQ(parsed.parser->structDefinitions.at("அ"), parsed.program.statements[0].get());
    EXPECT_EQ(parsed.parser->abstractStructDefinitions.at("இ"), parsed.program.statements[1].get());
}

TEST(Structure, WrittenTwiceIsTheLaterInTheTable) {
    const Parsed parsed = parse("கட்டமைப்பு அ:\n    ஆ = 1\nகட்டமைப்பு அ:\n    இ = 1\n");
    EXPECT_EQ(parsed.program.statements.size(), 2U);
    EXPECT_EQ(parsed.parser->structDefinitions.at("அ"), parsed.program.statements[1].get());
}

TEST(Structure, IsUnknownInsideItself) {
    Parser parser = parserAt("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        )\n");
    EXPECT_TRUE(refuses("பொழில்-209", 3, [&] { parser.parseStatement(false); }));
    EXPECT_TRUE(parser.structDefinitions.empty());
}

TEST(Structure, LeavesItsMethodsOutOfTheFunctions) {
    EXPECT_TRUE(parse("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        விடு\n"
                      "    பொது(\n        செயல் இ(தான்):\n            விடு\n    )\n")
                    .parser->functionParameters.empty());
}

/// "private", "public", or what else became of the only member of a structure of `lines`.
std::string visibilityOf(const std::string& lines) {
    const Parsed parsed = parse("கட்டமைப்பு அ:\n" + lines);
    const auto& structure = structureAt(parsed, 0);
    if (structure.fields.size() + structure.methods.size() != 1) return "not one member";
    const bool isPrivate =
        structure.fields.empty() ? structure.methods[0]->isPrivate : structure.fields[0]->isPrivate;
    return isPrivate ? "private" : "public";
}

TEST(Structure, ShowsItsMembersByWordsAndGroups) {
    struct Row {
        const char* words;
        const char* alone;  ///< Visibility of a member behind the words,
        const char* group;  ///< and of one in a group behind them; null if there is no group.
    };
    const Row rows[] = {
        {"", "public", nullptr},
        {"ரகசிய ", "private", "private"},
        {"ரகசியம் ", "private", "private"},
        {"பொது ", "public", "public"},
        {"ரகசிய பொது ", "private", "public"},
        {"ரகசியம் பொது ", "private", "public"},
    };
    for (const Row& row : rows) {
        const std::string words = row.words;
        const std::string method = "செயல் ஆ(தான்):\n            விடு\n";
        EXPECT_EQ(visibilityOf("    " + words + "ஆ = 1\n"), row.alone) << words;
        EXPECT_EQ(visibilityOf("    " + words + method), row.alone) << words;
        if (row.group == nullptr) continue;
        EXPECT_EQ(visibilityOf("    " + words + "(ஆ = 1)\n"), row.group) << words;
        EXPECT_EQ(visibilityOf("    " + words + "(\n        ஆ = 1\n    )\n"), row.group) << words;
        EXPECT_EQ(visibilityOf("    " + words + "(\n        " + method + "    )\n"), row.group)
            << words;
    }
}

TEST(Structure, TakesPrivateOnlyBeforePublic) {
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    பொது ரகசிய ஆ = 1\n", "பொழில்-201", 2));
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    ரகசிய ரகசிய ஆ = 1\n", "பொழில்-201", 2));
}

TEST(Structure, LowersTheDepthBehindEachMethod) {
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        திரும்பு 1\n    திரும்பு 2\n",
                        "பொழில்-233", 4));
    EXPECT_EQ(parse("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        திரும்பு 1\n").parser->functionDepth, 0);
}

TEST(Structure, NeedsItsDedent) {
    EXPECT_TRUE(refusedTokens(opening("கட்டமைப்பு"), "பொழில்-292", 9));
    EXPECT_TRUE(refusedTokens(opening("கட்டமைப்பு") + std::vector<Token>{kLineEnd}, "பொழில்-201", 9));
    EXPECT_TRUE(
        refusedTokens(opening("கட்டமைப்பு") + kMethod + kMethodBody + kLineEnds, "பொழில்-292", 9));
}

TEST(Structure, ChecksItsParentBehindItsBody) {
    EXPECT_TRUE(refused("கட்டமைப்பு அ(ஆ):\n    )\n", "பொழில்-209", 2));
    EXPECT_TRUE(refused("கட்டமைப்பு அ(\nஆ):\n    இ = 1\n", "பொழில்-210", 1));
}

TEST(Structure, RefusesItsParentsParenthesisAtThatLine) {
    EXPECT_TRUE(
        refusedTokens({word("கட்டமைப்பு", 2), name("அ", 3), kOpenParen, name("ஆ", 5), number("1", 6)},
                      "பொழில்-204", 4));
}

TEST(Structure, RefusesAMethodsParenthesesAtTwoLines) {
    const std::vector<Token> head = opening("கட்டமைப்பு") + std::vector<Token>{word("செயல்", 3)};
    EXPECT_TRUE(
        refusedTokens(head + std::vector<Token>{name("ஆ", 4), number("1", 5)}, "பொழில்-203", 5));
    EXPECT_TRUE(refusedTokens(
        head + std::vector<Token>{name("ஆ", 3), kOpenParen, name("இ", 5), number("1", 6)},
        "பொழில்-204", 3));
}

TEST(Structure, DropsADefinitionInsideButKnowsIt) {
    const Parsed parsed = parse(
        "கட்டமைப்பு அ:\n    பொது(\n        வடிவமைப்பு இ:\n            செயல் ஈ(தான்)\n    )\n"
        "    கட்டமைப்பு ஊ:\n        எ = 1\n"
        "கட்டமைப்பு உ(இ):\n    செயல் ஈ(தான்):\n        விடு\nகட்டமைப்பு ஏ(ஊ):\n    ஐ = 1\n");
    EXPECT_EQ(parsed.program.statements.size(), 3U);
    EXPECT_EQ(printTables(*parsed.parser),
              "structure அ: அ\nstructure உ: உ\nstructure ஊ: ஊ\nstructure ஏ: ஏ\n"
              "abstract structure இ: இ\n");
}

TEST(Group, RefusesAnOpenParenthesisAtThatLine) {
    const std::vector<Token> member = {name("ஆ", 5), kEquals, number("1", 5)};
    for (const Token& visibility : {mark(TokenType::PRIVATE, 3), word("பொது", 3)}) {
        const std::vector<Token> head =
            opening("கட்டமைப்பு") + std::vector<Token>{visibility, kOpenParen};
        EXPECT_TRUE(refusedTokens(head, "பொழில்-204", 4));
        EXPECT_TRUE(refusedTokens(head + member, "பொழில்-204", 4));
        EXPECT_TRUE(refusedTokens(head + member + std::vector<Token>{kLineEnd}, "பொழில்-204", 4));
    }
}

TEST(Group, BehindWhichLayoutRunsOutLacksAStatement) {
    EXPECT_TRUE(refusedTokens(
        opening("கட்டமைப்பு") + std::vector<Token>{mark(TokenType::PRIVATE), kOpenParen, kDedent},
        "பொழில்-201", 9));
}

TEST(Group, CountsNoIndentation) {
    const std::vector<Token> tokens =
        opening("கட்டமைப்பு") + std::vector<Token>{mark(TokenType::PRIVATE),
                                                 kOpenParen,
                                                 kDedent,
                                                 kDedent,
                                                 kLineEnd,
                                                 kIndent,
                                                 name("ஆ", 5),
                                                 kEquals,
                                                 number("1", 5),
                                                 kIndent,
                                                 kDedent,
                                                 kCloseParen,
                                                 kDedent};
    EXPECT_EQ(treeOf(parserOver(tokens).parseStatement(false)),
              "structure அ\n  private field ஆ kind 0\n    number 1 @5\n");
}

TEST(Group, DoesNotSpinOnAWordThatItLeaves) {
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    ரகசிய(\n        பொது ஆ = 1\n    )\n", "பொழில்-291", 3));
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    பொது(ஆ = 1\n    பொது)\n", "பொழில்-291", 3));
}

TEST(Group, RefusesAPrivateWordInside) {
    EXPECT_TRUE(refused("கட்டமைப்பு அ:\n    பொது(\n        ரகசிய ஆ = 1\n    )\n", "பொழில்-201", 3));
}

TEST(AbstractStructure, KeepsMethodsAndParameters) {
    const Parsed parsed = parse("வடிவமைப்பு அ:\n    செயல் ஆ(தான், மாற்று இ)\n");
    const auto& node =
        dynamic_cast<const AbstractStructDefinitionStatement&>(*parsed.program.statements.at(0));
    ASSERT_EQ(node.methods.size(), 1U);
    EXPECT_EQ(node.methods[0].name.line, 2);
    ASSERT_EQ(node.methods[0].parameters.size(), 2U);
    EXPECT_TRUE(node.methods[0].parameters[1].isMutable);
    EXPECT_TRUE(parsed.parser->functionParameters.empty());
}

TEST(AbstractStructure, NeedsItsDedent) {
    EXPECT_TRUE(refusedTokens(opening("வடிவமைப்பு"), "பொழில்-292", 9));
    EXPECT_TRUE(refusedTokens(opening("வடிவமைப்பு") + std::vector<Token>{kLineEnd}, "பொழில்-210", 9));
    EXPECT_TRUE(refusedTokens(opening("வடிவமைப்பு") + kMethod + kLineEnds, "பொழில்-292", 9));
}

TEST(AbstractStructure, RefusesParenthesesAtTwoLines) {
    const std::vector<Token> head = opening("வடிவமைப்பு") + std::vector<Token>{word("செயல்", 3)};
    EXPECT_TRUE(
        refusedTokens(head + std::vector<Token>{name("ஆ", 4), number("1", 5)}, "பொழில்-203", 5));
    EXPECT_TRUE(refusedTokens(
        head + std::vector<Token>{name("ஆ", 3), kOpenParen, name("தான்", 5), number("1", 6)},
        "பொழில்-204", 3));
}

TEST(AbstractStructure, MissesTheReceiverAtTheCurrentLine) {
    EXPECT_TRUE(refusedTokens(
        opening("வடிவமைப்பு") + std::vector<Token>{word("செயல்", 3), name("ஆ", 4), kOpenParen,
                                                  kCloseParen, mark(TokenType::COLON, 7)},
        "பொழில்-271", 7));
}

TEST(AbstractStructure, DemandsOnlyNumbersOfParameters) {
    EXPECT_TRUE(
        accepted("வடிவமைப்பு அ:\n    செயல் ஆ(தான், மாற்று இ)\n"
                 "கட்டமைப்பு ஈ(அ):\n    செயல் ஆ(உ, ஊ):\n        விடு\n"));
}

TEST(AbstractStructure, IsLookedUpBeforeAStructureOfItsName) {
    const std::string both = "கட்டமைப்பு அ:\n    ஆ = 1\nவடிவமைப்பு அ:\n    செயல் இ(தான்)\n";
    EXPECT_TRUE(refused(both + "கட்டமைப்பு ஈ(அ):\n    உ = 1\n", "பொழில்-273", 5));
    EXPECT_TRUE(accepted(both + "கட்டமைப்பு ஈ(அ):\n    செயல் இ(தான்):\n        விடு\n"));
}

TEST(Enumeration, GivesNullWithTheCursorBehindIt) {
    Parser parser = parserAt("வகை அ:\n    ஆ\n    இ\nஈ()\n");
    EXPECT_EQ(parser.parseStatement(false), nullptr);
    EXPECT_EQ(parser.peek().text, "ஈ");
    EXPECT_EQ(parser.peek().line, 4);
}

TEST(Enumeration, NeedsItsDedent) {
    EXPECT_TRUE(refusedTokens(opening("வகை"), "பொழில்-292", 9));
    EXPECT_TRUE(
        refusedTokens(opening("வகை") + std::vector<Token>{name("ஆ"), kLineEnd}, "பொழில்-292", 9));
    EXPECT_TRUE(refusedTokens(opening("வகை") + std::vector<Token>{kLineEnd}, "பொழில்-210", 9));
}

TEST(Enumeration, CannotBeEmpty) { EXPECT_TRUE(refused("வகை அ:\n    ;\nஆ()\n", "பொழில்-210", 3)); }

TEST(Enumeration, MayShareAStructuresName) {
    const Parsed parsed = parse("கட்டமைப்பு அ:\n    ஆ = 1\nவகை அ:\n    இ\n");
    EXPECT_EQ(printTables(*parsed.parser), "structure அ: அ\nenumeration அ.இ = 0\n");
}

TEST(Enumeration, LosesTheTokenBehindItAtTopLevel) {
    const std::string enumeration = "வகை அ:\n    ஆ\n";
    EXPECT_TRUE(refused(enumeration + "அச்சிடு(1)\n", "பொழில்-201", 3));
    EXPECT_EQ(parse(enumeration + "விடு\nவிடு\n").program.statements.size(), 1U);
    EXPECT_EQ(parse(enumeration + ";\nவிடு\nவிடு\n").program.statements.size(), 2U);
    EXPECT_EQ(parse(enumeration).program.statements.size(), 0U);
}

}  // namespace
