// The emitted text of a web application, whole and in its order, as it stands in a generated file:
// compiled for the browser, with stand-ins for all that the browser and its libraries offer.
#define __EMSCRIPTEN__
#define POZHIL_PROGRAM
#define main startOfTheApplication
#include "emitted/widgets/web_placeholders.h"
#include "web_in_order.h"
#undef main

#include "emitted/widgets/program.h"

float winWidth = 0;
float winHeight = 0;
float mx = 0;
float my = 0;
bool g_mouseDown = false;
float forcedW = -1.0F;
float forcedH = -1.0F;
float maxW = -1.0F;
float maxH = -1.0F;

void init_globals() {
    stand_in::note("init_globals");
    if (application::logic) application::logic();
}

namespace application {

std::function<void()> logic;
std::function<void()> page;

void showPage(float frameWidth, float frameHeight, float pointerX, float pointerY, bool isDown) {
    winWidth = frameWidth;
    winHeight = frameHeight;
    mx = pointerX;
    my = pointerY;
    g_mouseDown = isDown;
    forcedW = forcedH = maxW = maxH = -1.0F;
    if (page) page();
}

int start() { return startOfTheApplication(); }

void drawTextByItsDefaults() { drawFixedText(1, 2, "அ", "#000000", 16, "left"); }

float widthByItsDefault() { return responsiveW(800, 800); }

void advanceByTheClock(unsigned long long nodeId, float duration) {
    updateAnimationProgress(nodeId, duration);
}

float leadByTheClock(unsigned long long nodeId, float duration, const std::string& curve,
                     float startValue, float targetValue) {
    return applyAnimation(nodeId, duration, curve, startValue, targetValue);
}

/// The blocks of widgets call it from other files, though it is inline here.
[[gnu::used]] float (*const keptLerp)(float, float, float) = lerp;

}  // namespace application

#include "emitted/widgets/blocks.h"
#include "widget_blocks.h"
