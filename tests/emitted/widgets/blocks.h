// What stands around a widget's block where it is compiled alone.
#pragma once

#include <cmath>

#include "emitted/widgets/program.h"

#ifndef __EMSCRIPTEN__
#define __EMSCRIPTEN__
#endif

// A block reads its surroundings for itself, and not every kind needs all that it reads.
#pragma GCC diagnostic ignored "-Wunused-variable"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"

// These are variables of the function around the block, and a closure takes copies of them.
#define BEGIN_BLOCK                                                                        \
    [[maybe_unused]] float winWidth = ::winWidth, winHeight = ::winHeight;                 \
    [[maybe_unused]] float mx = ::mx, my_raw = ::my, my = ::my;                            \
    [[maybe_unused]] bool g_mouseDown = ::g_mouseDown;                                     \
    [[maybe_unused]] float forcedW = ::forcedW, forcedH = ::forcedH, maxW = -1, maxH = -1; \
    [[maybe_unused]] float placeX = 16, placeY = 24;
#define END_BLOCK        \
    ::forcedW = forcedW; \
    ::forcedH = forcedH;
