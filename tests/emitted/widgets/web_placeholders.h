// What the generator fills in where the emitted files for the browser leave a name.
#pragma once

#include "emitted/placeholders.h"

#define POZHIL_WINDOW_WIDTH 800
#define POZHIL_WINDOW_HEIGHT 600.5
#define POZHIL_WINDOW_TITLE "செயலி"
#define POZHIL_PAGES application::showPage(winWidth, winHeight, mx, my, g_mouseDown)

namespace application {
void showPage(float frameWidth, float frameHeight, float pointerX, float pointerY, bool isDown);
}
void init_globals();
