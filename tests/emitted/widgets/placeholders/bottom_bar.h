// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_CHOSEN 0
#define POZHIL_COUNT 2
#define POZHIL_COLOUR int r = 255, g = 255, b = 255, a = 255;
#define POZHIL_ITEMS nvgCircle(vg, itemW, navY, currentIndex);
