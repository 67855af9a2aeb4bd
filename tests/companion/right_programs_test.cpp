// What is right is left alone: examples, module library, benchmark programs and the programs of
// other lanes have neither an error nor a warning, but for those that show an oddity on purpose.
// right_programs.exceptions names these: a file, a code, and why.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "companion/check/check.h"
#include "support/case_files.h"

namespace {

namespace fs = std::filesystem;

const char* const kFolders[] = {"examples",       "bench",          "தொகுப்புகள்",
                                "docs",           "tests/programs", "tests/library_programs",
                                "tests/examples", "tests/browser",  "tests/widgets",
                                "tests/web"};

/// The guide's programs show mistakes, too; its own tests check them.
const char* const kShownInTheGuide = "docs/நிரல்கள்/";

/// A file, named from the root, with the code of what is found in it.
using Found = std::pair<std::string, std::string>;

std::vector<std::string> sourcesBelow(const std::string& folder) {
    std::vector<std::string> paths;
    const fs::path root = fs::u8path(POZHIL_ROOT);
    if (!fs::exists(root / fs::u8path(folder))) return paths;
    for (const auto& entry : fs::recursive_directory_iterator(root / fs::u8path(folder))) {
        if (entry.path().extension() != fs::u8path(".பொழில்")) continue;
        const std::string name = fs::relative(entry.path(), root).u8string();
        if (name.rfind(kShownInTheGuide, 0) != 0) paths.push_back(name);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

/// Reads a module from where the program would be run: its folder, the one above, or the root.
companion::ModuleReader readerFor(const fs::path& source) {
    return [folder = source.parent_path()](const std::string& path, std::string& text) {
        const fs::path module = fs::u8path(path);
        for (const fs::path& place : {folder, folder.parent_path(), fs::u8path(POZHIL_ROOT)}) {
            if (readFile((place / module).u8string(), text)) return true;
        }
        return false;
    };
}

struct Checked {
    std::map<Found, std::string> wrong;  ///< With the first place of each.
    int files = 0;
};

void checkFile(Checked& checked, const std::string& name) {
    const fs::path path = fs::u8path(POZHIL_ROOT) / fs::u8path(name);
    const companion::SourceText source(path.u8string(), readText(path.u8string()));
    checked.files++;
    for (const companion::Finding& finding : companion::checkSource(source, readerFor(path))) {
        if (finding.severity == companion::Severity::Hint) continue;
        checked.wrong.emplace(Found(name, finding.code),
                              std::to_string(finding.line) + ": " + finding.message);
    }
}

/// All programs, checked once.
const Checked& checkedPrograms() {
    static const Checked checked = [] {
        Checked result;
        for (const char* folder : kFolders) {
            for (const std::string& name : sourcesBelow(folder)) checkFile(result, name);
        }
        return result;
    }();
    return checked;
}

/// Lines of a path, a code and a reason; the path ends at the ending of sources.
std::map<Found, std::string> exceptions() {
    std::map<Found, std::string> rows;
    std::ifstream file(POZHIL_ROOT "/tests/companion/right_programs.exceptions");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream words(line);
        std::string path;
        std::string code;
        std::string reason;
        words >> path >> code >> std::ws;
        std::getline(words, reason);
        rows[Found(path, code)] = reason;
    }
    return rows;
}

TEST(RightPrograms, HaveNeitherErrorNorWarning) {
    const auto allowed = exceptions();
    for (const auto& [found, place] : checkedPrograms().wrong) {
        EXPECT_EQ(allowed.count(found), 1U)
            << found.first << ":" << place << "\n    " << found.second;
    }
    EXPECT_GT(checkedPrograms().files, 400);
}

TEST(RightPrograms, HaveNoStaleException) {
    for (const auto& [found, reason] : exceptions()) {
        EXPECT_EQ(checkedPrograms().wrong.count(found), 1U)
            << found.first << " has no " << found.second << " any more";
        EXPECT_GT(reason.size(), 10U) << found.first << ": why?";
    }
}

/// What learners read first is without any exception.
TEST(RightPrograms, OfLearnersNeedNoException) {
    for (const auto& [found, reason] : exceptions()) {
        for (const char* folder : {"examples/", "தொகுப்புகள்/", "bench/"}) {
            EXPECT_NE(found.first.rfind(folder, 0), 0U) << found.first;
        }
    }
}

}  // namespace
