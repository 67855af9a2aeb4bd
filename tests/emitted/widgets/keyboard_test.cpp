// Keys of inputs that the canvas draws, and what JavaScript stores. The caret counts bytes.
#include <cstring>

#include "emitted/widgets/surroundings.h"

namespace {

class KeyboardTest : public Surroundings {
protected:
    /// Focuses an input that holds `text`, its caret behind it.
    static void edit(const std::string& text) {
        g_focusedInput = "பெயர்";
        g_inputValues["பெயர்"] = text;
        g_inputCursorPos["பெயர்"] = static_cast<int>(text.size());
    }

    static bool key(int type, const char* name, bool isControlDown) {
        EmscriptenKeyboardEvent event = {};
        event.ctrlKey = isControlDown ? EM_TRUE : EM_FALSE;
        std::strncpy(event.key, name, sizeof event.key - 1);
        return key_callback(type, &event, nullptr) == EM_TRUE;
    }
    static bool down(const char* name, bool isControlDown = false) {
        return key(EMSCRIPTEN_EVENT_KEYDOWN, name, isControlDown);
    }
    static bool press(const char* name, bool isControlDown = false) {
        return key(EMSCRIPTEN_EVENT_KEYPRESS, name, isControlDown);
    }

    static std::string text() { return g_inputValues["பெயர்"]; }
    static int& caret() { return g_inputCursorPos["பெயர்"]; }
    static bool isSelected() { return g_inputSelected["பெயர்"]; }
};

TEST_F(KeyboardTest, LeavesKeysToAnHtmlInput) {
    edit("ab");
    browser().answerWith("isInputActive", 1);
    EXPECT_EQ(callsOf([] { EXPECT_FALSE(press("c")); }), Calls{"isInputActive()"});
    EXPECT_FALSE(down("Backspace"));
    EXPECT_EQ(text(), "ab");
}

TEST_F(KeyboardTest, LeavesKeysAloneWithoutFocus) {
    EXPECT_FALSE(press("c"));
    EXPECT_FALSE(down("Backspace"));
    EXPECT_TRUE(g_inputValues.empty());
    EXPECT_TRUE(g_inputCursorPos.empty());
}

TEST_F(KeyboardTest, InsertsAtTheCaret) {
    edit("ab");
    caret() = 1;
    EXPECT_TRUE(press("அ"));
    EXPECT_EQ(text(), "aஅb");
    EXPECT_EQ(caret(), 4);
    caret() = 99;
    EXPECT_TRUE(press("c"));
    EXPECT_EQ(text(), "aஅbc");
    EXPECT_EQ(caret(), 6);
}

TEST_F(KeyboardTest, ReplacesASelection) {
    edit("abc");
    EXPECT_TRUE(down("a", true));
    EXPECT_TRUE(isSelected());
    EXPECT_TRUE(press("x"));
    EXPECT_EQ(text(), "x");
    EXPECT_EQ(caret(), 1);
    EXPECT_FALSE(isSelected());
}

TEST_F(KeyboardTest, ErasesTheByteBeforeTheCaret) {
    edit("abc");
    caret() = 2;
    EXPECT_TRUE(down("Backspace"));
    EXPECT_EQ(text(), "ac");
    EXPECT_EQ(caret(), 1);
    caret() = 0;
    EXPECT_TRUE(down("Backspace"));
    EXPECT_EQ(text(), "ac");
    EXPECT_EQ(caret(), 0);
    edit("");
    caret() = 1;
    EXPECT_TRUE(down("Backspace"));
    EXPECT_EQ(caret(), 1);
}

TEST_F(KeyboardTest, ErasesOneByteOfATamilLetter) {
    edit("அ");
    EXPECT_TRUE(down("Backspace"));
    EXPECT_EQ(text(), "\xE0\xAE");
    EXPECT_EQ(caret(), 2);
}

TEST_F(KeyboardTest, ErasesTheByteBehindTheCaret) {
    edit("abc");
    EXPECT_TRUE(down("Delete"));
    EXPECT_EQ(text(), "abc");
    caret() = 1;
    EXPECT_TRUE(down("Delete"));
    EXPECT_EQ(text(), "ac");
    EXPECT_EQ(caret(), 1);
}

TEST_F(KeyboardTest, ErasesASelectionWhole) {
    for (const char* name : {"Backspace", "Delete"}) {
        edit("abc");
        g_inputSelected["பெயர்"] = true;
        EXPECT_TRUE(down(name));
        EXPECT_EQ(text(), "") << name;
        EXPECT_EQ(caret(), 0) << name;
        EXPECT_FALSE(isSelected()) << name;
    }
}

TEST_F(KeyboardTest, CopiesTheWholeValue) {
    edit("அஆ");
    EXPECT_EQ(callsOf([] { EXPECT_TRUE(down("c", true)); }),
              (Calls{"isInputActive()", "copyToClipboard(\"அஆ\")"}));
    EXPECT_EQ(text(), "அஆ");
}

TEST_F(KeyboardTest, CutsTheWholeValue) {
    edit("அஆ");
    EXPECT_EQ(callsOf([] { EXPECT_TRUE(down("x", true)); }),
              (Calls{"isInputActive()", "copyToClipboard(\"அஆ\")"}));
    EXPECT_EQ(text(), "");
    EXPECT_EQ(caret(), 0);
}

TEST_F(KeyboardTest, MovesTheCaretWithinTheText) {
    edit("ab");
    EXPECT_TRUE(down("ArrowRight"));
    EXPECT_EQ(caret(), 2);
    EXPECT_TRUE(down("ArrowLeft"));
    EXPECT_EQ(caret(), 1);
    EXPECT_TRUE(down("ArrowLeft"));
    EXPECT_TRUE(down("ArrowLeft"));
    EXPECT_EQ(caret(), 0);
    EXPECT_TRUE(down("ArrowRight"));
    EXPECT_EQ(caret(), 1);
}

TEST_F(KeyboardTest, EndsEditingAtEnter) {
    edit("ab");
    g_inputErrors["பெயர்"] = "பிழை";
    g_inputSelected["மற்றது"] = true;
    EXPECT_TRUE(press("Enter"));
    EXPECT_EQ(g_focusedInput, "");
    EXPECT_TRUE(g_inputSelected.empty());
    EXPECT_EQ(g_inputErrors["பெயர்"], "");
    EXPECT_EQ(text(), "ab");
}

TEST_F(KeyboardTest, ClearsTheErrorOfWhatIsTypedInto) {
    edit("");
    g_inputErrors = {{"பெயர்", "பிழை"}, {"மற்றது", "பிழை"}};
    EXPECT_TRUE(press("x"));
    EXPECT_EQ(g_inputErrors["பெயர்"], "");
    EXPECT_EQ(g_inputErrors["மற்றது"], "பிழை");
}

TEST_F(KeyboardTest, LeavesOtherKeysToTheBrowser) {
    edit("ab");
    EXPECT_FALSE(down("x"));
    EXPECT_FALSE(down("Tab"));
    EXPECT_FALSE(down("v", true));
    EXPECT_FALSE(press("v", true));
    EXPECT_FALSE(key(EMSCRIPTEN_EVENT_KEYUP, "Backspace", false));
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(caret(), 2);
}

TEST_F(KeyboardTest, StoresWhatJavaScriptSends) {
    set_input_value("பெயர்", "அ");
    EXPECT_EQ(text(), "அ");
    g_inputErrors = {{"பெயர்", "பிழை"}, {"மற்றது", "பிழை"}};
    clear_input_error("பெயர்");
    EXPECT_EQ(g_inputErrors["பெயர்"], "");
    EXPECT_EQ(g_inputErrors["மற்றது"], "பிழை");
}

TEST_F(KeyboardTest, PastesAtTheEndOfTheFocusedInput) {
    on_paste_text("அ");
    EXPECT_TRUE(g_inputValues.empty());
    edit("ab");
    caret() = 0;
    on_paste_text("அ");
    EXPECT_EQ(text(), "abஅ");
    EXPECT_EQ(caret(), 0);
}

TEST_F(KeyboardTest, BindsWhatJavaScriptCallsByName) {
    EXPECT_EQ(stand_in::bound(), Calls{"நகர்த்து"});
}

}  // namespace
