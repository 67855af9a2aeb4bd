// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float lpWidth = 200.0f, lpHeight = 6.0f;
#define POZHIL_COLOUR int r = 33, g = 150, b = 243, a = 255;
#define POZHIL_VALUE std::any(25LL)
