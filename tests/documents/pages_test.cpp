// Guide and companion guide: what a fence shows is what the file holds, each program is shown, and
// links lead somewhere. POZHIL_REWRITE=1 fills the fences.
#include "pages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "document_programs.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

std::string fileName(const std::string& path) { return fs::u8path(path).filename().u8string(); }

/// What is shown by fences of a kind, without the lines that are asked for.
std::set<std::string> shownAs(const std::string& kind) {
    std::set<std::string> names;
    for (const std::string& path : guidePages()) {
        for (const Fence& fence : fencesOf(readText(path))) {
            if (fence.kind == kind) names.insert(fence.name.substr(0, fence.name.find(':')));
        }
    }
    return names;
}

/// The numbers that the names of a folder's pages begin with.
std::set<std::string> chapterNumbers(const std::string& folder) {
    std::set<std::string> numbers;
    for (const std::string& path : guidePages()) {
        if (fs::u8path(path).parent_path().filename().u8string() != folder) continue;
        const std::string name = fileName(path);
        if (std::isdigit(static_cast<unsigned char>(name[0])) != 0) {
            numbers.insert(name.substr(0, 2));
        }
    }
    return numbers;
}

TEST(GuidePages, HoldWhatTheirFencesName) {
    for (const std::string& path : guidePages()) {
        SCOPED_TRACE(path);
        const std::string text = readText(path);
        expectGolden({"guide_page", path, path}, refilled(text));
    }
}

TEST(GuidePages, ShowEachProgram) {
    const std::set<std::string> shown = shownAs("பொழில்");
    for (const DocumentProgram& program : allDocumentPrograms()) {
        const std::string name = program.chapter + "/" + program.name;
        EXPECT_EQ(shown.count(name), 1U) << name << " is shown nowhere";
    }
}

TEST(GuidePages, HaveTheSameChaptersInBothLanguages) {
    EXPECT_EQ(chapterNumbers("guide"), chapterNumbers("வழிகாட்டி"));
}

/// What comes of a program stands beside it: its output, a report, a finding, a picture.
TEST(GuidePrograms, TellWhatComesOfThem) {
    for (const DocumentProgram& program : allDocumentPrograms()) {
        const bool tells = program.has(".out") || program.isWrong() || isImported(program) ||
                           (program.isApplication() && program.has(".png"));
        EXPECT_TRUE(tells) << program.source;
    }
}

const std::set<std::string> kBesides = {".out", ".like", ".report", ".check", ".says",
                                        ".err", ".png",  ".steps",  ".size",  ".py"};

bool belongsToASource(const fs::path& path) {
    return kBesides.count(path.extension().u8string()) != 0 &&
           fs::exists(fs::path(path).replace_extension(fs::u8path(".பொழில்")));
}

bool isNamedBySource(const std::string& name, const std::string& chapter) {
    for (const DocumentProgram& program : documentPrograms(chapter)) {
        if (readText(program.source).find(name) != std::string::npos) return true;
    }
    return false;
}

TEST(GuidePrograms, HaveNoStrayFilesBesideThem) {
    for (const std::string& chapter : documentChapters()) {
        const fs::path folder = fs::u8path(kDocumentPrograms + chapter);
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            const fs::path& path = entry.path();
            if (entry.is_directory() || path.extension() == fs::u8path(".பொழில்")) continue;
            EXPECT_TRUE(belongsToASource(path) ||
                        isNamedBySource(fileName(path.u8string()), chapter))
                << path.u8string();
        }
    }
}

}  // namespace
