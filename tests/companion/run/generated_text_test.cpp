// Which line of the source a line of the C++ text comes from.
#include "companion/run/generated_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "generator/generator.h"

namespace {

using companion::CompiledSource;
using companion::GeneratedText;
using companion::SourceText;

bool noModules(const std::string&, std::string&) { return false; }

bool oneModule(const std::string& path, std::string& text) {
    text = "செயல் இரட்டை(அ):\n    திரும்பு அ கூட்டு அ\n";
    return path == "நூல்.பொழில்";
}

GeneratedText generatedTextOf(const std::string& text,
                              const companion::ModuleReader& read = noModules) {
    const SourceText source("a.பொழில்", text);
    const CompiledSource compiled(source, read);
    return companion::generateText(compiled);
}

/// The line of the text in which `fragment` stands first, counted from 1.
int lineWith(const GeneratedText& generated, const std::string& fragment) {
    const std::size_t at = generated.text.rfind(fragment);
    EXPECT_NE(at, std::string::npos) << fragment;
    if (at == std::string::npos) return 0;
    const auto end = generated.text.begin() + static_cast<std::ptrdiff_t>(at);
    return static_cast<int>(std::count(generated.text.begin(), end, '\n')) + 1;
}

int sourceLineWith(const GeneratedText& generated, const std::string& fragment) {
    return generated.sourceLineOf(lineWith(generated, fragment));
}

TEST(GeneratedText, IsThatOfTheCompiler) {
    const std::string text = "கட்டமைப்பு கருவி:\n    x = 1\nக = கருவி()\nஅச்சிடு(க.x)\n";
    const SourceText source("a.பொழில்", text);
    const CompiledSource compiled(source, noModules);
    Generator generator(compiled.program, compiled.parser->functionParameters,
                        compiled.parser->structDefinitions,
                        compiled.parser->abstractStructDefinitions, text, "a.பொழில்");
    EXPECT_EQ(companion::generateText(compiled).text, generator.generate());
}

TEST(GeneratedText, KnowsTheLineOfEachStatement) {
    const GeneratedText generated =
        generatedTextOf("அச்சிடு(\"ஒன்று\")\n\nஃ குறிப்பு\nஅச்சிடு(\"நான்கு\")\n");
    EXPECT_EQ(sourceLineWith(generated, "ஒன்று"), 1);
    EXPECT_EQ(sourceLineWith(generated, "நான்கு"), 4);
}

TEST(GeneratedText, KnowsConditionsBehindABlock) {
    const GeneratedText generated = generatedTextOf(
        "x = 1\nஎனில் x சமம் 77:\n    அச்சிடு(1)\nஇல்லைஎனில் x சமம் 88:\n    அச்சிடு(2)\n");
    EXPECT_EQ(sourceLineWith(generated, "77LL"), 2);
    EXPECT_EQ(sourceLineWith(generated, "88LL"), 4);
}

TEST(GeneratedText, TakesTheFirstLineOfAnExpressionOverSeveral) {
    const GeneratedText generated =
        generatedTextOf("x = 0\nஅ = {\"க\": 77,\n    \"ச\": 88,\n    \"ட\": 99}\n");
    EXPECT_EQ(sourceLineWith(generated, "99LL"), 2);
}

TEST(GeneratedText, KnowsTheHeadsOfFunctionsStructuresAndMethods) {
    const GeneratedText generated = generatedTextOf(
        "அச்சிடு(1)\nசெயல் முதல்(அ):\n    திரும்பு அ\nசெயல் அடுத்தது(அ):\n    திரும்பு அ\n"
        "கட்டமைப்பு கருவி:\n    x = 1\n    செயல் ஓடு(தான்):\n        திரும்பு 1\nக = கருவி()\n");
    EXPECT_EQ(sourceLineWith(generated, "std::any fn_அடுத்தது("), 4);
    EXPECT_EQ(sourceLineWith(generated, "struct கருவி"), 6);
    EXPECT_EQ(sourceLineWith(generated, "properties[\"ஓடு\"]"), 8);
    EXPECT_EQ(sourceLineWith(generated, "make_shared<கருவி>"), 10);
}

TEST(GeneratedText, KnowsNoLineOfWhatTheSourceDidNotBring) {
    const GeneratedText generated =
        generatedTextOf("அச்சிடு(1)\nநூஇறக்கி \"நூல்\"\nஅச்சிடு(இரட்டை(2))\n", oneModule);
    EXPECT_EQ(generated.sourceLineOf(1), 0);
    EXPECT_EQ(sourceLineWith(generated, "std::any fn_இரட்டை("), 0);
    EXPECT_EQ(sourceLineWith(generated, "fn_இரட்டை(std::any(2LL))"), 3);
    EXPECT_EQ(generated.sourceLineOf(0), 0);
    EXPECT_EQ(generated.sourceLineOf(1'000'000), 0);
}

}  // namespace
