// The start of an application: window, fonts, listeners, loop.
#include "emitted/widgets/surroundings.h"
#include "support/subprocess.h"

namespace {

class StartTest : public Surroundings {
protected:
    StartTest() {
        vg = nullptr;
        window = nullptr;
    }

    static Calls startCalls(int status = 0) {
        return callsOf([status] { EXPECT_EQ(application::start(), status); });
    }

    /// The calls of a start with the page's style, which is one long script, left out.
    static Calls withoutStyle(Calls calls) {
        for (std::string& call : calls) {
            if (call.rfind("emscripten_run_script(", 0) == 0) call = "emscripten_run_script";
        }
        return calls;
    }
};

TEST_F(StartTest, MakesTheseCallsInThisOrder) {
    EXPECT_EQ(
        withoutStyle(startCalls()),
        (Calls{
            "init_globals", "glfwInit()", "glfwCreateWindow(800, 600, \"செயலி\")",
            "glfwMakeContextCurrent()", "glewInit()", "letInputsHaveTheirKeys()",
            "nvgCreateGLES2(7)", "nvgCreateFont(\"tamil_font\", \"assets/font/Coiny-Regular.ttf\")",
            "nvgCreateFont(\"sans\", \"assets/font/Tamil-Regular.ttf\")",
            "nvgFontFace(\"tamil-font\")", "nvgFontSize(32)",
            "nvgFillColor(rgba(255, 255, 255, 255))", "emscripten_run_script", "makeTextLayer()",
            "listenToPointer()", "listenForPaste()",
            "emscripten_set_keydown_callback(\"window\", 1)",
            "emscripten_set_keypress_callback(\"window\", 1)", "emscripten_set_main_loop(0, 1)"}));
    EXPECT_EQ(browser().loop, &render_frame);
    EXPECT_EQ(browser().keyDown, &key_callback);
    EXPECT_EQ(browser().keyPress, &key_callback);
}

TEST_F(StartTest, SetsTheProgramsValuesBeforeThereIsAWindow) {
    application::logic = [] {
        EXPECT_EQ(window, nullptr);
        global_vars["அ"] = true;
    };
    startCalls();
    EXPECT_EQ(global_vars.count("அ"), 1U);
    EXPECT_EQ(window, stand_in::window());
    EXPECT_EQ(vg, stand_in::context());
}

TEST_F(StartTest, EndsWithoutALibraryForWindows) {
    browser().answerWith("glfwInit", -1);
    EXPECT_EQ(startCalls(-1), (Calls{"init_globals", "glfwInit()"}));
}

TEST_F(StartTest, EndsWithoutAWindow) {
    browser().answerWith("glfwCreateWindow", -1);
    EXPECT_EQ(startCalls(-1), (Calls{"init_globals", "glfwInit()",
                                     "glfwCreateWindow(800, 600, \"செயலி\")", "glfwTerminate()"}));
}

/// What a start prints while fonts are missing whose path holds `missing`.
std::string printedWithout(const std::string& missing) {
    stand_in::recording().answers["nvgCreateFont"] = [missing](const auto& arguments) {
        return arguments[1].text.find(missing) == std::string::npos ? 0 : -1;
    };
    return runForked([] { return application::start(); }).out;
}

TEST_F(StartTest, SaysWhichFontIsMissingAndGoesOn) {
    const std::string first = "எச்சரிக்கை: 'tamil_font' எழுத்துருவை இணைக்க முடியவில்லை.\n";
    const std::string second = "எச்சரிக்கை: 'sans' எழுத்துருவை இணைக்க முடியவில்லை.\n";
    EXPECT_EQ(printedWithout("Coiny"), first);
    EXPECT_EQ(printedWithout("Tamil-Regular"), second);
    EXPECT_EQ(printedWithout("assets"), first + second);
    EXPECT_EQ(printedWithout("nothing"), "");

    browser().answerWith("nvgCreateFont", -1);
    EXPECT_EQ(startCalls().back(), "emscripten_set_main_loop(0, 1)");
}

TEST_F(StartTest, OutsideABrowserOnlySaysSo) {
    const ProcessResult run = runForked(application::startOutsideABrowser);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out,
              "init_globals\n\033[1;31m🚨 பிழை: இந்த பொழில் வலைத்தள (WebAssembly) "
              "தொகுப்புக்கு மட்டுமே அனுமதிக்கப்படும்!\033[0m\n");
}

}  // namespace
