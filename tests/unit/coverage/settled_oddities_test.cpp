// docs/settled_oddities.md against the code: each oddity that a comment calls meant has a row, and
// each row names tests that exist.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/case_files.h"
#include "support/pattern.h"

namespace fs = std::filesystem;

namespace {

const std::string kRoot = POZHIL_ROOT "/";

struct OddityRow {
    std::string oddity;
    std::string place;
    std::string tests;
};

/// | what | `src/...` | `tests/...`, ... |
std::vector<OddityRow> readOddities() {
    static const Pattern row(R"(^\| (.+) \| `(src/[^`]+)` \| (.+) \|$)");
    std::istringstream lines(readText(kRoot + "docs/settled_oddities.md"));
    std::vector<OddityRow> rows;
    for (std::string line; std::getline(lines, line);) {
        const auto match = row.first(line);
        if (match) rows.push_back({(*match)[1], (*match)[2], (*match)[3]});
    }
    return rows;
}

/// How many comments of each source call something meant. The companion's tell what a learner
/// meant, and the language has no oddity there.
std::map<std::string, int> countMeant() {
    static const Pattern meant(R"(//.*\b[Mm]eant\b)");
    std::map<std::string, int> counts;
    for (const auto& file : fs::recursive_directory_iterator(fs::u8path(kRoot + "src"))) {
        const std::string extension = file.path().extension().u8string();
        if (extension != ".cpp" && extension != ".h") continue;
        const std::string path = file.path().u8string();
        if (path.rfind(kRoot + "src/companion/", 0) == 0) continue;
        std::istringstream lines(readText(path));
        for (std::string line; std::getline(lines, line);) {
            if (meant.isIn(line)) counts[path.substr(kRoot.size())]++;
        }
    }
    return counts;
}

/// A test is named by its file, with its name behind it if the file holds several.
testing::AssertionResult exists(const std::string& path, const std::string& name) {
    if (!fs::is_regular_file(fs::u8path(kRoot + path))) {
        return testing::AssertionFailure() << path << " doesn't exist";
    }
    if (name.empty()) return testing::AssertionSuccess();
    const std::size_t dot = name.find('.');
    const Pattern definition("TEST(_F|_P)?\\(" + name.substr(0, dot) + ",\\s*" +
                             name.substr(dot + 1) + "\\)");
    if (definition.isIn(readText(kRoot + path))) return testing::AssertionSuccess();
    return testing::AssertionFailure() << path << " holds no " << name;
}

TEST(SettledOddities, OfEachFileHaveARowEach) {
    std::map<std::string, int> rows;
    for (const OddityRow& row : readOddities()) rows[row.place]++;
    EXPECT_FALSE(rows.empty());
    EXPECT_EQ(rows, countMeant()) << "rows of docs/settled_oddities.md, then comments of src";
}

TEST(SettledOddities, AreEachHeldByATestThatExists) {
    static const Pattern test(R"(`(tests/[^` ]+)(?: (\w+\.\w+))?`)");
    for (const OddityRow& row : readOddities()) {
        int count = 0;
        for (const Match& match : test.all(row.tests)) {
            count++;
            EXPECT_TRUE(exists(match[1], match[2])) << row.oddity;
        }
        EXPECT_GT(count, 0) << row.oddity << ": no test";
    }
}

}  // namespace
