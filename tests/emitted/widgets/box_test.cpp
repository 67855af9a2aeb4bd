// A box: its look, its press, its animation and where its children lie. Where several properties
// meet, its whole texts of tests/widgets are drawn.
#include "emitted/widgets/placeholders/box.h"

#include <algorithm>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

namespace {

std::string path;

}  // namespace

#define POZHIL_X 10.5F
#define POZHIL_Y 20.5F
#define POZHIL_ANIMATION
#define POZHIL_OPEN_CLIP
#define POZHIL_CLOSE_CLIP
#define POZHIL_PRESS stand_in::note("pressed")
#define POZHIL_HAS_HOVER_COLOUR 0
#define POZHIL_IS_ENABLED 1
#define POZHIL_IS_PRESSED 1
#define POZHIL_HAS_IMAGE 0
namespace pressed {
#include "emitted/widgets/box.cpp"
}
#undef POZHIL_IS_PRESSED
#define POZHIL_IS_PRESSED 0
#undef POZHIL_HAS_HOVER_COLOUR
#define POZHIL_HAS_HOVER_COLOUR 1
namespace coloured {
#include "emitted/widgets/box.cpp"
}
#undef POZHIL_IMAGE
#define POZHIL_IMAGE path
#undef POZHIL_HAS_IMAGE
#define POZHIL_HAS_IMAGE 1
namespace pictured {
#include "emitted/widgets/box.cpp"
}

namespace {

const char* const kOrange = "nvgFillColor(rgba(255, 127.5, 0, 255))";
const char* const kHand = "document.body.style.cursor = 'pointer'";

class BoxTest : public Surroundings {
protected:
    BoxTest() { browser().window["innerWidth"] = 1280; }

    static void pointAt(double x, double y) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
    }

    static Calls clickAt(double x, double y, const std::function<void()>& box) {
        pointAt(x, y);
        browser().window["mouseClicked"] = 1;
        return drawn(box);
    }
    static Calls clickOn(const std::string& block) {
        pointAt(50, 50);
        browser().window["mouseClicked"] = 1;
        return drawnBlock(block);
    }

    /// The calls named `name`.
    static Calls only(const Calls& calls, const std::string& name) {
        Calls found;
        for (const std::string& call : calls) {
            if (call.rfind(name + "(", 0) == 0) found.push_back(call);
        }
        return found;
    }
    static Calls rectangles(const Calls& calls) { return only(calls, "nvgRoundedRect"); }
    static Calls colours(const Calls& calls) { return only(calls, "nvgFillColor"); }

    static bool holds(const Calls& calls, const std::string& call) {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }
};

// ---- The template ----

/// A box of 100 pixels at 10, 20 with its child, which is a circle here.
Calls boxCalls(const Calls& hand, const Calls& fill, const Calls& press) {
    Calls all = {"return window.innerWidth;", "return window.innerHeight;", "return window.mouseX;",
                 "return window.mouseY;"};
    const Calls shadow = {
        "nvgBeginPath()",
        "nvgRect(-16, -6, 152, 152)",
        "nvgRoundedRect(10, 20, 100, 100, 8)",
        "nvgPathWinding(2)",
        "nvgFillPaint(box(10, 23, 100, 100, 8, 16, rgba(0, 0, 0, 25), rgba(0, 0, 0, 0)))",
        "nvgFill()"};
    const Calls shape = {"nvgBeginPath()", "nvgRoundedRect(10, 20, 100, 100, 8)"};
    const Calls inside = {"nvgSave()", "nvgBeginPath()", "nvgIntersectScissor(10, 20, 100, 100)",
                          "nvgCircle(10, 20, 1)", "nvgRestore()"};
    for (const Calls& part : {hand, shadow, shape, fill, {"nvgFill()"}, press, inside}) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

TEST_F(BoxTest, StandsOnWholePixelsWithItsShadow) {
    EXPECT_EQ(drawn(pressed::box), boxCalls({}, {kOrange}, {}));
}

TEST_F(BoxTest, ShowsAHandAndIsPressedBeforeItsChildren) {
    pointAt(50, 50);
    EXPECT_EQ(drawn(pressed::box), boxCalls({kHand}, {kOrange}, {}));
    EXPECT_EQ(clickAt(50, 50, pressed::box), boxCalls({kHand}, {kOrange}, {"pressed"}));
}

TEST_F(BoxTest, ReachesToItsEdgesAndNoFurther) {
    for (const auto& [x, y] : {std::pair(10, 20), {110, 20}, {10, 120}, {110, 120}}) {
        EXPECT_EQ(clickAt(x, y, pressed::box), boxCalls({kHand}, {kOrange}, {"pressed"}));
    }
    for (const auto& [x, y] : {std::pair(9.5, 50.0), {110.5, 50}, {50, 19.5}, {50, 120.5}}) {
        EXPECT_EQ(clickAt(x, y, pressed::box), boxCalls({}, {kOrange}, {}));
    }
}

TEST_F(BoxTest, ThatIsBlockedShowsNoHandButIsPressed) {
    const auto blocked = [] {
        g_block_background_clicks = true;
        pressed::box();
    };
    EXPECT_EQ(clickAt(50, 50, blocked), boxCalls({}, {kOrange}, {"pressed"}));
    const auto inOverlay = [] {
        g_block_background_clicks = true;
        g_inside_overlay = true;
        pressed::box();
        g_inside_overlay = false;
    };
    EXPECT_EQ(clickAt(50, 50, inOverlay), boxCalls({kHand}, {kOrange}, {"pressed"}));
}

TEST_F(BoxTest, TakesItsOtherColourUnderThePointer) {
    EXPECT_EQ(drawn(coloured::box), boxCalls({}, {kOrange}, {}));
    const Calls green = {"nvgFillColor(rgba(0, 127.5, 0, 255))"};
    EXPECT_EQ(clickAt(50, 50, coloured::box), boxCalls({kHand}, green, {}));
}

TEST_F(BoxTest, LoadsEachPictureOnce) {
    const auto load = [](const char* name) {
        return std::string("nvgCreateImage(\"") + name + "\", 0)";
    };
    const auto pattern = [](const char* image) {
        return std::string("nvgFillPaint(image(10, 20, 100, 100, 0, ") + image + ", 1))";
    };
    path = "அ.png";
    browser().answerWith("nvgCreateImage", 7);
    EXPECT_EQ(drawn(pictured::box), boxCalls({}, {load("அ.png"), pattern("7")}, {}));
    path = "ஆ.png";
    browser().answerWith("nvgCreateImage", 8);
    EXPECT_EQ(drawn(pictured::box), boxCalls({}, {load("ஆ.png"), pattern("8")}, {}));
    path = "அ.png";
    EXPECT_EQ(drawn(pictured::box), boxCalls({}, {pattern("7")}, {}));
}

TEST_F(BoxTest, IsColouredWithoutItsPictureAndDoesNotTryAgain) {
    path = "இல்லை.png";
    EXPECT_EQ(drawn(pictured::box), boxCalls({}, {"nvgCreateImage(\"இல்லை.png\", 0)", kOrange}, {}));
    EXPECT_EQ(drawn(pictured::box), boxCalls({}, {kOrange}, {}));
}

// ---- Whole boxes: look and size ----

TEST_F(BoxTest, IsAClearSquareByItself) {
    const Calls calls = drawnBlock("box_bare");
    EXPECT_EQ(rectangles(calls), Calls{"nvgRoundedRect(0, 0, 100, 100, 0)"});
    EXPECT_EQ(colours(calls), Calls{"nvgFillColor(rgba(0, 0, 0, 0))"});
}

TEST_F(BoxTest, TakesItsSizes) {
    browser().window = {{"innerWidth", 800}, {"innerHeight", 600}};
    EXPECT_EQ(rectangles(drawnBlock("box_sized")), Calls{"nvgRoundedRect(0, 0, 200, 120, 0)"});
    EXPECT_EQ(rectangles(drawnBlock("box_sized_by_shares")),
              Calls{"nvgRoundedRect(0, 0, 400, 150, 0)"});
    EXPECT_EQ(rectangles(drawnBlock("box_sized_by_its_group_first")),
              Calls{"nvgRoundedRect(0, 0, 200, 120, 0)"});
    EXPECT_EQ(rectangles(drawnBlock("box_sized_by_no_size")),
              Calls{"nvgRoundedRect(0, 0, 100, 100, 0)"});
}

TEST_F(BoxTest, IsAsLargeAsItsParentForces) {
    const auto forced = [](const char* block) {
        const Calls calls = drawnBlock(block, 50, 40);
        EXPECT_EQ(forcedW, 50);
        EXPECT_EQ(forcedH, 40);
        return calls;
    };
    EXPECT_EQ(rectangles(forced("box_sized")), Calls{"nvgRoundedRect(0, 0, 50, 40, 0)"});
    EXPECT_EQ(rectangles(forced("box_sized_by_shares")), Calls{"nvgRoundedRect(0, 0, 50, 40, 0)"});
    EXPECT_EQ(rectangles(forced("box_in_a_box")),
              (Calls{"nvgRoundedRect(0, 0, 50, 40, 0)", "nvgRoundedRect(0, 0, 640, 100, 0)"}))
        << "but its child is free";
}

TEST_F(BoxTest, ChoosesItsSizeByTheWindow) {
    const auto sizeAt = [](double width, const char* block) {
        browser().window = {{"innerWidth", width}, {"innerHeight", 300}};
        return rectangles(drawnBlock(block));
    };
    EXPECT_EQ(sizeAt(500, "box_wide_by_choice"), Calls{"nvgRoundedRect(0, 0, 500, 60, 0)"});
    EXPECT_EQ(sizeAt(700, "box_wide_by_choice"), Calls{"nvgRoundedRect(0, 0, 350, 60, 0)"});
    EXPECT_EQ(sizeAt(500, "box_high_by_choice_in_its_block"),
              Calls{"nvgRoundedRect(0, 0, 100, 40, 0)"});
    EXPECT_EQ(sizeAt(700, "box_high_by_choice_in_its_block"),
              Calls{"nvgRoundedRect(0, 0, 100, 300, 0)"});
    EXPECT_EQ(sizeAt(500, "box_wide_by_choice_of_no_size"),
              Calls{"nvgRoundedRect(0, 0, 100, 50, 0)"});
    EXPECT_EQ(sizeAt(700, "box_wide_by_choice_of_no_size"),
              Calls{"nvgRoundedRect(0, 0, 350, 100, 0)"});
}

TEST_F(BoxTest, TakesItsLookFromItsStyleBlock) {
    const Calls away = drawnBlock("box_of_its_style_block");
    const Calls twice = {"nvgRoundedRect(0, 0, 300, 150, 12)",
                         "nvgRoundedRect(0, 0, 300, 150, 12)"};
    EXPECT_EQ(rectangles(away), twice) << "the hole of its shadow, and itself";
    EXPECT_EQ(colours(away).size(), 1U);
    EXPECT_TRUE(holds(away, "nvgRect(-34, -34, 368, 218)"));
    pointAt(-1, -1);
    EXPECT_EQ(colours(drawnBlock("box_of_its_style_block")).front().substr(0, 23),
              "nvgFillColor(rgba(255, ");
    pointAt(150, 75);
    EXPECT_EQ(colours(drawnBlock("box_of_its_style_block")),
              Calls{"nvgFillColor(rgba(0, 0, 255, 255))"});
}

TEST_F(BoxTest, OverridesItsStyleBlock) {
    pointAt(50, 50);
    const Calls calls = drawnBlock("box_above_its_style_block");
    EXPECT_EQ(rectangles(calls), Calls{"nvgRoundedRect(0, 0, 200, 120, 4)"});
    EXPECT_EQ(colours(calls), Calls{"nvgFillColor(rgba(0, 255, 0, 255))"});
}

// ---- Whole boxes: press and animation ----

TEST_F(BoxTest, DoesWhatItsPressSaysOnce) {
    pointAt(50, 50);
    drawnBlock("box_pressed");
    EXPECT_EQ(g_currentPage, "home");
    clickOn("box_pressed");
    EXPECT_EQ(g_currentPage, "அடுத்து");
    g_currentPage = "home";
    drawnBlock("box_pressed");
    EXPECT_EQ(g_currentPage, "home");
}

TEST_F(BoxTest, DoesWhatItsStyleBlockSaysOfAPress) {
    drawnBlock("box_pressed_by_its_block");
    EXPECT_EQ(global_vars.count("எண்ணிக்கை"), 0U);
    EXPECT_TRUE(holds(clickOn("box_pressed_by_its_block"), kHand));
    EXPECT_EQ(global_vars.count("எண்ணிக்கை"), 1U);
}

TEST_F(BoxTest, ThatIsDisabledIsDeaf) {
    const Calls calls = clickOn("box_disabled");
    EXPECT_EQ(g_currentPage, "home");
    EXPECT_FALSE(holds(calls, kHand));
    EXPECT_EQ(colours(calls), Calls{"nvgFillColor(rgba(0, 255, 0, 255))"});
}

TEST_F(BoxTest, MovesWhileThePointerIsOverItAndBack) {
    const auto shape = [](int frames) {
        for (int i = 1; i < frames; i++) drawnBlock("box_animated");
        const Calls calls = drawnBlock("box_animated");
        Calls both = rectangles(calls);
        both.push_back(colours(calls).back());
        return both;
    };
    const Calls atRest = {"nvgRoundedRect(0, 0, 200, 100, 0)", "nvgFillColor(rgba(0, 0, 0, 0))"};
    const Calls halfway = {"nvgRoundedRect(-47.5, -17.5, 375, 225, 10)",
                           "nvgFillColor(rgba(127.5, 0, 0, 127.5))"};
    const Calls atItsEnd = {"nvgRoundedRect(-120, -60, 600, 400, 20)",
                            "nvgFillColor(rgba(255, 0, 0, 255))"};
    pointAt(900, 500);
    EXPECT_EQ(shape(1), atRest);
    pointAt(150, 50);
    EXPECT_EQ(shape(9), halfway);
    EXPECT_EQ(shape(20), atItsEnd);
    pointAt(900, 500);
    EXPECT_EQ(shape(9), halfway);
    EXPECT_EQ(shape(20), atRest);
}

TEST_F(BoxTest, MovesByItselfToItsEndAndStays) {
    const auto colour = [] { return colours(drawnBlock("box_animated_by_itself")).back(); };
    EXPECT_NE(colour(), "nvgFillColor(rgba(0, 0, 0, 0))");
    for (int i = 0; i < 10; i++) colour();
    for (int i = 0; i < 3; i++) EXPECT_EQ(colour(), "nvgFillColor(rgba(255, 0, 0, 255))");
    EXPECT_EQ(rectangles(drawnBlock("box_animated_at_the_top")),
              Calls{"nvgRoundedRect(0, 0, 100, 100, 0)"})
        << "at the window's upper edge it doesn't begin";
}

// ---- Whole boxes: children ----

TEST_F(BoxTest, PutsAChildAtEachOfNinePlaces) {
    const std::pair<const char*, const char*> places[] = {
        {"top_left", "0, 0"},     {"top", "88, 0"},     {"top_right", "176, 0"},
        {"middle_left", "0, 28"}, {"middle", "88, 28"}, {"middle_right", "176, 28"},
        {"bottom_left", "0, 56"}, {"bottom", "88, 56"}, {"bottom_right", "176, 56"}};
    for (const auto& [word, place] : places) {
        EXPECT_EQ(rectangles(drawnBlock(std::string("box_aligned_") + word)).back(),
                  std::string("nvgRoundedRect(") + place + ", 24, 24, 5)")
            << word;
    }
}

TEST_F(BoxTest, IsAlignedByItsGroupUnlessAPropertySaysOther) {
    EXPECT_EQ(rectangles(drawnBlock("box_aligned_in_a_group")).back(),
              "nvgRoundedRect(176, 76, 24, 24, 5)");
    EXPECT_EQ(rectangles(drawnBlock("box_aligned_by_an_unknown_word")).back(),
              "nvgRoundedRect(76, 76, 24, 24, 5)");
    EXPECT_EQ(rectangles(drawnBlock("box_aligned_twice")).back(),
              "nvgRoundedRect(76, 76, 24, 24, 5)");
}

TEST_F(BoxTest, PutsATextByTheWidthThatTheBrowserTells) {
    browser().answerWith("measureBoxText", 50);
    const Calls calls = drawnBlock("box_aligned_in_a_group");
    EXPECT_TRUE(holds(calls, "measureBoxText(\"அ\", \"normal\", 16)"));
    const Calls texts = only(calls, "drawText");
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].substr(0, 18), "drawText(150, 86, ") << "2 pixels below its place";
}

TEST_F(BoxTest, MeasuresATextInItsStyleAndUnscaled) {
    browser().window["innerWidth"] = 640;
    global_vars["எண்ணிக்கை"] = 5LL;
    const Calls calls = drawnBlock("box_around_a_styled_text");
    EXPECT_TRUE(holds(calls, "measureBoxText(\"5\", \"700\", 24)"));
    EXPECT_NE(only(calls, "drawText").at(0).find(", 15.6, \"left\", \"700\""), std::string::npos);
    EXPECT_TRUE(
        holds(drawnBlock("box_around_an_empty_text"), "measureBoxText(\"\", \"normal\", 16)"));
}

TEST_F(BoxTest, TellsTheClipToItsChildren) {
    Calls clip;
    browser().answers["nvgStroke"] = [&](const auto&) {
        clip = {stand_in::describe(g_currentClipX), stand_in::describe(g_currentClipY),
                stand_in::describe(g_currentClipW), stand_in::describe(g_currentClipH)};
        return 0;
    };
    drawnBlock("box_aligned_in_a_group");
    EXPECT_EQ(clip, (Calls{"0", "0", "200", "100"}));
    EXPECT_EQ(g_currentClipW, -1);
}

}  // namespace
