// One frame of an application: what it asks and draws, in which order, and what it leaves behind.
#include "emitted/widgets/surroundings.h"

namespace {

class FrameTest : public Surroundings {};

/// What stands before the pages, in an 800 by 600 window.
Calls opening(bool isBlocked = false) {
    return {"return window.innerWidth;",
            "return window.innerHeight;",
            isBlocked ? "blindPointer(1)" : "blindPointer(0)",
            "takeClick()",
            "return window.mouseX;",
            "return window.mouseY;",
            "return window.mouseDownState;",
            "document.body.style.cursor = 'default';",
            "clearTextLayer()",
            "glfwSetWindowSize(800, 600)",
            "glfwGetFramebufferSize()",
            "glViewport(0, 0, 800, 600)",
            "glClearColor(0, 0, 0, 0)",
            "glClear: colour depth stencil",
            "nvgBeginFrame(800, 600, 1)",
            "nvgSave()"};
}

/// A whole frame with `middle` between what stands before the pages and the end.
Calls around(const Calls& middle, bool isBlocked = false) {
    Calls calls = opening(isBlocked);
    calls.insert(calls.end(), middle.begin(), middle.end());
    for (const char* last : {"nvgRestore()", "nvgEndFrame()", "sweepInputs()"}) {
        calls.emplace_back(last);
    }
    return calls;
}

TEST_F(FrameTest, WithoutWidgetsMakesTheseCallsInThisOrder) {
    EXPECT_EQ(frame(), around({"restorePointer()"}));
}

TEST_F(FrameTest, ShowsThePageBetweenItsBeginningAndTheOverlays) {
    const auto page = [] {
        nvgRect(vg, 1, 2, 3, 4);
        g_overlays.push_back([] { nvgCircle(vg, 5, 6, 7); });
    };
    EXPECT_EQ(frame(page),
              around({"nvgRect(1, 2, 3, 4)", "restorePointer()", "nvgCircle(5, 6, 7)"}));
}

TEST_F(FrameTest, TakesTheWindowsSizeAnewEachTime) {
    browser().window["innerWidth"] = 320;
    browser().window["innerHeight"] = 480.5;
    browser().pixelRatio = 2;
    Calls calls = frame([] {
        EXPECT_EQ(winWidth, 320.0F);
        EXPECT_EQ(winHeight, 480.5F);
    });
    const Calls sized(calls.begin() + 9, calls.begin() + 15);
    EXPECT_EQ(sized, (Calls{"glfwSetWindowSize(320, 480)", "glfwGetFramebufferSize()",
                            "glViewport(0, 0, 640, 960)", "glClearColor(0, 0, 0, 0)",
                            "glClear: colour depth stencil", "nvgBeginFrame(320, 480.5, 2)"}));
    EXPECT_EQ(std::any_cast<long double>(global_vars["திரை_அகலம்"]), 320.0L);
    EXPECT_EQ(std::any_cast<long double>(global_vars["திரை_உயரம்"]), 480.5L);

    browser().window["innerWidth"] = 1024;
    frame([] { EXPECT_EQ(winWidth, 1024.0F); });
    EXPECT_EQ(std::any_cast<long double>(global_vars["திரை_அகலம்"]), 1024.0L);
}

TEST_F(FrameTest, TellsThePageWhereThePointerIs) {
    browser().window["mouseX"] = 12.5;
    browser().window["mouseY"] = 40;
    browser().window["mouseDownState"] = 1;
    frame([] {
        EXPECT_EQ(mx, 12.5F);
        EXPECT_EQ(my, 40.0F);
        EXPECT_TRUE(g_mouseDown);
    });
    browser().window["mouseDownState"] = 0;
    frame([] { EXPECT_FALSE(g_mouseDown); });
}

TEST_F(FrameTest, ShowsAClickToOneFrame) {
    browser().window["mouseClicked"] = 1;
    frame([] { EXPECT_TRUE(g_mouseClicked); });
    EXPECT_FALSE(g_mouseClicked);
    EXPECT_EQ(browser().window["mouseClicked"], 0);
    frame([] { EXPECT_FALSE(g_mouseClicked); });
}

TEST_F(FrameTest, KeepsAClickThatComesDuringIt) {
    frame([] { browser().window["mouseClicked"] = 1; });
    frame([] { EXPECT_TRUE(g_mouseClicked); });
}

TEST_F(FrameTest, HandsTheHorizontalHoverOnToTheNext) {
    frame([] {
        EXPECT_FALSE(g_isHoveringH);
        g_nextHoveringH = true;
    });
    frame([] {
        EXPECT_TRUE(g_isHoveringH);
        EXPECT_FALSE(g_nextHoveringH);
    });
    frame([] { EXPECT_FALSE(g_isHoveringH); });
}

TEST_F(FrameTest, LeavesTheScrollRequestToTheContainers) {
    நகர்த்து("தொடர்பு");
    frame();
    EXPECT_EQ(g_scrollToId, "தொடர்பு");
}

TEST_F(FrameTest, LeavesTheClipAsItIs) {
    frame([] {
        EXPECT_EQ(g_currentClipX, -1.0F);
        EXPECT_EQ(g_currentClipY, -1.0F);
        EXPECT_EQ(g_currentClipW, -1.0F);
        EXPECT_EQ(g_currentClipH, -1.0F);
        g_currentClipX = 7;
    });
    EXPECT_EQ(g_currentClipX, 7.0F);
}

// ---- Overlays ----

TEST_F(FrameTest, RunsOverlaysInTheirOrderOnceAndClearsThem) {
    std::string order;
    const auto page = [&] {
        EXPECT_FALSE(g_inside_overlay);
        for (const char name : {'a', 'b'}) {
            g_overlays.push_back([&order, name] {
                EXPECT_TRUE(g_inside_overlay);
                order += name;
            });
        }
    };
    frame(page);
    EXPECT_EQ(order, "ab");
    EXPECT_TRUE(g_overlays.empty());
    EXPECT_FALSE(g_inside_overlay);
    frame();
    EXPECT_EQ(order, "ab");
}

TEST_F(FrameTest, RunsWhatAnOverlayPushesInTheSameFrame) {
    std::string order;
    frame([&] {
        g_overlays.push_back([&order] {
            order += "outer ";
            // Room for more than the vector held: what runs must not move under its feet.
            for (int i = 0; i < 9; i++) g_overlays.push_back([&order] { order += "inner "; });
            order += "end ";
        });
    });
    EXPECT_EQ(order, "outer end inner inner inner inner inner inner inner inner inner ");
    EXPECT_TRUE(g_overlays.empty());
}

// ---- The pointer while a named overlay shows ----

class BlockedFrameTest : public Surroundings {
protected:
    BlockedFrameTest() {
        g_alert_names.insert("சாளரம்");
        global_vars["சாளரம்"] = true;
        browser().window["mouseX"] = 100;
        browser().window["mouseY"] = 200;
        browser().window["mouseClicked"] = 1;
    }
};

TEST_F(BlockedFrameTest, MakesTheseCallsInThisOrder) {
    EXPECT_EQ(frame(), around({"restorePointer()", "takeClick()"}, true));
}

TEST_F(BlockedFrameTest, HidesPointerAndClickFromThePageAlone) {
    bool hasRun = false;
    frame([&] {
        EXPECT_TRUE(g_block_background_clicks);
        EXPECT_EQ(mx, -9999.0F);
        EXPECT_EQ(my, -9999.0F);
        EXPECT_EQ(browser().window["mouseX"], -9999);
        EXPECT_EQ(browser().window["mouseY"], -9999);
        EXPECT_FALSE(g_mouseClicked);
        g_overlays.push_back([&] {
            hasRun = true;
            EXPECT_EQ(browser().window["mouseX"], 100);
            EXPECT_EQ(browser().window["mouseY"], 200);
            EXPECT_TRUE(g_mouseClicked);
        });
    });
    EXPECT_TRUE(hasRun);
    EXPECT_EQ(browser().window["mouseX"], 100);
    EXPECT_EQ(browser().window["mouseY"], 200);
}

TEST_F(BlockedFrameTest, CountsAClickOnce) {
    int clicks = 0;
    for (int i = 0; i < 3; i++) {
        frame([&] { g_overlays.push_back([&] { clicks += g_mouseClicked ? 1 : 0; }); });
        EXPECT_EQ(browser().window["mouseClicked"], 0);
        EXPECT_EQ(browser().window["savedMouseClicked"], 0);
    }
    EXPECT_EQ(clicks, 1);
    global_vars["சாளரம்"] = false;
    frame([] { EXPECT_FALSE(g_mouseClicked); });
}

TEST_F(BlockedFrameTest, EndsWithTheNamedValue) {
    frame([] { EXPECT_TRUE(g_block_background_clicks); });
    global_vars["சாளரம்"] = false;
    browser().window["mouseClicked"] = 1;
    frame([] {
        EXPECT_FALSE(g_block_background_clicks);
        EXPECT_EQ(mx, 100.0F);
        EXPECT_TRUE(g_mouseClicked);
    });
}

TEST_F(BlockedFrameTest, IsAskedForByATrueValueOfAnyName) {
    global_vars["சாளரம்"] = std::string("மெய்");
    frame([] { EXPECT_FALSE(g_block_background_clicks); });
    g_alert_names = {"இல்லாதது"};
    frame([] { EXPECT_FALSE(g_block_background_clicks); });
    EXPECT_EQ(global_vars.count("இல்லாதது"), 0U);
    g_alert_names = {"அ", "ஆ", "இல்லாதது"};
    global_vars["அ"] = false;
    global_vars["ஆ"] = true;
    frame([] { EXPECT_TRUE(g_block_background_clicks); });
}

// ---- Sizes, and the video behind a page ----

TEST_F(FrameTest, LimitsAWidthToTheWindowLessItsMargin) {
    EXPECT_EQ(responsiveW(700, 800, 40), 700.0F);
    EXPECT_EQ(responsiveW(760, 800, 40), 760.0F);
    EXPECT_EQ(responsiveW(761, 800, 40), 760.0F);
    EXPECT_EQ(responsiveW(900, 800, 0), 800.0F);
    EXPECT_EQ(application::widthByItsDefault(), 760.0F);
}

TEST_F(FrameTest, ScalesTextWithTheWindowBetweenTwoBounds) {
    EXPECT_FLOAT_EQ(responsiveTextSize(20, 1280), 20.0F);
    EXPECT_FLOAT_EQ(responsiveTextSize(20, 1408), 22.0F);
    EXPECT_FLOAT_EQ(responsiveTextSize(20, 320), 13.0F);
    EXPECT_FLOAT_EQ(responsiveTextSize(20, 3000), 26.0F);
}

TEST_F(FrameTest, PlaysTheVideoOfThePath) {
    EXPECT_EQ(callsOf([] { startBackgroundVideo("assets/மழை.mp4"); }),
              Calls{"playVideo(\"assets/மழை.mp4\")"});
}

}  // namespace
