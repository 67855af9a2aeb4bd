// Headers that take g++ seconds are read by few sources, and those are compiled together.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

const std::string kSources = POZHIL_ROOT "/src/";
const std::string kTests = POZHIL_ROOT "/tests/";

/// What each file of a folder includes, by the name that stands in the line.
using Includes = std::map<std::string, std::set<std::string>>;

std::set<std::string> includesOf(const std::string& text) {
    const std::string directive = "#include ";
    std::set<std::string> names;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(directive, 0) != 0) continue;
        const std::size_t end = line.find_first_of(">\"", directive.size() + 1);
        names.insert(line.substr(directive.size() + 1, end - directive.size() - 1));
    }
    return names;
}

/// The emitted text is no part of what the build compiles.
Includes includesBelow(const std::string& folder) {
    Includes all;
    for (const auto& entry : fs::recursive_directory_iterator(fs::u8path(folder))) {
        const std::string path = entry.path().u8string();
        const fs::path ending = entry.path().extension();
        if (path.rfind(kSources + "emitted/", 0) == 0 || (ending != ".h" && ending != ".cpp"))
            continue;
        all[path.substr(folder.size())] = includesOf(readText(path));
    }
    return all;
}

/// The .cpp files that read `header`, by themselves or by what they include.
std::set<std::string> readersOf(const std::string& header, const std::string& folder = kSources) {
    const Includes all = includesBelow(folder);
    EXPECT_GT(all.size(), 200U);
    std::set<std::string> readers = {header};
    for (std::size_t before = 0; before != readers.size();) {
        before = readers.size();
        for (const auto& [name, includes] : all) {
            for (const std::string& included : includes) {
                if (readers.count(included) != 0) readers.insert(name);
            }
        }
    }
    std::set<std::string> sources;
    for (const std::string& name : readers) {
        if (fs::u8path(name).extension() == ".cpp") sources.insert(name);
    }
    return sources;
}

/// The sources of the language server that the build compiles together for JSON's sake.
std::set<std::string> unitOfJson() {
    const std::string build = readText(POZHIL_ROOT "/cmake/companion.cmake");
    const std::string opening = "foreach(source IN ITEMS ";
    const std::size_t begin = build.find(opening) + opening.size();
    std::istringstream names(build.substr(begin, build.find(')', begin) - begin));
    std::set<std::string> sources;
    for (std::string name; names >> name;) {
        sources.insert("companion/language_server/" + name + ".cpp");
    }
    return sources;
}

TEST(HeavyHeaders, OfJsonIsReadInOneUnit) {
    EXPECT_EQ(readersOf("nlohmann/json.hpp"), unitOfJson());
}

TEST(HeavyHeaders, OfRegularExpressionsIsReadByNobody) {
    EXPECT_EQ(readersOf("regex"), std::set<std::string>{});
    EXPECT_GT(readersOf("string").size(), 100U);
}

TEST(HeavyHeaders, OfRegularExpressionsIsReadByOneFileOfTests) {
    EXPECT_EQ(readersOf("regex", kTests), std::set<std::string>{"support/pattern.cpp"});
}

}  // namespace
