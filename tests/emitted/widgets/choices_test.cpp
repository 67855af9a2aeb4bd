// Radios, switches, sliders and dropdowns: what clicks and drags do to them and to the program.
#include <utility>

#include "emitted/widgets/forms.h"

namespace {

// ---- Radios ----

class RadioTest : public FormTest {
protected:
    RadioTest() { browser().answerWith("measureOnFreshCanvas", 50); }

    static Calls circle(const std::string& colour) {
        return {"nvgBeginPath()", "nvgCircle(10, 10, 10)", "nvgStrokeColor(" + colour + ")",
                "nvgStrokeWidth(2)", "nvgStroke()"};
    }
    static Calls dot(const std::string& colour) {
        return {"nvgBeginPath()", "nvgCircle(10, 10, 5)", "nvgFillColor(" + colour + ")",
                "nvgFill()"};
    }
};

const std::string kPrimary = "rgba(33, 150, 243, 255)";
const std::string kUnselected = "rgba(120, 120, 120, 255)";

TEST_F(RadioTest, OnItsOwnTurnsOverAtAClick) {
    const Calls measure = {"measureOnFreshCanvas(\"தமிழ்\", 18)"};
    const Calls label = {text("30", "10", "தமிழ்", "#000000", "18", "left")};
    const Calls empty = join({measure, kPointer, circle(kUnselected), label});
    EXPECT_EQ(drawnBlock("radio_alone"), empty);
    EXPECT_EQ(clickAt(85, 20, "radio_alone"),
              join({measure, kPointer, {kHand}, circle(kPrimary), dot(kPrimary), label}));
    EXPECT_EQ(clickAt(0, 0, "radio_alone"),
              join({measure, kPointer, {kHand}, circle(kUnselected), label}));
    EXPECT_EQ(clickAt(85.5, 20, "radio_alone"), empty) << "20, 15 and the label's 50 pixels";
    EXPECT_EQ(clickAt(85, 20.5, "radio_alone"), empty);
}

TEST_F(RadioTest, OfAGroupShowsWhatTheProgramSaysAndTellsItOfAClick) {
    int& calls = countCallsOf("தேர்ந்தெடு");
    global_vars["மொழி"] = std::string("ஆ");
    const Calls before = drawnBlock("radio_of_a_group");
    EXPECT_FALSE(holds(before, "nvgCircle(10, 10, 5)"));
    const Calls clicked = clickAt(5, 5, "radio_of_a_group");
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(holds(clicked, "nvgCircle(10, 10, 5)")) << "the program owns the choice";
    global_vars["மொழி"] = std::string("த");
    EXPECT_TRUE(holds(drawnBlock("radio_of_a_group"), "nvgCircle(10, 10, 5)"));
    EXPECT_EQ(calls, 1);
}

TEST_F(RadioTest, WithoutALabelIsHitAsFarAsOneWouldBegin) {
    EXPECT_EQ(drawnBlock("radio_without_label"), join({kPointer, circle(kUnselected)}));
    EXPECT_TRUE(holds(clickAt(35, 10, "radio_without_label"), "nvgCircle(10, 10, 5)"));
    EXPECT_FALSE(holds(clickAt(35, 10, "radio_without_label"), "nvgCircle(10, 10, 5)"));
    EXPECT_FALSE(holds(clickAt(35.5, 10, "radio_without_label"), kHand));
}

TEST_F(RadioTest, ThatIsDisabledDoesNotLookAtThePointer) {
    int& calls = countCallsOf("தேர்ந்தெடு");
    const Calls clicked = clickAt(5, 5, "radio_disabled");
    EXPECT_FALSE(holds(clicked, kHand));
    EXPECT_FALSE(holds(clicked, "return window.mouseX;"));
    EXPECT_EQ(calls, 0);
}

TEST_F(RadioTest, StandsAndIsHitWhereItsParentSetsIt) {
    const Calls here = drawnBlock("radio_alone");
    EXPECT_EQ(drawnBlock("radio_moved"), moved(here, 100, 50));
    const Calls clicked = clickAt(0, 0, "radio_alone");
    EXPECT_EQ(clickAt(100, 50, "radio_moved"), moved(clicked, 100, 50));
    pointAt(99.5, 50);
    EXPECT_FALSE(holds(drawnBlock("radio_moved"), kHand));
    pointAt(100, 49.5);
    EXPECT_FALSE(holds(drawnBlock("radio_moved"), kHand));
}

// ---- Switches ----

class SwitchTest : public FormTest {
protected:
    static Calls thumbAt(const std::string& left, const std::string& shadow,
                         const std::string& centre) {
        return {"nvgBeginPath()",
                "nvgRect(" + shadow + ", -2, 32, 32)",
                "nvgFillPaint(box(" + left +
                    ", 3, 24, 24, 12, 4, rgba(0, 0, 0, 60), rgba(0, 0, 0, 0)))",
                "nvgFill()",
                "nvgBeginPath()",
                "nvgCircle(" + centre + ", 14, 12)",
                "nvgFillColor(rgba(255, 255, 255, 255))",
                "nvgFill()"};
    }
    static Calls track(const std::string& colour) {
        return {"nvgBeginPath()", "nvgRoundedRect(0, 0, 48, 28, 14)",
                "nvgFillColor(" + colour + ")", "nvgFill()"};
    }
};

const Calls kOutline = {"nvgStrokeColor(rgba(180, 180, 180, 255))", "nvgStrokeWidth(1)",
                        "nvgStroke()"};

TEST_F(SwitchTest, IsATrackWithAThumbAtOneOfItsEnds) {
    const Calls off =
        join({kPointer, track("rgba(224, 224, 224, 255)"), kOutline, thumbAt("2", "-2", "14")});
    EXPECT_EQ(drawnBlock("switch_defaults"), off);
    const Calls on = join({kPointer, {kHand}, track(kPrimary), thumbAt("22", "18", "34")});
    EXPECT_EQ(clickAt(53, 33, "switch_defaults"), on) << "five pixels wider on each side";
    EXPECT_TRUE(holds(clickAt(-5, -5, "switch_defaults"), "nvgCircle(14, 14, 12)"));
    EXPECT_EQ(clickAt(53.5, 33, "switch_defaults"), off);
    EXPECT_EQ(clickAt(53, 33.5, "switch_defaults"), off);
    EXPECT_EQ(clickAt(-5.5, -5, "switch_defaults"), off);
}

TEST_F(SwitchTest, HasColoursOfItsOwnWithTheirOpacity) {
    EXPECT_TRUE(holds(drawnBlock("switch_coloured"), "nvgFillColor(rgba(128, 128, 128, 128))"));
    EXPECT_TRUE(holds(clickAt(10, 10, "switch_coloured"), "nvgFillColor(rgba(0, 255, 0, 255))"));
}

TEST_F(RadioTest, HasColoursOfItsOwn) {
    const Calls calls = drawnBlock("radio_coloured");
    EXPECT_TRUE(holds(calls, "nvgStrokeColor(rgba(127, 127, 127, 255))"));
    const Calls chosen = clickAt(10, 10, "radio_coloured");
    for (const char* name : {"nvgStrokeColor", "nvgFillColor"}) {
        EXPECT_TRUE(holds(chosen, name + std::string("(rgba(255, 128, 0, 255))")));
    }
}

TEST_F(SwitchTest, TellsTheProgramOfEachTurn) {
    int& calls = countCallsOf("மாற்று");
    EXPECT_TRUE(holds(drawnBlock("switch_starts_on"), "nvgCircle(34, 14, 12)"));
    clickAt(10, 10, "switch_starts_on");
    EXPECT_EQ(calls, 1);
    clickAt(10, 10, "switch_starts_on");
    EXPECT_EQ(calls, 2);
    drawnBlock("switch_starts_on");
    EXPECT_EQ(calls, 2);
}

TEST_F(SwitchTest, ThatIsDisabledStaysAsItIs) {
    const Calls clicked = clickAt(10, 10, "switch_disabled");
    EXPECT_FALSE(holds(clicked, kHand));
    EXPECT_TRUE(holds(clicked, "nvgCircle(14, 14, 12)"));
}

TEST_F(SwitchTest, StandsAndIsHitWhereItsParentSetsIt) {
    EXPECT_EQ(drawnBlock("switch_moved"), moved(drawnBlock("switch_defaults"), 100, 50));
    const Calls on = clickAt(-5, -5, "switch_defaults");
    EXPECT_EQ(clickAt(95, 45, "switch_moved"), moved(on, 100, 50));
}

// ---- Sliders ----

class SliderTest : public FormTest {
protected:
    /// Draws the block while the pointer is held down there.
    static Calls holdAt(double x, double y, const std::string& block) {
        pointAt(x, y);
        browser().window["mouseDownState"] = 1;
        return drawnBlock(block);
    }
};

TEST_F(SliderTest, IsATrackWithAThumb) {
    EXPECT_EQ(drawnBlock("slider_defaults"),
              join({kPointer,
                    {"glfwGetMouseButton(0)", "nvgBeginPath()", "nvgRoundedRect(0, 8, 200, 4, 2)",
                     "nvgFillColor(rgba(224, 224, 224, 255))", "nvgFill()", "nvgBeginPath()",
                     "nvgRoundedRect(0, 8, 0, 4, 2)", "nvgFillColor(" + kPrimary + ")", "nvgFill()",
                     "nvgBeginPath()", "nvgRect(-14, -4, 28, 28)",
                     "nvgFillPaint(box(-10, 1, 20, 20, 10, 4, rgba(0, 0, 0, 60), rgba(0, 0, 0, "
                     "0)))",
                     "nvgFill()", "nvgBeginPath()", "nvgCircle(0, 10, 10)",
                     "nvgFillColor(rgba(255, 255, 255, 255))", "nvgFill()"}}));
}

TEST_F(SliderTest, FollowsThePointerWhileItIsHeldAndTellsTheProgramInEachFrame) {
    int& calls = countCallsOf("கேள்");
    global_vars["ஒலி"] = 12LL;
    EXPECT_TRUE(holds(drawnBlock("slider_of_a_value"), "nvgCircle(40, 10, 10)"))
        << "12 between 10 and 20";
    const Calls held = holdAt(100, 30, "slider_of_a_value");
    EXPECT_TRUE(holds(held, kHand));
    EXPECT_TRUE(holds(held, "nvgCircle(100, 10, 15)")) << "a halo while it is held";
    EXPECT_TRUE(holds(held, text("100", "-15", "15", "#000000", "12", "center")));
    holdAt(210, 30, "slider_of_a_value");
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(holds(drawnBlock("slider_of_a_value"), "nvgCircle(200, 10, 10)"))
        << "no further than its end";
    EXPECT_TRUE(holds(holdAt(-10, -10, "slider_of_a_value"), "nvgCircle(0, 10, 10)"));
    calls = 0;
    EXPECT_FALSE(holds(holdAt(210.5, 10, "slider_of_a_value"), kHand));
    EXPECT_FALSE(holds(holdAt(100, 30.5, "slider_of_a_value"), kHand));
    EXPECT_EQ(calls, 0);
}

TEST_F(SliderTest, IsAsWideAsItsShareAndNeverHigher) {
    EXPECT_TRUE(holds(drawnBlock("slider_of_half_the_width"), "nvgRoundedRect(0, 8, 400, 4, 2)"));
    EXPECT_TRUE(
        holds(drawnBlock("slider_of_half_the_width", 300), "nvgRoundedRect(0, 8, 300, 4, 2)"));
    EXPECT_TRUE(holds(drawnBlock("slider_defaults", 900), "nvgRoundedRect(0, 8, 800, 4, 2)"))
        << "no wider than the window";
}

TEST_F(SliderTest, KeepsWhereItWasLeft) {
    holdAt(150, 10, "slider_defaults");
    browser().window["mouseDownState"] = 0;
    const Calls left = drawnBlock("slider_defaults");
    EXPECT_TRUE(holds(left, "nvgCircle(150, 10, 10)"));
    EXPECT_FALSE(holds(left, "nvgCircle(150, 10, 15)")) << "no halo any more";
    pointAt(20, 10);
    EXPECT_TRUE(holds(drawnBlock("slider_defaults"), "nvgCircle(150, 10, 10)"));
}

TEST_F(SliderTest, WithoutARangeStaysAtItsStart) {
    EXPECT_TRUE(holds(drawnBlock("slider_of_no_range"), "nvgCircle(0, 10, 10)"));
    const Calls held = holdAt(100, 10, "slider_of_no_range");
    EXPECT_TRUE(holds(held, "nvgCircle(0, 10, 10)"));
    EXPECT_TRUE(holds(held, text("0", "-15", "5", "#000000", "12", "center")));
}

TEST_F(SliderTest, ThatIsDisabledKeepsItsValue) {
    const Calls held = holdAt(150, 10, "slider_disabled");
    EXPECT_TRUE(holds(held, "nvgCircle(60, 10, 10)"));
    EXPECT_FALSE(holds(held, "glfwGetMouseButton(0)"));
}

TEST_F(SliderTest, StandsAndIsHeldWhereItsParentSetsIt) {
    const Calls held = holdAt(50, -10, "slider_defaults");
    EXPECT_EQ(holdAt(150, 40, "slider_moved"), moved(held, 100, 50));
    pointAt(-500, -500);
    browser().window["mouseDownState"] = 0;
    EXPECT_EQ(drawnBlock("slider_moved"), moved(drawnBlock("slider_defaults"), 100, 50));
}

// ---- Dropdowns ----

class DropdownTest : public FormTest {
protected:
    /// The calls of a whole frame: a menu is drawn at its end.
    static Calls frameOf(const std::string& block) { return frame(blockNamed(block).draw); }
    static Calls frameAt(double x, double y, const std::string& block) {
        pointAt(x, y);
        browser().window["mouseClicked"] = 1;
        return frameOf(block);
    }
    static bool showsMenu(const Calls& calls) {
        return holds(calls, "nvgStrokeColor(rgba(220, 220, 220, 255))");
    }
};

TEST_F(DropdownTest, OpensChoosesAndTellsTheProgram) {
    int& calls = countCallsOf("ஊர்மாற்று");
    const std::string block = "dropdown_of_three";
    const Calls closed = frameOf(block);
    EXPECT_TRUE(holds(closed, "nvgRoundedRect(0, 0, 250, 40, 6)"));
    EXPECT_TRUE(holds(closed, "nvgStrokeColor(rgba(200, 200, 200, 255))"));
    EXPECT_TRUE(holds(closed, "nvgStrokeWidth(1.5)"));
    EXPECT_TRUE(holds(closed, text("15", "12", "தேர்ந்தெடு...", "#333333", "16", "left")));
    EXPECT_FALSE(showsMenu(closed));

    const Calls open = frameAt(10, 10, block);
    EXPECT_TRUE(holds(open, "nvgStrokeColor(" + kPrimary + ")"));
    EXPECT_TRUE(showsMenu(open));
    EXPECT_TRUE(holds(open, "nvgRoundedRect(0, 44, 250, 80, 6)")) << "two entries of 40 pixels";
    EXPECT_TRUE(holds(open, text("15", "56", "சென்னை", "#333333", "16", "left")));
    EXPECT_TRUE(holds(open, text("15", "96", "மதுரை", "#333333", "16", "left")));

    pointAt(10, 90);
    const Calls hovered = frameOf(block);
    EXPECT_TRUE(holds(hovered, "nvgRect(0, 84, 250, 40)"));
    const std::string light = "nvgFillColor(rgba(240, 240, 240, 255))";
    EXPECT_TRUE(holds(hovered, light));
    pointAt(10, 84);
    const Calls between = frameOf(block);
    EXPECT_EQ(std::count(between.begin(), between.end(), light), 1) << "one at a time";
    pointAt(250.5, 90);
    EXPECT_FALSE(holds(frameOf(block), light));
    pointAt(-0.5, 90);
    EXPECT_FALSE(holds(frameOf(block), light));
    EXPECT_EQ(calls, 0);

    frameAt(10, 90, block);
    EXPECT_EQ(calls, 1);
    const Calls chosen = frameOf(block);
    EXPECT_FALSE(showsMenu(chosen));
    EXPECT_TRUE(holds(chosen, text("15", "12", "மதுரை", "#333333", "16", "left")));
    const Calls again = frameAt(10, 10, block);
    EXPECT_TRUE(holds(again, text("15", "96", "மதுரை", "#2196F3", "16", "left")));
    frameAt(700, 500, block);
    EXPECT_FALSE(showsMenu(frameOf(block))) << "a click elsewhere closes it";
}

TEST_F(DropdownTest, IsABoxWithAnArrowAndItsMenuAFieldOfEntries) {
    const auto box = [](const std::string& colour, const std::string& width) {
        return Calls{"nvgBeginPath()",
                     "nvgRoundedRect(0, 0, 200, 40, 6)",
                     "nvgFillColor(rgba(255, 255, 255, 255))",
                     "nvgFill()",
                     "nvgStrokeColor(" + colour + ")",
                     "nvgStrokeWidth(" + width + ")",
                     "nvgStroke()",
                     text("15", "12", "தேர்ந்தெடு...", "#333333", "16", "left"),
                     "nvgBeginPath()",
                     "nvgMoveTo(175, 17)",
                     "nvgLineTo(180, 23)",
                     "nvgLineTo(185, 17)",
                     "nvgStrokeColor(rgba(150, 150, 150, 255))",
                     "nvgStrokeWidth(2)",
                     "nvgStroke()"};
    };
    const std::string block = "dropdown_of_a_variable";
    EXPECT_EQ(drawnBlock(block), join({kPointer, box("rgba(200, 200, 200, 255)", "1.5")}));
    EXPECT_EQ(clickAt(200, 40, block), join({kPointer, {kHand}, box(kPrimary, "2")}));
    clickAt(0, 0, block);
    for (const auto& [x, y] : {std::pair(200.5, 40.0), std::pair(200.0, 40.5)}) {
        EXPECT_FALSE(holds(clickAt(x, y, block), kHand));
    }
}

TEST_F(DropdownTest, TakesItsFirstEntryToo) {
    const std::string block = "dropdown_of_three";
    frameAt(10, 10, block);
    const Calls clicked = frameAt(10, 44, block);
    EXPECT_TRUE(holds(clicked, kHand)) << "at the menu's upper edge";
    const Calls chosen = frameOf(block);
    EXPECT_FALSE(showsMenu(chosen));
    EXPECT_TRUE(holds(chosen, text("15", "12", "சென்னை", "#333333", "16", "left")));
}

TEST_F(DropdownTest, StaysOpenAtItsMenusLowerEdge) {
    const std::string block = "dropdown_of_three";
    frameAt(10, 10, block);
    frameAt(10, 124, block);
    EXPECT_TRUE(showsMenu(frameOf(block))) << "it belongs to the menu and to no entry";
    frameAt(10, 124.5, block);
    EXPECT_FALSE(showsMenu(frameOf(block)));
}

TEST_F(DropdownTest, ClosesByASecondClickOnItself) {
    EXPECT_TRUE(showsMenu(frameAt(10, 10, "dropdown_of_a_variable")));
    EXPECT_FALSE(showsMenu(frameAt(10, 10, "dropdown_of_a_variable")));
}

TEST_F(DropdownTest, StandsAndOpensWhereItsParentSetsIt) {
    const std::string here = "dropdown_of_three";
    const std::string there = "dropdown_moved";
    for (const double distance : {0, 50}) {  // from now on both show the same entry
        frameAt(100 + distance, 10 + distance, distance == 0 ? here : there);
        frameAt(100 + distance, 90 + distance, distance == 0 ? here : there);
    }
    const Calls open = frameAt(250, 40, here);
    EXPECT_TRUE(showsMenu(open));
    EXPECT_EQ(frameAt(350, 90, there), moved(open, 100, 50));
    const Calls chosen = frameAt(0, 84, here);
    EXPECT_TRUE(holds(chosen, kHand));
    EXPECT_EQ(frameAt(100, 134, there), moved(chosen, 100, 50));
    EXPECT_EQ(frameOf(there), moved(frameOf(here), 100, 50));
}

TEST_F(DropdownTest, ThatIsDisabledNeverOpens) {
    const Calls clicked = frameAt(10, 10, "dropdown_disabled");
    EXPECT_FALSE(showsMenu(clicked));
    EXPECT_FALSE(holds(clicked, kHand));
}

}  // namespace
