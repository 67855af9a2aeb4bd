// Containers by a pattern, and what lies between widgets: what the native tests of their texts
// can't show.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// The text of a widget at a place.
std::string written(const WidgetNode& widget, const std::string& x, const std::string& y) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "test.பொழில்");
    generator.generateWidgetCode(&widget, x, y);
    return generator.out.str();
}

std::string written(const std::string& source) {
    const Parsed parsed = parse(source + "\n");
    return written(dynamic_cast<const WidgetNode&>(*parsed.program.statements.at(0)), "wX", "wY");
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

WidgetNode node(const char* name) { return {name, {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false}; }

void setNumber(WidgetNode& widget, const char* key, const char* digits) {
    widget.properties[key] = std::make_unique<NumberLiteral>(digits);
}

TEST(Wrap, TellsItsEndToAPlaceThatIsAVariable) {
    const WidgetNode wrap = node("மடிப்பு");
    EXPECT_TRUE(contains(written(wrap, "wX", "wY"), "    wY = curY + rowMaxH + spacing;\n}();\n"));
    for (const char* literal : {"0.0f", "0", "0.0"}) {
        EXPECT_FALSE(contains(written(wrap, "wX", literal), "= curY + ")) << literal;
    }
}

TEST(Grid, DrawsTwoColumnsWhereItsMeasureHasThree) {
    const std::string text = written("கட்டம்_காட்சி()(தேர்வுபெட்டி())");
    EXPECT_TRUE(contains(text, "    int cols = 2;\n"));
    EXPECT_TRUE(contains(text, "    float gW = 92.000f;\n"));
}

TEST(Grid, TakesItsColumnsFromEitherKey) {
    WidgetNode grid = node("கட்டம்_காட்சி");
    setNumber(grid, "குறுக்கு_எண்ணிக்கை", "5");
    EXPECT_TRUE(contains(written(grid, "wX", "wY"), "    int cols = 5;\n"));
    setNumber(grid, "cols", "4");
    EXPECT_TRUE(contains(written(grid, "wX", "wY"), "    int cols = 4;\n"));
}

TEST(Grid, TakesItsWidthFromEitherKey) {
    WidgetNode grid = node("கட்டம்_காட்சி");
    setNumber(grid, "அகலம்", "500");
    EXPECT_TRUE(contains(written(grid, "wX", "wY"), "    float gW = 500.0f;\n"));
    setNumber(grid, "width", "400");
    EXPECT_TRUE(contains(written(grid, "wX", "wY"), "    float gW = 400.0f;\n"));
}

TEST(Grid, TakesTheLastOfItsGaps) {
    WidgetNode grid = node("கட்டம்_காட்சி");
    const auto gaps = [&grid](const char* across, const char* down) {
        const std::string text = written(grid, "wX", "wY");
        return contains(text, "    float gapH = " + std::string(across) +
                                  ";\n    float gapV = " + down + ";\n");
    };
    EXPECT_TRUE(gaps("10.0f", "10.0f"));
    setNumber(grid, "h_gap", "1");
    setNumber(grid, "v_gap", "2");
    EXPECT_TRUE(gaps("1.0f", "2.0f"));
    setNumber(grid, "கி_இவெ", "3");
    setNumber(grid, "நெ_இவெ", "4");
    EXPECT_TRUE(gaps("3.0f", "4.0f"));
}

TEST(Grid, LooksForItsGapInSpacesAlone) {
    const std::string text = written("கட்டம்_காட்சி(இடைவெளி: படம்(அகலம்: 20, உயரம்: 30))()");
    EXPECT_TRUE(contains(text, "    float gapH = 10.0f;\n    float gapV = 10.0f;\n"));
}

TEST(Grid, OfNoColumnsIsRefusedWhateverElseItSays) {
    EXPECT_THROW(written("கட்டம்_காட்சி(cols: 0, அகலம்: 100)(தேர்வுபெட்டி())"), std::runtime_error);
}

// The text of a number with a point doesn't compile.
TEST(Divider, HasAThicknessOfWholePixels) {
    WidgetNode divider = node("பிரிப்பான்");
    EXPECT_TRUE(contains(written(divider, "wX", "wY"), "    float thickness = 1.0f;\n"));
    setNumber(divider, "தடிமன்", "4");
    EXPECT_TRUE(contains(written(divider, "wX", "wY"), "    float thickness = 4.0f;\n"));
    setNumber(divider, "style_தடிமன்", "2.5");
    EXPECT_TRUE(contains(written(divider, "wX", "wY"), "    float thickness = 2.5.0f;\n"));
}

TEST(Padding, OfASourceHasANameThatIsNotDrawn) {
    EXPECT_EQ(written("உள்_இவெ()(தேர்வுபெட்டி())"), "");
    EXPECT_EQ(written("உள்_இவே()(தேர்வுபெட்டி())"), "");
}

TEST(Padding, OfTheDrawnNameMovesItsChildren) {
    WidgetNode padding = node("உள்_இவெ");
    padding.children.push_back(std::make_unique<WidgetNode>(node("இவெ")));
    padding.children.push_back(std::make_unique<WidgetNode>(node("இவெ")));
    const auto text = [](const std::string& size) {
        return "[&] {\n"
               "    // Inside another block the place is named like the locals below.\n"
               "    float paddedX = wX;\n"
               "    float paddedY = wY;\n"
               "    {\n"
               "        float childX = paddedX + " +
               size +
               ";\n"
               "        float childY = paddedY + " +
               size +
               ";\n"
               "        // இவெ (Spacer) - Space reserved\n"
               "        // இவெ (Spacer) - Space reserved\n"
               "    }\n"
               "}();\n";
    };
    EXPECT_EQ(written(padding, "wX", "wY"), text("0.0f"));
    setNumber(padding, "அளவு", "8");
    EXPECT_EQ(written(padding, "wX", "wY"), text("8.0f"));
    setNumber(padding, "அளவு", "2.5");
    EXPECT_EQ(written(padding, "wX", "wY"), text("2.5.0f"));
}

}  // namespace
