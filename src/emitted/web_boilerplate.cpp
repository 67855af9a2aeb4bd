// --- Web Boilerplate ---
#ifdef __EMSCRIPTEN__
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <emscripten.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"

NVGcontext* vg = NULL;
GLFWwindow* window = NULL;
float g_currentClipX = -1.0f;
float g_currentClipY = -1.0f;
float g_currentClipW = -1.0f;
float g_currentClipH = -1.0f;
bool g_isHoveringH = false;
bool g_nextHoveringH = false;
bool g_mouseClicked = false;

struct TextParts {
    std::string prefix;
    std::string suffix;
};

// What stands before the first digit and behind the last one.
TextParts splitText(std::string s) {
    const size_t first = s.find_first_of("0123456789");
    if (first == std::string::npos) return {s, ""};
    return {s.substr(0, first), s.substr(s.find_last_of("0123456789") + 1)};
}

NVGcolor lerpColor(NVGcolor a, NVGcolor b, float t) {
    return nvgRGBAf(lerp(a.r, b.r, t), lerp(a.g, b.g, t), lerp(a.b, b.b, t), lerp(a.a, b.a, t));
}

// A step a frame, as if each took a sixtieth of a second. An automatic animation starts when the
// widget's top comes into the window, 50 pixels above its lower edge, and never goes back.
float updateProgress(unsigned long long id, std::string condition, bool active, float y, float winH,
                     float durationMs) {
    const float step = durationMs > 0.0f ? (1.0f / 60.0f) / (durationMs / 1000.0f) : 1.0f;
    AnimationState& state = g_animationStates[id];
    bool forward = active;
    if (condition == "தானாக" || condition == "auto") {
        const bool isInView = y > 0.0f && y < (winH - 50.0f);
        if (isInView) state.hasTriggered = true;
        forward = state.hasTriggered;
    }
    state.currentProgress = forward ? std::min(1.0f, state.currentProgress + step)
                                    : std::max(0.0f, state.currentProgress - step);
    return state.currentProgress;
}

float getCurveValue(std::string name, float t) { return getEasingFunction(name)(t); }
#endif
