// Avatars, drawn from their template. Each test of a picture has a text of its own, since its
// handle is kept for the whole run.
#include "emitted/widgets/placeholders/avatar.h"

#include <algorithm>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20.75F
#define POZHIL_BACKGROUND
#define POZHIL_HAS_PICTURE 0
#define POZHIL_HAS_BORDER 0
#define POZHIL_HAS_INITIALS 0
namespace plain {
#include "emitted/widgets/avatar.cpp"
}
#undef POZHIL_HAS_BORDER
#define POZHIL_HAS_BORDER 1
#undef POZHIL_HAS_INITIALS
#define POZHIL_HAS_INITIALS 1
#undef POZHIL_BACKGROUND
#define POZHIL_BACKGROUND br = 1.0f, bg = 0.0f, bb = 0.0f, ba = 0.5f;
namespace full {
#include "emitted/widgets/avatar.cpp"
}
#undef POZHIL_HAS_BORDER
#define POZHIL_HAS_BORDER 0
#undef POZHIL_HAS_INITIALS
#define POZHIL_HAS_INITIALS 0
#undef POZHIL_HAS_PICTURE
#define POZHIL_HAS_PICTURE 1
namespace pictured {
#include "emitted/widgets/avatar.cpp"
}
namespace missing {
#include "emitted/widgets/avatar.cpp"
}

namespace {

class AvatarTest : public Surroundings {};

const std::string kCircle = "nvgCircle(34, 44, 24)";
const std::string kRed = "nvgFillColor(rgba(255, 0, 0, 127.5))";

TEST_F(AvatarTest, IsAGreyCircle) {
    EXPECT_EQ(drawn(plain::avatar), (Calls{"nvgBeginPath()", kCircle,
                                           "nvgFillColor(rgba(200, 200, 200, 255))", "nvgFill()"}));
}

TEST_F(AvatarTest, HasItsBorderAroundAndItsInitialsInside) {
    EXPECT_EQ(drawn(full::avatar),
              (Calls{"nvgBeginPath()", kCircle, kRed, "nvgFill()", "nvgBeginPath()",
                     "nvgCircle(34, 44, 26)", "nvgStrokeColor(rgba(255, 0, 0, 255))",
                     "nvgStrokeWidth(4)", "nvgStroke()",
                     "drawText(34, 46, \"அஆ\", \"#FFFFFF\", 24, \"center\", \"400\", 0, \"\", 1, "
                     "0)"}));
}

TEST_F(AvatarTest, ShowsItsPictureWhichIsLoadedOnce) {
    browser().answerWith("nvgCreateImage", 5);
    const Calls loads = drawn(pictured::avatar);
    EXPECT_EQ(std::count(loads.begin(), loads.end(), "nvgCreateImage(\"அ.png\", 0)"), 1);
    EXPECT_EQ(drawn(pictured::avatar),
              (Calls{"nvgBeginPath()", kCircle, kRed,
                     "nvgFillPaint(image(10, 20, 48, 48, 0, 5, 1))", "nvgFill()"}));
}

TEST_F(AvatarTest, WithoutItsPictureIsFilledAndNotTriedAgain) {
    drawn(missing::avatar);
    browser().answerWith("nvgCreateImage", 5);
    EXPECT_EQ(drawn(missing::avatar), (Calls{"nvgBeginPath()", kCircle, kRed, "nvgFill()"}));
}

TEST_F(AvatarTest, TakesTheHeightThatIsForcedBeforeTheWidth) {
    const auto forced = [](float width, float height) {
        return drawn([width, height] {
                   forcedW = width;
                   forcedH = height;
                   plain::avatar();
               })
            .at(1);
    };
    EXPECT_EQ(forced(60, -1), "nvgCircle(40, 50, 30)");
    EXPECT_EQ(forced(60, 80), "nvgCircle(50, 60, 40)");
    EXPECT_EQ(forced(900, -1), "nvgCircle(410, 420, 400)");  // the window's 800
}

}  // namespace
