// What is typed into: the frames that the canvas draws, and the elements that are placed over them.
#include "emitted/widgets/forms.h"

namespace {

const std::string kDark = "rgba(51,51,51,1.000000)";

class InputsTest : public FormTest {
protected:
    InputsTest() { browser().window["innerWidth"] = 1280; }

    static Calls frameOfBox(const std::string& rectangle) {
        return {"nvgBeginPath()", "nvgRoundedRect(" + rectangle + ")"};
    }

    /// The placing of an element; `numbers` are its text's size, its place and its own size.
    static std::string placed(const std::string& id, const std::string& hint,
                              const std::string& colour, const std::string& numbers,
                              const std::string& tag = "input") {
        return "placeInput(\"" + id + "\", \"" + tag + "\", \"" + hint + "\", \"" + colour +
               "\", " + numbers + ")";
    }

    /// What is done with the element of that block, from its placing on.
    static Calls placedBy(const std::string& block) {
        const Calls calls = drawnBlock(block);
        const auto begin = std::find_if(calls.begin(), calls.end(), [](const std::string& call) {
            return call.rfind("placeInput(", 0) == 0;
        });
        return {begin, calls.end()};
    }
};

// ---- Text boxes ----

TEST_F(InputsTest, TextBoxIsAFrameUnderAnElement) {
    EXPECT_EQ(drawnBlock("text_box_defaults"),
              (Calls{"nvgBeginPath()", "nvgRoundedRect(0, 0, 320, 50, 8)",
                     "nvgFillColor(rgba(255, 255, 255, 255))", "nvgFill()",
                     "nvgStrokeColor(rgba(228.99, 231.03, 235.11, 255))", "nvgStrokeWidth(1)",
                     "nvgStroke()", placed("text_1", "", kDark, "16, 15, 0, 290, 50")}));
}

TEST_F(InputsTest, TextBoxTakesItsStyle) {
    const Calls calls = drawnBlock("text_box_styled");
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(0, 0, 400, 120, 16)"));
    EXPECT_TRUE(holds(calls, "nvgFillColor(rgba(249.9, 249.9, 249.9, 255))"));
    EXPECT_TRUE(holds(calls, "nvgStrokeColor(rgba(0, 0, 255, 255))"));
    EXPECT_TRUE(holds(calls, "nvgStrokeWidth(2)"));
    EXPECT_EQ(calls.back(),
              placed("text_1", "", "rgba(255,128,0,1.000000)", "16, 15, 0, 370, 100", "textarea"));
    const Calls first = drawnBlock("text_box_style_first");
    EXPECT_TRUE(holds(first, "nvgRoundedRect(0, 0, 100, 30, 1)"));
    EXPECT_TRUE(holds(first, "nvgFillColor(rgba(255, 0, 0, 255))"));
    EXPECT_TRUE(holds(first, "nvgStrokeColor(rgba(127.5, 0, 127.5, 255))"));
    EXPECT_TRUE(holds(first, "nvgStrokeWidth(3)"));
}

TEST_F(InputsTest, TextBoxShowsTheErrorOfItsName) {
    const Calls calm = drawnBlock("text_box_named");
    EXPECT_EQ(calm.back(), placed("பெயர்", "உங்கள் பெயர்", kDark, "16, 15, 0, 290, 50"));
    g_inputErrors["பெயர்"] = "தேவை";
    Calls expected = {calm.begin(), calm.end() - 1};
    expected.insert(expected.end(),
                    {"nvgBeginPath()", "nvgRoundedRect(0, 0, 320, 50, 8)",
                     "nvgStrokeColor(rgba(244, 67, 54, 255))", "nvgStrokeWidth(2)", "nvgStroke()",
                     text("0", "54", "தேவை", "#F44336", "12", "left"), calm.back()});
    EXPECT_EQ(drawnBlock("text_box_named"), expected);
    clear_input_error("பெயர்");
    EXPECT_EQ(drawnBlock("text_box_named"), calm) << "typing clears it";
}

TEST_F(InputsTest, TextBoxKeepsWithinTheWindowAndItsParent) {
    browser().window["innerWidth"] = 300;
    EXPECT_TRUE(holds(drawnBlock("text_box_defaults"), "nvgRoundedRect(0, 0, 260, 50, 8)"));
    EXPECT_TRUE(holds(drawnBlock("text_box_defaults", 290, 80), "nvgRoundedRect(0, 0, 290, 50, 8)"))
        << "a forced width is taken as it is, a forced height not at all";
    browser().window["innerWidth"] = 1280;
    EXPECT_TRUE(holds(drawnBlock("text_box_of_half_the_width_is_as_wide_as_ever"),
                      "nvgRoundedRect(0, 0, 320, 50, 8)"));
}

TEST_F(InputsTest, TextBoxMakesRoomForWhatLeads) {
    browser().answerWith("nvgCreateImage", 5);
    const Calls calls = drawnBlock("text_box_with_icon");
    EXPECT_TRUE(holds(calls, "nvgRect(12, 15, 24, 20)"));
    EXPECT_EQ(calls.back(), placed("text_1", "", kDark, "16, 51, 0, 254, 50"));
}

TEST_F(InputsTest, TextBoxIsMadeOnceAndPlacedInEachFrame) {
    const std::string inPlace = placed("text_1", "", kDark, "16, 15, 0, 290, 50");
    EXPECT_EQ(placedBy("text_box_defaults"), (Calls{inPlace}));
    browser().answerWith("placeInput", 1);
    EXPECT_EQ(placedBy("text_box_defaults"), (Calls{inPlace, "layOverFrame(1)"}))
        << "typing clears the error";
    const Calls ofLines = placedBy("text_box_styled");
    EXPECT_EQ(Calls(ofLines.begin() + 1, ofLines.end()),
              (Calls{"layOverFrame(1)", "letLinesFlow()"}));
}

TEST_F(InputsTest, TextBoxOfAnEmptyNameHasItsOwn) {
    EXPECT_EQ(drawnBlock("text_box_of_an_empty_name"), drawnBlock("text_box_defaults"));
}

TEST_F(InputsTest, DisabledOnesTakeNothing) {
    for (const std::string kind : {"text_box", "password_box", "search_bar"}) {
        Calls calls = drawnBlock(kind + "_defaults");
        calls.emplace_back("disableInput()");
        EXPECT_EQ(drawnBlock(kind + "_disabled"), calls);
    }
}

// ---- Password boxes ----

TEST_F(InputsTest, PasswordBoxIsAPlateUnderAnElement) {
    const Calls calls = drawnBlock("password_box_defaults");
    EXPECT_EQ(calls, (Calls{"nvgBeginPath()", "nvgRoundedRect(0, 0, 320, 60, 12)",
                            "nvgFillColor(rgba(255, 255, 255, 255))", "nvgFill()",
                            placed("input_2", "", "rgba(0,0,0,1.000000)", "17, 0, 0, 320, 60"),
                            "fitIntoWindow(\"rgba(255,255,255,1.000000)\", 0, 60)"}));
    EXPECT_EQ(placedBy("password_box_one_colour_is_the_background"),
              (Calls{placed("input_2", "", "rgba(0,0,0,1.000000)", "17, 0, 0, 320, 60"),
                     "fitIntoWindow(\"rgba(17,34,51,1.000000)\", 0, 60)"}));
    EXPECT_EQ(
        placedBy("password_box_two_colours"),
        (Calls{placed("input_2", "கடவுச்சொல்", "rgba(255,255,255,1.000000)", "17, 0, 0, 200, 45"),
               "fitIntoWindow(\"rgba(17,34,51,1.000000)\", 0, 45)"}));
    EXPECT_EQ(placedBy("password_box_text_colour_wins"),
              (Calls{placed("input_2", "", "rgba(255,255,0,1.000000)", "17, 0, 0, 320, 60"),
                     "fitIntoWindow(\"rgba(17,34,51,1.000000)\", 0, 60)"}));
}

TEST_F(InputsTest, PasswordBoxLooksByItselfFromItsMaking) {
    browser().answerWith("placeInput", 1);
    EXPECT_EQ(placedBy("password_box_defaults"),
              (Calls{placed("input_2", "", "rgba(0,0,0,1.000000)", "17, 0, 0, 320, 60"),
                     "lookByItself()", "fitIntoWindow(\"rgba(255,255,255,1.000000)\", 0, 60)"}));
}

// ---- Search bars ----

const Calls kLens = {"nvgBeginPath()",
                     "nvgCircle(18, 23, 6)",
                     "nvgMoveTo(22.5, 27.5)",
                     "nvgLineTo(28, 33)",
                     "nvgStrokeColor(rgba(150, 150, 150, 255))",
                     "nvgStrokeWidth(2)",
                     "nvgStroke()"};

TEST_F(InputsTest, SearchBarHasALensAndAnElement) {
    const Calls plate = {"nvgBeginPath()", "nvgRoundedRect(0, 0, 350, 50, 25)",
                         "nvgFillColor(rgba(239.955, 244.035, 249.9, 255))", "nvgFill()"};
    EXPECT_EQ(
        drawnBlock("search_bar_defaults"),
        join({plate, kLens, {placed("search_1", "Search...", "#333", "16, 45, 0, 270, 50")}}));
    EXPECT_EQ(drawnBlock("search_bar_by_the_other_word"),
              join({plate, kLens, {placed("search_1", "தேடு", "#333", "16, 45, 0, 270, 50")}}));
}

TEST_F(InputsTest, SearchBarClearsNoErrorOfItsOwn) {
    browser().answerWith("placeInput", 1);
    EXPECT_EQ(placedBy("search_bar_defaults").at(1), "layOverFrame(0)");
}

TEST_F(InputsTest, SearchBarShowsACrossThatEmptiesIt) {
    set_input_value("search_1", "மதுரை");
    const Calls cross = {"nvgBeginPath()",     "nvgMoveTo(320, 20)",
                         "nvgLineTo(330, 30)", "nvgMoveTo(330, 20)",
                         "nvgLineTo(320, 30)", "nvgStrokeColor(rgba(150, 150, 150, 255))",
                         "nvgStrokeWidth(2)",  "nvgStroke()"};
    const Calls calls = drawnBlock("search_bar_defaults");
    EXPECT_EQ(Calls(calls.end() - 10, calls.end()), join({cross, kPointer}));
    clickAt(340.5, 25, "search_bar_defaults");
    EXPECT_EQ(g_inputValues["search_1"], "மதுரை");
    const Calls clicked = clickAt(340, 40, "search_bar_defaults");
    EXPECT_TRUE(holds(clicked, kHand));
    EXPECT_EQ(clicked.back(), "emptyInput()");
    EXPECT_EQ(g_inputValues["search_1"], "");
}

TEST_F(InputsTest, SearchBarTakesItsStyleAndPictures) {
    browser().answerWith("nvgCreateImage", 5);
    set_input_value("search_1", "அ");
    const Calls calls = drawnBlock("search_bar_styled");
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(0, 0, 640, 40, 8)"));
    EXPECT_TRUE(holds(calls, "nvgFillColor(rgba(237.915, 237.915, 237.915, 255))"));
    EXPECT_TRUE(holds(calls, "nvgCreateImage(\"தேடு.png\", 0)"));
    EXPECT_TRUE(holds(calls, "nvgFillPaint(image(10, 10, 20, 20, 0, 5, 0.5))"));
    EXPECT_TRUE(holds(calls, "nvgCreateImage(\"அழி.png\", 0)"));
    EXPECT_TRUE(holds(calls, "nvgFillPaint(image(605, 10, 20, 20, 0, 5, 0.5))"));
    EXPECT_TRUE(holds(calls, placed("search_1", "ஊர்", "#333", "18, 45, 0, 560, 40")));
    const Calls next = drawnBlock("search_bar_styled");
    EXPECT_FALSE(holds(next, "nvgCreateImage(\"தேடு.png\", 0)")) << "once";
}

TEST_F(InputsTest, SearchBarDrawsItsPicturesAroundTheirMiddles) {
    drawBarImage(5, 20, 25);
    EXPECT_EQ(browser().take(),
              (Calls{"nvgBeginPath()", "nvgRect(10, 15, 20, 20)",
                     "nvgFillPaint(image(10, 15, 20, 20, 0, 5, 0.5))", "nvgFill()"}));
    drawBarImage(0, 20, 25);
    EXPECT_EQ(browser().take(), Calls{}) << "one that is missing";
}

}  // namespace
