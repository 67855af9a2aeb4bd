// What stands around every widget in the generated text.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// The text of the widget that `source` is, at (wX, wY).
std::string frameOf(const std::string& source) {
    const Parsed parsed = parse(source + "\n");
    const Parser& parser = *parsed.parser;
    Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, "", "test.பொழில்");
    generator.generateWidgetCode(
        dynamic_cast<const WidgetNode*>(parsed.program.statements.at(0).get()), "wX", "wY");
    return generator.out.str();
}

bool hasPart(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(WidgetFrame, RegistersAPlaceBeforeTheVisibility) {
    const std::string text = frameOf("வெற்றிடம்(அடையாளம்: \"அ\", காட்சி_பெயர்: \"நி\")");
    EXPECT_EQ(text.rfind("{\n"
                         "    std::string _wid = fn_any_to_string(std::string(u8\"அ\"));\n"
                         "    if (!_wid.empty()) g_widgetPositions[_wid] = {(float)(wX), "
                         "(float)(wY)};\n"
                         "}\n"
                         "// --- Visibility Check for: நி ---\n"
                         "g_alert_names.insert(\"நி\");\n",
                         0),
              0U)
        << text;
}

TEST(WidgetFrame, ShowsAnythingUntilItsFlagIsCleared) {
    EXPECT_EQ(frameOf("வெற்றிடம்(காட்சி_பெயர்: \"நி\")"),
              "// --- Visibility Check for: நி ---\n"
              "g_alert_names.insert(\"நி\");\n"
              "if (global_vars.find(\"நி\") == global_vars.end() || "
              "(global_vars[\"நி\"].type() == typeid(bool) && "
              "std::any_cast<bool>(global_vars[\"நி\"]) == true)) {\n"
              "} // End Visibility Check for நி\n");
}

TEST(WidgetFrame, HidesAWarningUntilItsFlagIsSet) {
    const std::string text = frameOf("எச்சரிக்கை(காட்சி_பெயர்: \"நி\")");
    EXPECT_EQ(text.rfind("// --- Visibility Check for: நி ---\n"
                         "g_alert_names.insert(\"நி\");\n"
                         "if (global_vars.count(\"நி\") && global_vars[\"நி\"].type() == "
                         "typeid(bool) && std::any_cast<bool>(global_vars[\"நி\"]) == true) {\n"
                         "    [&] {\n"
                         "        g_overlays.push_back(",
                         0),
              0U)
        << text;
    const std::string end = "    }();\n} // End Visibility Check for நி\n";
    EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST(WidgetFrame, HasNoGateForANameThatIsNoLiteral) {
    EXPECT_EQ(frameOf("வெற்றிடம்(காட்சி_பெயர்: நி)"), "");
}

TEST(WidgetFrame, GivesAShareItsFirstChildAtTheSamePlace) {
    std::string alone = frameOf("தேர்வுபெட்டி()");
    for (std::size_t at = 0; (at = alone.find("checked_1", at)) != std::string::npos;) {
        alone.replace(at, 9, "checked_2");
    }
    EXPECT_EQ(frameOf("விரிவாக்கம்(தேர்வுபெட்டி())"), alone);
    EXPECT_EQ(frameOf("நெகிழ்வு(பங்கு: 2, தேர்வுபெட்டி())"), alone);
    EXPECT_EQ(frameOf("விரிவாக்கம்()"), "");
}

TEST(WidgetFrame, LeavesASpaceToItsParent) {
    EXPECT_EQ(frameOf("இவெ(உயரம்: 5)"), "// இவெ (Spacer) - Space reserved\n");
    EXPECT_EQ(frameOf("வெற்றிடம்()"), "");
}

TEST(WidgetFrame, WritesNothingForAnUnknownName) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    const WidgetNode unknown("அறியாதது", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    generator.generateWidgetCode(&unknown, "wX", "wY");
    EXPECT_EQ(generator.out.str(), "");
}

TEST(WidgetFrame, IsInertByAPropertyWhateverItsValue) {
    for (const std::string value : {"மெய்", "பொய்"}) {
        const std::string text = frameOf("தேர்வுபெட்டி(செயலிழப்பு: " + value + ")");
        EXPECT_FALSE(hasPart(text, "g_mouseClicked"));
        EXPECT_FALSE(hasPart(text, "cursor"));
    }
    EXPECT_TRUE(hasPart(frameOf("தேர்வுபெட்டி()"), "g_mouseClicked"));
}

TEST(WidgetFrame, NumbersWidgetsInTheOrderOfTheSource) {
    const std::string text = frameOf("நெடுவரிசை(தேர்வுபெட்டி(), தேர்வுபெட்டி())");
    EXPECT_TRUE(hasPart(text, "static bool checked_2 = false;"));
    EXPECT_TRUE(hasPart(text, "static bool checked_3 = false;"));
}

TEST(WidgetFrame, WritesAWidgetThatIsAValueAtThePagesOrigin) {
    const std::string text = generate("அ = உரை(\"ஆ\")\n");
    EXPECT_TRUE(hasPart(text, "float textX = 0.0f;\n"));
    EXPECT_TRUE(hasPart(text, "float textY = 0.0f;\n"));
}

}  // namespace
