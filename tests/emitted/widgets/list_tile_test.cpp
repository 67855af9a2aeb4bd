// Lines of a list: where their parts stand, and what a press does.
#include "emitted/widgets/forms.h"

namespace {

class ListTileTest : public FormTest {
protected:
    ListTileTest() { browser().window["innerWidth"] = 1280; }

    static Calls plate(const std::string& rectangle, const std::string& colour) {
        return {"nvgBeginPath()", "nvgRoundedRect(" + rectangle + ")",
                "nvgFillColor(" + colour + ")", "nvgFill()"};
    }
};

TEST_F(ListTileTest, WithoutPartsIsAWhitePlate) {
    EXPECT_EQ(drawnBlock("list_tile_defaults"),
              join({kPointer, plate("0, 0, 200, 56, 8", "rgba(255, 255, 255, 255)")}));
    EXPECT_EQ(drawnBlock("list_tile_strings_are_no_titles"),
              join({kPointer, plate("0, 0, 200, 72, 8", "rgba(255, 255, 255, 255)")}))
        << "a second line that is no widget makes room and draws nothing";
}

TEST_F(ListTileTest, IsDarkerUnderThePointer) {
    pointAt(200, 56);
    EXPECT_EQ(drawnBlock("list_tile_defaults"),
              join({kPointer, {kHand}, plate("0, 0, 200, 56, 8", "rgba(245, 245, 245, 255)")}));
    pointAt(200.5, 56);
    EXPECT_FALSE(holds(drawnBlock("list_tile_defaults"), kHand));
}

TEST_F(ListTileTest, TakesTheSizeThatIsForcedOnIt) {
    EXPECT_TRUE(
        holds(drawnBlock("list_tile_defaults", 300, 80), "nvgRoundedRect(0, 0, 300, 80, 8)"));
    EXPECT_TRUE(holds(drawnBlock("list_tile_defaults", 1300), "nvgRoundedRect(0, 0, 1280, 56, 8)"))
        << "no wider than the window";
}

TEST_F(ListTileTest, SetsItsPartsBesideEachOther) {
    browser().answerWith("measureText", 60);
    browser().answerWith("nvgCreateImage", 5);
    const Calls calls = drawnBlock("list_tile_whole");
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(0, 0, 400, 72, 12)"));
    EXPECT_TRUE(holds(calls, "nvgRect(16, 16, 40, 40)")) << "in the middle of 72";
    bool hasTitle = false;
    bool hasSubtitle = false;
    for (const std::string& call : calls) {
        if (call.rfind("drawText(68, 12, \"தலைப்பு\"", 0) == 0) hasTitle = true;
        if (call.rfind("drawText(68, 44, \"துணை\"", 0) == 0) hasSubtitle = true;
    }
    EXPECT_TRUE(hasTitle) << "16, the picture's 40, 12";
    EXPECT_TRUE(hasSubtitle) << "72 less 16 and 12";
}

TEST_F(ListTileTest, SetsEachPartByItsOwnHeight) {
    browser().answerWith("measureText", 60);
    const Calls calls = drawnBlock("list_tile_uneven_parts");
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(16, 22, 48, 28, 14)")) << "28 in the middle of 72";
    const auto begins = [&calls](const std::string& head) {
        return std::any_of(calls.begin(), calls.end(),
                           [&](const std::string& call) { return call.rfind(head, 0) == 0; });
    };
    EXPECT_TRUE(begins("drawText(76, 12, \"அ\""));
    EXPECT_TRUE(begins("drawText(76, 44, \"ஆ\"")) << "72 less 16 and 12";
}

TEST_F(ListTileTest, SetsATitleAloneInTheMiddle) {
    browser().answerWith("measureText", 60);
    bool hasTitle = false;
    for (const std::string& call : drawnBlock("list_tile_title_alone")) {
        if (call.rfind("drawText(16, 20, \"தலைப்பு\"", 0) == 0) hasTitle = true;
    }
    EXPECT_TRUE(hasTitle);
}

TEST_F(ListTileTest, StandsWithItsPartsWhereItsParentSetsIt) {
    browser().answerWith("measureText", 60);
    browser().answerWith("nvgCreateImage", 5);
    for (const char* block : {"list_tile_whole", "list_tile_moved"}) drawnBlock(block);
    EXPECT_EQ(drawnBlock("list_tile_moved"), moved(drawnBlock("list_tile_whole"), 100, 50));
    EXPECT_EQ(drawnBlock("list_tile_moved_title_alone"),
              moved(drawnBlock("list_tile_title_alone"), 100, 50));
    int& calls = countCallsOf("திற");
    const Calls pressed = clickAt(0, 0, "list_tile_whole");
    EXPECT_EQ(clickAt(100, 50, "list_tile_moved"), moved(pressed, 100, 50));
    EXPECT_EQ(calls, 2);
}

TEST_F(ListTileTest, SetsWhatEndsItAtItsRight) {
    const application::Block* whole = application::kTemplatesAllOn;
    while (whole->name != std::string("list_tile_all_on")) whole++;
    const Calls calls = drawn(whole->draw);
    EXPECT_TRUE(holds(calls, "nvgRoundedRect(16, 24, 200, 72, 8)"));
    EXPECT_TRUE(holds(calls, "nvgCircle(180, 50, 4)")) << "20 wide and high, 16 from the edge";
}

TEST_F(ListTileTest, OfADarkColourIsNoDarkerThanBlack) {
    pointAt(10, 10);
    EXPECT_TRUE(holds(drawnBlock("list_tile_dark"), "nvgFillColor(rgba(0, 0, 0, 255))"));
}

TEST_F(ListTileTest, TellsTheProgramOfAPress) {
    int& calls = countCallsOf("திற");
    drawnBlock("list_tile_whole");
    clickAt(450, 10, "list_tile_whole");
    EXPECT_EQ(calls, 0);
    clickAt(10, 10, "list_tile_whole");
    EXPECT_EQ(calls, 1);
}

TEST_F(ListTileTest, ThatIsDisabledDarkensShowsNoHandAndTakesNoPress) {
    int& calls = countCallsOf("திற");
    const Calls clicked = clickAt(10, 10, "list_tile_disabled");
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(holds(clicked, kHand));
    EXPECT_TRUE(holds(clicked, "nvgFillColor(rgba(245, 245, 245, 255))"));
}

TEST_F(ListTileTest, IsBlindBelowAWarning) {
    pointAt(10, 10);
    g_alert_names.insert("எச்சரி");
    global_vars["எச்சரி"] = true;
    EXPECT_FALSE(holds(drawnBlock("list_tile_defaults"), kHand));
    const Calls inside = frame([] { g_overlays.push_back(blockNamed("list_tile_defaults").draw); });
    EXPECT_TRUE(holds(inside, kHand)) << "but not within it";
}

}  // namespace
