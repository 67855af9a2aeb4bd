// A text button, drawn from its template: what the pointer does to it.
#include "emitted/widgets/placeholders/text_button.h"

#include <utility>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20
#define POZHIL_IS_ENABLED 1
#undef POZHIL_CALLBACK
#define POZHIL_CALLBACK \
    std::any callback = std::function<void()>([=]() { stand_in::note("pressed"); });
namespace enabled {
#include "emitted/widgets/text_button.cpp"
}
#undef POZHIL_CALLBACK
#define POZHIL_CALLBACK std::any callback = std::function<void()>([=]() { throw 1; });
namespace throwing {
#include "emitted/widgets/text_button.cpp"
}
#undef POZHIL_CALLBACK
#define POZHIL_CALLBACK std::any callback = 1;
namespace otherwise {
#include "emitted/widgets/text_button.cpp"
}
#undef POZHIL_IS_ENABLED
#define POZHIL_IS_ENABLED 0
namespace disabled {
#include "emitted/widgets/text_button.cpp"
}

namespace {

class TextButtonTest : public Surroundings {
protected:
    TextButtonTest() { browser().answerWith("nvgTextBounds", 100); }

    static Calls clickAt(double x, double y, void (*button)() = enabled::text_button) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        browser().window["mouseClicked"] = 1;
        return drawn(button);
    }

    static Calls calls(const Calls& hovered, const std::string& colour) {
        Calls all = {"nvgFontSize(16)", "nvgFontFace(\"sans\")", "nvgTextBounds(0, 0, \"அ\")",
                     "return window.mouseX;", "return window.mouseY;"};
        all.insert(all.end(), hovered.begin(), hovered.end());
        all.push_back("drawText(68.5, 34, \"அ\", \"" + colour +
                      "\", 16, \"center\", \"400\", 0, \"\", 1, 0)");
        return all;
    }
};

const std::string kHandOverText = "document.body.style.cursor = 'pointer'";
const std::string kWhite = "rgba(255,255,255,1.000000)";
const std::string kGreen = "rgba(58,173,104,1.000000)";

TEST_F(TextButtonTest, IsItsLabelAndNothingElse) {
    EXPECT_EQ(drawn(enabled::text_button), calls({}, kWhite));
}

TEST_F(TextButtonTest, IsPressedUpToItsEdges) {
    EXPECT_EQ(clickAt(10.5, 20), calls({kHandOverText, "pressed"}, kGreen));
    EXPECT_EQ(clickAt(126.5, 60), calls({kHandOverText, "pressed"}, kGreen));
    for (const auto& [x, y] : {std::pair(10.0, 30.0), {127.0, 30.0}, {20.0, 19.5}, {20.0, 60.5}}) {
        EXPECT_EQ(clickAt(x, y), calls({}, kWhite));
    }
}

TEST_F(TextButtonTest, IsOnlyColouredWithoutAClick) {
    clickAt(20, 30);
    EXPECT_EQ(drawn(enabled::text_button), calls({kHandOverText}, kGreen));
}

TEST_F(TextButtonTest, SwallowsWhatItsPressThrows) {
    EXPECT_EQ(clickAt(20, 30, throwing::text_button), calls({kHandOverText}, kGreen));
}

TEST_F(TextButtonTest, CallsNothingButAFunction) {
    EXPECT_EQ(clickAt(20, 30, otherwise::text_button), calls({kHandOverText}, kGreen));
}

TEST_F(TextButtonTest, ThatIsDisabledIsOnlyColoured) {
    EXPECT_EQ(clickAt(20, 30, disabled::text_button), calls({}, kGreen));
}

TEST_F(TextButtonTest, CallsAFunctionOfTheProgram) {
    const auto page = [] {
        drawnBlock("text_button_with_a_function");
        return g_currentPage;
    };
    browser().window = {{"mouseX", 20}, {"mouseY", 300}, {"mouseClicked", 1}};
    EXPECT_EQ(page(), "home");
    browser().window = {{"mouseX", 20}, {"mouseY", 30}, {"mouseClicked", 1}};
    EXPECT_EQ(page(), "இரண்டு");
}

}  // namespace
