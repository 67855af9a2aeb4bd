// What stands for the placeholders of a stack where it is compiled alone.
#pragma once

#define POZHIL_WIDTH 40.0f
#define POZHIL_HEIGHT 30.0f
#define POZHIL_CHILDREN nvgRect(vg, sStartX, sStartY, stackW, stackH);
