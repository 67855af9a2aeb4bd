// The page of all rules, docs/துணை_விதிகள்.md, is made from the tables and the cases: a rule, its
// words, a program that is wrong and one that is right. POZHIL_REWRITE=1 makes it anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "companion/check/finding_texts.h"
#include "companion/check/rules.h"
#include "support/case_files.h"

namespace {

namespace fs = std::filesystem;

struct Family {
    char digit;  ///< The first of the three behind "துணை-".
    const char* title;
};
const Family kFamilies[] = {
    {'1', "கண்ணுக்குத் தெரியாத குறிகள்"},      {'2', "பொழில் மறுப்பவை"},
    {'3', "C++ தொகுப்பான் மறுப்பவை"},         {'4', "ஓடும் நிரலை நிறுத்துபவை"},
    {'5', "ஓடும், ஆனால் தவறான விடை தருபவை"}, {'6', "உதவும் குறிப்புகள்"},
};

const char* severityWord(companion::Severity severity) {
    if (severity == companion::Severity::Error) return "பிழை";
    return severity == companion::Severity::Warning ? "எச்சரிக்கை" : "குறிப்பு";
}

/// The message with an ellipsis for what each source brings.
std::string openMessage(const companion::Rule& rule) {
    return companion::messageOf(rule, std::vector<std::string>(10, "…"));
}

std::string fileName(const CaseFile& file) { return fs::u8path(file.source).filename().u8string(); }

/// The first program of the rule that is right, or that is wrong; null without one.
const CaseFile* programOf(const std::vector<CaseFile>& cases, const companion::Rule& rule,
                          bool isRight) {
    for (const CaseFile& file : cases) {
        const std::string folder = fs::u8path(file.source).parent_path().filename().u8string();
        if (folder == rule.code && (fileName(file).rfind("right", 0) == 0) == isRight) return &file;
    }
    return nullptr;
}

/// The fence that closes the program begins a line of its own.
std::string endedByALine(const std::string& text) {
    return text.empty() || text.back() == '\n' ? text : text + "\n";
}

void writeProgram(std::ostream& page, const char* title, const companion::Rule& rule,
                  const CaseFile* file) {
    if (file == nullptr) return;
    page << title << " ([" << fileName(*file) << "](../tests/companion/rules/" << rule.code << "/"
         << fileName(*file) << ")):\n\n```\n"
         << endedByALine(readText(file->source)) << "```\n\n";
}

void writeRule(std::ostream& page, const companion::Rule& rule,
               const std::vector<CaseFile>& cases) {
    page << "### " << rule.code << "\n\n"
         << severityWord(rule.severity) << ": " << openMessage(rule) << "\n\n";
    writeProgram(page, "தவறு", rule, programOf(cases, rule, false));
    writeProgram(page, "சரி", rule, programOf(cases, rule, true));
}

std::string rulesPage() {
    const std::vector<CaseFile> cases = findCases("companion/rules", ".findings");
    std::ostringstream page;
    page << "# துணையின் விதிகள்\n\n"
            "`பொழில்-துணை சரிபார் நிரல்.பொழில்` கண்டுபிடிப்பவை எல்லாம். ஒவ்வொன்றும் ஓர் எண்ணால் அழைக்கப்படும்; "
            "தெரிந்தே எழுதிய வரியில்\nஎச்சரிக்கை வேண்டாம் என்றால், அந்த வரியின் முடிவில் "
            "`ஃ துணை-516` போல எண்ணை எழுது. '…' உள்ள இடத்தில் உன் நிரலின்\nசொல் வரும்.\n\n";
    for (const Family& family : kFamilies) {
        page << "## " << family.title << "\n\n";
        for (const companion::Rule& rule : companion::allRules()) {
            if (rule.code[rule.code.size() - 3] == family.digit) writeRule(page, rule, cases);
        }
    }
    page << "## நீக்கப்பட்ட தவறான எச்சரிக்கைகள்\n\n"
            "சரியான நிரல்களில் வந்த எச்சரிக்கைகளும், அவை எப்படி நீக்கப்பட்டன என்பதும்.\n\n"
         << readText(POZHIL_ROOT "/tests/companion/false_alarms.md");
    return page.str();
}

TEST(RulesPage, IsMadeFromTheTables) {
    expectGolden({"rules_page", "", POZHIL_ROOT "/docs/துணை_விதிகள்.md"}, rulesPage());
}

TEST(RulesPage, HasAFamilyForEachRule) {
    for (const companion::Rule& rule : companion::allRules()) {
        EXPECT_TRUE(std::any_of(
            std::begin(kFamilies), std::end(kFamilies),
            [&](const auto& family) { return rule.code[rule.code.size() - 3] == family.digit; }))
            << rule.code;
    }
}

}  // namespace
