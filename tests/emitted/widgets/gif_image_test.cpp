// An animated image, drawn from its template: where it lies, when the pointer is near.
#include "emitted/widgets/placeholders/gif_image.h"

#include <utility>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 30.5F
#define POZHIL_Y 40.75F
namespace {
#include "emitted/widgets/gif_image.cpp"

class GifImageTest : public Surroundings {
protected:
    static std::string shown(double x, double y) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        return drawn(gif_image).back();
    }
};

const std::string kAway = "showGif(\"gif_POZHIL_ID\", \"அ.gif\", 30, 40, 100, 60, 4, 0)";
const std::string kNear = "showGif(\"gif_POZHIL_ID\", \"அ.gif\", 30, 40, 100, 60, 4, 1)";

TEST_F(GifImageTest, IsShownByTheBrowserInEachFrame) {
    EXPECT_EQ(drawn(gif_image), (Calls{"return window.mouseX;", "return window.mouseY;", kAway}));
    EXPECT_EQ(drawn(gif_image), (Calls{"return window.mouseX;", "return window.mouseY;", kAway}));
}

TEST_F(GifImageTest, FeelsThePointerTenPixelsAround) {
    for (const auto& [x, y] :
         {std::pair(20.0, 30.0), {140.0, 110.0}, {20.0, 110.0}, {140.0, 30.0}, {80.0, 70.0}}) {
        EXPECT_EQ(shown(x, y), kNear);
    }
    for (const auto& [x, y] : {std::pair(19.5, 70.0), {140.5, 70.0}, {80.0, 29.5}, {80.0, 110.5}}) {
        EXPECT_EQ(shown(x, y), kAway);
    }
}

}  // namespace
