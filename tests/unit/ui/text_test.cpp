// What a text shows, by the form of its value. Whole blocks stand in tests/widgets/text.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// What stands in the text between the brackets of its conversion.
std::string contentOf(const std::string& value) {
    const Parsed parsed = parse("நே = இப்போதுநேரம்()\nஅளவு_அ = 5\nஉரை(" + value + ")\n");
    const Parser& parser = *parsed.parser;
    Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, "", "test.பொழில்");
    for (int i = 0; i < 2; i++) generator.visitStatement(parsed.program.statements.at(i).get());
    generator.out.str("");
    generator.generateWidgetCode(
        dynamic_cast<const WidgetNode*>(parsed.program.statements.at(2).get()), "wX", "wY");
    const std::string text = generator.out.str();
    const std::string head = "std::string textContent = fn_any_to_string(";
    const std::size_t begin = text.find(head) + head.size();
    return text.substr(begin, text.find(");\n", begin) - begin);
}

TEST(TextContent, OfTheViewsStateIsAGlobal) {
    EXPECT_EQ(contentOf("காட்சி_நிலை.பெயர்"), "global_vars[\"பெயர்\"]");
}

TEST(TextContent, OfAnyOtherMemberIsAnExpression) {
    EXPECT_EQ(contentOf("நே.ஆண்டு"), "std::any_cast<std::tm*>(global_vars[\"நே\"])->tm_year + 1900");
}

TEST(TextContent, OfAVariableIsAGlobal) {
    EXPECT_EQ(contentOf("அளவு_அ"), "global_vars[\"அளவு_அ\"]");
}

TEST(TextContent, OfAWidgetIsThatWidgetsText) {
    EXPECT_EQ(contentOf("உரை: உரை(\"உள்ளே\")"), "std::string(u8\"உள்ளே\")");
    EXPECT_EQ(contentOf("உரை: உரை(அளவு_அ)"), "global_vars[\"அளவு_அ\"]");
    EXPECT_EQ(contentOf("உரை: பெட்டி()"), "std::string(u8\"[விட்ஜெட்]\")");
}

TEST(TextContent, OfAnythingElseIsAnExpression) {
    EXPECT_EQ(contentOf("\"அ\""), "std::string(u8\"அ\")");
    EXPECT_EQ(contentOf("5"), "5LL");
    EXPECT_EQ(contentOf("மெய்"), "true");
}

TEST(TextContent, OfNothingIsEmpty) { EXPECT_EQ(contentOf(""), "std::string(\"\")"); }

}  // namespace
