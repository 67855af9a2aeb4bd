// The examples, each with what it must print: examples/console/NAME.பொழில் and, here, NAME.out.
//
// Beside an expectation may stand the program's standard input (NAME.in), and the parts of its
// output that change from run to run (NAME.mask): each line is a regular expression, and whatever
// it matches is replaced by an ellipsis before the comparison. Each expression must match.
// The program runs in a folder that holds a copy of the data files of examples/console.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "companion/cases_in_one.h"
#include "staging.h"
#include "support/pattern.h"

namespace fs = std::filesystem;

namespace {

const fs::path kExamples = fs::u8path(POZHIL_ROOT "/examples/console");
const fs::path kExpectations = fs::u8path(POZHIL_ROOT "/tests/examples");

fs::path besides(const CaseFile& file, const std::string& extension) {
    return fs::u8path(file.expected).replace_extension(extension);
}

std::string readOptional(const fs::path& path) {
    return fs::exists(path) ? readText(path.u8string()) : "";
}

std::string masked(std::string text, const fs::path& maskFile) {
    std::istringstream expressions(readOptional(maskFile));
    for (std::string line; std::getline(expressions, line);) {
        const Pattern expression(line);
        EXPECT_TRUE(expression.isIn(text)) << "nothing to mask: " << line;
        text = expression.replaced(text, "…");
    }
    return text;
}

std::vector<CaseFile> findExamples() {
    std::vector<CaseFile> examples;
    for (const auto& entry : fs::directory_iterator(kExamples)) {
        if (entry.path().extension() != fs::u8path(".பொழில்")) continue;
        const std::string stem = entry.path().stem().u8string();
        examples.push_back({stem, entry.path().u8string(),
                            (kExpectations / fs::u8path(stem + ".out")).u8string()});
    }
    std::sort(examples.begin(), examples.end(),
              [](const CaseFile& a, const CaseFile& b) { return a.name < b.name; });
    return examples;
}

/// The text of a call sets the line it stands in inside the expression: two calls in one make g++
/// doubt the order. Nothing else is worth a warning.
const std::vector<std::string> kNoWarnings = {"-Werror", "-Wall", "-Wextra", "-Wno-sequence-point"};

struct Together : CasesInOne {
    Together() : CasesInOne("examples_together", staged(casesToRun(findExamples()), "example")) {}
    const std::string complaint = build(kNoWarnings);
};

void copyData(const std::string& folder) {
    for (const auto& entry : fs::directory_iterator(kExamples)) {
        if (entry.path().extension() == fs::u8path(".பொழில்")) continue;
        fs::copy(entry.path(), fs::u8path(folder), fs::copy_options::recursive);
    }
}

void runExample(const CaseFile& file) {
    static const Together examples;
    ASSERT_EQ(examples.complaint, "");
    copyData(examples.runFolder(file));
    const ProcessResult ran = examples.run(file, readOptional(besides(file, ".in")));
    expectGolden(file, masked(outputOf(ran), besides(file, ".mask")));
}

class Example : public testing::Test {
public:
    explicit Example(CaseFile file) : file(std::move(file)) {}
    void TestBody() override { runExample(file); }

private:
    CaseFile file;
};

const bool registered = [] {
    for (const CaseFile& file : findExamples()) {
        testing::RegisterTest("Example", file.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [=]() -> testing::Test* { return new Example(file); });
    }
    return true;
}();

TEST(Examples, AreADozenAtLeast) { EXPECT_GE(findExamples().size(), 12U); }

TEST(Examples, OwnAllThatStandsHere) {
    for (const auto& entry : fs::directory_iterator(kExpectations)) {
        const std::string extension = entry.path().extension().u8string();
        if (extension != ".out" && extension != ".in" && extension != ".mask") continue;
        const std::string source = entry.path().stem().u8string() + ".பொழில்";
        EXPECT_TRUE(fs::exists(kExamples / fs::u8path(source))) << entry.path();
    }
}

}  // namespace
