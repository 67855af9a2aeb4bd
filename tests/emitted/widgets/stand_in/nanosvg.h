// Vector images, read. A test says how large they are.
#pragma once

struct NSVGimage {
    float width;
    float height;
};

NSVGimage* nsvgParseFromFile(const char* path, const char* units, float dpi);
void nsvgDelete(NSVGimage*);
