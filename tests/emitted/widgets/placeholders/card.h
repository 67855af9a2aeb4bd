// What stands for the placeholders of a card where it is compiled alone.
#pragma once

#define POZHIL_SIZE       \
    float cardW = 350.0f; \
    float cardH = 200.0f;
#define POZHIL_RADIUS 12.0f
#define POZHIL_ELEVATION 4.0f
#define POZHIL_COLOUR 1.0f, 1.0f, 1.0f, 1.0f
#define POZHIL_CHILDREN nvgCircle(vg, cardX + 15.0f, currentChildY, 1);
