// What stands for the placeholders of a stack's child where it is compiled alone.
#pragma once

#define AROUND_BLOCK float sStartX = 10, sStartY = 20, stackW = 100, stackH = 60;
#define POZHIL_WIDTH 40.0f
#define POZHIL_HEIGHT 30.0f
#define POZHIL_AX 0.0f
#define POZHIL_AY 1.0f
#define POZHIL_DX 5.0f
#define POZHIL_DY 6.0f
#define POZHIL_CHILD nvgCircle(vg, childX, childY, 1);
