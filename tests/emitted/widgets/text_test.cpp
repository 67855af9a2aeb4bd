// A text, drawn from its template: how it shrinks, where it is aligned, how it fades and counts.
#include "emitted/widgets/placeholders/text.h"

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

namespace {
std::string shown;
}

#define POZHIL_X 10.5F
#define POZHIL_Y 100
#undef POZHIL_CONTENT
#define POZHIL_CONTENT shown
#undef POZHIL_FONT_SIZE
#define POZHIL_FONT_SIZE 20.0F
#undef POZHIL_FONT
#define POZHIL_FONT "அ.ttf"
#undef POZHIL_UNDERLINE
#define POZHIL_UNDERLINE true
#define POZHIL_IS_ANIMATED 0
#define POZHIL_IS_CENTRED 0
namespace plain {
#include "emitted/widgets/text.cpp"
}
#undef POZHIL_IS_CENTRED
#define POZHIL_IS_CENTRED 1
namespace centred {
#include "emitted/widgets/text.cpp"
}
#undef POZHIL_IS_CENTRED
#define POZHIL_IS_CENTRED 0
// Half a second: a step is a thirtieth.
#undef POZHIL_DURATION
#define POZHIL_DURATION 500.0F
#undef POZHIL_CURVE
#define POZHIL_CURVE "ease_in"
#undef POZHIL_IS_ANIMATED
#define POZHIL_IS_ANIMATED 1
#define POZHIL_FADES 1
#define POZHIL_COUNTS 0
namespace fading {
#include "emitted/widgets/text.cpp"
}
#undef POZHIL_FADES
#define POZHIL_FADES 0
#undef POZHIL_COUNTS
#define POZHIL_COUNTS 1
namespace counting {
#include "emitted/widgets/text.cpp"
}
#undef POZHIL_TRIGGER
#define POZHIL_TRIGGER "hover"
namespace waiting {
#include "emitted/widgets/text.cpp"
}

namespace {

class TextTest : public Surroundings {
protected:
    TextTest() {
        shown = "அ";
        browser().window["innerWidth"] = 1280;  // texts at their own size
        browser().answerWith("measureText", 50);
    }

    /// What draws `text` at 10.5, 100 in its look.
    static std::string call(const std::string& text, const std::string& size = "20",
                            const std::string& alpha = "1", const std::string& offset = "0",
                            const std::string& place = "10.5", const std::string& align = "left") {
        return "drawText(" + place + ", 100, \"" + text + "\", \"#000000\", " + size + ", \"" +
               align + "\", \"400\", 1, \"அ.ttf\", " + alpha + ", " + offset + ")";
    }

    static std::string lastCall(void (*text)()) {
        const Calls calls = drawn(text);
        return calls.empty() ? "" : calls.back();
    }

    /// The last call of the frame that ends `frames` frames from here.
    static std::string after(int frames, void (*text)()) {
        for (int i = 1; i < frames; i++) drawn(text);
        return lastCall(text);
    }
};

TEST_F(TextTest, IsMeasuredAndDrawnInOneLine) {
    EXPECT_EQ(drawn(plain::text),
              (Calls{"return window.innerWidth;", "measureText(\"அ\", 20)", call("அ")}));
}

TEST_F(TextTest, IsAsLargeAsTheWindowAllows) {
    browser().window["innerWidth"] = 640;
    EXPECT_EQ(lastCall(plain::text), call("அ", "13"));
    browser().window["innerWidth"] = 2000;
    EXPECT_EQ(lastCall(plain::text), call("அ", "26"));
}

TEST_F(TextTest, ShrinksToTheWindowLessTwenty) {
    browser().answerWith("measureText", 1260);
    EXPECT_EQ(lastCall(plain::text), call("அ", "20")) << "it fits";
    browser().answerWith("measureText", 2520);
    EXPECT_EQ(lastCall(plain::text), call("அ", "10"));
}

TEST_F(TextTest, ShrinksToTheForcedWidthLessTwenty) {
    browser().answerWith("measureText", 360);
    Calls calls;
    frame([&] {
        forcedW = 200;
        calls = callsOf(plain::text);
        forcedW = -1;
    });
    EXPECT_EQ(calls.back(), call("அ", "10"));
    EXPECT_EQ(lastCall(plain::text), call("அ", "20"));
}

TEST_F(TextTest, InTheMiddleIsAroundItselfAfterShrinking) {
    browser().answers["measureText"] = [](const stand_in::Arguments& arguments) {
        return arguments.at(1).number == 20 ? 2520 : 1260;
    };
    EXPECT_EQ(drawn(centred::text),
              (Calls{"return window.innerWidth;", "measureText(\"அ\", 20)",
                     "measureText(\"அ\", 10)", call("அ", "10", "1", "0", "640.5", "center")}));
}

TEST_F(TextTest, FadesByTheProgressItself) {
    EXPECT_EQ(after(1, fading::text), call("அ", "20", "0.0333333", "29"));
    EXPECT_EQ(after(14, fading::text), call("அ", "20", "0.5", "15"))
        << "half way, though its curve is at a quarter";
    EXPECT_EQ(after(20, fading::text), call("அ", "20", "1", "0"));
}

TEST_F(TextTest, CountsAlongItsCurveBetweenItsParts) {
    shown = "₹0 மட்டும்";
    EXPECT_EQ(after(15, counting::text), call("₹25 மட்டும்"));
    EXPECT_EQ(after(20, counting::text), call("₹100 மட்டும்"));
    shown = "10 முதல் 20";
    EXPECT_EQ(after(1, counting::text), call("100")) << "two numbers and what lies between";
    shown = "எண் இல்லை";
    EXPECT_EQ(after(1, counting::text), call("எண் இல்லை100"));
}

TEST_F(TextTest, IsMeasuredAsItCounts) {
    shown = "0";
    EXPECT_EQ(drawn(counting::text)[1], "measureText(\"0\", 20)");
    EXPECT_EQ(after(40, counting::text), call("100"));
    EXPECT_EQ(drawn(counting::text)[1], "measureText(\"100\", 20)");
}

TEST_F(TextTest, WithAConditionOfThePointerNeverStarts) {
    shown = "7";
    EXPECT_EQ(after(30, waiting::text), call("0"));
}

}  // namespace
