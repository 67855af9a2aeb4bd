// A check box, drawn from its template: what a click, the program and an error do to it.
#include "emitted/widgets/placeholders/check_box.h"

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20
#define POZHIL_HAS_LABEL_TEXT 1
#define POZHIL_HAS_CHILD 1
#define POZHIL_IS_ENABLED 1
#define POZHIL_IS_NAMED 1
#undef POZHIL_STARTS_CHECKED
#define POZHIL_STARTS_CHECKED false
namespace named {
#include "emitted/widgets/check_box.cpp"
}
#undef POZHIL_IS_NAMED
#define POZHIL_IS_NAMED 0
namespace nameless {
#include "emitted/widgets/check_box.cpp"
}
#undef POZHIL_IS_ENABLED
#define POZHIL_IS_ENABLED 0
namespace disabled {
#include "emitted/widgets/check_box.cpp"
}

namespace {

const char* const kName = "ஒப்புதல்";

class CheckBoxTest : public Surroundings {
protected:
    CheckBoxTest() {
        browser().window["innerWidth"] = 1280;  // texts at their own size
        browser().answerWith("measureText", 50);
        global_vars[kName] = false;
        drawn(named::check_box);  // so each test begins with an empty box
    }

    /// Draws `box` while the pointer clicks there.
    static Calls clickAt(double x, double y, void (*box)() = named::check_box) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        browser().window["mouseClicked"] = 1;
        return drawn(box);
    }

    static bool isChecked() { return std::any_cast<bool>(global_vars[kName]); }

    /// The box of 24 pixels at 10, 20 with its label, which is a circle here.
    static Calls calls(bool isHovered, const Calls& inside) {
        Calls all = {"measureText(\"அ\", 16)", "return window.mouseX;", "return window.mouseY;"};
        if (isHovered) all.emplace_back("document.body.style.cursor = 'pointer'");
        all.insert(all.end(), {"nvgBeginPath()", "nvgRoundedRect(10, 20, 24, 24, 5)"});
        all.insert(all.end(), inside.begin(), inside.end());
        all.emplace_back("nvgCircle(46, 26.5, 1)");
        return all;
    }
};

const Calls kEmpty = {"nvgStrokeColor(rgba(117, 117, 117, 255))", "nvgStrokeWidth(2)",
                      "nvgStroke()"};
const Calls kTicked = {"nvgFillColor(rgba(33, 150, 243, 255))",
                       "nvgFill()",
                       "nvgBeginPath()",
                       "nvgMoveTo(16, 32)",
                       "nvgLineTo(20.08, 36.32)",
                       "nvgLineTo(28, 27.92)",
                       "nvgLineCap(1)",
                       "nvgLineJoin(1)",
                       "nvgStrokeColor(rgba(255, 255, 255, 255))",
                       "nvgStrokeWidth(2.4)",
                       "nvgStroke()"};

TEST_F(CheckBoxTest, IsEmptyOrTicked) {
    EXPECT_EQ(drawn(named::check_box), calls(false, kEmpty));
    global_vars[kName] = true;
    EXPECT_EQ(drawn(named::check_box), calls(false, kTicked));
}

TEST_F(CheckBoxTest, TurnsOverAtAClickAndTellsTheProgram) {
    EXPECT_EQ(clickAt(12, 22), calls(true, kTicked));
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(clickAt(12, 22), calls(true, kEmpty));
    EXPECT_FALSE(isChecked());
}

TEST_F(CheckBoxTest, FollowsTheProgram) {
    clickAt(12, 22);
    global_vars[kName] = false;
    EXPECT_EQ(drawn(named::check_box), calls(true, kEmpty));
    global_vars[kName] = std::string("மெய்");
    EXPECT_EQ(drawn(named::check_box), calls(true, kEmpty));
}

TEST_F(CheckBoxTest, StoresItsStateWhereTheProgramHasNone) {
    global_vars.erase(kName);
    drawn(named::check_box);
    EXPECT_EQ(global_vars.count(kName), 1U);
    EXPECT_FALSE(isChecked());
}

TEST_F(CheckBoxTest, IsHitWithItsLabelAndNoFurther) {
    // 24 pixels of box, 15 between, 50 of label: 99 is the last.
    EXPECT_EQ(clickAt(99, 44), calls(true, kTicked));
    EXPECT_EQ(clickAt(99.5, 44), calls(false, kTicked));
    EXPECT_EQ(clickAt(99, 44.5), calls(false, kTicked));
    EXPECT_EQ(clickAt(9.5, 22), calls(false, kTicked));
    EXPECT_EQ(clickAt(12, 19.5), calls(false, kTicked));
}

TEST_F(CheckBoxTest, ShowsItsErrorUntilItIsClicked) {
    g_inputErrors[kName] = "தேவை";
    Calls expected = calls(false, kEmpty);
    expected.insert(expected.end(),
                    {"nvgBeginPath()", "nvgRoundedRect(8, 18, 28, 28, 5)",
                     "nvgStrokeColor(rgba(244, 67, 54, 255))", "nvgStrokeWidth(2)", "nvgStroke()",
                     "drawText(10, 50, \"தேவை\", \"#F44336\", 12, \"left\", \"400\", 0, \"\", 1, "
                     "0)"});
    EXPECT_EQ(drawn(named::check_box), expected);
    EXPECT_EQ(clickAt(12, 22), calls(true, kTicked));
    EXPECT_EQ(g_inputErrors.count(kName), 0U);
}

TEST_F(CheckBoxTest, WithoutANameKeepsItsStateToItself) {
    global_vars.clear();
    EXPECT_EQ(clickAt(12, 22, nameless::check_box), calls(true, kTicked));
    EXPECT_EQ(drawn(nameless::check_box), calls(true, kTicked));
    EXPECT_EQ(clickAt(12, 22, nameless::check_box), calls(true, kEmpty));
    EXPECT_EQ(global_vars.count(kName), 0U);
}

TEST_F(CheckBoxTest, ThatIsDisabledDoesNotLookAtThePointer) {
    Calls expected = calls(false, kEmpty);
    expected.erase(expected.begin() + 1, expected.begin() + 3);
    EXPECT_EQ(clickAt(12, 22, disabled::check_box), expected);
}

}  // namespace
