// Stacks, wraps and grids of check boxes, whose own rectangles show where each child lies.
#include "emitted/widgets/surroundings.h"

namespace {

class ListsTest : public Surroundings {
protected:
    /// The children's rectangles "x, y, w, h" in a window of that width.
    Calls placesOf(const std::string& block, double windowWidth = 800, float forcedWidth = -1,
                   float forcedHeight = -1) {
        static const std::string kHead = "nvgRoundedRect(";
        browser().window["innerWidth"] = windowWidth;
        Calls places;
        for (const std::string& call : drawnBlock(block, forcedWidth, forcedHeight)) {
            if (call.rfind(kHead, 0) != 0) continue;
            const std::string arguments = call.substr(kHead.size());
            places.push_back(arguments.substr(0, arguments.rfind(", ")));
        }
        return places;
    }
};

// ---- Stacks ----

TEST_F(ListsTest, StackIsAsLargeAsItsLargestChild) {
    EXPECT_EQ(placesOf("stack_at_its_start"), (Calls{"0, 0, 40, 30", "0, 0, 24, 24"}));
    EXPECT_EQ(placesOf("stack_in_the_middle_and_moved"),
              (Calls{"0, 0, 100, 60", "50, 23, 24, 24"}));
    EXPECT_EQ(placesOf("stack_at_the_bottom_right"), (Calls{"0, 0, 100, 60", "76, 36, 24, 24"}))
        << "a shift that is no number is none";
}

TEST_F(ListsTest, StackTakesTheSizeThatIsForcedOnIt) {
    EXPECT_EQ(placesOf("stack_at_the_bottom_right", 800, 200, 150),
              (Calls{"100, 90, 100, 60", "176, 126, 24, 24"}));
}

TEST_F(ListsTest, StackInsideAStackBeginsAtItsPlace) {
    EXPECT_EQ(placesOf("stack_inside_a_stack"),
              (Calls{"40, 30, 60, 30", "58, 30, 24, 24", "0, 0, 100, 60"}));
}

// ---- Wraps ----

TEST_F(ListsTest, WrapBeginsALineWhereAChildDoesNotFit) {
    EXPECT_EQ(placesOf("wrap_lines"), (Calls{"0, 0, 300, 30", "310, 0, 300, 50", "620, 0, 180, 20",
                                             "0, 60, 800, 20", "0, 90, 24, 24"}));
    EXPECT_EQ(placesOf("wrap_lines", 799),
              (Calls{"0, 0, 300, 30", "310, 0, 300, 50", "0, 60, 180, 20", "0, 90, 799, 20",
                     "0, 120, 24, 24"}));
}

TEST_F(ListsTest, WrapFillsItsLinesToTheLastPixel) {
    EXPECT_EQ(placesOf("wrap_to_the_last_pixel"),
              (Calls{"0, 0, 380, 30", "400, 0, 400, 20", "0, 50, 381, 30", "0, 100, 400, 30"}));
}

TEST_F(ListsTest, WrapKeepsWithinTheWidthThatIsForcedOnIt) {
    EXPECT_EQ(placesOf("wrap_lines", 800, 610),
              (Calls{"0, 0, 300, 30", "310, 0, 300, 50", "0, 60, 180, 20", "0, 90, 800, 20",
                     "0, 120, 24, 24"}));
}

TEST_F(ListsTest, WrapLeavesTheFirstOfALineThereHoweverWide) {
    EXPECT_EQ(placesOf("wrap_too_wide_at_first"),
              (Calls{"100, 40, 800, 30", "100, 80, 700, 20", "810, 80, 90, 20"}))
        << "its right edge is as far from its left one as the window is wide";
    EXPECT_EQ(placesOf("wrap_too_wide_at_first", 799),
              (Calls{"100, 40, 799, 30", "100, 80, 700, 20", "100, 110, 90, 20"}));
}

TEST_F(ListsTest, WrapInsideAWrapTakesNoWidth) {
    EXPECT_EQ(placesOf("wrap_inside_a_wrap"), (Calls{"0, 0, 24, 24", "10, 0, 24, 24"}));
}

TEST_F(ListsTest, WrapMovesTheColumnItStandsInBesideItsMeasure) {
    // It ends at 24 + 10, and measures three lines of 24 and 20.
    EXPECT_EQ(placesOf("wrap_in_a_column"),
              (Calls{"0, 0, 24, 24", "34, 0, 24, 24", "0, 126, 24, 24"}));
}

// ---- Grids ----

TEST_F(ListsTest, GridHasTwoColumnsOfAGridMeasuredForThree) {
    // Three cells of 100 and two gaps of 10 make 320, of which two cells and a gap are drawn.
    EXPECT_EQ(placesOf("grid_of_two_by_default"),
              (Calls{"0, 0, 100, 30", "165, 0, 100, 50", "0, 60, 60, 20"}));
}

TEST_F(ListsTest, GridHasFewerColumnsInANarrowWindow) {
    const Calls four = {"0, 0, 24, 24", "110, 0, 24, 24", "220, 0, 24, 24", "330, 0, 24, 24",
                        "0, 34, 24, 24"};
    const Calls two = {"0, 0, 24, 24", "220, 0, 24, 24", "0, 34, 24, 24", "220, 34, 24, 24",
                       "0, 68, 24, 24"};
    const Calls one = {"0, 0, 24, 24", "0, 34, 24, 24", "0, 68, 24, 24", "0, 102, 24, 24",
                       "0, 136, 24, 24"};
    EXPECT_EQ(placesOf("grid_of_four", 769), four);
    EXPECT_EQ(placesOf("grid_of_four", 768), two);
    EXPECT_EQ(placesOf("grid_of_four", 700), two);
    EXPECT_EQ(placesOf("grid_of_four", 481), two);
    EXPECT_EQ(placesOf("grid_of_four", 480), one);
    EXPECT_EQ(placesOf("grid_of_four", 400), one);
}

TEST_F(ListsTest, GridOfTwoStaysSoOnATablet) {
    const Calls two = {"0, 0, 24, 24", "44, 0, 24, 24", "0, 54, 24, 24"};
    EXPECT_EQ(placesOf("grid_gaps_of_a_space", 700), two);
    EXPECT_EQ(placesOf("grid_gaps_of_a_space", 480),
              (Calls{"0, 0, 24, 24", "0, 54, 24, 24", "0, 108, 24, 24"}));
}

TEST_F(ListsTest, GridOfOneIsOneColumn) {
    EXPECT_EQ(placesOf("grid_of_one"), (Calls{"0, 0, 24, 24", "0, 34, 24, 24"}));
}

TEST_F(ListsTest, GridBeginsEachLineAtItsPlace) {
    EXPECT_EQ(placesOf("grid_at_a_place"),
              (Calls{"100, 40, 24, 24", "210, 40, 24, 24", "320, 40, 24, 24", "100, 74, 24, 24"}));
}

TEST_F(ListsTest, GridTakesWhatEachKindMeasures) {
    // The widest measures 120: three cells and two gaps make 380, and a cell 120.
    EXPECT_EQ(placesOf("grid_of_many_kinds"),
              (Calls{"130, 0, 120, 80", "260, 0, 60, 24", "0, 90, 24, 24"}));
}

TEST_F(ListsTest, GridGoesDownBehindEachColumn) {
    EXPECT_EQ(placesOf("grid_of_columns"),
              (Calls{"0, 0, 24, 24", "34, 24, 24, 24", "0, 82, 24, 24"}));
}

TEST_F(ListsTest, ForcesNothingOnItsChildren) {
    for (const std::string block :
         {"stack_at_its_start", "wrap_spaced_by_a_variable", "grid_of_a_share_of_the_window"}) {
        const Calls free = placesOf(block);
        ASSERT_FALSE(free.empty());
        EXPECT_EQ(placesOf(block, 800, 500, 400), free) << block;
    }
}

}  // namespace
