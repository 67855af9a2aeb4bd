// The emitted text of a web application, declared for those that call it: tests and the blocks of
// widgets. program.cpp defines all of it by including that very text.
#pragma once

#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <emscripten.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>
#include <nanovg.h>

#include <any>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

// The definitions give the defaults themselves.
#ifdef POZHIL_PROGRAM
#define POZHIL_DEFAULT(value)
#else
#define POZHIL_DEFAULT(value) = value
struct WidgetPos {
    float x = 0;
    float y = 0;
};
struct AnimationState {
    double startTime = 0.0;
    bool isRunning = false;
    float currentProgress = 0.0F;
    bool hasTriggered = false;
};
struct TextParts {
    std::string prefix;
    std::string suffix;
};
#endif

// ---- Values ----
extern std::map<std::string, std::any> global_vars;
extern std::map<std::string, WidgetPos> g_widgetPositions;
std::string fn_any_to_string(const std::any& val);
long double fn_get_double(const std::any& a);
bool fn_compare_any(const std::any& left, const std::any& right, const char* op);

// ---- The frame ----
extern NVGcontext* vg;
extern GLFWwindow* window;
extern std::string g_currentPage;
extern std::string g_scrollToId;
extern std::set<std::string> g_alert_names;
extern std::vector<std::function<void()>> g_overlays;
extern bool g_block_background_clicks;
extern bool g_inside_overlay;
extern bool g_mouseClicked;
extern bool g_isHoveringH;
extern bool g_nextHoveringH;
extern float g_currentClipX;
extern float g_currentClipY;
extern float g_currentClipW;
extern float g_currentClipH;
void render_frame();
void செல்க(std::string pageName);
void நகர்த்து(std::string id);
float responsiveW(float w, float winW, float margin POZHIL_DEFAULT(40.0F));
float responsiveTextSize(float baseSize, float winWidth);

// ---- Animation ----
extern std::map<unsigned long long, AnimationState> g_animationStates;
TextParts splitText(std::string s);
float lerp(float start, float target, float progress);
NVGcolor lerpColor(NVGcolor a, NVGcolor b, float t);
float updateProgress(unsigned long long id, std::string condition, bool active, float y, float winH,
                     float durationMs);
float getCurveValue(std::string name, float t);
void startBackgroundVideo(const char* path);
void showGifImage(const char* id, const char* path, float x, float y, float w, float h,
                  float radius, bool isHovered);

// ---- Inputs of the page, and the script of warnings ----
void placeTextBox(const char* id, const char* hint, bool isMultiline, const char* color, float x,
                  float y, float w, float h, float fontSize);
void placePasswordBox(const char* id, const char* hint, const char* background, const char* color,
                      float x, float y, float w, float h);
void placeSearchBar(const char* id, const char* hint, float x, float y, float w, float h,
                    float fontSize);
void disableInput();
void emptyInput();
void drawBarImage(int image, float x, float y);
float measureOnFreshCanvas(const char* text, float fontSize);
void dimAround(float x, float y, float w, float h, float radius, float winW, float winH);

int loadSVGImage(NVGcontext* vg, const char* filename, float w, float h);

// ---- Text and input ----
extern std::map<std::string, std::string> g_inputValues;
extern std::map<std::string, std::string> g_inputErrors;
extern std::map<std::string, int> g_inputCursorPos;
extern std::map<std::string, bool> g_inputSelected;
extern std::string g_focusedInput;
void forgetTextWidths();
void setupAndClearTextLayer();
void drawFixedText(float x, float y, const char* text, const char* color, float fontSize,
                   const char* align, const char* fontWeight POZHIL_DEFAULT("400"),
                   bool isUnderline POZHIL_DEFAULT(false), const char* fontPath POZHIL_DEFAULT(""),
                   float alpha POZHIL_DEFAULT(1.0F), float offsetY POZHIL_DEFAULT(0.0F));
void drawWebText(float x, float y, const char* text, const char* color, float size,
                 const char* align);
float getTextWidth(const char* text, float fontSize);
float getBoxTextWidth(const char* text, const char* fontWeight, float fontSize);
void copyToClipboard(const char* text);
void setupClipboardListener();
EM_BOOL key_callback(int eventType, const EmscriptenKeyboardEvent* e, void* userData);
extern "C" {
void set_input_value(const char* id, const char* val);
void clear_input_error(const char* id);
void on_paste_text(const char* text);
void rtdb_clear_temp();
void rtdb_add_temp_str(const char* key, const char* val);
void rtdb_add_temp_num(const char* key, double val);
void rtdb_add_temp_bool(const char* key, int val);
void rtdb_execute_callback(int id);
}

// ---- The database ----
extern std::map<int, std::function<void()>> g_rtdb_callbacks;
extern int g_rtdb_cb_counter;

// ---- What the tests put in ----
namespace application {

extern std::function<void()> logic;  ///< What init_globals does.
extern std::function<void()> page;   ///< What stands where the pages stand.

/// The application's main.
int start();
/// drawFixedText(1, 2, "அ", "#000000", 16, "left") with the defaults of the text itself.
void drawTextByItsDefaults();
/// responsiveW(800, 800) with the default of the text itself.
float widthByItsDefault();
/// updateAnimationProgress and applyAnimation, which are templates in the text.
void advanceByTheClock(unsigned long long nodeId, float duration);
float leadByTheClock(unsigned long long nodeId, float duration, const std::string& curve,
                     float startValue, float targetValue);
/// main of the same text for anything but the browser.
int startOutsideABrowser();

/// The text of a widget, compiled with what a frame has around it. The last one of each table has
/// no name.
struct Block {
    const char* name;
    void (*draw)();
};
extern const Block kBlocks[];           ///< Those of tests/widgets, whole.
extern const Block kTemplatesAllOn[];   ///< Each template with every switch on.
extern const Block kTemplatesAllOff[];  ///< And off.

}  // namespace application

// What a page's block finds in render_frame: here they take the frame's values before the page.
extern float winWidth;
extern float winHeight;
extern float mx;
extern float my;
extern bool g_mouseDown;
extern float forcedW;
extern float forcedH;
extern float maxW;
extern float maxH;
