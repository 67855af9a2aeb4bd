// The text layer and the clipboard hand their arguments to the browser unchanged.
#include "emitted/widgets/surroundings.h"

namespace {

class TextLayerTest : public Surroundings {};

TEST_F(TextLayerTest, DrawsATextWithAllThatIsSaidOfIt) {
    const auto draw = [] {
        drawFixedText(1.5F, 2.5F, "வணக்கம்", "#FF0000", 18.25F, "center", "700", true, "a/b.ttf",
                      0.5F, -3);
    };
    EXPECT_EQ(callsOf(draw), Calls{"drawText(1.5, 2.5, \"வணக்கம்\", \"#FF0000\", 18.25, "
                                   "\"center\", \"700\", 1, \"a/b.ttf\", 0.5, -3)"});
}

TEST_F(TextLayerTest, DrawsAPlainTextByDefault) {
    const Calls plain = {
        "drawText(1, 2, \"அ\", \"#000000\", 16, \"left\", \"400\", 0, \"\", 1, 0)"};
    EXPECT_EQ(callsOf(application::drawTextByItsDefaults), plain);
    EXPECT_EQ(callsOf([] { drawFixedText(1, 2, "அ", "#000000", 16, "left"); }), plain);
}

TEST_F(TextLayerTest, DrawsAFleetingText) {
    EXPECT_EQ(callsOf([] { drawWebText(1, 2, "அ", "red", 20, "center"); }),
              Calls{"drawFleetingText(1, 2, \"அ\", \"red\", 20, \"center\")"});
}

TEST_F(TextLayerTest, MeasuresByTheBrowser) {
    browser().answerWith("measureText", 73.25);
    float width = 0;
    EXPECT_EQ(callsOf([&] { width = getTextWidth("வணக்கம்", 18); }),
              Calls{"measureText(\"வணக்கம்\", 18)"});
    EXPECT_EQ(width, 73.25F);
}

TEST_F(TextLayerTest, IsClearedInOneCall) {
    EXPECT_EQ(callsOf(setupAndClearTextLayer), Calls{"clearTextLayer()"});
}

TEST_F(TextLayerTest, CopiesAndListensForPaste) {
    EXPECT_EQ(callsOf([] { copyToClipboard("அ"); }), Calls{"copyToClipboard(\"அ\")"});
    EXPECT_EQ(callsOf(setupClipboardListener), Calls{"listenForPaste()"});
}

}  // namespace
