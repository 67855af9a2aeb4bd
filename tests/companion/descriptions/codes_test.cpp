// The codes: each of the catalogue is described, its wrong program meets that very code, and the
// same program put right is taken.
#include "companion/descriptions/codes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "companion/check/compiled_source.h"
#include "error_codes.h"
#include "shown.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

using companion::CodeDescription;
using companion::codeDescriptions;
using companion::CodeMoment;

const std::string kCompilersPrefix = "பொழில்-";

/// The grammar names them, and another refusal is always there before.
const std::set<std::string> kNeverReached = {"241", "242", "243", "244", "323"};

std::set<std::string> codesThatNothingRaises() {
    std::istringstream lines(readText(POZHIL_ROOT "/tests/catalogue/catalogue.tsv"));
    std::set<std::string> codes = kNeverReached;
    for (std::string line; std::getline(lines, line);) {
        if (line.substr(line.rfind('\t') + 1) != "nothing") continue;
        codes.insert(line.substr(kCompilersPrefix.size(), 3));
    }
    return codes;
}

TEST(CodeDescriptions, AreThoseOfTheCatalogueInOrder) {
    std::set<std::string> described;
    std::string last;
    for (const CodeDescription& code : codeDescriptions()) {
        const std::string name = kCompilersPrefix + std::string(code.digits);
        EXPECT_LT(last, name);
        last = name;
        EXPECT_EQ(பிழை_அகராதி.count(name), 1U) << name;
        described.insert(name);
    }
    EXPECT_EQ(described.size(), பிழை_அகராதி.size());
}

TEST(CodeDescriptions, DifferInWhatTheyTell) {
    std::set<std::string_view> texts;
    for (const CodeDescription& code : codeDescriptions()) {
        EXPECT_FALSE(code.text.empty()) << code.digits;
        const bool isNew = texts.insert(code.text).second;
        EXPECT_TRUE(isNew || code.moment == CodeMoment::Never) << code.digits;
    }
}

TEST(CodeDescriptions, SayWhichCodesNothingRaisesAndShowTheReportsOfOthers) {
    std::set<std::string> never;
    for (const CodeDescription& code : codeDescriptions()) {
        if (code.moment == CodeMoment::Never) never.insert(std::string(code.digits));
        EXPECT_EQ(code.wrong.empty(), code.moment == CodeMoment::Never) << code.digits;
        EXPECT_EQ(code.right.empty(), code.moment == CodeMoment::Never) << code.digits;
        const bool isReported =
            code.moment == CodeMoment::Reading || code.moment == CodeMoment::Running;
        EXPECT_EQ(
            code.report.find(kCompilersPrefix + std::string(code.digits)) != std::string_view::npos,
            isReported)
            << code.digits << "\n"
            << code.report;
    }
    EXPECT_EQ(never, codesThatNothingRaises());
}

TEST(CodeDescriptions, HaveProgramsThatMeetTheCode) {
    int refused = 0;
    for (const CodeDescription& code : codeDescriptions()) {
        if (code.moment == CodeMoment::Never) continue;
        const companion::SourceText source("நிரல்.பொழில்", std::string(code.wrong));
        const companion::CompiledSource compiled(source, readAtRoot);
        const std::string name = kCompilersPrefix + std::string(code.digits);
        if (code.moment == CodeMoment::Running) {
            EXPECT_FALSE(compiled.refused) << name << " " << compiled.refused->code;
            continue;
        }
        refused++;
        ASSERT_TRUE(compiled.refused) << name;
        if (code.moment == CodeMoment::Unshown) {
            EXPECT_EQ(compiled.refused->code, "") << name;
            EXPECT_EQ(compiled.refused->message.rfind(name, 0), 0U) << compiled.refused->message;
        } else {
            EXPECT_EQ(compiled.refused->code, name);
        }
    }
    EXPECT_GT(refused, 50);
}

TEST(CodeDescriptions, HaveProgramsPutRight) {
    for (const CodeDescription& code : codeDescriptions()) {
        EXPECT_EQ(errorsOfCheck(code.right), "") << code.digits << "\n" << code.right;
        EXPECT_EQ(code.wrong == code.right, code.moment == CodeMoment::Never) << code.digits;
    }
}

TEST(CodeDescriptions, UseAllFoldersOfPrograms) {
    std::set<std::string> described;
    for (const CodeDescription& code : codeDescriptions()) {
        if (!code.wrong.empty()) described.insert(std::string(code.digits));
    }
    std::set<std::string> folders;
    const fs::path codes = fs::u8path(POZHIL_ROOT "/src/companion/descriptions/codes");
    for (const auto& entry : fs::directory_iterator(codes)) {
        folders.insert(entry.path().filename().u8string());
    }
    EXPECT_EQ(folders, described);
}

}  // namespace
