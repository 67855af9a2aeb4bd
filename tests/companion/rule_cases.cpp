// The rules: for each a folder named for its code, with programs and what is found in them.
// A program whose name begins with `right` holds no error and no warning.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "companion/check/check.h"
#include "companion/check/finding_texts.h"
#include "companion/check/rules.h"
#include "files.h"
#include "support/case_files.h"

namespace {

namespace fs = std::filesystem;

const char* const kLane = "companion/rules";

std::string describeFindings(const std::vector<companion::Finding>& findings) {
    std::ostringstream text;
    for (const companion::Finding& finding : findings) {
        text << finding.line << ":" << finding.column << "-" << finding.endLine << ":"
             << finding.endColumn << " " << companion::nameOf(finding.severity) << " "
             << finding.code << "\n    " << finding.message << "\n";
    }
    return text.str();
}

/// As from the folder of the program: there lie its modules.
std::vector<companion::Finding> check(const std::string& path) {
    const fs::path folder = fs::u8path(path).parent_path();
    const companion::SourceText source(path, readText(path));
    return companion::checkSource(source, [&](const std::string& module, std::string& text) {
        return readFile((folder / fs::u8path(module)).u8string(), text);
    });
}

bool isRight(const CaseFile& file) {
    return fs::path(file.source).filename().string().rfind("right", 0) == 0;
}

std::string folderOf(const CaseFile& file) {
    return fs::path(file.source).parent_path().filename().string();
}

void expectFindings(const CaseFile& file) {
    const auto findings = check(file.source);
    expectGolden(file, describeFindings(findings));
    bool isFound = false;
    for (const companion::Finding& finding : findings) {
        isFound |= finding.code == folderOf(file);
        if (isRight(file)) {
            EXPECT_EQ(finding.severity, companion::Severity::Hint) << finding.code;
        }
    }
    EXPECT_EQ(isFound, !isRight(file)) << file.source;
}

const bool registered = [] {
    registerCases(kLane, ".findings", expectFindings);
    return true;
}();

TEST(Rules, EachHasAWrongAndARightProgram) {
    std::set<std::string> wrong;
    std::set<std::string> right;
    for (const CaseFile& file : findCases(kLane, ".findings")) {
        (isRight(file) ? right : wrong).insert(folderOf(file));
    }
    for (const companion::Rule& rule : companion::allRules()) {
        EXPECT_EQ(wrong.count(std::string(rule.code)), 1U) << rule.code;
        EXPECT_EQ(right.count(std::string(rule.code)), 1U) << rule.code;
    }
    EXPECT_FALSE(companion::allRules().empty());
}

TEST(Rules, CodesStandInOrderAndOnce) {
    std::string last;
    for (const companion::Rule& rule : companion::allRules()) {
        EXPECT_LT(last, rule.code);
        last = rule.code;
    }
}

TEST(Rules, HaveNoFilesThatNobodyReads) {
    for (const std::string& file : findStrayFiles(kLane, ".findings")) ADD_FAILURE() << file;
}

}  // namespace
