// Images, drawn from their templates. Each test has a text of its own, since a handle is kept for
// the whole run.
#include "emitted/widgets/placeholders/image.h"

#include <algorithm>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20.75F
#define POZHIL_IS_VECTOR 0
namespace plain {
#include "emitted/widgets/image.cpp"
}
namespace missing {
#include "emitted/widgets/image.cpp"
}
#undef POZHIL_RADIUS
#define POZHIL_RADIUS 12.0f
namespace rounded {
#include "emitted/widgets/image.cpp"
}
#undef POZHIL_RADIUS
#define POZHIL_RADIUS 0.1f
namespace hardlyRounded {
#include "emitted/widgets/image.cpp"
}
#undef POZHIL_IS_VECTOR
#define POZHIL_IS_VECTOR 1
namespace vector {
#include "emitted/widgets/image.cpp"
}

namespace {

class ImageTest : public Surroundings {
protected:
    static Calls filled(const std::string& path, int handle) {
        return {"nvgBeginPath()", path,
                "nvgFillPaint(image(10, 20, 100, 60, 0, " + std::to_string(handle) + ", 1))",
                "nvgFill()"};
    }
    static Calls behind(const std::string& call, Calls calls) {
        calls.insert(calls.begin(), call);
        return calls;
    }
};

const std::string kLoad = "nvgCreateImage(\"அ.png\", 33)";  // mipmaps and nearest
const std::string kRect = "nvgRect(10, 20, 100, 60)";

TEST_F(ImageTest, IsLoadedOnceAndDrawnInEachFrame) {
    browser().answerWith("nvgCreateImage", 5);
    EXPECT_EQ(drawn(plain::image), behind(kLoad, filled(kRect, 5)));
    EXPECT_EQ(drawn(plain::image), filled(kRect, 5));
}

TEST_F(ImageTest, ThatIsMissingIsTriedOnce) {
    EXPECT_EQ(drawn(missing::image), Calls{kLoad});
    browser().answerWith("nvgCreateImage", 5);
    EXPECT_EQ(drawn(missing::image), Calls{});
}

TEST_F(ImageTest, HasRoundCornersFromATenthOfAPixel) {
    browser().answerWith("nvgCreateImage", 6);
    EXPECT_EQ(drawn(rounded::image),
              behind(kLoad, filled("nvgRoundedRect(10, 20, 100, 60, 12)", 6)));
    EXPECT_EQ(drawn(hardlyRounded::image), behind(kLoad, filled(kRect, 6)));
}

TEST_F(ImageTest, OfLinesIsTriedInEachFrameUntilItLoads) {
    const Calls failed = {"nsvgParseFromFile(\"அ.png\", \"px\", 96)"};
    EXPECT_EQ(drawn(vector::image), failed);
    EXPECT_EQ(drawn(vector::image), failed);
    browser().answerWith("width of the vector image", 50);
    browser().answerWith("height of the vector image", 60);
    browser().answerWith("nvgCreateImageRGBA", 7);
    const Calls loaded = drawn(vector::image);
    EXPECT_EQ(std::count(loaded.begin(), loaded.end(), "nvgCreateImageRGBA(100, 60, 0)"), 1);
    EXPECT_EQ(drawn(vector::image), filled(kRect, 7));
}

}  // namespace
