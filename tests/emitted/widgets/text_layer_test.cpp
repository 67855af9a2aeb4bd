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

/// The widths of texts are kept until a font arrives.
class TextWidthTest : public Surroundings {
protected:
    TextWidthTest() {
        browser().answerWith("measureText", 50);
        browser().answerWith("clearTextLayer", 0);
        setupAndClearTextLayer();
    }

    /// Whether the browser is asked.
    static bool asks(const char* text, float size, float width) {
        bool isAsked = false;
        const Calls calls = callsOf([&] { EXPECT_EQ(getTextWidth(text, size), width) << text; });
        for (const std::string& call : calls) isAsked |= call.rfind("measureText(", 0) == 0;
        return isAsked;
    }
};

TEST_F(TextWidthTest, IsAskedOnceForEachTextAndSize) {
    EXPECT_TRUE(asks("அ", 16, 50));
    EXPECT_FALSE(asks("அ", 16, 50));
    EXPECT_TRUE(asks("ஆ", 16, 50));
    EXPECT_TRUE(asks("அ", 17, 50));
    EXPECT_FALSE(asks("அ", 16, 50));
    frame();
    EXPECT_FALSE(asks("அ", 16, 50)) << "in the next frame";
}

TEST_F(TextWidthTest, IsAskedAnewWhenAFontHasArrived) {
    EXPECT_TRUE(asks("அ", 16, 50));
    browser().answerWith("measureText", 60);
    frame();
    EXPECT_FALSE(asks("அ", 16, 50));
    browser().answerWith("clearTextLayer", 1);
    frame();
    EXPECT_TRUE(asks("அ", 16, 60));
    frame();
    EXPECT_FALSE(asks("அ", 16, 60));
}

TEST_F(TextWidthTest, IsAskedInEachFrameWhileAFontIsOnItsWay) {
    browser().answerWith("clearTextLayer", -1);
    for (int i = 0; i < 3; i++) {
        frame();
        EXPECT_TRUE(asks("அ", 16, 50));
        EXPECT_FALSE(asks("அ", 16, 50));
    }
    browser().answerWith("clearTextLayer", 0);
    frame();
    EXPECT_TRUE(asks("அ", 16, 50)) << "it may have come without a word";
    frame();
    EXPECT_FALSE(asks("அ", 16, 50));
}

TEST_F(TextWidthTest, IsNothingWithoutALayerAndAskedAgain) {
    browser().answerWith("measureText", -1);
    EXPECT_TRUE(asks("அ", 16, 0));
    EXPECT_TRUE(asks("அ", 16, 0));
    browser().answerWith("measureText", 0);
    EXPECT_TRUE(asks("அ", 16, 0));
    EXPECT_FALSE(asks("அ", 16, 0)) << "a text may have none";
}

TEST_F(TextWidthTest, IsRightForMoreTextsThanAreKept) {
    const auto textOf = [](int i) { return "உரை " + std::to_string(i); };
    for (int i = 0; i < 10000; i++) {
        browser().answerWith("measureText", i);
        EXPECT_EQ(getTextWidth(textOf(i).c_str(), 16), static_cast<float>(i));
    }
    browser().answerWith("measureText", -2);
    EXPECT_FALSE(asks(textOf(9999).c_str(), 16, 9999));
    int kept = 0;
    for (int i = 0; i < 10000; i++) {
        const float width = getTextWidth(textOf(i).c_str(), 16);
        if (width == 0) continue;
        EXPECT_EQ(width, static_cast<float>(i));
        kept++;
    }
    EXPECT_GT(kept, 2000) << "those of the last texts";
}

TEST_F(TextWidthTest, OfAScreensTextsAndSizesIsRarelyForgotten) {
    std::vector<std::pair<std::string, float>> shown;
    for (int i = 0; i < 100; i++) {
        for (const float size : {10.4F, 16.0F})
            shown.emplace_back("பொருள் " + std::to_string(i), size);
    }
    for (const auto& [text, size] : shown) getTextWidth(text.c_str(), size);
    int asked = 0;
    for (const auto& [text, size] : shown) asked += asks(text.c_str(), size, 50) ? 1 : 0;
    EXPECT_LE(asked, 20);
}

TEST_F(TextLayerTest, CopiesAndListensForPaste) {
    EXPECT_EQ(callsOf([] { copyToClipboard("அ"); }), Calls{"copyToClipboard(\"அ\")"});
    EXPECT_EQ(callsOf(setupClipboardListener), Calls{"listenForPaste()"});
}

}  // namespace
