// Columns, rows and lists that scroll: the wheel, the bar, the way to a widget. The window is 800
// by 600 pixels.
#include "emitted/widgets/placed.h"

namespace {

constexpr double kBackToTheStart = -1e6;

class ScrollingTest : public PlacedTest {
protected:
    ScrollingTest() {
        for (const char* block : {"column_scrolls", "column_scrolls_inside", "row_scrolls",
                                  "row_scrolls_inside", "list_of_many"}) {
            placesAfterWheel(block, 20, 20, kBackToTheStart);
        }
        g_widgetPositions.clear();
    }

    static void expectOrder(const Calls& calls, const Calls& order) {
        auto from = calls.begin();
        for (const std::string& call : order) {
            from = std::find(from, calls.end(), call);
            ASSERT_NE(from, calls.end()) << call << testing::PrintToString(calls);
        }
    }
};

// ---- Columns: three texts with 300 pixels between them, 648 in all ----

TEST_F(ScrollingTest, OfAColumnFollowsTheWheelAtOnce) {
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, 30),
              (Calls{"அ at 0, -30", "ஆ at 0, 286", "இ at 0, 602",
                     "nvgRoundedRect(794, 27.7778, 4, 555.556, 2)"}));
    EXPECT_EQ(field("wheelDelta"), 0);
    EXPECT_EQ(placesIn("column_scrolls")[0], "அ at 0, -30");
}

TEST_F(ScrollingTest, OfAColumnStopsAtBothEnds) {
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, 5000)[2], "இ at 0, 584");
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, -47)[0], "அ at 0, -1");
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, -47)[0], "அ at 0, 0");
}

TEST_F(ScrollingTest, NeedsThePointerInsideOrOnTheEdge) {
    for (const auto& [x, y] : {std::pair{-1, 100}, {801, 100}, {100, -1}, {100, 601}}) {
        EXPECT_EQ(placesAfterWheel("column_scrolls", x, y, 30)[0], "அ at 0, 0") << x << ", " << y;
        EXPECT_EQ(field("wheelDelta"), 30);
    }
    EXPECT_EQ(placesAfterWheel("column_scrolls", 800, 600, 30)[0], "அ at 0, -30");
    EXPECT_EQ(placesAfterWheel("column_scrolls", 0, 0, -30)[0], "அ at 0, 0");
}

TEST_F(ScrollingTest, NeedsThePointerWhereverTheColumnBegins) {
    const auto top = [](double x, double y) {
        return placesAfterWheel("column_scrolls_inside", x, y, 30)[1];
    };
    EXPECT_EQ(top(100, 15), "ஆ at 0, 16");
    EXPECT_EQ(top(301, 100), "ஆ at 0, 16");
    EXPECT_EQ(top(100, 617), "ஆ at 0, 16");
    EXPECT_EQ(top(100, 616), "ஆ at 0, -14");
}

TEST_F(ScrollingTest, OfAColumnLeavesTheWheelToARowThatWantsIt) {
    g_nextHoveringH = true;
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, 30)[0], "அ at 0, 0");
    EXPECT_EQ(field("wheelDelta"), 30);
}

TEST_F(ScrollingTest, OfAColumnThatFitsHasNoBar) {
    field("innerHeight") = 648;
    EXPECT_EQ(placesAfterWheel("column_scrolls", 100, 100, 30),
              (Calls{"அ at 0, 0", "ஆ at 0, 316", "இ at 0, 632"}));
}

TEST_F(ScrollingTest, OfAColumnCutsItsChildrenOffAndNotItsBar) {
    expectOrder(
        frameOf("column_scrolls"),
        {"nvgSave()", "nvgScissor(0, 0, 800, 600)", "measureText(\"இ\", 10.4)", "nvgRestore()",
         "nvgRoundedRect(794, 0, 4, 555.556, 2)", "nvgFillColor(rgba(0, 0, 0, 100))", "nvgFill()"});
}

TEST_F(ScrollingTest, OfAColumnInsideIsAsHighAsTheWindow) {
    const Calls calls = frameOf("column_scrolls_inside");
    expectOrder(calls, {"nvgScissor(0, 16, 300, 600)", "nvgRoundedRect(294, 16, 4, 196.507, 2)"});
}

// ---- The way to a widget: 932 pixels down, in a column that begins at 16 and holds 1832 ----

TEST_F(ScrollingTest, GoesATenthOfTheWayEachFrame) {
    frameOf("column_scrolls_inside");
    g_scrollToId = "அ";
    EXPECT_EQ(placesIn("column_scrolls_inside")[2], "இ at 0, 845.4");
    // The place is that of the frame before: 845.4 is 779.4 too far down.
    EXPECT_EQ(placesIn("column_scrolls_inside")[2], "இ at 0, 767.46");
    EXPECT_EQ(g_scrollToId, "அ");
}

TEST_F(ScrollingTest, EndsFiftyPixelsBelowTheTop) {
    frameOf("column_scrolls_inside");
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "அ"), 59);
    const float y = g_widgetPositions["அ"].y;
    EXPECT_GT(y, 66);
    EXPECT_LT(y, 68);
    EXPECT_EQ(frameOf("column_scrolls_inside"), frameOf("column_scrolls_inside"));
}

TEST_F(ScrollingTest, EndsWhereTheColumnCanGoNoFurther) {
    g_widgetPositions["மேலே"] = {0, -5000};
    g_widgetPositions["கீழே"] = {0, 5000};
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "கீழே"), 3);
    EXPECT_EQ(placesIn("column_scrolls_inside")[1], "ஆ at 0, -1216");
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "மேலே"), 3);
    EXPECT_EQ(placesIn("column_scrolls_inside")[1], "ஆ at 0, 16");
}

TEST_F(ScrollingTest, OfAColumnThatFitsEndsAtOnce) {
    field("innerHeight") = 3000;
    g_widgetPositions["கீழே"] = {0, 500};
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "கீழே"), 1);
}

TEST_F(ScrollingTest, TakesAnErrorOfLessThanTwoPixelsForNone) {
    g_widgetPositions["அருகே"] = {0, 67.9F};
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "அருகே"), 1);
    EXPECT_EQ(placesIn("column_scrolls_inside")[1], "ஆ at 0, 16");
}

TEST_F(ScrollingTest, WaitsForEverWithinFivePixelsOfAnEnd) {
    g_widgetPositions["அருகே"] = {0, 70};
    EXPECT_EQ(framesToWidget("column_scrolls_inside", "அருகே"), 300);
    EXPECT_EQ(placesIn("column_scrolls_inside")[1], "ஆ at 0, 16");
}

TEST_F(ScrollingTest, WaitsForAWidgetThatHasNoPlace) {
    g_scrollToId = "வேறு";
    EXPECT_EQ(placesIn("column_scrolls_inside")[1], "ஆ at 0, 16");
    EXPECT_EQ(g_scrollToId, "வேறு");
    EXPECT_EQ(g_widgetPositions.count("வேறு"), 0U);
}

// ---- Rows: three texts with 400 pixels between them, 831.2 in all, and 150 behind them ----

TEST_F(ScrollingTest, OfARowFollowsThePlainWheel) {
    EXPECT_EQ(placesAfterWheel("row_scrolls", 100, 50, 50),
              (Calls{"அ at -50, 0", "ஆ at 360.4, 0", "இ at 770.8, 0",
                     "nvgRoundedRect(40.7664, 94, 652.263, 4, 2)"}));
    EXPECT_EQ(field("wheelDelta"), 0);
}

TEST_F(ScrollingTest, OfARowFollowsTheWheelAcrossFirst) {
    field("wheelDeltaX") = 30;
    EXPECT_EQ(placesAfterWheel("row_scrolls", 100, 50, 50)[0], "அ at -30, 0");
    EXPECT_EQ(field("wheelDelta"), 0);
    EXPECT_EQ(field("wheelDeltaX"), 0);
}

TEST_F(ScrollingTest, OfARowLeavesRoomBehindItsLastChild) {
    EXPECT_EQ(placesAfterWheel("row_scrolls", 100, 50, 5000)[2], "இ at 639.6, 0");
    EXPECT_EQ(placesAfterWheel("row_scrolls", 100, 50, kBackToTheStart)[0], "அ at 0, 0");
    EXPECT_EQ(placesAfterWheel("row_scrolls", 100, 101, 50)[0], "அ at 0, 0");
}

TEST_F(ScrollingTest, OfARowCutsItsChildrenOff) {
    expectOrder(frameOf("row_scrolls"),
                {"nvgSave()", "nvgScissor(0, 0, 800, 100)", "measureText(\"இ\", 10.4)",
                 "nvgRestore()", "nvgRoundedRect(0, 94, 652.263, 4, 2)"});
}

TEST_F(ScrollingTest, OfARowGoesToAWidget) {
    frameOf("row_scrolls_inside");
    g_scrollToId = "அ";
    EXPECT_EQ(placesIn("row_scrolls_inside")[2], "இ at 824.36, 16");
    EXPECT_EQ(framesToWidget("row_scrolls_inside", "அ"), 3);
    EXPECT_EQ(placesIn("row_scrolls_inside")[2], "இ at 639.6, 16") << "the end of its range";
}

// ---- Lists ----

TEST_F(ScrollingTest, OfAListCentresChildrenAndFollowsTheWheel) {
    EXPECT_EQ(placesAfterWheel("list_of_many", 100, 100, 34),
              (Calls{"nvgRoundedRect(388, -34, 24, 24, 5)", "அஆஇஈஉ at 374, 890",
                     "nvgRoundedRect(794, 21.7021, 4, 382.979, 2)"}));
    EXPECT_EQ(placesAfterWheel("list_of_many", 100, 100, 5000)[1], "அஆஇஈஉ at 374, 584");
    EXPECT_EQ(placesAfterWheel("list_of_many", 801, 100, -5000)[1], "அஆஇஈஉ at 374, 584");
}

TEST_F(ScrollingTest, OfAListKeepsTheWheelFromRows) {
    g_nextHoveringH = true;
    EXPECT_EQ(placesAfterWheel("list_of_many", 100, 100, 34)[1], "அஆஇஈஉ at 374, 890");
}

TEST_F(ScrollingTest, OfAListGoesToAPlace) {
    g_widgetPositions["கீழே"] = {0, 250};
    g_scrollToId = "கீழே";
    EXPECT_EQ(placesIn("list_of_many")[1], "அஆஇஈஉ at 374, 904");
}

TEST_F(ScrollingTest, OfAListCutsOffAWindowsSize) {
    expectOrder(frameOf("list_inside"), {"nvgSave()", "nvgScissor(0, 16, 800, 600)",
                                         "nvgRoundedRect(388, 16, 24, 24, 5)", "nvgRestore()"});
    EXPECT_EQ(placesIn("list_inside"), (Calls{"அ at 0, 0", "nvgRoundedRect(388, 16, 24, 24, 5)"}));
}

TEST_F(ScrollingTest, OfAListRegistersItsPlace) {
    frameOf("list_named");
    EXPECT_EQ(g_widgetPositions.count("அ"), 1U);
    EXPECT_EQ(placesIn("list_without_children"), Calls{});
}

}  // namespace
