// What stands for the placeholders of a divider where it is compiled alone.
#pragma once

#define POZHIL_SIZE          \
    float divWidth = 300.0f; \
    float divHeight = 20.0f;
#define POZHIL_THICKNESS 1.0f
#define POZHIL_COLOUR int r = 158, g = 158, b = 158, a = 255;
