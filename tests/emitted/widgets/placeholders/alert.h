// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float alertW = 400.0f, alertH = 280.0f;
#define POZHIL_RADIUS 16.0f
#define POZHIL_SHADOW 8.0f
#define POZHIL_BACKGROUND 1.0f, 1.0f, 1.0f, 1.0f
#define POZHIL_CHILDREN nvgCircle(vg, alertX, alertY, 1);
