// What stands for the placeholders of a wrap where it is compiled alone.
#pragma once

#define POZHIL_SPACING 10.0f
#define POZHIL_CHILDREN nvgRect(vg, curX, curY, wrapMaxW, rowMaxH);
