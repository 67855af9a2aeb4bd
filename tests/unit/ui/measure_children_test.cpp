// The size of what holds others: sums with gaps, the largest, grids, paddings, boxes.
#include <gtest/gtest.h>

#include "unit/ui/measured.h"

namespace {

std::unique_ptr<WidgetNode> widgetNamed(const char* name) {
    return std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது,
                                        false);
}

std::unique_ptr<WidgetNode> space(const std::string& width, const std::string& height) {
    auto node = widgetNamed("இவெ");
    node->properties["அகலம்"] = std::make_unique<NumberLiteral>(width);
    node->properties["உயரம்"] = std::make_unique<NumberLiteral>(height);
    return node;
}

// Pieces of 30 x 5, 10 x 40 and 20 x 7 pixels.
const std::string kWide = "இவெ(அகலம்: 30, உயரம்: 5)";
const std::string kHigh = "இவெ(அகலம்: 10, உயரம்: 40)";
const std::string kSmall = "இவெ(அகலம்: 20, உயரம்: 7)";
const std::string kAll = "(" + kWide + ", " + kHigh + ", " + kSmall + ")";

TEST(MeasureOfChildren, InAColumnAddsHeights) {
    EXPECT_EQ(measured("நெடுவரிசை" + kAll), (Size{30, 52}));
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: 8)" + kAll), (Size{30, 68}));
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: 8)(" + kWide + ", " + kSmall + ")"), (Size{30, 20}));
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: 8)(" + kWide + ")"), (Size{30, 5})) << "no gap";
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: 8)()"), (Size{0, 0}));
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: அ)" + kAll), (Size{30, 52})) << "a number alone";
    EXPECT_EQ(measured("நெடுவரிசை(அகலம்: 500, உயரம்: 500)" + kAll), (Size{30, 52}));
}

TEST(MeasureOfChildren, InARowAddsWidths) {
    EXPECT_EQ(measured("கிடைவரிசை" + kAll), (Size{60, 40}));
    EXPECT_EQ(measured("கிடைவரிசை(இடைவெளி: 8)" + kAll), (Size{76, 40}));
    EXPECT_EQ(measured("கிடைவரிசை(இடைவெளி: 8)(" + kWide + ")"), (Size{30, 5})) << "no gap";
    EXPECT_EQ(measured("கிடைவரிசை(இடைவெளி: 8)()"), (Size{0, 0}));
}

TEST(MeasureOfChildren, NestsColumnsAndRows) {
    EXPECT_EQ(measured("நெடுவரிசை(இடைவெளி: 3)(கிடைவரிசை" + kAll + ", " + kSmall + ")"),
              (Size{60, 50}));
}

TEST(MeasureOfChildren, OfAStackIsTheLargest) {
    EXPECT_EQ(measured("அடுக்கி" + kAll), (Size{30, 40}));
}

TEST(MeasureOfChildren, OfAShareIsItsFirst) {
    EXPECT_EQ(measured("விரிவாக்கம்(உரைபெட்டி(), படம்())"), (Size{320, 60}));
    EXPECT_EQ(measured("நெகிழ்வு(பங்கு: 2, படம்())"), (Size{100, 100}));
    EXPECT_EQ(measured("நெகிழ்வு(பங்கு: 2)"), (Size{0, 0}));
}

TEST(MeasureOfChildren, OfAWrapIsThreeLinesWhateverItsGap) {
    EXPECT_EQ(measured("நெடுவரிசை(மடிப்பு" + kAll + ")"), (Size{0, 140}));
    EXPECT_EQ(measured("நெடுவரிசை(மடிப்பு(இடைவெளி: 90)" + kAll + ")"), (Size{0, 140}));
}

TEST(MeasureOfChildren, OfAPaddingGoesByItsClassFirst) {
    PaddingNode padding;
    padding.padding = 12.5F;
    EXPECT_EQ(measured(&padding), (Size{25, 25}));
    padding.children.push_back(space("30", "5"));
    padding.children.push_back(space("90", "90"));
    EXPECT_EQ(measured(&padding), (Size{55, 30})) << "its first child's";
}

TEST(MeasureOfChildren, OfAPaddingByNameIsTwentyMore) {
    for (const char* name : {"உள்_இவெ", "உள்_இவே"}) {
        const auto padding = widgetNamed(name);
        padding->children.push_back(space("30", "5"));
        padding->children.push_back(space("90", "90"));
        EXPECT_EQ(measured(padding.get()), (Size{50, 25})) << name;
    }
}

TEST(MeasureOfChildren, OfAKnownNameBeforeAPaddingIsThatKinds) {
    PaddingNode padding;
    padding.padding = 10;
    padding.name = "இவெ";
    EXPECT_EQ(measured(&padding), (Size{0, 0}));
    padding.name = "உரை";
    EXPECT_EQ(measured(&padding), (Size{20, 20}));
}

TEST(MeasureOfChildren, OfACardIsTwentyMoreThanItsFirst) {
    EXPECT_EQ(measured("அட்டை(படம்(), உரைபெட்டி())"), (Size{120, 120}));
    EXPECT_EQ(measured("அட்டை(அட்டை_பாணி(அகலம்: 70), படம்())"), (Size{70, 120}));
}

TEST(MeasureOfChildren, OfACheckBoxIsItsFirstWhateverItIs) {
    EXPECT_EQ(measured("தேர்வுபெட்டி(படம்())"), (Size{24 + 12 + 100, 100}));
    EXPECT_EQ(measured("தேர்வுபெட்டி(உயரம்: 20, படம்())"), (Size{24 + 12 + 100, 20}));
}

// ---- Boxes ----

TEST(MeasureOfABox, GoesByItsStyleBlockFirst) {
    EXPECT_EQ(measured("பெட்டி(பெட்டி_பாணி(அகலம்: 30, உயரம்: 20), அகலம்: 70, உயரம்: 60)"),
              (Size{30, 20}));
    EXPECT_EQ(measured("பெட்டி(பெட்டி_பாணி(அகலம்: 50%, உயரம்: 50%), அகலம்: 70, உயரம்: 60)"),
              (Size{0, 0}));
    EXPECT_EQ(measured("பெட்டி(பெட்டி_பாணி(அகலம்: அ, உயரம்: அ), அகலம்: 70, உயரம்: 60)"), (Size{70, 60}));
    EXPECT_EQ(measured("பெட்டி(பெட்டி_பாணி(வளைவு: 5), அகலம்: 70, உயரம்: 60)"), (Size{70, 60}));
    EXPECT_EQ(measured("பெட்டி(படம்(அகலம்: 5, உயரம்: 5))"), (Size{100, 100})) << "no child else";
}

TEST(MeasureOfABox, IsNothingWideByAChoice) {
    const auto box = [](bool isStyle, const std::string& key) {
        auto node = widgetNamed("பெட்டி");
        WidgetNode* holder = node.get();
        if (isStyle) {
            node->children.push_back(widgetNamed("பெட்டி_பாணி"));
            holder = dynamic_cast<WidgetNode*>(node->children.back().get());
        }
        holder->properties[key] = std::make_unique<TernaryExpression>(
            std::make_unique<VariableAccess>("அ"), std::make_unique<NumberLiteral>("1"),
            std::make_unique<NumberLiteral>("2"));
        return measured(node.get());
    };
    EXPECT_EQ(box(true, "அகலம்"), (Size{0, 100}));
    EXPECT_EQ(box(false, "style_அகலம்"), (Size{0, 100}));
    EXPECT_EQ(box(false, "அகலம்"), (Size{0, 100}));
    EXPECT_EQ(box(true, "உயரம்"), (Size{100, 100})) << "the height goes on to the default";
    EXPECT_EQ(box(false, "style_உயரம்"), (Size{100, 100}));
    EXPECT_EQ(box(false, "உயரம்"), (Size{100, 100}));
}

TEST(MeasureOfABox, TakesAStylesShareBeforeItsOwnNumber) {
    const auto box = widgetNamed("பெட்டி");
    box->properties["style_அகலம்"] = std::make_unique<PercentageLiteral>("50%");
    box->properties["அகலம்"] = std::make_unique<NumberLiteral>("70");
    EXPECT_EQ(measured(box.get()), (Size{0, 100}));
    box->properties["style_அகலம்"] = std::make_unique<VariableAccess>("அ");
    EXPECT_EQ(measured(box.get()), (Size{70, 100}));
}

// ---- Grids ----

TEST(MeasureOfAGrid, HasThreeColumnsByDefault) {
    EXPECT_EQ(measured("கட்டம்_காட்சி()" + kAll), (Size{3 * 30 + 2 * 10, 40}));
    EXPECT_EQ(measured("கட்டம்_காட்சி()(" + kWide + ", " + kHigh + ", " + kSmall + ", " + kWide + ")"),
              (Size{3 * 30 + 2 * 10, 2 * 40 + 10}));
}

TEST(MeasureOfAGrid, TakesItsNumberOfColumnsInTwoOrders) {
    EXPECT_EQ(measured("கட்டம்_காட்சி(cols: 1)" + kAll), (Size{30, 3 * 40 + 2 * 10}));
    EXPECT_EQ(measured("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 2)" + kAll), (Size{2 * 30 + 10, 2 * 40 + 10}));
    const auto grid = widgetNamed("கட்டம்_காட்சி");
    for (int i = 0; i < 3; i++) grid->children.push_back(space("30", "40"));
    grid->properties["cols"] = std::make_unique<NumberLiteral>("1");
    grid->properties["குறுக்கு_எண்ணிக்கை"] = std::make_unique<NumberLiteral>("2");
    EXPECT_EQ(measured(grid.get()), (Size{2 * 30 + 10, 3 * 40 + 2 * 10}))
        << "the width by one key first, the height by the other";
    EXPECT_EQ(measured("கட்டம்_காட்சி(cols: அ)" + kAll), (Size{3 * 30 + 2 * 10, 40}));
    EXPECT_EQ(measured("கட்டம்_காட்சி(cols: 5)" + kAll), (Size{5 * 30 + 4 * 10, 40}));
}

TEST(MeasureOfAGrid, OfNoColumnsIsRefused) {
    const auto refusal = [](const std::string& grid) -> std::string {
        try {
            measured(grid);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_EQ(refusal("கட்டம்_காட்சி(cols: 0)" + kAll).rfind("பொழில்-301: ", 0), 0U);
    EXPECT_EQ(refusal("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 0)()").rfind("பொழில்-301: ", 0), 0U);
    EXPECT_EQ(refusal("கட்டம்_காட்சி(cols: 1)()"), "none");
}

TEST(MeasureOfAGrid, TakesCellsOfItsOwnWhereChildrenMeasureNothing) {
    EXPECT_EQ(measured("கட்டம்_காட்சி()()"), (Size{150 * 3 + 20, 0}));
    EXPECT_EQ(measured("கட்டம்_காட்சி()(இவெ())"), (Size{150 * 3 + 20, 40}));
}

TEST(MeasureOfAGrid, TakesItsGapsFromSpacesAmongItsProperties) {
    const auto grid = widgetNamed("கட்டம்_காட்சி");
    for (int i = 0; i < 4; i++) grid->children.push_back(space("30", "40"));
    const auto setGap = [&](const char* key, std::unique_ptr<WidgetNode> node) {
        grid->properties[key] = std::make_unique<WidgetExpression>(std::move(node));
    };
    setGap("ஆ", space("4", "6"));
    EXPECT_EQ(measured(grid.get()), (Size{3 * 30 + 2 * 4, 2 * 40 + 6}));
    setGap("அ", space("90", "90"));
    EXPECT_EQ(measured(grid.get()), (Size{3 * 30 + 2 * 4, 2 * 40 + 6})) << "the last key's holds";
    setGap("இ", widgetNamed("படம்"));
    grid->properties["ஈ"] = std::make_unique<NumberLiteral>("77");
    EXPECT_EQ(measured(grid.get()), (Size{3 * 30 + 2 * 4, 2 * 40 + 6})) << "spaces alone";
    setGap("இ", widgetNamed("இவெ"));
    EXPECT_EQ(measured(grid.get()), (Size{3 * 30 + 2 * 4, 2 * 40 + 6})) << "of a number alone";
    grid->properties["v_gap"] = std::make_unique<NumberLiteral>("1");
    EXPECT_EQ(measured(grid.get()), (Size{3 * 30 + 2 * 4, 2 * 40 + 1}));
}

}  // namespace
