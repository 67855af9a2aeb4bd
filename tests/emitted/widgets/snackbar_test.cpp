// The bar that slides in from above, tells something for two and a half seconds, and goes.
#include "emitted/widgets/surroundings.h"

namespace {

constexpr double kFrame = 1000.0 / 60.0;  // milliseconds

class SnackbarTest : public Surroundings {
protected:
    SnackbarTest() {
        browser().now = 5000;
        browser().answerWith("measureSnackbar", 400);
        show("சேமிக்கப்பட்டது");
    }

    /// What a trigger stores.
    static void show(const std::string& message) {
        global_vars["active_sb"] = true;
        global_vars["sb_start_time"] = browser().now;
        global_vars["sb_y_pos"] = -100.0F;
        global_vars["sb_msg"] = message;
    }

    static float place() { return std::any_cast<float>(global_vars["sb_y_pos"]); }
    static bool isShown() { return std::any_cast<bool>(global_vars["active_sb"]); }

    /// The calls between what every frame asks before and after.
    static Calls bar() {
        Calls calls = frame();
        return {calls.begin() + 17, calls.end() - 3};
    }

    /// The line of `calls` that draws the bar itself.
    static std::string barLine(const Calls& calls) {
        for (const std::string& line : calls) {
            if (line.rfind("nvgRoundedRect(", 0) == 0) return line;
        }
        return "";
    }
};

TEST_F(SnackbarTest, IsDrawnByTheseCalls) {
    global_vars["sb_bg_r"] = 10;
    global_vars["sb_bg_g"] = 20;
    global_vars["sb_bg_b"] = 30;
    global_vars["sb_y_pos"] = 40.0F;
    EXPECT_EQ(bar(), (Calls{"nvgSave()", "nvgResetScissor()", "measureSnackbar(\"சேமிக்கப்பட்டது\")",
                            "nvgBeginPath()", "nvgRect(140, 20, 520, 95)",
                            "nvgFillPaint(box(160, 45, 480, 55, 12, 15, rgba(0, 0, 0, 100), "
                            "rgba(0, 0, 0, 0)))",
                            "nvgFill()", "nvgBeginPath()", "nvgRoundedRect(160, 40, 480, 55, 12)",
                            "nvgFillColor(rgba(10, 20, 30, 255))", "nvgFill()",
                            "clearBehindSnackbar(160, 40, 480, 55)",
                            "drawText(400, 58, \"சேமிக்கப்பட்டது\", \"#FFFFFF\", 16, \"center\", "
                            "\"400\", 0, \"\", 1, 0)",
                            "nvgRestore()"}));
}

TEST_F(SnackbarTest, IsDarkGreyUnlessItIsTold) {
    const Calls calls = bar();
    EXPECT_EQ(calls.at(9), "nvgFillColor(rgba(50, 50, 50, 255))");
}

TEST_F(SnackbarTest, ComesAQuarterOfTheWayInEachFrame) {
    for (const float y : {-65.0F, -38.75F, -19.0625F}) {
        frame();
        EXPECT_FLOAT_EQ(place(), y);
    }
    for (int i = 0; i < 60; i++) frame();
    EXPECT_NEAR(place(), 40, 0.01);
    EXPECT_TRUE(isShown());
}

TEST_F(SnackbarTest, StaysForTwoAndAHalfSeconds) {
    browser().now += 2500;
    frame();
    EXPECT_FLOAT_EQ(place(), -65.0F);
    browser().now += 0.5;
    frame();
    EXPECT_FLOAT_EQ(place(), -73.75F);
}

TEST_F(SnackbarTest, GoesTheWayItCameAndIsOverAboveTheWindow) {
    global_vars["sb_y_pos"] = 40.0F;
    browser().now += 2501;
    int frames = 0;
    while (isShown() && frames < 100) {
        browser().now += kFrame;
        frame();
        frames++;
    }
    // 140 * 0.75^n is below 10 from the tenth frame on.
    EXPECT_EQ(frames, 10);
    EXPECT_LT(place(), -90.0F);
    EXPECT_EQ(bar(), Calls{});
}

TEST_F(SnackbarTest, ThatIsOverDrawsNothingInItsLastFrame) {
    global_vars["sb_y_pos"] = -91.0F;
    browser().now += 2501;
    EXPECT_EQ(bar(), (Calls{"nvgSave()", "nvgResetScissor()", "nvgRestore()"}));
    EXPECT_FALSE(isShown());
}

TEST_F(SnackbarTest, ThatIsShownAgainStartsAgain) {
    browser().now += 2600;
    global_vars["sb_y_pos"] = 0.0F;
    frame();
    EXPECT_FLOAT_EQ(place(), -25.0F);
    show("மீண்டும்");
    frame();
    EXPECT_FLOAT_EQ(place(), -65.0F);
    EXPECT_TRUE(isShown());
}

TEST_F(SnackbarTest, IsAsWideAsItsTextWithinTwoBounds) {
    browser().answerWith("measureSnackbar", 220);
    EXPECT_EQ(barLine(bar()), "nvgRoundedRect(250, -65, 300, 55, 12)");
    browser().answerWith("measureSnackbar", 219);
    EXPECT_EQ(barLine(bar()), "nvgRoundedRect(250, -38.75, 300, 55, 12)");
    browser().answerWith("measureSnackbar", 221);
    EXPECT_EQ(barLine(bar()), "nvgRoundedRect(249.5, -19.0625, 301, 55, 12)");
    browser().answerWith("measureSnackbar", 2000);
    EXPECT_EQ(barLine(bar()), "nvgRoundedRect(20, -4.29688, 760, 55, 12)");
}

TEST_F(SnackbarTest, IsNotThereWithoutBeingAskedFor) {
    global_vars["active_sb"] = false;
    EXPECT_EQ(bar(), Calls{});
    global_vars.erase("active_sb");
    EXPECT_EQ(bar(), Calls{});
    global_vars["active_sb"] = std::string("மெய்");
    EXPECT_EQ(bar(), Calls{});
}

TEST_F(SnackbarTest, NeedsNothingButItsFlag) {
    global_vars.erase("sb_y_pos");
    global_vars.erase("sb_msg");
    EXPECT_EQ(bar().at(2), "measureSnackbar(\"\")");
    EXPECT_FLOAT_EQ(place(), -65.0F);
    global_vars.erase("sb_y_pos");
    global_vars.erase("sb_start_time");
    frame();
    EXPECT_FALSE(isShown()) << "asked for before the clock began";
}

TEST_F(SnackbarTest, IsNotOverBeforeItsTimeHoweverHighItStands) {
    global_vars["sb_y_pos"] = -400.0F;
    frame();
    EXPECT_TRUE(isShown());
}

TEST_F(SnackbarTest, StandsAboveOverlays) {
    const Calls calls = frame([] { g_overlays.push_back([] { nvgCircle(vg, 1, 2, 3); }); });
    ASSERT_GT(calls.size(), 19U);
    EXPECT_EQ(Calls(calls.begin() + 16, calls.begin() + 20),
              (Calls{"restorePointer()", "nvgCircle(1, 2, 3)", "nvgSave()", "nvgResetScissor()"}));
}

}  // namespace
