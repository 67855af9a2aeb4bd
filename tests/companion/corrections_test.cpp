// What a finding says to write instead: once it is written, the finding is gone.
#include "companion/check/corrections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "companion/check/check.h"
#include "support/case_files.h"

namespace {

using companion::Finding;

bool findNoModule(const std::string&, std::string&) { return false; }

std::vector<Finding> findingsOf(const std::string& text) {
    const companion::SourceText source("நிரல்", text);
    return companion::checkSource(source, findNoModule);
}

std::string corrected(const std::string& text, const companion::Correction& correction) {
    const companion::Range range = correction.range;
    return text.substr(0, range.begin) + correction.text + text.substr(range.end);
}

/// The text behind the first correction of a finding with that code; "" if there is none.
std::string correctedOf(const std::string& text, const std::string& code) {
    for (const Finding& finding : findingsOf(text)) {
        if (finding.code == code && finding.correction) {
            return corrected(text, *finding.correction);
        }
    }
    return "";
}

struct CorrectedSource {
    const char* code;
    const char* wrong;
    const char* right;
};

const CorrectedSource kCorrected[] = {
    {"பொழில்-113", "சுற்றி 1 சிறிது 2:\n    விடு\n", "சுற்று 1 சிறிது 2:\n    விடு\n"},
    {"பொழில்-112", "அச்சி டு(1)\n", "அச்சிடு(1)\n"},
    {"பொழில்-202", "எனில் மெய்\n    விடு\n", "எனில் மெய்:\n    விடு\n"},
    {"பொழில்-203", "செயல் பாடு:\n    விடு\n", "செயல் பாடு():\n    விடு\n"},
    {"பொழில்-204", "அச்சிடு(\"அ\"\n", "அச்சிடு(\"அ\")\n"},
    {"பொழில்-204", "எனில் (1 சிறிது 2:\n    விடு\n", "எனில் (1 சிறிது 2):\n    விடு\n"},
    {"பொழில்-205", "வரிசை = [1, 2\n", "வரிசை = [1, 2]\n"},
    {"துணை-101", "\xEF\xBB\xBFஅச்சிடு(1)\n", "அச்சிடு(1)\n"},
    {"துணை-105", "எனில் மெய்:\n\tஅச்சிடு(1)\n", "எனில் மெய்:\n    அச்சிடு(1)\n"},
    {"துணை-105", "எனில் மெய்:\n  \tஅச்சிடு(1)\n", "எனில் மெய்:\n    அச்சிடு(1)\n"},
    {"துணை-107", "அச்\u200B\u200Bசிடு(1)\n", "அச்சிடு(1)\n"},
    {"துணை-108", "அச்சிடு(1,\u00A0\u00A02)\n", "அச்சிடு(1, 2)\n"},
    {"துணை-110", "அச்சிடு（1)\n", "அச்சிடு(1)\n"},
    {"துணை-112", "அச்சிடு(“வணக்கம்”)\n", "அச்சிடு(\"வணக்கம்\")\n"},
    {"துணை-112", "அச்சிடு(`வணக்கம்`)\n", "அச்சிடு(\"வணக்கம்\")\n"},
    {"துணை-115", "எண்ணி = 1\nஅச்சிடு(எண்ணி+1)\n", "எண்ணி = 1\nஅச்சிடு(எண்ணி கூட்டு 1)\n"},
    {"துணை-116", "// குறிப்பு\n", "ஃ குறிப்பு\n"},
    {"துணை-118", "அச்சிடு(மதிப்புஃ)\n", "அச்சிடு(மதிப்பு ஃ)\n"},
    {"துணை-202", "அச்சிடு(len(\"அ\"))\n", "அச்சிடு(நீளம்(\"அ\"))\n"},
    {"துணை-217", "print \"அ\"\n", "அச்சிடு \"அ\"\n"},
    {"துணை-501", "எண்ணிக்கை = 1\nஅச்சிடு(எண்ணிகை)\n", "எண்ணிக்கை = 1\nஅச்சிடு(எண்ணிக்கை)\n"},
};

TEST(Corrections, WriteWhatWasMeant) {
    for (const CorrectedSource& source : kCorrected) {
        EXPECT_EQ(correctedOf(source.wrong, source.code), source.right) << source.code << "\n"
                                                                        << source.wrong;
    }
}

/// Nobody knows what was meant.
TEST(Corrections, AreLeftOutWhereSeveralAreMeant) {
    for (const char* text : {
             "அச்சிடு(\"அ\" \"ஆ\")\n",  // a comma, or a word between
             "எண்ணி = (1 எனில் மெய்\n",   // a ternary without its other branch
             "அச்சிடு(“வணக்கம்)\n",       // a quote that nothing closes
             "/* குறிப்பு */\n",        // a comment that would end elsewhere
         }) {
        for (const Finding& finding : findingsOf(text)) {
            EXPECT_FALSE(finding.correction) << finding.code << "\n" << text;
        }
    }
}

TEST(Corrections, TakeTheFindingAway) {
    int tried = 0;
    for (const char* lane : {"companion/rules", "companion/mistakes", "diagnostics"}) {
        for (const CaseFile& file : findCases(lane, ".none")) {
            const std::string text = readText(file.source);
            for (const Finding& finding : findingsOf(text)) {
                if (!finding.correction) continue;
                tried++;
                const std::string behind = corrected(text, *finding.correction);
                for (const Finding& left : findingsOf(behind)) {
                    const bool isSame = left.code == finding.code &&
                                        left.range.begin == finding.range.begin &&
                                        left.message == finding.message;
                    EXPECT_FALSE(isSame) << file.source << " " << finding.code << "\n" << behind;
                }
            }
        }
    }
    EXPECT_GT(tried, 100);
}

TEST(Corrections, StandWhereTheFindingStands) {
    const std::string text = "அ = 1\n  அச்சிடு(௧௨கண்)\n";
    for (const Finding& finding : findingsOf(text)) {
        EXPECT_LE(finding.range.begin, finding.range.end);
        EXPECT_LE(finding.range.end, text.size());
        const companion::Place begin =
            companion::SourceText("நிரல்", text).placeOf(finding.range.begin);
        EXPECT_EQ(begin.line, finding.line);
        EXPECT_EQ(begin.column, finding.column);
    }
}

}  // namespace
