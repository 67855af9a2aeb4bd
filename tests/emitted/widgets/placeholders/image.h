// What stands for the placeholders of the image where it is compiled alone.
#pragma once

#define POZHIL_SIZE    \
    float tw = 100.0f; \
    float th = 60.0f;
#define POZHIL_RADIUS 0.0f
#define POZHIL_PATH "அ.png"
