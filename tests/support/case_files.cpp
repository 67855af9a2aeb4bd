#include "support/case_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "support/side_by_side.h"

namespace fs = std::filesystem;

namespace {

class FileCase : public testing::Test {
public:
    FileCase(CaseFile file, std::function<void(const CaseFile&)> run)
        : file(std::move(file)), run(std::move(run)) {}
    void TestBody() override { run(file); }

private:
    CaseFile file;
    std::function<void(const CaseFile&)> run;
};

bool insideModules(const fs::path& path) {
    return std::any_of(path.begin(), path.end(),
                       [](const fs::path& part) { return part == "modules"; });
}

std::string testName(const fs::path& relative) {
    std::string name = (relative.parent_path() / relative.stem()).u8string();
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

}  // namespace

std::vector<CaseFile> findCases(const std::string& lane, const std::string& extension) {
    const fs::path root = fs::u8path(POZHIL_ROOT) / "tests" / lane;
    std::vector<CaseFile> cases;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const fs::path& path = entry.path();
        if (path.extension() != fs::u8path(".பொழில்") || insideModules(fs::relative(path, root))) {
            continue;
        }
        cases.push_back({testName(fs::relative(path, root)), path.u8string(),
                         fs::path(path).replace_extension(extension).u8string()});
    }
    std::sort(cases.begin(), cases.end(),
              [](const CaseFile& a, const CaseFile& b) { return a.name < b.name; });
    return cases;
}

std::vector<std::string> findStrayFiles(const std::string& lane, const std::string& extension) {
    const fs::path root = fs::u8path(POZHIL_ROOT) / "tests" / lane;
    std::set<std::string> known;
    for (const CaseFile& file : findCases(lane, extension)) {
        known.insert({file.source, file.expected});
    }
    std::vector<std::string> strays;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const fs::path& path = entry.path();
        if (entry.is_directory() || path.extension() == ".cpp") continue;
        if (insideModules(fs::relative(path, root)) || known.count(path.u8string()) != 0) continue;
        strays.push_back(path.u8string());
    }
    return strays;
}

void registerCases(const std::string& lane, const std::string& extension,
                   const std::function<void(const CaseFile&)>& run) {
    const std::vector<CaseFile> cases = findCases(lane, extension);
    for (const CaseFile& file : cases) {
        testing::RegisterTest("Case", file.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [=]() -> testing::Test* { return new FileCase(file, run); });
    }
    const std::size_t count = cases.size();
    testing::RegisterTest(
        "Case", "finds_cases", nullptr, nullptr, __FILE__, __LINE__, [=]() -> testing::Test* {
            return new FileCase({}, [=](const CaseFile&) { EXPECT_GT(count, 0U); });
        });
}

std::string readText(const std::string& path) {
    std::ifstream stream(fs::u8path(path));
    if (!stream.is_open()) {
        ADD_FAILURE() << "can't read " << path;
        return "";
    }
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

void expectGolden(const CaseFile& file, const std::string& actual) {
    if (std::getenv("POZHIL_REWRITE") != nullptr) {
        std::ofstream(fs::u8path(file.expected)) << actual;
        return;
    }
    const std::string expected = readText(file.expected);
    EXPECT_TRUE(expected == actual) << file.source << "\n" << sideBySide(expected, actual);
}
