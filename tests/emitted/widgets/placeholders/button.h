// What stands for the placeholders of the button where it is compiled alone.
#pragma once

#define POZHIL_RADIUS 8.0f
#define POZHIL_SHADOW 12.0f
#define POZHIL_COLOURS               \
    int hr = 200, hg = 100, hb = 10; \
    (void)hr, (void)hg, (void)hb;
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_FACE "tamil_font"
#define POZHIL_LABEL "அ"
#define POZHIL_WEIGHT "400"
#define POZHIL_FONT ""
#define POZHIL_WIDTH float btnW = std::max(80.0f, txtW + paddingX);
#define POZHIL_HEIGHT float btnH = std::max(36.0f, txtH + paddingY);
#define POZHIL_PRESS global_vars["அழுத்தம்"] = true;
#define POZHIL_BORDER_COLOUR 1.0f, 0.0f, 0.0f, 1.0f
#define POZHIL_BORDER_WIDTH 3.0f
