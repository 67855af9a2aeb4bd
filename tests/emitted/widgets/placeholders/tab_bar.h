// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_CHOSEN 0
#define POZHIL_COUNT 2
#define POZHIL_BACKGROUND 0.1f, 0.6f, 0.9f, 1.0f
#define POZHIL_ITEMS nvgCircle(vg, tabW, tbY, 1);
