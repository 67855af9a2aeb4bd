// Where rows place their children. The window is 800 by 600 pixels; a text measures 10.4 pixels for
// each letter, and is drawn 20 wide.
#include "emitted/widgets/placed.h"

namespace {

class RowTest : public PlacedTest {};

TEST_F(RowTest, BeginsAtThePagesCorner) {
    EXPECT_EQ(placesIn("row_at_the_origin"), (Calls{"அ at 0, 0", "ஆ at 10.4, 0"}));
}

TEST_F(RowTest, FillsAPageAndAlignsInIt) {
    EXPECT_EQ(placesIn("row_in_the_middle"), (Calls{"அ at 789.6, 292"}));
    EXPECT_EQ(placesIn("row_at_the_bottom"), (Calls{"அ at 394.8, 584"}));
}

TEST_F(RowTest, HasItsOwnSizeHoweverNarrowTheWindow) {
    EXPECT_EQ(placesIn("row_sized"), (Calls{"அ at 289.6, 184"}));
    field("innerWidth") = 250;
    EXPECT_EQ(placesIn("row_sized"), (Calls{"அ at 289.6, 184"}));
}

TEST_F(RowTest, CountsItsSpacingBehindTheLastChildToo) {
    // Two texts and two spaces of 8 pixels are 36.8.
    EXPECT_EQ(placesIn("row_spaced"), (Calls{"அ at 381.6, 0", "ஆ at 400, 0"}));
}

TEST_F(RowTest, PlacesContainersAsAnyChild) {
    EXPECT_EQ(placesIn("row_nested"),
              (Calls{"அ at 384.4, 292", "ஆ at 394.8, 292", "இ at 405.2, 292"}));
}

TEST_F(RowTest, SharesOutWhatItsChildrenLeave) {
    // A space takes 80 pixels, a text 10.4, and each 5 more: five shares of 139.92 remain. The
    // column is as wide as its two, and aligns its text to the right.
    EXPECT_EQ(placesIn("row_shares"), (Calls{"அ at 0, 0", "ஆ at 404.76, 0", "இ at 804.6, 0"}));
    EXPECT_EQ(placesIn("row_shares_in_the_middle"), (Calls{"அ at 0, 292", "ஆ at 400, 292"}));
}

TEST_F(RowTest, ForcesAShareOnItsChild) {
    browser().answerWith("measureText", 480);
    field("innerWidth") = 1280;
    // Two shares of 640: a text of 480 fits. In a window of 400 it is drawn smaller.
    const auto size = [](const Calls& calls) {
        const auto drawn = std::find_if(calls.begin(), calls.end(), [](const std::string& call) {
            return call.rfind("drawText(0, 292, \"அ\"", 0) == 0;
        });
        return drawn == calls.end() ? "" : drawn->substr(drawn->find("1.000000)\"") + 12, 4);
    };
    EXPECT_EQ(size(frameOf("row_shares_in_the_middle")), "16, ");
    field("innerWidth") = 400;
    EXPECT_EQ(size(frameOf("row_shares_in_the_middle")), "3.9,");
}

TEST_F(RowTest, ForcesNoHeightOnABoxThatSharesItsWidth) {
    EXPECT_EQ(placesIn("row_of_boxes"), (Calls{"nvgRoundedRect(0, 560, 600, 40, 0)",
                                               "nvgRoundedRect(600, 540, 200, 60, 0)"}));
}

TEST_F(RowTest, SkipsSpaces) {
    EXPECT_EQ(placesIn("row_spaces"), (Calls{"அ at 0, 0", "ஆ at 110.4, 0"}));
}

TEST_F(RowTest, LaysAChildOverOneWithAWidthInPercent) {
    EXPECT_EQ(placesIn("row_child_by_percent"),
              (Calls{"nvgRoundedRect(0, 0, 400, 300, 5)", "அ at 8, 0"}));
}

TEST_F(RowTest, MovesOnByItsSpacingForWhatMeasuresNothing) {
    EXPECT_EQ(placesIn("row_of_what_draws_nothing"), (Calls{"அ at 16, 0"}));
}

}  // namespace
