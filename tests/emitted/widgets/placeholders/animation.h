// What stands for the placeholders of an animation where it is compiled alone, and what it moves.
#pragma once

#define AROUND_BLOCK                                    \
    bool isHover = true;                                \
    float left = 10, top = 20, width = 30, height = 40; \
    float radius = 5;                                   \
    NVGcolor colour = nvgRGBA(0, 0, 0, 255);
#define POZHIL_TRIGGER "hover"
#define POZHIL_KEY 7ULL
#define POZHIL_LEFT left
#define POZHIL_TOP top
#define POZHIL_W width
#define POZHIL_H height
#define POZHIL_DURATION 300.0f
#define POZHIL_CURVE "linear"
#define POZHIL_WIDTH 60.0f
#define POZHIL_HEIGHT 80.0f
#define POZHIL_RADIUS 10.0f
#define POZHIL_SCALE 1.5f
#define POZHIL_SHIFT_X 5.0f
#define POZHIL_SHIFT_Y 6.0f
#define POZHIL_COLOUR 1.0f, 0.0f, 0.0f, 1.0f
#define POZHIL_TURN_COLOUR colour = lerpColor(colour, targetCol, t);
