// Catalogue, sources and cases against each other: a code that can be raised is raised by a case,
// and one that nothing raises stands nowhere.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

using Codes = std::set<std::string>;

const std::string kPrefix = "பொழில்-";

/// Codes that the parser names and no source raises: each section is entered on its own word
/// alone. Hand-made tokens raise them in unit/ui_grammar.
const Codes kUnreached = {"பொழில்-241", "பொழில்-242", "பொழில்-243", "பொழில்-244"};

/// Who raises each code, by the catalogue.
std::map<std::string, std::string> readCatalogue() {
    std::istringstream lines(readText(POZHIL_ROOT "/tests/catalogue/catalogue.tsv"));
    std::map<std::string, std::string> raisers;
    for (std::string line; std::getline(lines, line);) {
        raisers[line.substr(0, line.find('\t'))] = line.substr(line.rfind('\t') + 1);
    }
    return raisers;
}

/// The codes that the catalogue gives to `phase`.
Codes codesOf(const std::string& phase) {
    Codes codes;
    for (const auto& [code, raisers] : readCatalogue()) {
        if (raisers.find(phase) != std::string::npos) codes.insert(code);
    }
    return codes;
}

/// The codes that the sources below src/`phase` name.
Codes namedIn(const std::string& phase) {
    Codes codes;
    const fs::path root = fs::u8path(POZHIL_ROOT) / "src" / phase;
    for (const auto& file : fs::recursive_directory_iterator(root)) {
        if (!file.is_regular_file()) continue;
        const std::string text = readText(file.path().u8string());
        for (auto at = text.find(kPrefix); at != std::string::npos; at = text.find(kPrefix, at)) {
            at += kPrefix.size();
            if (std::isdigit(static_cast<unsigned char>(text[at])) == 0) continue;
            codes.insert(kPrefix + text.substr(at, 3));
        }
    }
    return codes;
}

Codes namedInFrontEnd() {
    Codes codes = namedIn("lexer");
    codes.merge(namedIn("parser"));
    return codes;
}

Codes namedInBackEnd() {
    Codes codes = namedIn("generator");
    codes.merge(namedIn("ui"));
    codes.merge(namedIn("emitted"));
    return codes;
}

/// What the generator writes into the text fires there: both count as one here.
Codes codesOfBackEnd() {
    Codes codes = codesOf("generator");
    codes.merge(codesOf("emitted code"));
    return codes;
}

/// The codes that have a folder of cases, each with the number of its cases.
std::map<std::string, int> countCases() {
    std::map<std::string, int> counts;
    for (const auto& entry : fs::directory_iterator(fs::u8path(POZHIL_ROOT "/tests/diagnostics"))) {
        if (entry.is_directory()) counts[kPrefix + entry.path().filename().u8string()] = 0;
    }
    for (const CaseFile& file : findCases("diagnostics", ".report")) {
        const fs::path folder = fs::u8path(file.source).parent_path().filename();
        if (fs::exists(fs::u8path(file.expected))) counts[kPrefix + folder.u8string()]++;
    }
    return counts;
}

TEST(Codes, AreFoundAtAll) {
    EXPECT_EQ(readCatalogue().size(), 94U);
    EXPECT_GE(namedIn("lexer").size(), 16U);
    EXPECT_GE(namedIn("parser").size(), 27U);
    EXPECT_GE(countCases().size(), 25U);
    EXPECT_EQ(codesOf("nothing").size(), 15U);
}

TEST(Codes, OfTheFrontEndHaveACase) {
    std::map<std::string, int> cases = countCases();
    for (const std::string& code : namedInFrontEnd()) {
        if (kUnreached.count(code) != 0) continue;
        EXPECT_GT(cases[code], 0) << code << " is raised by no case in tests/diagnostics";
    }
    for (const std::string& code : kUnreached) {
        EXPECT_EQ(cases[code], 0) << code << " is raised after all";
        EXPECT_EQ(namedInFrontEnd().count(code), 1U) << code << " stands nowhere";
    }
}

TEST(Codes, OfTheFrontEndStandInTheCatalogue) {
    for (const std::string& code : namedIn("lexer")) {
        EXPECT_EQ(codesOf("scanner").count(code), 1U) << code;
    }
    for (const std::string& code : namedIn("parser")) {
        EXPECT_EQ(codesOf("parser").count(code), 1U) << code;
    }
}

TEST(Codes, OfTheCatalogueStandInTheFrontEnd) {
    Codes promised = codesOf("scanner");
    promised.merge(codesOf("parser"));
    const Codes named = namedInFrontEnd();
    for (const std::string& code : promised) {
        EXPECT_EQ(named.count(code), 1U) << code << " is raised by nothing";
    }
}

TEST(Codes, OfTheBackEndStandInTheCatalogue) {
    const Codes limits = {"பொழில்-291"};  // walks inside each other
    for (const std::string& code : namedInBackEnd()) {
        EXPECT_NE(codesOfBackEnd().count(code), limits.count(code)) << code;
    }
    for (const std::string& code : namedIn("emitted")) {
        EXPECT_EQ(codesOf("emitted code").count(code), 1U) << code;
    }
}

TEST(Codes, OfTheCatalogueStandInTheBackEnd) {
    // The parser refuses a background that is no colour; the generator takes any text for one.
    const Codes absent = {"பொழில்-362"};
    const Codes promised = codesOfBackEnd();
    EXPECT_GE(promised.size(), 25U);
    const Codes named = namedInBackEnd();
    for (const std::string& code : promised) {
        EXPECT_NE(named.count(code), absent.count(code)) << code;
    }
}

TEST(Codes, ThatNothingRaisesStandNowhere) {
    Codes named = namedInFrontEnd();
    named.merge(namedInBackEnd());
    const std::map<std::string, int> cases = countCases();
    for (const std::string& code : codesOf("nothing")) {
        EXPECT_EQ(named.count(code), 0U) << code << " is raised after all";
        EXPECT_EQ(cases.count(code), 0U) << code << " has cases";
    }
}

TEST(Codes, WithCasesStandInTheCatalogue) {
    const auto catalogue = readCatalogue();
    for (const auto& [code, count] : countCases()) {
        EXPECT_EQ(catalogue.count(code), 1U) << code;
        EXPECT_GT(count, 0) << code << " has a folder without a case";
    }
}

}  // namespace
