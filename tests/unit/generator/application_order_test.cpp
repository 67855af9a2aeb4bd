// The order of an application's text: the runtime, the frame with its pages, the start.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/generated_text.h"

namespace {

/// What an application of these names writes.
std::string applicationText() {
    return generate(
        "வலைதளம் என்_செயலி(\n"
        "    தலைமை(\n"
        "    )\n"
        "    குமரி(\n"
        "        உரை(\"அ\")\n"
        "    )\n"
        "    வரையறை(\n"
        "        எண்ணிக்கை = 0\n"
        "        செயல் கூடு():\n"
        "            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1\n"
        "            புதுப்பி()\n"
        "    )\n"
        ")\n");
}

void expectInOrder(const std::vector<const char*>& marks) {
    const std::string text = applicationText();
    std::size_t from = 0;
    for (const char* mark : marks) {
        const std::size_t at = text.find(mark, from);
        ASSERT_NE(at, std::string::npos) << "missing, or not in its place: " << mark;
        from = at + std::string(mark).size();
    }
}

TEST(ApplicationText, HoldsItsSectionsInOrder) {
    expectInOrder({
        "std::string g_currentPage = \"home\";",
        "std::map<std::string, std::string> g_inputValues;",
        "EMSCRIPTEN_KEEPALIVE void set_input_value(",
        "EMSCRIPTEN_BINDINGS(scroll_logic)",
        "on_paste_text",
        "EM_BOOL key_callback(",
        "void pozhil_runtime_error(std::string code, std::string file, int line) {",
        "// --- Web Boilerplate ---",
        "NVGcontext* vg = NULL;",
        "std::any fn_கூடு() {",
        "    updateUI();",
        "void init_globals() {",
        "    (global_vars[\"எண்ணிக்கை\"] = std::any(0LL), global_vars[\"எண்ணிக்கை\"]);",
        "}",
        "float responsiveW(",
        "float responsiveTextSize(",
        "void render_frame() {",
        "nvgBeginFrame(",
        "    float forcedW = -1.0f;",
        "    float maxH = -1.0f;",
        "    if (g_currentPage == \"home\") {",
        "        bool bgSet = false;",
        "        if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));",
        "        nvgFill(vg);",
        "drawFixedText(",
        "nvgEndFrame(vg);",
        "pozhil-input",
        "int main() {",
        "    init_globals();",
        "glfwCreateWindow((int)1280, (int)720, \"என்_செயலி\", NULL, NULL)",
        "emscripten_set_main_loop(render_frame, 0, 1);",
        "#else",
        "வலைத்தள (WebAssembly) தொகுப்புக்கு மட்டுமே",
        "    return 0;",
    });
}

TEST(ApplicationText, HoldsTheFrameInOrder) {
    expectInOrder({
        "float responsiveW(float w, float winW, float margin = 40.0f) {",
        "float responsiveTextSize(float baseSize, float winWidth) {",
        "void render_frame() {",
        "window.innerWidth",
        "window.innerHeight",
        "g_block_background_clicks = false;",
        "g_alert_names",
        "g_block_background_clicks = true;",
        "break;",
        "window.modalActive = ",
        "window.savedMouseX = window.mouseX",
        "window.savedMouseY = window.mouseY",
        "window.savedMouseClicked = window.mouseClicked",
        "window.mouseX = -9999",
        "window.mouseY = -9999",
        "window.mouseClicked = 0",
        "g_mouseClicked = ",
        "window.mouseClicked = 0",
        "float mx = ",
        "float my_raw = ",
        "bool g_mouseDown = ",
        "g_isHoveringH = g_nextHoveringH;",
        "g_nextHoveringH = false;",
        "document.body.style.cursor = 'default'",
        "setupAndClearTextLayer();",
        "global_vars[\"திரை_அகலம்\"] = std::any((long double)winWidth);",
        "global_vars[\"திரை_உயரம்\"] = std::any((long double)winHeight);",
        "glfwSetWindowSize(window, ",
        "glfwGetFramebufferSize(window, &fbWidth, &fbHeight);",
        "pxRatio = (float)fbWidth / (float)winWidth;",
        "glViewport(0, 0, fbWidth, fbHeight);",
        "glClearColor(0.0f, 0.0f, 0.0f, 0.0f);",
        "glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);",
        "float my = my_raw;",
        "nvgBeginFrame(vg, winWidth, winHeight, pxRatio);",
        "nvgSave(vg);",
        "    float forcedW = -1.0f;",
        "    float forcedH = -1.0f;",
        "    float maxW = -1.0f;",
        "    float maxH = -1.0f;",
        "    if (g_currentPage == \"home\") {",
        "        nvgBeginPath(vg);",
        "        nvgRect(vg, 0, 0, winWidth, winHeight);",
        "        bool bgSet = false;",
        "        if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));",
        "        nvgFill(vg);",
        "    }",
        "if (window.modalActive) {",
        "window.mouseX = window.savedMouseX",
        "window.mouseY = window.savedMouseY",
        "window.mouseClicked = window.savedMouseClicked",
        "window.savedMouseClicked = 0",
        "if (g_block_background_clicks) {",
        "g_mouseClicked = ",
        "window.mouseClicked = 0",
        "g_inside_overlay = true;",
        "g_overlays.clear();",
        "g_inside_overlay = false;",
        "global_vars[\"active_sb\"]",
        "nvgRestore(vg);",
        "    nvgRestore(vg);",
        "nvgEndFrame(vg);",
        "'pozhil-input'",
        "dataset.touched === '0'",
        "style.display = 'none'",
        "dataset.touched = '0'",
        "g_mouseClicked = false;",
        "#endif",
        "int main() {",
    });
}

TEST(ApplicationText, HoldsTheStartInOrder) {
    expectInOrder({
        "int main() {",
        "    init_globals();",
        "#ifdef __EMSCRIPTEN__",
        "glfwInit()",
        "return -1;",
        "glfwCreateWindow((int)1280, (int)720, \"என்_செயலி\", NULL, NULL)",
        "glfwTerminate();",
        "return -1;",
        "glfwMakeContextCurrent(window);",
        "glewInit();",
        "GLFW.onKeydown",
        "removeEventListener('keydown', ",
        "document.activeElement",
        "'INPUT'",
        "'TEXTAREA'",
        "addEventListener('keydown', GLFW.onKeydown, true)",
        "vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);",
        "nvgCreateFont(vg, \"tamil_font\", \"assets/font/Coiny-Regular.ttf\")",
        "எச்சரிக்கை: 'tamil_font' எழுத்துருவை இணைக்க முடியவில்லை.",
        "nvgCreateFont(vg, \"sans\", \"assets/font/Tamil-Regular.ttf\")",
        "எச்சரிக்கை: 'sans' எழுத்துருவை இணைக்க முடியவில்லை.",
        "nvgFontFace(vg, \"tamil-font\");",
        "nvgFontSize(vg, 32.0f);",
        "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));",
        "emscripten_run_script(",
        "/css2?family=Noto+Sans+Tamil:wght@400;700&display=swap",
        "font-variant-ligatures: common-ligatures",
        "font-feature-settings: 'liga' 1, 'clig' 1, 'kern' 1",
        "text-rendering: optimizeLegibility",
        "-webkit-font-smoothing: antialiased",
        "document.body.style.margin = '0'",
        "document.body.style.padding = '0'",
        "document.body.style.overflow = 'hidden'",
        "style.display = 'block'",
        "Event('resize')",
        "'textCanvas'",
        "window.mouseX = 0",
        "window.mouseY = 0",
        "window.mouseClicked = 0",
        "window.mouseDownState = 0",
        "window.wheelDelta = 0",
        "window.wheelDeltaX = 0",
        "'mousemove'",
        "getElementById('canvas').getBoundingClientRect()",
        "window.mouseX = e.clientX - rect.left",
        "window.mouseY = e.clientY - rect.top",
        "'mousedown'",
        "window.mouseClicked = 1",
        "window.mouseDownState = 1",
        "'mouseup'",
        "window.mouseDownState = 0",
        "'wheel'",
        "window.wheelDelta += e.deltaY",
        "window.wheelDeltaX += e.deltaX",
        "preventDefault()",
        "{passive: false}",
        "setupClipboardListener();",
        "emscripten_set_keydown_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, NULL, 1, key_callback);",
        "emscripten_set_keypress_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, NULL, 1, key_callback);",
        "emscripten_set_main_loop(render_frame, 0, 1);",
        "#else",
        "\\033[1;31m🚨 பிழை: இந்த பொழில் வலைத்தள (WebAssembly) தொகுப்புக்கு மட்டுமே அனுமதிக்கப்படும்!\\033[0m",
        "#endif",
        "    return 0;",
    });
}

TEST(ApplicationText, LeavesNoPlaceholder) {
    EXPECT_EQ(applicationText().find("POZHIL_"), std::string::npos);
}

}  // namespace
