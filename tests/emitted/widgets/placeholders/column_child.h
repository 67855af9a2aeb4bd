// What stands for the placeholders of a column's child where it is compiled alone.
#pragma once

#define AROUND_BLOCK                               \
    float colX = 10, containerW = 200, alignX = 0; \
    float currentY = 20, spacing = 8, unitFlexH = forcedH;
#define POZHIL_WIDTH 50.0f
#define POZHIL_CONTENT std::string("அ")
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_SHARE unitFlexH
#define POZHIL_CHILD nvgCircle(vg, childX, currentY, 1);
#define POZHIL_ADVANCE 24.0f
