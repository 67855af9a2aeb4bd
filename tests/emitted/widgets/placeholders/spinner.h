// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE 40.0f
#define POZHIL_THICKNESS 4.0f
#define POZHIL_COLOUR int r = 33, g = 150, b = 243, a = 255;
