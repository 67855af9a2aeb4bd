// What stands for the placeholders of a box where it is compiled alone.
#pragma once

#define POZHIL_SIZE      \
    float boxW = 100.0f; \
    float boxH = 100.0f;
#define POZHIL_RADIUS 8.0f
#define POZHIL_SHADOW 2.0f
#define POZHIL_COLOUR 1.0f, 0.5f, 0.0f, 1.0f
#define POZHIL_HOVER_COLOUR 0.0f, 0.5f, 0.0f, 1.0f
#define POZHIL_IMAGE std::string("அ.png")
#define POZHIL_CHILDREN nvgCircle(vg, boxX, boxY, 1);
