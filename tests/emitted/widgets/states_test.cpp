// Spinners, progress bars and message bars: what shows a state and takes no press.
#include "emitted/widgets/forms.h"

namespace {

class StatesTest : public FormTest {};

TEST_F(StatesTest, SpinnerTurnsSixRadiansASecond) {
    browser().now = 500;
    EXPECT_EQ(drawnBlock("spinner_defaults"),
              (Calls{"nvgSave()", "nvgTranslate(20, 20)", "nvgRotate(3)", "nvgBeginPath()",
                     "nvgArc(0, 0, 16, 0, 4.71239, 2)", "nvgLineCap(1)",
                     "nvgStrokeColor(rgba(33, 150, 243, 255))", "nvgStrokeWidth(4)", "nvgStroke()",
                     "nvgRestore()"}));
}

TEST_F(StatesTest, SpinnerTakesItsStyle) {
    const Calls calls = drawnBlock("spinner_styled");
    EXPECT_TRUE(holds(calls, "nvgTranslate(30, 30)"));
    EXPECT_TRUE(holds(calls, "nvgArc(0, 0, 26, 0, 4.71239, 2)"));
    EXPECT_TRUE(holds(calls, "nvgStrokeColor(rgba(255, 128, 0, 255))"));
    EXPECT_TRUE(holds(calls, "nvgStrokeWidth(3)"));
}

Calls bar(const std::string& rectangle, const std::string& colour) {
    return {"nvgBeginPath()", "nvgRoundedRect(" + rectangle + ")", "nvgFillColor(" + colour + ")",
            "nvgFill()"};
}
const std::string kTrack = "rgba(224, 224, 224, 255)";

TEST_F(StatesTest, ProgressIsFilledAsFarAsItsValue) {
    EXPECT_EQ(
        drawnBlock("progress_bar_of_a_value"),
        join({bar("0, 0, 800, 10, 5", kTrack), bar("0, 0, 320, 10, 5", "rgba(0, 255, 0, 255)")}));
}

TEST_F(StatesTest, ProgressKeepsWithinItsTrackAndHidesItsFirstHundredth) {
    const Calls empty = bar("0, 0, 200, 6, 3", kTrack);
    const std::string block = "progress_bar_style_first";
    const std::string green = "rgba(0, 255, 0, 255)";
    global_vars["அளவீடு"] = 250LL;
    EXPECT_EQ(drawnBlock(block), join({empty, bar("0, 0, 200, 6, 3", green)}));
    global_vars["அளவீடு"] = 1LL;
    EXPECT_EQ(drawnBlock(block), empty);
    global_vars["அளவீடு"] = 2LL;
    EXPECT_EQ(drawnBlock(block), join({empty, bar("0, 0, 4, 6, 3", green)}));
    global_vars["அளவீடு"] = -5LL;
    EXPECT_EQ(drawnBlock(block), empty);
}

TEST_F(StatesTest, ProgressWithoutAValueRunsToAndFro) {
    const std::string colour = "rgba(33, 150, 243, 255)";
    browser().now = 0;
    EXPECT_EQ(drawnBlock("progress_bar_indeterminate"),
              join({bar("0, 0, 200, 6, 3", kTrack), bar("70, 0, 60, 6, 3", colour)}));
    browser().now = 1000 * 3.14159265358979 / 6;
    EXPECT_EQ(drawnBlock("progress_bar_indeterminate"),
              join({bar("0, 0, 200, 6, 3", kTrack), bar("140, 0, 60, 6, 3", colour)}));
}

TEST_F(StatesTest, MessageBarIsAPillWithAShadow) {
    EXPECT_EQ(drawnBlock("message_bar_defaults"),
              (Calls{"nvgBeginPath()", "nvgRect(-10, -10, 320, 64)",
                     "nvgRoundedRect(0, 0, 300, 40, 20)", "nvgPathWinding(2)",
                     "nvgFillPaint(box(0, 4, 300, 40, 20, 10, rgba(0, 0, 0, 80), rgba(0, 0, 0, "
                     "0)))",
                     "nvgFill()", "nvgBeginPath()", "nvgRoundedRect(0, 0, 300, 40, 20)",
                     "nvgFillColor(rgba(50, 50, 50, 230))", "nvgFill()",
                     text("150", "12", "தகவல்", "#FFFFFF", "16", "center")}));
}

TEST_F(StatesTest, MessageBarSaysItsMessageInItsColour) {
    const Calls calls = drawnBlock("message_bar_styled");
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(0, 0, 400, 50, 25)"));
    EXPECT_TRUE(holds(calls, "nvgFillColor(rgba(45.9, 124.95, 49.98, 204))"));
    EXPECT_TRUE(holds(calls, text("200", "17", "சேமிக்கப்பட்டது", "#FFFFFF", "16", "center")));
}

TEST_F(StatesTest, StandWhereTheirParentSetsThem) {
    const struct {
        const char* block;
        const char* there;
    } rows[] = {
        {"spinner_defaults", "spinner_moved"},
        {"progress_bar_indeterminate", "progress_bar_moved_without_a_value"},
        {"message_bar_defaults", "message_bar_moved"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(drawnBlock(row.there), moved(drawnBlock(row.block), 100, 50)) << row.block;
    }
    EXPECT_EQ(drawnBlock("progress_bar_moved"),
              join({bar("100, 50, 200, 6, 3", kTrack),
                    bar("100, 50, 80, 6, 3", "rgba(33, 150, 243, 255)")}));
}

}  // namespace
