// The guide's programs before the companion's eyes: right ones have no finding and the usual
// layout, wrong ones the findings that the guide shows. POZHIL_REWRITE=1 writes what is found.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "companion/check/check.h"
#include "companion/check/finding_texts.h"
#include "companion/format/format.h"
#include "document_programs.h"
#include "files.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

/// Reads a module from the program's folder or, as its runs do, from the root.
companion::ModuleReader readerFor(const DocumentProgram& program) {
    return [folder = fs::u8path(program.source).parent_path()](const std::string& path,
                                                               std::string& text) {
        return readFile((folder / fs::u8path(path)).u8string(), text) ||
               readFile((fs::u8path(POZHIL_ROOT) / fs::u8path(path)).u8string(), text);
    };
}

std::string findingsOf(const DocumentProgram& program) {
    const companion::SourceText source(program.name + ".பொழில்", readText(program.source));
    std::ostringstream text;
    companion::printForPeople(text, {&source, checkSource(source, readerFor(program))}, false);
    return text.str();
}

TEST(GuidePrograms, AreRightWhereNothingElseIsSaid) {
    for (const DocumentProgram& program : allDocumentPrograms()) {
        if (program.isWrong()) continue;
        const companion::SourceText source(program.source, readText(program.source));
        for (const companion::Finding& finding : checkSource(source, readerFor(program))) {
            EXPECT_EQ(finding.severity, companion::Severity::Hint)
                << program.source << ":" << finding.line << ": " << finding.code << " "
                << finding.message;
        }
    }
}

TEST(GuidePrograms, AreLaidOutAsUsual) {
    for (const DocumentProgram& program : allDocumentPrograms()) {
        if (program.isWrong()) continue;
        const std::string text = readText(program.source);
        EXPECT_EQ(companion::formatted(text).value_or("nothing"), text) << program.source;
    }
}

TEST(GuidePrograms, HaveTheFindingsThatAreShown) {
    for (const DocumentProgram& program : allDocumentPrograms()) {
        if (!program.has(".check")) continue;
        const std::string found = findingsOf(program);
        EXPECT_NE(found, "") << program.source;
        expectGolden({program.name, program.source, program.besides(".check")}, found);
    }
}

}  // namespace
