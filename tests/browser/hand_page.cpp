// A page as a generated program draws it, written by hand: a GLFW window that follows the size of
// the page, shapes and an SVG image by NanoVG, and a function with a Tamil name for JavaScript.
#include <emscripten.h>
#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <cstring>
#include <string>

#include "nanovg.h"
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"
// GLEW stands before GLFW.
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "error_handler.h"
#include "nanovg_gl.h"

namespace {

constexpr int kImageSize = 100;

NVGcontext* vg = nullptr;
GLFWwindow* window = nullptr;
int image = -1;
int frames = 0;

int greenSquare() {
    char text[] = "<svg width='10' height='10'><rect width='10' height='10' fill='#00ff00'/></svg>";
    NSVGimage* svg = nsvgParse(text, "px", 96.0F);
    NSVGrasterizer* rasterizer = nsvgCreateRasterizer();
    std::string pixels(kImageSize * kImageSize * 4, '\0');
    auto* bytes = reinterpret_cast<unsigned char*>(pixels.data());
    nsvgRasterize(rasterizer, svg, 0, 0, 10, bytes, kImageSize, kImageSize, kImageSize * 4);
    nsvgDeleteRasterizer(rasterizer);
    nsvgDelete(svg);
    return nvgCreateImageRGBA(vg, kImageSize, kImageSize, 0, bytes);
}

void fillRectangle(float x, float y, float width, float height, NVGcolor color) {
    nvgBeginPath(vg);
    nvgRect(vg, x, y, width, height);
    nvgFillColor(vg, color);
    nvgFill(vg);
}

/// Red at the left, the green image in the middle of the top, blue in the lower right corner.
void render_frame() {
    const auto width = static_cast<float>(EM_ASM_DOUBLE({ return window.innerWidth; }));
    const auto height = static_cast<float>(EM_ASM_DOUBLE({ return window.innerHeight; }));
    int pixelsWide = 0;
    int pixelsHigh = 0;
    glfwSetWindowSize(window, static_cast<int>(width), static_cast<int>(height));
    glfwGetFramebufferSize(window, &pixelsWide, &pixelsHigh);
    glViewport(0, 0, pixelsWide, pixelsHigh);
    glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);

    nvgBeginFrame(vg, width, height, static_cast<float>(pixelsWide) / width);
    fillRectangle(0, 0, 100, height, nvgRGBA(255, 0, 0, 255));
    fillRectangle(width - 100, height - 100, 100, 100, nvgRGBA(0, 0, 255, 255));
    nvgBeginPath(vg);
    nvgRect(vg, 200, 0, kImageSize, kImageSize);
    nvgFillPaint(vg, nvgImagePattern(vg, 200, 0, kImageSize, kImageSize, 0, image, 1.0F));
    nvgFill(vg);
    nvgEndFrame(vg);
    EM_ASM({ window.framesDrawn = $0; }, ++frames);
}

}  // namespace

std::string வணங்கு(std::string name) { return "வணக்கம், " + name; }

EMSCRIPTEN_BINDINGS(greeting) { emscripten::function("வணங்கு", &வணங்கு); }

extern "C" {
EMSCRIPTEN_KEEPALIVE void set_input_value(const char* id, const char* value) {
    EM_ASM({ window.received = UTF8ToString($0) + "=" + UTF8ToString($1); }, id, value);
}
EMSCRIPTEN_KEEPALIVE void stop_with_report() {
    ErrorHandler::அறிக்கை(RUNTIME_ERROR, "பொழில்-301", "சோதனை", "a", 1, "b", "c");
}
EMSCRIPTEN_KEEPALIVE void stop_with_trap() { __builtin_trap(); }
EMSCRIPTEN_KEEPALIVE void stop_in_silence() { exit(3); }
EMSCRIPTEN_KEEPALIVE int stop_with_depth(int depth) {
    return EM_ASM_INT({ return Module._stop_with_depth($0 + 1); }, depth) + 1;
}
}

int main() {
    if (glfwInit() == 0) return -1;
    window = glfwCreateWindow(1280, 720, "கைப்பக்கம்", nullptr, nullptr);
    if (window == nullptr) return -1;
    glfwMakeContextCurrent(window);
    glewInit();
    vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);
    image = greenSquare();
    printf("தொடங்கியது\n");
    emscripten_set_main_loop(render_frame, 0, 1);
    return 0;
}
