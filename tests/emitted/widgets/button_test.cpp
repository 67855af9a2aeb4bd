// A button, drawn from its template: its size, what the pointer does to it, what it is made of.
#include "emitted/widgets/placeholders/button.h"

#include <algorithm>
#include <utility>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20
#define POZHIL_ANIMATION
#undef POZHIL_PRESS
#define POZHIL_PRESS stand_in::note("pressed");
#define POZHIL_HAS_SHADOW 1
#define POZHIL_HAS_HOVER_COLOUR 1
#define POZHIL_HAS_BORDER 1
#define POZHIL_IS_ENABLED 1
namespace full {
#include "emitted/widgets/button.cpp"
}
#undef POZHIL_HAS_SHADOW
#define POZHIL_HAS_SHADOW 0
#undef POZHIL_HAS_HOVER_COLOUR
#define POZHIL_HAS_HOVER_COLOUR 0
#undef POZHIL_HAS_BORDER
#define POZHIL_HAS_BORDER 0
namespace plain {
#include "emitted/widgets/button.cpp"
}
#undef POZHIL_IS_ENABLED
#define POZHIL_IS_ENABLED 0
namespace disabled {
#include "emitted/widgets/button.cpp"
}

namespace {

class ButtonTest : public Surroundings {
protected:
    ButtonTest() {
        browser().window["innerWidth"] = 1280;  // texts at their own size
        browser().answerWith("nvgTextBounds", 100);
    }

    static Calls drawnUnder(double x, double y, void (*button)() = plain::button) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        return drawn(button);
    }

    static Calls clickAt(double x, double y, void (*button)() = plain::button) {
        browser().window["mouseClicked"] = 1;
        return drawnUnder(x, y, button);
    }

    /// A button at the window's corner that moves and turns red under the pointer.
    static Calls animatedUnder(double x, double y) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        return drawnBlock("button_animated");
    }

    static long count(const Calls& calls, const std::string& call) {
        return std::count(calls.begin(), calls.end(), call);
    }

    /// The rectangle of the button itself: the last one that is filled.
    static std::string rectangle(const Calls& calls) {
        std::string last;
        for (const std::string& call : calls) {
            if (call.rfind("nvgRoundedRect(", 0) == 0) last = call;
        }
        return last;
    }

    /// What is read and measured before anything is drawn.
    static Calls measured() {
        return {
            "return window.innerWidth;",   "return window.innerHeight;", "nvgFontSize(16)",
            "nvgFontFace(\"tamil_font\")", "nvgTextBounds(0, 0, \"அ\")", "return window.mouseX;",
            "return window.mouseY;"};
    }

    static Calls plainCalls(const Calls& hovered, const std::string& colour) {
        Calls all = measured();
        all.insert(all.end(), hovered.begin(), hovered.end());
        all.insert(
            all.end(),
            {"nvgBeginPath()", "nvgRoundedRect(11.5, 22, 132, 36, 8)",
             "nvgFillColor(rgba(0, 0, 0, 64))", "nvgFill()", "nvgBeginPath()",
             "nvgRoundedRect(10.5, 20, 132, 36, 8)", "nvgFillColor(" + colour + ")", "nvgFill()",
             "drawText(76.5, 32, \"அ\", \"rgb(255,255,255)\", 16, \"center\", \"400\", 0, "
             "\"\", 1, 0)"});
        return all;
    }
};

const std::string kHandOverButton = "document.body.style.cursor = 'pointer'";
const std::string kBlue = "rgba(33, 150, 243, 255)";
const std::string kDarkBlue = "rgba(13, 130, 223, 255)";

TEST_F(ButtonTest, LiesOnItsFixedShadow) { EXPECT_EQ(drawn(plain::button), plainCalls({}, kBlue)); }

TEST_F(ButtonTest, HasABlurredShadowAndABorder) {
    Calls expected = plainCalls({}, kBlue);
    const Calls shadow = {"nvgBeginPath()", "nvgRect(8.5, 18, 136, 40)",
                          "nvgFillPaint(box(10.5, 22, 132, 36, 8, 12, rgba(0, 0, 0, 100), rgba(0, "
                          "0, 0, 0)))",
                          "nvgFill()"};
    const Calls border = {"nvgBeginPath()", "nvgRoundedRect(10.5, 20, 132, 36, 8)",
                          "nvgStrokeColor(rgba(255, 0, 0, 255))", "nvgStrokeWidth(3)",
                          "nvgStroke()"};
    expected.insert(expected.end() - 1, border.begin(), border.end());
    expected.insert(expected.begin() + static_cast<long>(measured().size()), shadow.begin(),
                    shadow.end());
    EXPECT_EQ(drawn(full::button), expected);
}

TEST_F(ButtonTest, IsDarkerUnderThePointer) {
    EXPECT_EQ(drawnUnder(20, 30), plainCalls({kHandOverButton}, kDarkBlue));
}

TEST_F(ButtonTest, TakesItsHoverColourDarkened) {
    EXPECT_EQ(count(drawnUnder(20, 30, full::button), "nvgFillColor(rgba(180, 80, 0, 255))"), 1);
    EXPECT_EQ(count(drawnUnder(5, 5, full::button), "nvgFillColor(" + kBlue + ")"), 1);
}

TEST_F(ButtonTest, IsPressedOncePerClick) {
    EXPECT_EQ(clickAt(20, 30), plainCalls({kHandOverButton, "pressed"}, kDarkBlue));
    EXPECT_EQ(drawnUnder(20, 30), plainCalls({kHandOverButton}, kDarkBlue));
}

TEST_F(ButtonTest, IsHitUpToItsEdges) {
    EXPECT_EQ(count(clickAt(10.5, 20), "pressed"), 1);
    EXPECT_EQ(count(clickAt(142.5, 56), "pressed"), 1);
    for (const auto& [x, y] : {std::pair(10.0, 30.0), {143.0, 30.0}, {20.0, 19.5}, {20.0, 56.5}}) {
        EXPECT_EQ(clickAt(x, y), plainCalls({}, kBlue));
    }
}

TEST_F(ButtonTest, LooksAwayBehindAnOverlayAndNotInside) {
    const auto behind = [] {
        g_block_background_clicks = true;
        plain::button();
    };
    const auto inside = [] {
        g_block_background_clicks = true;
        g_inside_overlay = true;
        plain::button();
    };
    EXPECT_EQ(count(clickAt(20, 30, behind), "pressed"), 0);
    EXPECT_EQ(count(clickAt(20, 30, inside), "pressed"), 1);
}

TEST_F(ButtonTest, ThatIsDisabledOnlyDarkens) {
    EXPECT_EQ(clickAt(20, 30, disabled::button), plainCalls({}, kDarkBlue));
}

TEST_F(ButtonTest, HasALeastSize) {
    browser().answerWith("nvgTextBounds", 47.5);
    EXPECT_EQ(rectangle(drawn(plain::button)), "nvgRoundedRect(10.5, 20, 80, 36, 8)");
}

TEST_F(ButtonTest, StaysWithinTheWindow) {
    browser().window["innerWidth"] = 150;
    EXPECT_EQ(rectangle(drawn(plain::button)), "nvgRoundedRect(10.5, 20, 110, 36, 8)");
}

TEST_F(ButtonTest, TakesTheSizeThatIsForcedWhateverTheWindow) {
    browser().window["innerWidth"] = 150;
    const auto forced = [] {
        forcedW = 300;
        forcedH = 50;
        plain::button();
    };
    EXPECT_EQ(rectangle(drawn(forced)), "nvgRoundedRect(10.5, 20, 300, 50, 8)");
}

TEST_F(ButtonTest, ScalesItsLabelWithTheWindow) {
    browser().window["innerWidth"] = 640;
    const Calls calls = drawn(plain::button);
    EXPECT_EQ(calls.at(2), "nvgFontSize(10.4)");
    EXPECT_EQ(calls.back(),
              "drawText(76.5, 34.8, \"அ\", \"rgb(255,255,255)\", 10.4, \"center\", \"400\", 0, "
              "\"\", 1, 0)");
}

TEST_F(ButtonTest, GrowsAndTurnsRedUnderThePointerAndBack) {
    const Calls before = animatedUnder(700, 500);
    EXPECT_EQ(rectangle(before), "nvgRoundedRect(0, 0, 132, 36, 8)");
    EXPECT_EQ(count(before, "nvgFillColor(" + kBlue + ")"), 1);
    // Half way after 9 of 18 steps: 33 and 255 are 144 in the middle, and darker under the pointer.
    for (int i = 0; i < 8; i++) animatedUnder(60, 20);
    EXPECT_EQ(count(animatedUnder(60, 20), "nvgFillColor(rgba(124, 55, 102, 255))"), 1);
    for (int i = 0; i < 10; i++) animatedUnder(60, 20);
    const Calls after = animatedUnder(60, 20);
    EXPECT_EQ(rectangle(after), "nvgRoundedRect(-19, 0.999999, 288, 60, 8)");
    // Of the radius only the shadow takes notice.
    EXPECT_EQ(count(after,
                    "nvgFillPaint(box(-19, 3, 288, 60, 20, 6, rgba(0, 0, 0, 100), rgba(0, 0, 0, "
                    "0)))"),
              1);
    for (int i = 0; i < 20; i++) animatedUnder(700, 500);
    EXPECT_EQ(animatedUnder(700, 500), before);
}

}  // namespace
