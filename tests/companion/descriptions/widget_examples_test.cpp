// The applications that the descriptions show: nothing is wrong in them, and they show the word.
#include <gtest/gtest.h>

#include <set>

#include "companion/check/check.h"
#include "companion/descriptions/description.h"

namespace {

using companion::Description;

bool withoutModules(const std::string&, std::string&) { return false; }

TEST(WidgetExamples, ShowTheirWord) {
    for (const Description& each : companion::widgetDescriptions()) {
        EXPECT_NE(each.example.find(each.word), std::string_view::npos) << each.word;
    }
}

TEST(WidgetExamples, AreRight) {
    std::set<std::string_view> seen;
    for (const Description& each : companion::widgetDescriptions()) {
        if (!seen.insert(each.example).second) continue;
        const companion::SourceText source("காட்டு.பொழில்", std::string(each.example));
        const companion::CompiledSource compiled(source, withoutModules);
        EXPECT_TRUE(compiled.isParsed()) << each.word;
        if (compiled.refused) ADD_FAILURE() << each.word << ": " << compiled.refused->message;
        for (const auto& finding : companion::checkSource(source, withoutModules)) {
            if (finding.severity == companion::Severity::Hint) continue;
            ADD_FAILURE() << each.word << ": " << finding.line << ": " << finding.message;
        }
    }
    EXPECT_GT(seen.size(), 10U);
}

}  // namespace
