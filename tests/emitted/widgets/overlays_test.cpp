// Warnings, and the bars at the window's edges.
#include "emitted/widgets/forms.h"

namespace {

class OverlaysTest : public FormTest {
protected:
    /// Draws the block of that name with the pointer there and no click.
    static Calls hoverAt(double x, double y, const std::string& block) {
        pointAt(x, y);
        return drawnBlock(block);
    }

    /// Which of the program's functions `clicks` calls, in their order.
    static std::vector<std::string> toldBy(const std::vector<std::string>& functions,
                                           const std::function<void()>& clicks) {
        std::vector<std::string> told;
        for (const std::string& name : functions) {
            global_vars[name] = std::any(std::function<std::any()>([&told, name] {
                told.push_back(name);
                return std::any();
            }));
        }
        clicks();
        return told;
    }
};

// ---- Warnings ----

TEST_F(OverlaysTest, AlertIsDrawnLastInTheMiddle) {
    EXPECT_EQ(drawnBlock("alert_defaults"), Calls{}) << "at the end of the frame, not here";
    const Calls calls = frame(blockNamed("alert_defaults").draw);
    const auto begin = std::find(calls.begin(), calls.end(), "nvgResetScissor()");
    ASSERT_GE(calls.end() - begin, 15);
    EXPECT_EQ(Calls(begin, begin + 15),
              (Calls{"nvgResetScissor()", "dimAround(200, 160, 400, 280, 16, 800, 600)",
                     "nvgBeginPath()", "nvgRect(168, 128, 464, 344)",
                     "nvgRoundedRect(200, 160, 400, 280, 16)", "nvgPathWinding(2)",
                     "nvgFillPaint(box(200, 172, 400, 280, 16, 32, rgba(0, 0, 0, 100), rgba(0, 0, "
                     "0, 0)))",
                     "nvgFill()", "nvgBeginPath()", "nvgRoundedRect(200, 160, 400, 280, 16)",
                     "nvgFillColor(rgba(255, 255, 255, 255))", "nvgFill()", "nvgSave()",
                     "nvgScissor(200, 160, 400, 280)", "nvgRestore()"}));
}

TEST_F(OverlaysTest, AlertTakesItsStyleAndSizesOfTheWindow) {
    const Calls styled = frame(blockNamed("alert_styled").draw);
    EXPECT_TRUE(holds(styled, "nvgRoundedRect(200, 160, 400, 280, 4)"));
    EXPECT_TRUE(holds(styled, "nvgFillColor(rgba(191.25, 191.25, 191.25, 255))"));
    EXPECT_TRUE(holds(styled,
                      "nvgFillPaint(box(200, 163, 400, 280, 4, 8, rgba(0, 0, 0, 100), rgba(0, "
                      "0, 0, 0)))"));
    global_vars["காட்டு"] = true;
    EXPECT_TRUE(
        holds(frame(blockNamed("alert_with_children").draw), "nvgScissor(200, 200, 400, 200)"));
}

TEST_F(OverlaysTest, AlertShowsWhileItsFlagIsSet) {
    const auto shown = [] {
        return holds(frame(blockNamed("alert_with_children").draw), "nvgResetScissor()");
    };
    EXPECT_FALSE(shown());
    global_vars["காட்டு"] = true;
    EXPECT_TRUE(shown());
    global_vars["காட்டு"] = false;
    EXPECT_FALSE(shown());
}

TEST_F(OverlaysTest, AlertKeepsWithinANarrowWindow) {
    browser().window["innerWidth"] = 300;
    EXPECT_TRUE(holds(frame(blockNamed("alert_defaults").draw), "nvgScissor(20, 160, 260, 280)"));
}

// ---- Bottom bars ----

TEST_F(OverlaysTest, BottomBarLiesAtTheFootOfTheWindow) {
    EXPECT_EQ(drawnBlock("bottom_bar_empty"),
              (Calls{"return window.innerWidth;", "return window.innerHeight;", "nvgBeginPath()",
                     "nvgRect(0, 532, 800, 4)",
                     "nvgFillPaint(linear(0, 532, 0, 536, rgba(0, 0, 0, 0), rgba(0, 0, 0, 30)))",
                     "nvgFill()", "nvgBeginPath()", "nvgRect(0, 536, 800, 64)",
                     "nvgFillColor(rgba(34, 34, 34, 255))", "nvgFill()", "return window.mouseX;",
                     "return window.mouseY;"}));
}

TEST_F(OverlaysTest, BottomBarShowsWhatIsChosen) {
    browser().answerWith("nvgCreateImage", 3);
    const Calls calls = drawnBlock("bottom_bar_of_two");
    EXPECT_TRUE(holds(calls, "nvgRect(188, 554, 24, 24)"));
    EXPECT_TRUE(holds(calls, "nvgFillPaint(image(188, 554, 24, 24, 0, 3, 0.5))"));
    EXPECT_TRUE(holds(calls, text("200", "580", "முகப்பு", "#757575", "11", "center")));
    EXPECT_TRUE(holds(calls, text("600", "580", "அமைப்பு", "#2196F3", "11", "center")));
}

TEST_F(OverlaysTest, BottomBarTellsTheProgramAndMovesNothing) {
    int& calls = countCallsOf("மாற்று");
    const Calls clicked = clickAt(100, 540, "bottom_bar_of_two");
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(holds(clicked, "nvgCircle(100, 540, 20)"));
    EXPECT_TRUE(holds(clicked, "nvgFillColor(rgba(0, 0, 0, 20))"));
    EXPECT_TRUE(holds(clicked, text("200", "580", "முகப்பு", "#757575", "11", "center")));
    clickAt(100, 535, "bottom_bar_of_two");
    EXPECT_EQ(calls, 1);
}

TEST_F(OverlaysTest, BottomBarsItemIsToldOfItsOwnClick) {
    const std::vector<std::string> told = toldBy({"மாற்று", "முகப்பு"}, [] {
        clickAt(700, 540, "bottom_bar_items_with_handlers");
        clickAt(400, 540, "bottom_bar_items_with_handlers");
        clickAt(100, 540, "bottom_bar_items_with_handlers");
    });
    EXPECT_EQ(told, (std::vector<std::string>{"மாற்று", "மாற்று", "மாற்று", "முகப்பு"}));
}

TEST_F(OverlaysTest, BottomBarsItemRunsItsPressBlock) {
    const auto printedBy = [](double x) {
        testing::internal::CaptureStdout();
        clickAt(x, 540, "bottom_bar_items_with_handlers");
        return testing::internal::GetCapturedStdout();
    };
    EXPECT_EQ(printedBy(700), "உதவி\n");
    EXPECT_EQ(printedBy(500), "");
}

// ---- Tab bars ----

TEST_F(OverlaysTest, TabBarMovesToTheTabThatIsClicked) {
    int& calls = countCallsOf("மாற்று");
    const Calls before = drawnBlock("tab_bar_of_two");
    EXPECT_TRUE(holds(before, "nvgRect(0, 0, 800, 50)"));
    EXPECT_TRUE(holds(before, "nvgFillColor(rgba(33, 150, 243, 255))"));
    EXPECT_TRUE(holds(before, "nvgRect(266.667, 47, 266.667, 3)"));
    EXPECT_TRUE(holds(before, text("133.333", "18", "ஒன்று", "#E0E0E0", "14", "center")));
    EXPECT_TRUE(holds(before, text("400", "17.5", "இரண்டு", "#FFFFFF", "15", "center")));
    const Calls clicked = clickAt(10, 50, "tab_bar_of_two");
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(holds(clicked, "nvgCircle(10, 50, 20)"));
    EXPECT_TRUE(holds(clicked, "nvgFillColor(rgba(255, 255, 255, 30))"));
    EXPECT_TRUE(holds(clicked, "nvgRect(0, 47, 266.667, 3)"));
    clickAt(10, 50.5, "tab_bar_of_two");
    EXPECT_EQ(calls, 1);
}

TEST_F(OverlaysTest, TabIsToldOfItsOwnClick) {
    const std::vector<std::string> told = toldBy({"மாற்று", "இரண்டு"}, [] {
        clickAt(100, 10, "tab_bar_items_with_handlers");
        clickAt(500, 10, "tab_bar_items_with_handlers");
    });
    EXPECT_EQ(told, (std::vector<std::string>{"மாற்று", "மாற்று", "இரண்டு"}));
}

// ---- What the pointer finds ----

TEST_F(OverlaysTest, BottomBarShowsAHandWithinTheWindow) {
    EXPECT_TRUE(holds(hoverAt(100, 560, "bottom_bar_of_two"), kHand));
    EXPECT_FALSE(holds(hoverAt(100, 601, "bottom_bar_of_two"), kHand));
    EXPECT_FALSE(holds(hoverAt(100, 560, "bottom_bar_of_two"), "nvgCircle(100, 560, 20)"));
}

TEST_F(OverlaysTest, BottomBarTakesClicksFromItsEdgeOnAndBesideNone) {
    int& calls = countCallsOf("மாற்று");
    clickAt(-500, 560, "bottom_bar_of_two");
    clickAt(900, 560, "bottom_bar_of_two");
    EXPECT_EQ(calls, 0);
    clickAt(100, 536, "bottom_bar_of_two");
    EXPECT_EQ(calls, 1);
}

TEST_F(OverlaysTest, TabBarFeelsThePointerWithinItselfAlone) {
    EXPECT_TRUE(holds(hoverAt(10, 10, "tab_bar_of_two"), kHand));
    EXPECT_FALSE(holds(hoverAt(10, 10, "tab_bar_of_two"), "nvgCircle(10, 10, 20)"));
    const double places[][2] = {{-5, 10}, {805, 10}, {10, -5}, {10, 55}};
    for (const auto& place : places) {
        EXPECT_FALSE(holds(hoverAt(place[0], place[1], "tab_bar_of_two"), kHand));
    }
    EXPECT_TRUE(holds(clickAt(260, 10, "tab_bar_of_two"), "nvgRect(0, 47, 266.667, 3)"));
}

TEST_F(OverlaysTest, TabBarCastsAShadowBelowItself) {
    const Calls calls = drawnBlock("tab_bar_of_two");
    EXPECT_TRUE(holds(calls, "nvgRect(0, 50, 800, 6)"));
    EXPECT_TRUE(
        holds(calls, "nvgFillPaint(linear(0, 50, 0, 56, rgba(0, 0, 0, 40), rgba(0, 0, 0, 0)))"));
}

TEST_F(OverlaysTest, AlertLeavesTheClipAsItWas) {
    const Calls calls = frame(blockNamed("alert_defaults").draw);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "nvgRestore()"), 2) << "its own, the frame's";
    EXPECT_EQ(g_currentClipX, -1);
}

}  // namespace
