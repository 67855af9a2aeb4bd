// What stands for the placeholders of a page inside a page where it is compiled alone.
#pragma once

#define POZHIL_CHILDREN nvgCircle(vg, winWidth, winHeight, 1);
