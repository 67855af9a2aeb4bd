// The packages: each defines what it promises, and its functions keep the language's rules.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "packages.h"
#include "rules.h"
#include "support/case_files.h"
#include "support/front_end.h"
#include "support/pattern.h"

namespace fs = std::filesystem;

namespace {

/// An import is looked for where the process stands: here, at the root.
class AtTheRoot : public testing::Test {
protected:
    void SetUp() override { fs::current_path(fs::u8path(POZHIL_ROOT)); }
    void TearDown() override { fs::current_path(before); }

private:
    fs::path before = fs::current_path();
};

std::vector<std::string> signaturesOf(const Program& program) {
    std::vector<std::string> signatures;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        signatures.push_back(signatureOf(*function));
    }
    return signatures;
}

std::vector<std::string> allSignatures() {
    std::vector<std::string> all;
    for (const Package& package : packages()) {
        all.insert(all.end(), package.signatures.begin(), package.signatures.end());
    }
    return all;
}

std::string importing(const std::string& path) { return "நூஇறக்கி \"" + path + "\"\n"; }

template <typename Rule>
void expectKept(Rule rule) {
    for (const Package& package : packages()) {
        EXPECT_EQ(rule(parsePackage(package), package), Complaints()) << package.path;
    }
}

TEST(LibraryPackages, DefineWhatTheyPromise) {
    for (const Package& package : packages()) {
        EXPECT_EQ(signaturesOf(parsePackage(package)), package.signatures) << package.path;
    }
}

TEST(LibraryPackages, AreAllInTheFolder) {
    std::set<std::string> found;
    const fs::path library = fs::u8path(POZHIL_ROOT "/தொகுப்புகள்");
    for (const auto& entry : fs::recursive_directory_iterator(library)) {
        if (entry.path().extension() != fs::u8path(".பொழில்")) continue;
        found.insert(fs::relative(entry.path(), fs::u8path(POZHIL_ROOT)).u8string());
    }
    std::set<std::string> promised;
    for (const Package& package : packages()) promised.insert(package.path + ".பொழில்");
    EXPECT_EQ(found, promised);
}

TEST(LibraryPackages, OpenWithAListOfTheirFunctions) {
    for (const Package& package : packages()) {
        const std::string text = readText(POZHIL_ROOT "/" + package.path + ".பொழில்");
        const std::string header = text.substr(0, text.find("\n\n"));
        ASSERT_EQ(header.rfind("ஃ ", 0), 0U) << package.path;
        for (const std::string& signature : package.signatures) {
            const std::string name = signature.substr(0, signature.find('('));
            EXPECT_TRUE(Pattern(" " + name + "(,|\n|$)").isIn(header)) << name;
        }
    }
}

TEST(LibraryReadme, HasARowForEachFunction) {
    std::vector<std::string> rows;
    std::istringstream text(readText(POZHIL_ROOT "/தொகுப்புகள்/README.md"));
    for (std::string line; std::getline(text, line);) {
        const std::string opening = "| `";
        if (line.rfind(opening, 0) != 0) continue;
        const std::size_t end = line.find('`', opening.size());
        rows.push_back(line.substr(opening.size(), end - opening.size()));
    }
    EXPECT_EQ(rows, allSignatures());
}

class LibraryImport : public AtTheRoot {};

TEST_F(LibraryImport, FindsEachPackageByItsPath) {
    for (const Package& package : packages()) {
        for (const char* const ending : {"", ".பொழில்"}) {
            const Parsed parsed = parse(importing(package.path + ending));
            EXPECT_EQ(signaturesOf(parsed.program), package.signatures) << package.path;
            EXPECT_EQ(parsed.parser->functionParameters.size(), package.signatures.size());
            EXPECT_TRUE(parsed.parser->structDefinitions.empty()) << package.path;
            EXPECT_TRUE(parsed.parser->abstractStructDefinitions.empty()) << package.path;
        }
    }
}

TEST_F(LibraryImport, TakesTheBareNameForTheApplicationPackage) {
    EXPECT_EQ(signaturesOf(parse(importing("வலைதளம்")).program), packages().back().signatures);
    const std::string twice = importing("வலைதளம்") + importing(packages().back().path);
    EXPECT_EQ(signaturesOf(parse(twice).program), packages().back().signatures);
}

TEST_F(LibraryImport, TakesAllPackagesTogether) {
    std::string source;
    for (const Package& package : packages()) source += importing(package.path);
    source += "அச்சிடு(பட்டியல்_தொகை([1, 2]))\n";
    const Parsed parsed = parse(source);
    EXPECT_EQ(signaturesOf(parsed.program), allSignatures());
    EXPECT_EQ(parsed.program.statements.size(), allSignatures().size() + 1);
    EXPECT_EQ(parsed.parser->functionParameters.size(), allSignatures().size());
}

TEST(LibraryPackages, ShareNoNames) {
    std::set<std::string> functions;
    std::set<std::string> variables;
    for (const Package& package : packages()) {
        const Program program = parsePackage(package);
        for (const FunctionDefinitionStatement* function : functionsOf(program)) {
            EXPECT_TRUE(functions.insert(function->name.text).second) << function->name.text;
        }
        for (const std::string& name : sharedNames(program)) {
            EXPECT_TRUE(variables.insert(name).second) << name;
        }
    }
    for (const std::string& name : variables) EXPECT_EQ(functions.count(name), 0U) << name;
    EXPECT_GT(variables.size(), 30U) << "the search for shared variables found too few";
}

TEST(LibraryFunctions, StandAlone) {
    expectKept([](const Program& program, const Package&) { return statementsThatRun(program); });
}

TEST(LibraryFunctions, CallWhatIsWithinReach) {
    expectKept([](const Program& program, const Package&) { return callsOutOfReach(program); });
}

TEST(LibraryFunctions, ShadowNothing) {
    expectKept([](const Program& program, const Package&) { return shadowedNames(program); });
}

TEST(LibraryFunctions, ReadNoMembersOfUnknownValues) {
    expectKept([](const Program& program, const Package&) { return memberAccess(program); });
}

TEST(LibraryFunctions, KeepToTheirPrefix) {
    expectKept([](const Program& program, const Package& package) {
        return namesWithoutPrefix(program, package.prefix);
    });
}

TEST(LibraryFunctions, WalkOverVariablesAndRanges) {
    expectKept([](const Program& program, const Package&) { return brokenWalks(program); });
}

TEST(LibraryFunctions, ConvertLengthsBeforeUse) {
    expectKept([](const Program& program, const Package&) { return misusedValues(program); });
}

TEST(LibraryFunctions, ReturnWhatTheirNamesSay) {
    expectKept([](const Program& program, const Package&) { return kindMistakes(program); });
}

}  // namespace
