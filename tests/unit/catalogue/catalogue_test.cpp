// The catalogue against a second copy of it: tests/catalogue/catalogue.tsv holds code, meaning,
// fix and who raises the code.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "error_codes.h"
#include "support/case_files.h"

namespace {

struct Row {
    std::string code;
    std::string meaning;
    std::string fix;
    std::string raisedBy;
};

std::vector<Row> readRows() {
    std::istringstream lines(readText(POZHIL_ROOT "/tests/catalogue/catalogue.tsv"));
    std::vector<Row> rows;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        Row row;
        std::getline(fields, row.code, '\t');
        std::getline(fields, row.meaning, '\t');
        std::getline(fields, row.fix, '\t');
        std::getline(fields, row.raisedBy, '\t');
        rows.push_back(row);
    }
    return rows;
}

const பிழைதகவல்& entry(const std::string& number) { return பிழை_அகராதி.at("பொழில்-" + number); }

TEST(Catalogue, HoldsEveryText) {
    const std::vector<Row> rows = readRows();
    ASSERT_EQ(rows.size(), 94U);
    for (const Row& row : rows) {
        const auto found = பிழை_அகராதி.find(row.code);
        ASSERT_NE(found, பிழை_அகராதி.end()) << row.code;
        EXPECT_EQ(found->second.விளக்கம், row.meaning) << row.code;
        EXPECT_EQ(found->second.தீர்வு, row.fix) << row.code;
    }
}

TEST(Catalogue, HoldsNothingMore) {
    std::set<std::string> codes;
    for (const Row& row : readRows()) codes.insert(row.code);
    EXPECT_EQ(பிழை_அகராதி.size(), 94U);
    for (const auto& [code, texts] : பிழை_அகராதி) EXPECT_EQ(codes.count(code), 1U) << code;
}

TEST(Catalogue, StandsInTheOrderOfItsCodes) {
    const std::string header = readText(POZHIL_ROOT "/உள்ளடக்கம்/error_codes.h");
    const std::vector<Row> rows = readRows();
    std::size_t at = 0;
    for (std::size_t i = 0; i < rows.size(); i++) {
        at = header.find("{\"" + rows[i].code + "\",", at);
        ASSERT_NE(at, std::string::npos) << rows[i].code;
        if (i > 0) {
            EXPECT_LT(rows[i - 1].code, rows[i].code);
        }
    }
}

TEST(Catalogue, NamesWhoRaisesEachCode) {
    const std::set<std::string> raisers = {
        "scanner", "parser",       "scanner, parser",   "generator",
        "nothing", "emitted code", "parser, generator", "generator, emitted code"};
    for (const Row& row : readRows()) EXPECT_EQ(raisers.count(row.raisedBy), 1U) << row.code;
}

TEST(Catalogue, KeepsUnusualSpacing) {
    EXPECT_NE(entry("101").தீர்வு.find("குறியீடுகளை  மட்டும்"), std::string::npos);
    EXPECT_EQ(entry("301").விளக்கம், "பூஜ்ஜியத்தால் வகுக்க முயற்சி ");
    EXPECT_EQ(entry("402").விளக்கம், "வலைதளப் பண்புப் பிழை .");
}

TEST(Catalogue, NamesAClosingParenthesisForAMissingOpeningOne) {
    EXPECT_EQ(entry("203").விளக்கம், "எதிர்பார்க்கப்பட்ட '(' விடுபட்டுள்ளது.");
    EXPECT_EQ(entry("203").தீர்வு, "விட்ஜெட் அல்லது செயலைத் தொடங்கும்போது ')' தேவை.");
}

TEST(Catalogue, SaysTheSameOfAMissingParentTwice) {
    EXPECT_EQ(entry("272").விளக்கம், entry("323").விளக்கம்);
    EXPECT_NE(entry("272").தீர்வு, entry("323").தீர்வு);
}

TEST(Catalogue, HasGaps) {
    for (const char* number : {"100", "116", "119", "213", "404", "400", "999"}) {
        EXPECT_EQ(பிழை_அகராதி.count(std::string("பொழில்-") + number), 0U) << number;
    }
    EXPECT_EQ(பிழை_அகராதி.count("101"), 0U);
}

}  // namespace
