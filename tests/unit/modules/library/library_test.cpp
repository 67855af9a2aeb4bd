// The library folder, the second place where a module is looked for. This program compiles the
// import anew with a folder that the test fills.
#include <gtest/gtest.h>

#include "unit/modules/workplace.h"
#include "unit/statements/parsing.h"

namespace {

const std::string kLibrary = POZHIL_LIBRARY_DIR;

/// What the one statement of the module `path` prints.
std::string imported(const std::string& path) {
    return printTree(parse("நூஇறக்கி \"" + path + "\"\n").program);
}

std::string printing(const std::string& text) { return "அச்சிடு(\"" + text + "\")\n"; }
std::string printTreeOf(const std::string& text) { return "print\n  string \"" + text + "\" @1\n"; }

class Library : public testing::Test {
protected:
    Workplace workplace;
};

TEST_F(Library, IsAskedBehindTheWorkingDirectory) {
    writeFile(kLibrary + "first.பொழில்", printing("நூலகம்"));
    EXPECT_EQ(imported("first"), printTreeOf("நூலகம்"));
    writeFile("first.பொழில்", printing("இங்கே"));
    EXPECT_EQ(imported("first"), printTreeOf("இங்கே"));
}

TEST_F(Library, GivesTheGuardThePathAsWritten) {
    writeFile(kLibrary + "guarded.pozhil", printing("நூலகம்"));
    const Parsed parsed = parse("நூஇறக்கி \"guarded.pozhil\"\nநூஇறக்கி \"guarded.pozhil\"\n");
    EXPECT_EQ(parsed.parser->importedFiles, std::set<std::string>{"guarded.pozhil"});
    EXPECT_EQ(parsed.program.statements.size(), 1U);
}

TEST_F(Library, HoldsFolders) {
    writeFile(kLibrary + "folder/inside.பொழில்", printing("ஆழம்"));
    EXPECT_EQ(imported("folder/inside"), printTreeOf("ஆழம்"));
}

TEST_F(Library, HoldsTheApplicationPackageBelowItsName) {
    writeFile(kLibrary + "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்", printing("தொகுப்பு"));
    EXPECT_EQ(imported("வலைதளம்"), printTreeOf("தொகுப்பு"));
}

TEST_F(Library, IsAskedWhereADirectoryHasTheName) {
    std::filesystem::create_directory(std::filesystem::u8path("shadowed.பொழில்"));
    writeFile(kLibrary + "shadowed.பொழில்", printing("நூலகம்"));
    EXPECT_EQ(imported("shadowed"), printTreeOf("நூலகம்"));
}

TEST_F(Library, IsNoPlaceForAnAbsolutePath) {
    writeFile(kLibrary + "absolute.பொழில்", printing("நூலகம்"));
    EXPECT_TRUE(refused("நூஇறக்கி \"" + (workplace.path() / "absolute").u8string() + "\"\n",
                        "பொழில்-281", 1));
}

TEST_F(Library, IsNotSearchedForAnotherName) {
    EXPECT_TRUE(refused("நூஇறக்கி \"nowhere\"\n", "பொழில்-281", 1));
}

}  // namespace
