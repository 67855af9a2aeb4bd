// Colours: resolved when the source is compiled, written into the text as literals.
#pragma once

/// Four channels from 0 to 1.
struct PozhilColor {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 1;
};
