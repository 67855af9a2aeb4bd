// Vector images, drawn into memory.
#pragma once

#include "nanosvg.h"

struct NSVGrasterizer;

NSVGrasterizer* nsvgCreateRasterizer();
void nsvgRasterize(NSVGrasterizer*, NSVGimage*, float x, float y, float scale,
                   unsigned char* pixels, int w, int h, int stride);
void nsvgDeleteRasterizer(NSVGrasterizer*);
