// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_CHOSEN 0
#define POZHIL_COUNT 2
#define POZHIL_COLOUR int r = 33, g = 150, b = 243, a = 255;
#define POZHIL_ITEMS nvgCircle(vg, tabW, tbY, 1);
