// Imports: which file a path names, what the guard holds, what merges, and how reports from
// inside a module look.
#include <gtest/gtest.h>

#include "support/deep_stack.h"
#include "unit/modules/workplace.h"
#include "unit/statements/parsing.h"

namespace {

class Imports : public testing::Test {
protected:
    Workplace workplace;
};

/// The strings that the program prints, in order.
std::string printedBy(const std::string& source) {
    std::string all;
    const Parsed parsed = parse(source);
    for (const auto& statement : parsed.program.statements) {
        if (const auto* print = dynamic_cast<const PrintStatement*>(statement.get())) {
            for (const auto& value : print->expressions) {
                const auto* literal = dynamic_cast<const StringLiteral*>(value.get());
                all += (all.empty() ? "" : " ") + (literal == nullptr ? "?" : literal->value);
            }
        }
    }
    return all;
}

std::string importOf(const std::string& path) { return "நூஇறக்கி \"" + path + "\"\n"; }
std::string printOf(const std::string& text) { return "அச்சிடு(\"" + text + "\")\n"; }

/// The refusal that parsing `source` ends in.
Refusal refusalOf(const std::string& source) {
    try {
        parse(source, "main.பொழில்");
    } catch (const Refusal& refusal) {
        return refusal;
    }
    ADD_FAILURE() << "nothing was refused";
    return {};
}

TEST_F(Imports, AppendTheExtensionUnlessThereIsOne) {
    writeFile("கணிதம்.பொழில்", printOf("தமிழ்"));
    writeFile("கணிதம்.pozhil", printOf("pozhil"));
    writeFile("கணிதம்.txt.பொழில்", printOf("txt"));
    EXPECT_EQ(printedBy(importOf("கணிதம்")), "தமிழ்");
    EXPECT_EQ(printedBy(importOf("கணிதம்.பொழில்")), "தமிழ்");
    EXPECT_EQ(printedBy(importOf("கணிதம்.pozhil")), "pozhil");
    EXPECT_EQ(printedBy(importOf("கணிதம்.txt")), "txt");
}

TEST_F(Imports, CompareTheExtensionOnTheEndAlone) {
    writeFile("pozhil.பொழில்", printOf("ஒன்று"));
    writeFile(".pozhil", printOf("இரண்டு"));
    writeFile("அ.POZHIL.பொழில்", printOf("மூன்று"));
    writeFile("அ.pozhil2.பொழில்", printOf("நான்கு"));
    writeFile("பொழில்.பொழில்", printOf("ஐந்து"));
    EXPECT_EQ(printedBy(importOf("pozhil")), "ஒன்று");
    EXPECT_EQ(printedBy(importOf(".pozhil")), "இரண்டு");
    EXPECT_EQ(printedBy(importOf("அ.POZHIL")), "மூன்று");
    EXPECT_EQ(printedBy(importOf("அ.pozhil2")), "நான்கு");
    EXPECT_EQ(printedBy(importOf("பொழில்")), "ஐந்து");
}

TEST_F(Imports, GuardThePathWithItsExtension) {
    writeFile("அ.பொழில்", printOf("அ"));
    writeFile("அ.pozhil", printOf("pozhil"));
    const std::string source =
        importOf("அ") + importOf("அ.பொழில்") + importOf("அ.pozhil") + importOf("அ");
    EXPECT_EQ(printedBy(source), "அ pozhil");
    EXPECT_EQ(parse(source).parser->importedFiles, (std::set<std::string>{"அ.பொழில்", "அ.pozhil"}));
}

TEST_F(Imports, OfTheApplicationPackageHaveAPathOfTheirOwn) {
    const std::string file = "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்";
    writeFile(file, printOf("தொகுப்பு"));
    writeFile("வலைதளம்.பொழில்", printOf("வேறு"));
    EXPECT_EQ(printedBy(importOf("வலைதளம்")), "தொகுப்பு");
    EXPECT_EQ(parse(importOf("வலைதளம்")).parser->importedFiles, std::set<std::string>{file});
    EXPECT_EQ(printedBy(importOf("வலைதளம்.பொழில்")), "வேறு");
    EXPECT_EQ(printedBy(importOf("வலைதளம்") + importOf(file)), "தொகுப்பு");
}

TEST_F(Imports, AreLookedForFromTheWorkingDirectory) {
    writeFile("உள்/வெளி.பொழில்", importOf("பக்கம்") + printOf("வெளி"));
    writeFile("உள்/பக்கம்.பொழில்", printOf("உள்ளே"));
    writeFile("பக்கம்.பொழில்", printOf("மேலே"));
    EXPECT_EQ(printedBy(importOf("உள்/வெளி")), "மேலே வெளி");
    std::filesystem::remove(std::filesystem::u8path("பக்கம்.பொழில்"));
    EXPECT_EQ(refusalOf(importOf("உள்/வெளி")).code, "பொழில்-281");
}

TEST_F(Imports, TakeAnAbsolutePathAsItStands) {
    writeFile("அ.பொழில்", printOf("அ"));
    EXPECT_EQ(printedBy(importOf((workplace.path() / "அ").u8string())), "அ");
}

TEST_F(Imports, RefuseAMissingFileAtTheStringsLine) {
    const Refusal refusal = refusalOf("\n" + importOf("இல்லாதது"));
    EXPECT_EQ(refusal.kind, SYNTAX_ERROR);
    EXPECT_EQ(refusal.code, "பொழில்-281");
    EXPECT_EQ(refusal.file, "main.பொழில்");
    EXPECT_EQ(refusal.line, 2);
    EXPECT_EQ(refusal.lineText, "நூஇறக்கி \"இல்லாதது\"");
    EXPECT_TRUE(refuses("பொழில்-281", 5, [] {
        parserOver({word("நூஇறக்கி", 4), text("இல்லாதது", 5), mark(TokenType::NEWLINE, 6)})
            .parseImportStatement();
    }));
}

TEST_F(Imports, RefuseWhatIsNoStringAtTheCurrentLine) {
    for (const Token& operand : {number("5", 5), name("கணிதம்", 5), mark(TokenType::NEWLINE, 5),
                                 Token{TokenType::CHARACTER, "அ", 5}}) {
        EXPECT_TRUE(refuses("பொழில்-281", 5, [&] {
            parserOver({word("நூஇறக்கி", 4), operand}, 6).parseImportStatement();
        }));
    }
    EXPECT_TRUE(refuses("பொழில்-281", 6,
                        [] { parserOver({word("நூஇறக்கி", 4)}, 6).parseImportStatement(); }));
}

TEST_F(Imports, PassOverADirectory) {
    std::filesystem::create_directory(std::filesystem::u8path("அ.பொழில்"));
    EXPECT_EQ(refusalOf(importOf("அ")).code, "பொழில்-281");
}

TEST_F(Imports, EnterTheGuardBeforeTheSearch) {
    Parser parser = parserAt(importOf("இல்லாதது"));
    EXPECT_TRUE(refuses("பொழில்-281", 1, [&] { parser.parse(); }));
    EXPECT_EQ(parser.importedFiles, std::set<std::string>{"இல்லாதது.பொழில்"});
}

TEST_F(Imports, GiveNullBehindTheString) {
    writeFile("அ.பொழில்", printOf("அ"));
    Parser parser = parserAt("நூஇறக்கி \"அ\" ஆ()");
    EXPECT_EQ(parser.parseImportStatement(), nullptr);
    EXPECT_EQ(parser.current, 2);
    EXPECT_EQ(parser.hoistedStatements.size(), 1U);
    parser.current = 0;
    EXPECT_EQ(parser.parseImportStatement(), nullptr);
    EXPECT_EQ(parser.current, 2);
    EXPECT_EQ(parser.hoistedStatements.size(), 1U);
}

TEST_F(Imports, ReportFromAModulesParserWithoutNameAndText) {
    writeFile("அ.பொழில்", "\n\nஅச்சிடு(1\n");
    const Refusal refusal = refusalOf(importOf("அ"));
    EXPECT_EQ(refusal.kind, SYNTAX_ERROR);
    EXPECT_EQ(refusal.code, "பொழில்-204");
    EXPECT_EQ(refusal.file, "");
    EXPECT_EQ(refusal.line, 3);
    EXPECT_EQ(refusal.lineText, "(சோர்ஸ் கோடு கிடைக்கவில்லை)");
}

TEST_F(Imports, ReportFromAModulesScannerWithItsText) {
    writeFile("அ.பொழில்", "\nஅ = 1 + 2\n");
    const Refusal refusal = refusalOf(importOf("அ"));
    EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
    EXPECT_EQ(refusal.code, "பொழில்-101");
    EXPECT_EQ(refusal.file, "");
    EXPECT_EQ(refusal.line, 2);
    EXPECT_EQ(refusal.lineText, "அ = 1 + 2");
}

TEST_F(Imports, ReportAMissingModulesModuleFromInside) {
    writeFile("அ.பொழில்", "\n" + importOf("இல்லாதது"));
    const Refusal refusal = refusalOf(importOf("அ"));
    EXPECT_EQ(refusal.code, "பொழில்-281");
    EXPECT_EQ(refusal.file, "");
    EXPECT_EQ(refusal.line, 2);
}

TEST_F(Imports, ScanAWholeFileBeforeParsing) {
    writeFile("அ.பொழில்", "அச்சிடு(1\nஅ = 1 + 2\n");
    EXPECT_EQ(refusalOf(importOf("அ")).code, "பொழில்-101");
}

TEST_F(Imports, ParseTheModuleOutsideOfAnyFunction) {
    writeFile("அ.பொழில்", "திரும்பு 1\n");
    const Refusal refusal = refusalOf("செயல் ஆ():\n    " + importOf("அ"));
    EXPECT_EQ(refusal.code, "பொழில்-233");
    EXPECT_EQ(refusal.line, 1);
}

TEST_F(Imports, NeedNoFinalLineEnd) {
    writeFile("அ.பொழில்", "எனில் மெய்:\n    விடு");
    EXPECT_EQ(parse("நூஇறக்கி \"அ\"").program.statements.size(), 1U);
}

TEST_F(Imports, KeepTheImportersEntriesInEachTable) {
    writeFile("நூல்.பொழில்",
              "செயல் அ(ஒரு):\n    விடு\nகட்டமைப்பு ஆ:\n    உ = 1\n"
              "வடிவமைப்பு இ:\n    செயல் ஊ(தான்)\nவகை ஈ:\n    எ\n");
    const std::string own =
        "செயல் அ():\n    விடு\nகட்டமைப்பு ஆ:\n    ஏ = 1\n"
        "வடிவமைப்பு இ:\n    செயல் ஐ(தான்)\nவகை ஈ:\n    ஒ\n;\n";
    const Parsed parsed = parse(own + importOf("நூல்"));
    const Parser& parser = *parsed.parser;
    ASSERT_EQ(parsed.program.statements.size(), 6U);
    EXPECT_TRUE(parser.functionParameters.at("அ").empty());
    EXPECT_EQ(parser.structDefinitions.at("ஆ"), parsed.program.statements[4].get());
    EXPECT_EQ(parser.abstractStructDefinitions.at("இ"), parsed.program.statements[5].get());
    EXPECT_EQ(parser.enumerations.at("ஈ"), (std::map<std::string, int>{{"ஒ", 0}}));
}

TEST_F(Imports, BringEachTablesEntriesWithTheirNodes) {
    writeFile("நூல்.பொழில்", importOf("உள்நூல்") + "வகை ஈ:\n    எ\n");
    writeFile("உள்நூல்.பொழில்",
              "செயல் அ(மாற்று ஒரு):\n    விடு\nகட்டமைப்பு ஆ:\n    உ = 1\n"
              "வடிவமைப்பு இ:\n    செயல் ஊ(தான்)\n");
    const Parsed parsed = parse(importOf("நூல்"));
    const Parser& parser = *parsed.parser;
    ASSERT_EQ(parsed.program.statements.size(), 3U);
    EXPECT_TRUE(parser.functionParameters.at("அ").at(0).isMutable);
    EXPECT_EQ(parser.structDefinitions.at("ஆ"), parsed.program.statements[1].get());
    EXPECT_EQ(parser.abstractStructDefinitions.at("இ"), parsed.program.statements[2].get());
    EXPECT_EQ(parser.enumerations.at("ஈ").at("எ"), 0);
    EXPECT_TRUE(parser.hoistedStatements.empty());
}

/// A definition that the module's tree dropped lives on with the importer.
TEST_F(Imports, BringWhatAModuleDropped) {
    writeFile("நூல்.பொழில்",
              "கட்டமைப்பு அ:\n    பொது(\n        வடிவமைப்பு இயக்கம்:\n"
              "            செயல் ஓடு(தான்)\n    )\n    ஆ = 1\n");
    const Parsed parsed =
        parse(importOf("நூல்") + "கட்டமைப்பு ஊர்தி(இயக்கம்):\n    செயல் ஓடு(தான்):\n        விடு\n");
    EXPECT_EQ(printTables(*parsed.parser),
              "structure அ: அ\nstructure ஊர்தி: ஊர்தி\nabstract structure இயக்கம்: இயக்கம்\n"
              "imported நூல்.பொழில்\n");
}

TEST_F(Imports, FirstOfTwoModulesWins) {
    writeFile("அ.பொழில்", "செயல் கூடு(ஒரு):\n    விடு\n");
    writeFile("ஆ.பொழில்", "செயல் கூடு():\n    விடு\n");
    const Parsed parsed = parse(importOf("அ") + importOf("ஆ"));
    EXPECT_EQ(parsed.parser->functionParameters.at("கூடு").size(), 1U);
    EXPECT_EQ(parsed.program.statements.size(), 2U);
}

TEST_F(Imports, OfAThousandInARowDoNotCrash) {
    constexpr int kModules = 1000;
    for (int i = 1; i <= kModules; i++) {
        const std::string next = i < kModules ? importOf("m" + std::to_string(i + 1)) : "";
        writeFile("m" + std::to_string(i) + ".பொழில்", next + printOf(std::to_string(i)));
    }
    runOnStack(kDeepStack, [] {
        const Parsed parsed = parse(importOf("m1"));
        EXPECT_EQ(parsed.program.statements.size(), 1000U);
        EXPECT_EQ(parsed.parser->importedFiles.size(), 1000U);
    });
    try {
        EXPECT_EQ(parse(importOf("m1")).program.statements.size(), 1000U);
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.code, "பொழில்-291");
    }
}

TEST_F(Imports, OfAThousandSideBySideMerge) {
    std::string source;
    for (int i = 1; i <= 1000; i++) {
        writeFile("m" + std::to_string(i) + ".பொழில்", printOf(std::to_string(i)));
        source += importOf("m" + std::to_string(i));
    }
    EXPECT_EQ(parse(source).program.statements.size(), 1000U);
}

}  // namespace
