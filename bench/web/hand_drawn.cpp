// The widgets of sources.mjs as one would draw them without a toolkit: kWidgets of them, which the
// measuring writes before this text. Shapes by NanoVG, texts on a 2D canvas above it.
#include <emscripten.h>

#include "nanovg.h"
// GLEW stands before GLFW.
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"

namespace {

constexpr int kWidgetsInRow = 24;
constexpr float kHeight = 14;
constexpr float kWidth = 44;
constexpr float kTextWidth = 45.5F;
constexpr float kGap = 4;
constexpr float kRowHeight = kHeight + 3;

NVGcontext* vg = nullptr;
GLFWwindow* window = nullptr;

void clearTexts() {
    EM_ASM({
        var layer = document.getElementById('textCanvas');
        var ratio = window.devicePixelRatio;
        if (layer.width != window.innerWidth * ratio ||
            layer.height != window.innerHeight * ratio) {
            layer.width = window.innerWidth * ratio;
            layer.height = window.innerHeight * ratio;
            layer.style.width = window.innerWidth + 'px';
            layer.style.height = window.innerHeight + 'px';
        }
        var ctx = layer.getContext('2d');
        ctx.setTransform(ratio, 0, 0, ratio, 0, 0);
        ctx.clearRect(0, 0, window.innerWidth, window.innerHeight);
        ctx.textBaseline = 'top';
    });
}

void text(float x, float y, const char* shown, const char* color, float size, const char* align) {
    EM_ASM(
        {
            var ctx = document.getElementById('textCanvas').getContext('2d');
            ctx.font = '400 ' + $4 + 'px "Noto Sans Tamil", Arial, sans-serif';
            ctx.fillStyle = UTF8ToString($3);
            ctx.textAlign = UTF8ToString($5);
            ctx.fillText(UTF8ToString($2), $0, $1);
        },
        x, y, shown, color, size, align);
}

void roundedBox(float x, float y, float radius, NVGcolor color) {
    nvgBeginPath(vg);
    nvgRoundedRect(vg, x, y, kWidth, kHeight, radius);
    nvgFillColor(vg, color);
    nvgFill(vg);
}

void button(float x, float y) {
    roundedBox(x + 1, y + 2, 8, nvgRGBA(0, 0, 0, 64));
    roundedBox(x, y, 8, nvgRGBA(33, 150, 243, 255));
    text(x + kWidth / 2, y + kHeight / 2 - 8 + 2, "கூட்டு", "rgb(255,255,255)", 16, "center");
}

void widgets() {
    float x = 0;
    float y = 0;
    for (int i = 0; i < kWidgets; i++) {
        if (i > 0 && i % kWidgetsInRow == 0) {
            x = 0;
            y += kRowHeight;
        }
        if (i % 3 == 0) text(x, y, "வணக்கம்", "rgb(0,0,0)", 10, "left");
        if (i % 3 == 1) button(x, y);
        if (i % 3 == 2) roundedBox(x, y, 3, nvgRGBA(46, 125, 50, 255));
        x += (i % 3 == 0 ? kTextWidth : kWidth) + kGap;
    }
}

void drawFrame() {
    const auto width = static_cast<float>(EM_ASM_DOUBLE({ return window.innerWidth; }));
    const auto height = static_cast<float>(EM_ASM_DOUBLE({ return window.innerHeight; }));
    int pixelsWide = 0;
    int pixelsHigh = 0;
    clearTexts();
    glfwSetWindowSize(window, static_cast<int>(width), static_cast<int>(height));
    glfwGetFramebufferSize(window, &pixelsWide, &pixelsHigh);
    glViewport(0, 0, pixelsWide, pixelsHigh);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    nvgBeginFrame(vg, width, height, static_cast<float>(pixelsWide) / width);
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, width, height);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
    widgets();
    nvgEndFrame(vg);
}

}  // namespace

int main() {
    if (glfwInit() == 0) return -1;
    window = glfwCreateWindow(1280, 720, "", nullptr, nullptr);
    if (window == nullptr) return -1;
    glfwMakeContextCurrent(window);
    glewInit();
    vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);
    EM_ASM({
        var layer = document.createElement('canvas');
        layer.id = 'textCanvas';
        layer.style.cssText =
            'position: absolute; left: 0; top: 0; pointer-events: none; z-index: 1000';
        document.body.appendChild(layer);
        document.body.style.margin = '0';
        document.body.style.overflow = 'hidden';
    });
    emscripten_set_main_loop(drawFrame, 0, 1);
    return 0;
}
