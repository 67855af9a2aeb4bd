// What stands for the placeholders of a padding where it is compiled alone.
#pragma once

#define POZHIL_PADDING 8.0f
#define POZHIL_CHILDREN nvgCircle(vg, childX, childY, 1);
