// The stand-ins themselves: what they understand, and that they stand for what is really there.
#include "emitted/widgets/surroundings.h"

namespace {

using Fields = std::map<std::string, double>;

class RecordingTest : public Surroundings {
protected:
    Fields fields = {{"a", 5}, {"b", 7}};

    std::optional<double> run(const std::string& code, const stand_in::Arguments& arguments = {}) {
        return stand_in::runWindowScript(code, arguments, fields);
    }
};

TEST_F(RecordingTest, ReadsAFieldOfTheWindow) {
    EXPECT_EQ(run("return window.a;"), 5);
    EXPECT_EQ(run("return -window.a;"), -5);
    EXPECT_EQ(run("return window.c;"), 0);
    EXPECT_EQ(fields, (Fields{{"a", 5}, {"b", 7}}));
}

TEST_F(RecordingTest, SetsFieldsOfTheWindow) {
    EXPECT_EQ(run("window.a = 0; window.b = -9999; window.c = $1;", stand_in::list(1, 2.5)), 0);
    EXPECT_EQ(fields, (Fields{{"a", 0}, {"b", -9999}, {"c", 2.5}}));
    run("window.a += window.c; window.d = window.b;");
    EXPECT_EQ(fields, (Fields{{"a", 2.5}, {"b", -9999}, {"c", 2.5}, {"d", -9999}}));
}

TEST_F(RecordingTest, ReadsAndClearsThroughAVariable) {
    EXPECT_EQ(run("var taken = window.a; window.a = 0; return taken;"), 5);
    EXPECT_EQ(fields, (Fields{{"a", 0}, {"b", 7}}));
}

TEST_F(RecordingTest, TakesTheBranchThatHolds) {
    EXPECT_EQ(run("if (window.a) { window.a = 0; return 1; } else { window.b = 0; } return 2;"), 1);
    EXPECT_EQ(fields, (Fields{{"a", 0}, {"b", 7}}));
    EXPECT_EQ(run("if (window.a) { return 1; } else { window.b = 1; } return 2;"), 2);
    EXPECT_EQ(fields, (Fields{{"a", 0}, {"b", 1}}));
}

TEST_F(RecordingTest, ChoosesBetweenValues) {
    EXPECT_EQ(run("return window.a || window.b;"), 5);
    EXPECT_EQ(run("return window.c || window.b;"), 7);
    EXPECT_EQ(run("return window.c || 0;"), 0);
    EXPECT_EQ(run("var d = window.a || 0; return d !== 0 ? d : window.b;"), 5);
    EXPECT_EQ(run("var d = window.c || 0; return d !== 0 ? d : window.b;"), 7);
    EXPECT_EQ(run("return window.a !== 0;"), std::nullopt);
}

TEST_F(RecordingTest, ChangesNothingByAScriptThatDoesMore) {
    for (const char* code :
         {"window.a = 0; document.body.style.cursor = 'default';", "window.a = 0; f(window.a);",
          "window.a = 0", "window.a = 0; return unknown;", "window.a = 0; if (1) { return 2;",
          "window.a = 0; window.b = window.a + 1;", "window.a = 0; window.b.c = 1;"}) {
        EXPECT_EQ(run(code), std::nullopt) << code;
        EXPECT_EQ(fields, (Fields{{"a", 5}, {"b", 7}})) << code;
    }
}

TEST_F(RecordingTest, ShowsAScriptWithoutANameWhole) {
    EXPECT_EQ(callsOf([] {
                  EM_ASM(document.title = 'a';);
                  EM_ASM({ f($0, $1); }, 1.5, "அ");
              }),
              (Calls{"document.title = 'a';", "f($0, $1); (1.5, \"அ\")"}));
}

TEST_F(RecordingTest, AnswersAsTheTestSays) {
    browser().answerWith("return f($0);", 2.75);
    EXPECT_EQ(EM_ASM_DOUBLE({ return f($0); }, 1), 2.75);
    EXPECT_EQ(EM_ASM_INT({ return f($0); }, 1), 2);
    EXPECT_EQ(EM_ASM_INT({ return g($0); }, 1), 0);
}

TEST_F(RecordingTest, TellsOfArgumentsThatDoNotFitTheScript) {
    EXPECT_EQ(
        callsOf([] {
            EM_ASM({ f($0, $1); }, 1);
            EM_ASM({ f($0); }, 1, 2);
        }),
        (Calls{"a script with 1 arguments: f($0, $1);", "a script with 2 arguments: f($0);"}));
}

TEST_F(RecordingTest, TellsOfCallsWithoutTheContextOrTheWindow) {
    EXPECT_EQ(callsOf([] {
                  nvgFill(nullptr);
                  glfwSetWindowSize(nullptr, 1, 2);
              }),
              (Calls{"without the context:", "nvgFill()",
                     "without the window:", "glfwSetWindowSize(1, 2)"}));
}

TEST_F(RecordingTest, ShowsColoursInBytesAndPaintsWhole) {
    EXPECT_EQ(callsOf([] {
                  nvgFillColor(vg, nvgRGBA(1, 2, 3, 4));
                  nvgStrokeColor(vg, nvgRGBAf(1, 0.5F, 0, 0.2F));
                  nvgFillPaint(vg, nvgLinearGradient(vg, 1, 2, 3, 4, nvgRGB(5, 6, 7),
                                                     nvgTransRGBA(nvgRGB(8, 9, 10), 11)));
                  nvgFillPaint(vg, nvgImagePattern(vg, 1, 2, 3, 4, 0, 5, 0.5F));
              }),
              (Calls{"nvgFillColor(rgba(1, 2, 3, 4))", "nvgStrokeColor(rgba(255, 127.5, 0, 51))",
                     "nvgFillPaint(linear(1, 2, 3, 4, rgba(5, 6, 7, 255), rgba(8, 9, 10, 11)))",
                     "nvgFillPaint(image(1, 2, 3, 4, 0, 5, 0.5))"}));
}

TEST_F(RecordingTest, ShowsWhatIsSetInTheDocument) {
    EXPECT_EQ(callsOf([] {
                  const auto document = emscripten::val::global("document");
                  document.set("title", std::string("அ"));
                  document["body"].call<void>("focus", 1);
              }),
              (Calls{"document.title = \"அ\"", "document.body.focus(1)"}));
}

}  // namespace
