// The context of the drawing library.
#pragma once

#include "nanovg.h"

enum NVGcreateFlags { NVG_ANTIALIAS = 1 << 0, NVG_STENCIL_STROKES = 1 << 1, NVG_DEBUG = 1 << 2 };

NVGcontext* nvgCreateGLES2(int flags);
