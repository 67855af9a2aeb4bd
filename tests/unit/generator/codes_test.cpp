// Each code that the generator or the emitted text raises is shown by a whole report.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

using Codes = std::set<std::string>;

/// The numbers of the codes that the catalogue gives to `raiser`.
Codes codesRaisedBy(const std::string& raiser) {
    std::istringstream lines(readText(POZHIL_ROOT "/tests/catalogue/catalogue.tsv"));
    Codes codes;
    for (std::string line; std::getline(lines, line);) {
        const std::string code = line.substr(0, line.find('\t'));
        const std::string raisers = line.substr(line.rfind('\t') + 1);
        if (raisers.find(raiser) != std::string::npos) codes.insert(code.substr(code.size() - 3));
    }
    return codes;
}

const std::map<std::string, std::string> kWithoutReport = {
    {"323", "the parser refuses an unknown parent first"},
    {"332", "thrown without a line"},
    {"399", "thrown without a line"},
};

TEST(GeneratorCodes, HaveAReport) {
    const Codes codes = codesRaisedBy("generator");
    EXPECT_GE(codes.size(), 15U);
    for (const std::string& code : codes) {
        const bool shown = fs::exists(fs::u8path(POZHIL_ROOT "/tests/diagnostics/" + code));
        EXPECT_NE(shown, kWithoutReport.count(code) != 0) << code;
    }
}

const std::map<std::string, std::string> kWithoutBox = {
    {"382", "takes all memory: shown by a test of its own"},
    {"399", "raised by no console program"},
};

TEST(EmittedCodes, HaveABox) {
    Codes shown;
    for (const CaseFile& file : findCases("programs/boxes", ".out")) {
        shown.insert(file.name.substr(0, 3));
    }
    const Codes codes = codesRaisedBy("emitted code");
    EXPECT_GE(codes.size(), 14U);
    for (const std::string& code : codes) {
        EXPECT_NE(shown.count(code) != 0, kWithoutBox.count(code) != 0) << code;
    }
}

}  // namespace
