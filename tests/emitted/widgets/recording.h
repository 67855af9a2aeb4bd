// What a web application asks of the browser, the window and the drawing library, recorded call by
// call; and what they answer. Every call is one line as a reader would write it:
//   nvgRect(16, 40.5, 200, 40)      measureText("அ", 16)      window.mouseX
// Scripts that only move values between fields of `window` are carried out; of all others the
// recording knows the name (see kScripts in scripts.cpp) or shows the whole text.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

struct NVGcolor;
struct NVGpaint;
struct NVGcontext;
struct GLFWwindow;
struct EmscriptenKeyboardEvent;

namespace stand_in {

/// An argument as it is shown, and as a number where it is one.
struct Argument {
    std::string text;
    double number = 0;
};
using Arguments = std::vector<Argument>;

std::string describe(double number);
std::string describe(const char* text);
std::string describe(const std::string& text);
std::string describe(const NVGcolor& colour);
std::string describe(const NVGpaint& paint);

template <typename Value>
Argument argument(const Value& value) {
    if constexpr (std::is_arithmetic_v<Value>) {
        return {describe(static_cast<double>(value)), static_cast<double>(value)};
    } else {
        return {describe(value)};
    }
}

template <typename... Values>
Arguments list(const Values&... values) {
    return {argument(values)...};
}

/// Records one line.
void note(const std::string& line);
/// What the test wants `name` to answer; 0 if it said nothing.
double answer(const std::string& name, const Arguments& arguments = {});
/// Records a call and answers it.
double record(const std::string& name, const Arguments& arguments);
/// Records or carries out a script of the browser.
double script(const char* code, const Arguments& arguments);

template <typename... Values>
double call(const std::string& name, const Values&... values) {
    return record(name, list(values...));
}

/// The names that were bound before main.
std::vector<std::string>& bound();

/// The one context and the one window that there are.
NVGcontext* context();
GLFWwindow* window();

using Answer = std::function<double(const Arguments&)>;

/// All that a test sets and reads. A fresh one before each test: see Surroundings.
struct Recording {
    std::vector<std::string> calls;
    std::map<std::string, double> window;   ///< JavaScript's: mouseX, innerWidth, wheelDelta.
    std::map<std::string, Answer> answers;  ///< By the name of the call: nvgCreateImage.
    double now = 0;                         ///< Milliseconds.
    double windowWidth = 0;                 ///< Pixels, as last set.
    double windowHeight = 0;                ///< Pixels, as last set.
    double pixelRatio = 1;                  ///< Of the buffer to the window.
    // What the browser was told to call.
    void (*loop)() = nullptr;
    int (*keyDown)(int, const EmscriptenKeyboardEvent*, void*) = nullptr;
    int (*keyPress)(int, const EmscriptenKeyboardEvent*, void*) = nullptr;

    /// Makes `name` answer the same always.
    void answerWith(const std::string& name, double value) {
        answers[name] = [value](const Arguments&) { return value; };
    }
    /// The calls so far, which are then forgotten.
    std::vector<std::string> take();
};

Recording& recording();

/// The value of a script that does nothing but read and set fields of `window`, after doing so.
/// Nothing, and nothing is changed, if the script does anything else.
std::optional<double> runWindowScript(const std::string& code, const Arguments& arguments,
                                      std::map<std::string, double>& window);

/// The short name of a long script; "" if it has none, "A or B" if two fit.
std::string nameOfScript(const std::string& code);

}  // namespace stand_in
