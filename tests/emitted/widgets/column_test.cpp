// Where columns place their children. The window is 800 by 600 pixels, each text 20 wide.
#include "emitted/widgets/placed.h"

namespace {

class ColumnTest : public PlacedTest {};

TEST_F(ColumnTest, BeginsAtThePagesCorner) {
    EXPECT_EQ(placesIn("column_at_the_origin"), (Calls{"அ at 0, 0", "ஆ at 0, 16"}));
}

TEST_F(ColumnTest, FillsAPageAndAlignsInIt) {
    EXPECT_EQ(placesIn("column_aligned"), (Calls{"அ at 390, 584"}));
    field("innerWidth") = 400;
    field("innerHeight") = 300;
    EXPECT_EQ(placesIn("column_aligned"), (Calls{"அ at 190, 284"}));
}

TEST_F(ColumnTest, HasItsOwnSizeWithinTheWindowsWidth) {
    EXPECT_EQ(placesIn("column_sized"), (Calls{"அ at 280, 184"}));
    field("innerWidth") = 250;
    field("innerHeight") = 100;
    EXPECT_EQ(placesIn("column_sized"), (Calls{"அ at 230, 184"}));
}

TEST_F(ColumnTest, TakesTheDrawnWidthOfATextOfItsOwn) {
    // The inner column measures 10.4 pixels: its text is too wide, and begins where the column
    // does.
    EXPECT_EQ(placesIn("column_nested"),
              (Calls{"அ at 390, 276", "ஆ at 394.8, 292", "இ at 390, 308"}));
}

TEST_F(ColumnTest, MeasuresATextAtTheSizeItIsDrawnWith) {
    field("innerWidth") = 1280;
    global_vars["ஆ"] = std::string("மதிப்பு");
    const Calls calls = frameOf("column_of_texts");
    const auto measured = [&](const char* call) {
        return std::count(calls.begin(), calls.end(), call);
    };
    // The text asks for the width that the column has asked for: the answer is kept.
    EXPECT_EQ(measured("measureText(\"அ\", 16)"), 1);
    EXPECT_EQ(measured("measureText(\"மதிப்பு\", 30)"), 1);
    EXPECT_EQ(measured("measureText(\"\", 16)"), 1);
    const auto isMeasured = [](const std::string& call) {
        return call.rfind("measureText", 0) == 0;
    };
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(), isMeasured), 3) << "no other text and size";
}

TEST_F(ColumnTest, LeavesItsSpacingBetweenChildren) {
    EXPECT_EQ(placesIn("column_spaced"), (Calls{"அ at 0, 0", "ஆ at 0, 24"}));
}

TEST_F(ColumnTest, SharesOutWhatItsChildrenLeave) {
    // Of 400 pixels a space takes 40, a text 16, and each 5 more: five shares of 66.8. The space is
    // drawn by a tenth of the share before it, which is still forced.
    EXPECT_EQ(placesIn("column_shares"), (Calls{"அ at 0, 0", "ஆ at 0, 71.8", "இ at 0, 365.68"}));
}

TEST_F(ColumnTest, KeepsTheLastShareForcedAndShowsNoChildOfIt) {
    EXPECT_EQ(placesIn("column_shares_of_the_page"), (Calls{"அ at 0, 0", "ஆ at 0, 16"}));
    EXPECT_EQ(forcedH, 600 - 16);
    EXPECT_EQ(forcedW, -1);
}

TEST_F(ColumnTest, SharesOutNothingForNoShare) {
    EXPECT_EQ(placesIn("column_shares_of_none"), (Calls{"அ at 0, 0"}));
}

TEST_F(ColumnTest, SharesOutNothingWhereNothingIsLeft) {
    EXPECT_EQ(placesIn("column_shares_of_no_room"), (Calls{"அ at 0, 0", "ஆ at 0, 0"}));
}

TEST_F(ColumnTest, MovesThePlaceOfWhatHoldsIt) {
    EXPECT_EQ(placesIn("column_moves_what_holds_it"),
              (Calls{"அ at 0, 0", "ஆ at 0, 16", "இ at 20.4, 32"}));
}

TEST_F(ColumnTest, SkipsSpaces) {
    EXPECT_EQ(placesIn("column_spaces"), (Calls{"அ at 0, 0", "ஆ at 0, 708"}));
}

TEST_F(ColumnTest, LaysAChildOverOneWithAHeightInPercent) {
    EXPECT_EQ(placesIn("column_child_by_percent"),
              (Calls{"nvgRoundedRect(0, 0, 400, 300, 5)", "அ at 0, 0"}));
}

TEST_F(ColumnTest, MovesOnForASpaceButNotForWhatMeasuresNothing) {
    EXPECT_EQ(placesIn("column_of_what_draws_nothing"), (Calls{"அ at 0, 8"}));
}

TEST_F(ColumnTest, IsCutOffOnlyIfItScrolls) {
    const auto cuts = [](const std::string& block) {
        const Calls calls = frameOf(block);
        return std::count(calls.begin(), calls.end(), "nvgScissor(0, 0, 800, 600)");
    };
    EXPECT_EQ(cuts("column_scrolls_not"), 0);
    EXPECT_EQ(cuts("column_scrolls"), 1);
}

}  // namespace
