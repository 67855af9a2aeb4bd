// What ends a line of a list: no source can write its word, of which the scanner refuses a letter.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

std::unique_ptr<WidgetNode> switchNode() {
    return std::make_unique<WidgetNode>("மாற்றி", PropertyMap(), WidgetList(),
                                        சீரமைப்பு_வகை::மேல்_இடது);
}

std::string textOf(const WidgetNode& widget) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    generator.generateWidgetCode(&widget, "wX", "wY");
    return generator.out.str();
}

TEST(ListTileText, HoldsWhatEndsItByItsMeasure) {
    WidgetNode tile{"பட்டியல்_உருப்படி", {}, {}, சீரமைப்பு_வகை::மேல்_இடது};
    EXPECT_EQ(textOf(tile).find("trailX"), std::string::npos);
    tile.properties["பின்னணி_விட்ஜெட்"] = std::make_unique<WidgetExpression>(switchNode());
    const std::string text = textOf(tile);
    for (const char* part :
         {"float trailX = ltX + ltW - 48.000f - 16.0f;\n",
          "float trailY = ltY + (ltH - 28.000f) / 2.0f;\n", "float swX = std::floor(trailX);\n",
          "float swY = std::floor(trailY);\n"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part;
    }
}

}  // namespace
