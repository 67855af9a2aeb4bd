// Small applications, and beside each the whole text that its page's widgets become.
#include <gtest/gtest.h>

#include "support/case_files.h"
#include "support/generated_text.h"

namespace {

/// What the widgets of the first application become. Its logic is visited before, as in a whole
/// file: what is known of a variable comes from there.
std::string widgetText(const std::string& source) {
    const Parsed parsed = parse(source);
    const Parser& parser = *parsed.parser;
    Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, source, "test.பொழில்");
    for (const auto& statement : parsed.program.statements) {
        const auto* app = dynamic_cast<const WebAppNode*>(statement.get());
        if (app == nullptr) continue;
        generator.generateLogic(app->logic.get());
        generator.out.str("");
        generator.generateUI(app->body.get());
        return generator.out.str();
    }
    ADD_FAILURE() << "no application";
    return "";
}

const bool registered = [] {
    registerCases("widgets", ".block", [](const CaseFile& file) {
        expectGolden(file, widgetText(readText(file.source)));
    });
    return true;
}();

/// A misspelt ending would make no case and fail nothing.
TEST(Case, finds_nothing_else) {
    EXPECT_EQ(findStrayFiles("widgets", ".block"), std::vector<std::string>{});
}

}  // namespace
