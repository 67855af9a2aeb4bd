// Rules over several files: a module's names count, what stands wrong in it is told where it is
// checked itself. And a comment takes a warning back.
#include <gtest/gtest.h>

#include "companion/check/check.h"

namespace {

std::string codesOf(const std::string& text, const std::string& module = "") {
    const companion::SourceText source("test.பொழில்", text);
    const auto readModule = [&](const std::string& path, std::string& found) {
        found = module;
        return path == "பொதுவானவை.பொழில்";
    };
    std::string codes;
    for (const companion::Finding& finding : companion::checkSource(source, readModule)) {
        codes += finding.code + "@" + std::to_string(finding.line) + " ";
    }
    return codes;
}

const char* const kImport = "நூஇறக்கி \"பொதுவானவை\"\n";

TEST(Modules, GiveTheirNames) {
    EXPECT_EQ(codesOf(std::string(kImport) + "அச்சிடு(கிண்ணம்)\n", "கிண்ணம் = 5\n"), "");
    EXPECT_EQ(codesOf(std::string(kImport) + "அச்சிடு(கிண்ணம்)\n", "குவளை = 5\n"), "துணை-502@2 ");
}

TEST(Modules, RunBeforeWhatImportsThem) {
    EXPECT_EQ(codesOf("அச்சிடு(கிண்ணம்)\n" + std::string(kImport), "கிண்ணம் = 5\n"), "");
}

TEST(Modules, AreNotToldInTheFileThatImportsThem) {
    const char* const module = "அச்சிடு(எங்குமில்லாதது)\nஎனில் 1 பெரிது 2:\n    அச்சிடு(012)\n";
    EXPECT_EQ(codesOf(module), "துணை-502@1 துணை-516@2 துணை-527@3 ");
    EXPECT_EQ(codesOf(kImport, module), "");
}

TEST(Silence, HoldsForTheCodeThatIsNamed) {
    EXPECT_EQ(codesOf("அச்சிடு(012) ஃ துணை-527\n"), "");
    EXPECT_EQ(codesOf("அச்சிடு(012) ஃ துணை-528\n"), "துணை-527@1 ");
}

}  // namespace
