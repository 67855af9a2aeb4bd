// Window, GL and the browser's loop, keys and clock.
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <emscripten.h>
#include <emscripten/html5.h>

#include <cmath>
#include <string>

#include "emitted/widgets/recording.h"

using stand_in::answer;
using stand_in::call;
using stand_in::note;
using stand_in::recording;

namespace {

void noteWindow(GLFWwindow* window) {
    if (window != stand_in::window()) note("without the window:");
}

}  // namespace

// ---- GL ----
unsigned glewInit() { return static_cast<unsigned>(call("glewInit")); }
void glViewport(int x, int y, int w, int h) { call("glViewport", x, y, w, h); }
void glClearColor(float r, float g, float b, float a) { call("glClearColor", r, g, b, a); }
void glClear(GLbitfield buffers) {
    std::string names;
    if ((buffers & GL_COLOR_BUFFER_BIT) != 0) names += " colour";
    if ((buffers & GL_DEPTH_BUFFER_BIT) != 0) names += " depth";
    if ((buffers & GL_STENCIL_BUFFER_BIT) != 0) names += " stencil";
    note("glClear:" + names);
}

// ---- The window. Opening it fails where the test answers -1 ----
int glfwInit() { return call("glfwInit") == -1 ? 0 : 1; }
void glfwTerminate() { call("glfwTerminate"); }
GLFWwindow* glfwCreateWindow(int w, int h, const char* title, GLFWmonitor*, GLFWwindow*) {
    return call("glfwCreateWindow", w, h, title) == -1 ? nullptr : stand_in::window();
}
void glfwMakeContextCurrent(GLFWwindow* window) {
    noteWindow(window);
    call("glfwMakeContextCurrent");
}
void glfwSetWindowSize(GLFWwindow* window, int w, int h) {
    noteWindow(window);
    call("glfwSetWindowSize", w, h);
    recording().windowWidth = w;
    recording().windowHeight = h;
}
void glfwGetFramebufferSize(GLFWwindow* window, int* w, int* h) {
    noteWindow(window);
    call("glfwGetFramebufferSize");
    *w = static_cast<int>(std::lround(recording().windowWidth * recording().pixelRatio));
    *h = static_cast<int>(std::lround(recording().windowHeight * recording().pixelRatio));
}
int glfwGetMouseButton(GLFWwindow* window, int button) {
    noteWindow(window);
    call("glfwGetMouseButton", button);
    return recording().window["mouseDownState"] != 0 ? GLFW_PRESS : GLFW_RELEASE;
}

// ---- The browser ----
double emscripten_get_now() { return recording().now; }
void emscripten_run_script(const char* script) { call("emscripten_run_script", script); }
void emscripten_set_main_loop(em_callback_func loop, int framesPerSecond, int endless) {
    call("emscripten_set_main_loop", framesPerSecond, endless);
    recording().loop = loop;
}
void emscripten_set_keydown_callback(const char* target, void*, EM_BOOL useCapture,
                                     em_key_callback_func callback) {
    call("emscripten_set_keydown_callback", target, useCapture);
    recording().keyDown = callback;
}
void emscripten_set_keypress_callback(const char* target, void*, EM_BOOL useCapture,
                                      em_key_callback_func callback) {
    call("emscripten_set_keypress_callback", target, useCapture);
    recording().keyPress = callback;
}
