// What stands for the placeholders of a box's child where it is compiled alone, and the box.
#pragma once

#define AROUND_BLOCK float boxX = 10, boxY = 20, boxW = 200, boxH = 100;
#define POZHIL_WIDTH 30.0f
#define POZHIL_HEIGHT 16.0f
#define POZHIL_KIND "உரை"
#define POZHIL_TEXT std::string("அ")
#define POZHIL_FONT_WEIGHT "400"
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_ALIGN_X 1.0f
#define POZHIL_ALIGN_Y 1.0f
#define POZHIL_CHILD nvgCircle(vg, childX, childY, 1);
