// A page, drawn from its template: what fills it, what stands behind it, its title.
#include "emitted/widgets/placeholders/page.h"

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_HAS_COLOUR 0
#define POZHIL_HAS_IMAGE 0
#define POZHIL_HAS_VIDEO 0
#define POZHIL_HAS_TITLE 0
namespace bare {
#include "emitted/widgets/page.cpp"
}
#undef POZHIL_HAS_COLOUR
#define POZHIL_HAS_COLOUR 1
namespace coloured {
#include "emitted/widgets/page.cpp"
}
#undef POZHIL_HAS_IMAGE
#define POZHIL_HAS_IMAGE 1
namespace coloured_with_image {
#include "emitted/widgets/page.cpp"
}
#undef POZHIL_HAS_COLOUR
#define POZHIL_HAS_COLOUR 0
namespace with_image {
#include "emitted/widgets/page.cpp"
}
namespace with_missing_image {
#include "emitted/widgets/page.cpp"
}
#undef POZHIL_HAS_IMAGE
#define POZHIL_HAS_IMAGE 0
#undef POZHIL_HAS_VIDEO
#define POZHIL_HAS_VIDEO 1
namespace with_video {
#include "emitted/widgets/page.cpp"
}
#undef POZHIL_HAS_VIDEO
#define POZHIL_HAS_VIDEO 0
#undef POZHIL_HAS_TITLE
#define POZHIL_HAS_TITLE 1
namespace titled {
#include "emitted/widgets/page.cpp"
}

namespace {

class PageTest : public Surroundings {
protected:
    /// A page of an 800 by 600 window, with what it does between its path and its widgets.
    static Calls calls(const Calls& inside) {
        Calls all = {"nvgBeginPath()", "nvgRect(0, 0, 800, 600)"};
        all.insert(all.end(), inside.begin(), inside.end());
        all.emplace_back("nvgRect(1, 2, 3, 4)");
        return all;
    }
};

const char* const kGrey = "nvgFillColor(rgba(245, 245, 245, 255))";
const char* const kOrangePage = "nvgFillColor(rgba(255, 127.5, 0, 255))";

TEST_F(PageTest, IsGreyByItself) { EXPECT_EQ(drawn(bare::page), calls({kGrey, "nvgFill()"})); }

TEST_F(PageTest, TakesItsColour) {
    EXPECT_EQ(drawn(coloured::page), calls({kOrangePage, "nvgFill()", "nvgFill()"}));
}

TEST_F(PageTest, ShowsAnImageThatIsLoadedOnce) {
    browser().answerWith("nvgCreateImage", 7);
    const char* const pattern = "nvgFillPaint(image(0, 0, 800, 600, 0, 7, 1))";
    EXPECT_EQ(drawn(with_image::page),
              calls({"nvgCreateImage(\"அ.png\", 0)", pattern, "nvgFill()", "nvgFill()"}));
    EXPECT_EQ(drawn(with_image::page), calls({pattern, "nvgFill()", "nvgFill()"}));
}

TEST_F(PageTest, IsGreyWithoutItsImageAndDoesNotTryAgain) {
    EXPECT_EQ(drawn(with_missing_image::page),
              calls({"nvgCreateImage(\"அ.png\", 0)", kGrey, "nvgFill()"}));
    browser().answerWith("nvgCreateImage", 7);
    EXPECT_EQ(drawn(with_missing_image::page), calls({kGrey, "nvgFill()"}));
}

TEST_F(PageTest, LaysItsImageOverItsColour) {
    browser().answerWith("nvgCreateImage", 7);
    EXPECT_EQ(drawn(coloured_with_image::page),
              calls({kOrangePage, "nvgFill()", "nvgCreateImage(\"அ.png\", 0)",
                     "nvgFillPaint(image(0, 0, 800, 600, 0, 7, 1))", "nvgFill()", "nvgFill()"}));
}

TEST_F(PageTest, StartsItsVideoOnceAndLetsItShowThrough) {
    const char* const clear = "nvgFillColor(rgba(0, 0, 0, 0))";
    EXPECT_EQ(drawn(with_video::page), calls({"playVideo(\"அ.mp4\")", clear, "nvgFill()"}));
    EXPECT_EQ(drawn(with_video::page), calls({clear, "nvgFill()"}));
}

TEST_F(PageTest, SetsItsTitleInEachFrame) {
    for (int i = 0; i < 2; i++) {
        EXPECT_EQ(drawn(titled::page), calls({kGrey, "nvgFill()", "document.title = \"அ\""}));
    }
}

}  // namespace
