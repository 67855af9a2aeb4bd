// A card: its sheet, its shadow, and its children below each other.
#include "emitted/widgets/placeholders/card.h"

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_X 10.5F
#define POZHIL_Y 20.5F
#define POZHIL_OPEN_CLIP
#define POZHIL_CLOSE_CLIP
namespace raised {
#include "emitted/widgets/card.cpp"
}
#undef POZHIL_ELEVATION
#define POZHIL_ELEVATION 0.0f
namespace flat {
#include "emitted/widgets/card.cpp"
}

namespace {

class CardTest : public Surroundings {
protected:
    CardTest() { browser().window["innerWidth"] = 1280; }

    static Calls only(const Calls& calls, const std::string& name) {
        Calls found;
        for (const std::string& call : calls) {
            if (call.rfind(name + "(", 0) == 0) found.push_back(call);
        }
        return found;
    }
};

/// A card of 350 by 200 pixels at 10, 20 with its child, which is a circle here.
const Calls kSheet = {"nvgBeginPath()",
                      "nvgRoundedRect(10, 20, 350, 200, 12)",
                      "nvgFillColor(rgba(255, 255, 255, 255))",
                      "nvgFill()",
                      "nvgSave()",
                      "nvgIntersectScissor(10, 20, 350, 200)",
                      "nvgCircle(25, 35, 1)",
                      "nvgRestore()"};

TEST_F(CardTest, StandsOnWholePixelsAboveItsShadow) {
    Calls expected = {
        "nvgBeginPath()",
        "nvgRect(-7, 3, 384, 234)",
        "nvgRoundedRect(10, 20, 350, 200, 12)",
        "nvgPathWinding(2)",
        "nvgFillPaint(box(10, 26, 350, 200, 12, 12, rgba(0, 0, 0, 80), rgba(0, 0, 0, 0)))",
        "nvgFill()"};
    expected.insert(expected.end(), kSheet.begin(), kSheet.end());
    EXPECT_EQ(drawn(raised::card), expected);
}

TEST_F(CardTest, ThatLiesFlatHasNoShadow) { EXPECT_EQ(drawn(flat::card), kSheet); }

TEST_F(CardTest, IsNoWiderThanTheWindow) {
    const auto widthAt = [](double width) {
        browser().window["innerWidth"] = width;
        return only(drawnBlock("card_bare"), "nvgIntersectScissor");
    };
    EXPECT_EQ(widthAt(1280), Calls{"nvgIntersectScissor(0, 0, 350, 200)"});
    EXPECT_EQ(widthAt(300), Calls{"nvgIntersectScissor(0, 0, 300, 200)"});
}

TEST_F(CardTest, TakesItsStyle) {
    const Calls sized = drawnBlock("card_sized");
    EXPECT_EQ(only(sized, "nvgIntersectScissor"), Calls{"nvgIntersectScissor(0, 0, 640, 120)"});
    const Calls styled = drawnBlock("card_styled");
    EXPECT_EQ(only(styled, "nvgRoundedRect").back(), "nvgRoundedRect(0, 0, 350, 200, 4)");
    EXPECT_EQ(only(styled, "nvgFillColor").size(), 1U);
    EXPECT_NE(only(styled, "nvgFillColor").at(0), "nvgFillColor(rgba(255, 255, 255, 255))");
    EXPECT_EQ(only(drawnBlock("card_in_a_plain_colour"), "nvgFillColor"),
              Calls{"nvgFillColor(rgba(0, 255, 0, 255))"});
}

TEST_F(CardTest, PutsItsChildrenBelowEachOther) {
    const Calls calls = drawnBlock("card_around_children");
    const Calls texts = only(calls, "drawText");
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].substr(0, 17), "drawText(15, 15, ");
    EXPECT_EQ(texts[1].substr(0, 17), "drawText(15, 75, ");
    EXPECT_EQ(only(calls, "nvgRoundedRect").back(), "nvgRoundedRect(15, 41, 350, 200, 5)")
        << "a child is as large as the card";
}

TEST_F(CardTest, ForcesItsSizeOnItsChildrenAlone) {
    drawnBlock("card_in_a_card", 400);
    EXPECT_EQ(forcedW, 400);
    EXPECT_EQ(forcedH, -1);
}

TEST_F(CardTest, InACardFillsIt) {
    EXPECT_EQ(
        only(drawnBlock("card_in_a_card"), "nvgIntersectScissor"),
        (Calls{"nvgIntersectScissor(0, 0, 350, 200)", "nvgIntersectScissor(15, 15, 350, 200)"}));
}

TEST_F(CardTest, InABoxInACardHasItsOwnSize) {
    EXPECT_EQ(only(drawnBlock("card_in_a_box_in_a_card"), "nvgIntersectScissor"),
              (Calls{"nvgIntersectScissor(0, 0, 350, 200)", "nvgIntersectScissor(15, 15, 350, 200)",
                     "nvgIntersectScissor(15, 15, 350, 200)"}));
}

TEST_F(CardTest, TellsTheClipToItsChildren) {
    Calls clip;
    browser().answers["nvgStroke"] = [&](const auto&) {
        clip = {stand_in::describe(g_currentClipX), stand_in::describe(g_currentClipY),
                stand_in::describe(g_currentClipW), stand_in::describe(g_currentClipH)};
        return 0;
    };
    drawnBlock("card_around_children");
    EXPECT_EQ(clip, (Calls{"0", "0", "350", "200"}));
}

}  // namespace
