// Dividers, paddings and pages inside a page, as they are drawn.
#include <algorithm>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/placeholders/padding.h"
#include "emitted/widgets/surroundings.h"

// Inside another container the place is named as the padding's own locals are.
#define POZHIL_X childX
#define POZHIL_Y childY
namespace inside {
float childX = 10;
float childY = 20;
#include "emitted/widgets/padding.cpp"
}  // namespace inside

namespace {

class SpacesTest : public Surroundings {
protected:
    SpacesTest() { browser().window["innerWidth"] = 1280; }

    static Calls line(const std::string& from, const std::string& to, const std::string& colour,
                      const std::string& width) {
        return {"nvgBeginPath()",
                "nvgMoveTo(" + from + ")",
                "nvgLineTo(" + to + ")",
                "nvgStrokeColor(" + colour + ")",
                "nvgStrokeWidth(" + width + ")",
                "nvgStroke()"};
    }
};

TEST_F(SpacesTest, DividerCrossesTheMiddleOfItsHeight) {
    EXPECT_EQ(drawnBlock("divider_plain"),
              line("0, 10", "300, 10", "rgba(158, 158, 158, 255)", "1"));
    EXPECT_EQ(drawnBlock("divider_styled"),
              line("0, 150", "200, 150", "rgba(255, 128, 0, 64)", "3"));
}

TEST_F(SpacesTest, DividerTakesItsStyleBeforeItsOwnKeys) {
    EXPECT_EQ(drawnBlock("divider_style_first"),
              line("0, 10", "200, 10", "rgba(127, 127, 127, 255)", "1"));
}

TEST_F(SpacesTest, DividerTakesTheSizeThatIsForcedOnIt) {
    EXPECT_EQ(drawnBlock("divider_styled", 90, 30),
              line("0, 15", "90, 15", "rgba(255, 128, 0, 64)", "3"));
}

TEST_F(SpacesTest, DividerIsNoWiderThanTheWindow) {
    browser().window["innerWidth"] = 250;
    EXPECT_EQ(drawnBlock("divider_plain"),
              line("0, 10", "250, 10", "rgba(158, 158, 158, 255)", "1"));
}

TEST_F(SpacesTest, DividerBeginsAtAWholePixel) {
    const Calls calls = drawnBlock("divider_at_half_pixels");
    EXPECT_EQ(Calls(std::vector<std::string>(calls.end() - 6, calls.end())),
              line("0, 20", "300, 20", "rgba(158, 158, 158, 255)", "1"));
}

TEST_F(SpacesTest, PaddingMovesItsChildren) {
    EXPECT_EQ(drawn(inside::padding), (Calls{"nvgCircle(18, 28, 1)"}));
}

TEST_F(SpacesTest, PaddingOfASourceDrawsNothing) {
    EXPECT_EQ(drawnBlock("padding_draws_nothing"), Calls{});
    EXPECT_EQ(drawnBlock("padding_of_the_other_word"), Calls{});
}

TEST_F(SpacesTest, PaddingOfASourceTakesItsPlaceAllTheSame) {
    const Calls calls = drawnBlock("padding_takes_its_place_all_the_same");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "nvgRoundedRect(0, 40, 24, 24, 5)"), 1);
}

TEST_F(SpacesTest, InlinePageShowsWhileItsNameIsThePages) {
    EXPECT_EQ(drawnBlock("inline_page_named"), Calls{});
    g_currentPage = "உதவி";
    const Calls calls = drawnBlock("inline_page_named");
    EXPECT_EQ(
        Calls(std::vector<std::string>(calls.begin(), calls.begin() + 6)),
        (Calls{"return window.innerWidth;", "return window.innerHeight;", "nvgBeginPath()",
               "nvgRect(0, 0, 1280, 600)", "nvgFillColor(rgba(245, 245, 245, 255))", "nvgFill()"}));
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "nvgRoundedRect(0, 0, 24, 24, 5)"), 2);
}

TEST_F(SpacesTest, InlinePageWithoutANameIsHome) {
    EXPECT_FALSE(drawnBlock("inline_page_of_a_text_is_home").empty());
    g_currentPage = "உதவி";
    EXPECT_EQ(drawnBlock("inline_page_of_a_text_is_home"), Calls{});
}

TEST_F(SpacesTest, PageCoversTheWindowWhereverItStands) {
    g_currentPage = "உதவி";
    const Calls calls = drawnBlock("inline_page_in_a_stack");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "nvgRect(0, 0, 1280, 600)"), 1);
}

}  // namespace
