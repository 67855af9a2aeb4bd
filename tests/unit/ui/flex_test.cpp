// Which children of a column or a row share what is free.
#include "ui/flex.h"

#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

std::optional<int> shareOfWidget(const std::string& source) {
    const Parsed parsed = parse(source + "\n");
    return shareOf(dynamic_cast<const WidgetNode&>(*parsed.program.statements.at(0)));
}

TEST(Share, IsTakenByThreeKinds) {
    EXPECT_EQ(shareOfWidget("விரிவாக்கம்()"), 1);
    EXPECT_EQ(shareOfWidget("வெற்றிடம்()"), 1);
    EXPECT_EQ(shareOfWidget("நெகிழ்வு()"), 1);
    EXPECT_EQ(shareOfWidget("நெகிழ்வு(பங்கு: 4)"), 4);
    EXPECT_EQ(shareOfWidget("இவெ(உயரம்: 4)"), std::nullopt);
    EXPECT_EQ(shareOfWidget("நெடுவரிசை()"), std::nullopt);
}

TEST(Share, OfTheseTwoIsAlwaysOne) {
    EXPECT_EQ(shareOfWidget("விரிவாக்கம்(பங்கு: 4)"), 1);
    EXPECT_EQ(shareOfWidget("வெற்றிடம்(பங்கு: 4)"), 1);
}

TEST(Share, OfAFlexibleThatIsOneByNameOnlyIsOne) {
    const WidgetNode named("நெகிழ்வு", {}, {}, சீரமைப்பு_வகை::மேல்_இடது);
    EXPECT_EQ(shareOf(named), 1);
    EXPECT_EQ(shareText(named, kDown), "unitFlexH * 1.0f");
}

TEST(Share, IsWrittenWithItsNumberOnlyIfTheSourceGivesIt) {
    const FlexibleNode flexible(3, {});
    EXPECT_EQ(shareText(flexible, kDown), "unitFlexH * 3.0f");
    EXPECT_EQ(shareAdvance(flexible, kAcross), "(unitFlexW * 3.0f)");
    const ExpandedNode expanded{WidgetList()};
    EXPECT_EQ(shareText(expanded, kDown), "unitFlexH");
    EXPECT_EQ(shareAdvance(expanded, kAcross), "unitFlexW");
}

TEST(Origin, IsOneOfThreeTexts) {
    for (const char* place : {"0.0f", "0.0", "0"}) EXPECT_TRUE(isOrigin(place)) << place;
    for (const char* place : {"0.00f", "childX", "1", "00", ""})
        EXPECT_FALSE(isOrigin(place)) << place;
}

/// The text of the widget that `source` is.
std::string written(const std::string& source, const std::string& x, const std::string& y) {
    const Parsed parsed = parse(source + "\n");
    const Parser& parser = *parsed.parser;
    Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, "", "test.பொழில்");
    generator.generateWidgetCode(
        dynamic_cast<const WidgetNode*>(parsed.program.statements.at(0).get()), x, y);
    return generator.out.str();
}

TEST(Container, FillsTheWindowByItsXAlone) {
    const std::string fills = "if (forcedH < 0.0f) containerH = winHeight;";
    EXPECT_EQ(countOf(fills, written("நெடுவரிசை()", "0.0f", "wY")), 1);
    EXPECT_EQ(countOf(fills, written("நெடுவரிசை()", "wX", "0.0f")), 0);
    EXPECT_EQ(countOf(fills, written("கிடைவரிசை()", "0", "wY")), 1);
    EXPECT_EQ(countOf(fills, written("கிடைவரிசை()", "wX", "0.0")), 0);
}

TEST(Container, OfAColumnWritesBackWhereItsYIsAName) {
    EXPECT_EQ(countOf("    wY = currentY;\n", written("நெடுவரிசை()", "0.0f", "wY")), 1);
    for (const char* y : {"0.0f", "0.0", "0"}) {
        EXPECT_EQ(countOf(" = currentY;\n", written("நெடுவரிசை()", "wX", y)), 0) << y;
    }
    EXPECT_EQ(countOf("wY = ", written("கிடைவரிசை()", "wX", "wY")), 1) << "rowY = wY";
}

TEST(Container, TakesItsStyledNumberFirst) {
    const std::string text =
        written("நெடுவரிசை(style_அகலம்: 30, அகலம்: 20, style_உயரம்: 50%, உயரம்: 10)", "wX", "wY");
    EXPECT_EQ(countOf("containerW = 30.0f;", text), 1);
    EXPECT_EQ(countOf("containerW = 20.0f;", text), 0);
    EXPECT_EQ(countOf("containerH = 10.0f;", text), 1);
}

TEST(List, WritesAMeasureOfHalfPixelsAsTextThatDoesNotCompile) {
    const std::string text = written("பட்டியல்_காட்சி(உரை(\"அ\"))", "wX", "wY");
    EXPECT_EQ(countOf("(winWidth - 10.4.0f)", text), 1) << text;
    EXPECT_EQ(countOf("currentY += 16.0f;", text), 1) << text;
}

}  // namespace
