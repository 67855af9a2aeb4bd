// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_WIDTH 200.0f
#define POZHIL_HEIGHT 72.0f
#define POZHIL_RADIUS 8.0f
#define POZHIL_COLOUR int r = 255, g = 255, b = 255, a = 255;
#define POZHIL_LEADING_WIDTH 24.0f
#define POZHIL_LEADING_HEIGHT 24.0f
#define POZHIL_LEADING nvgCircle(vg, leadX, leadY, 1);
#define POZHIL_TITLE_HEIGHT 16.0f
#define POZHIL_TITLE nvgCircle(vg, titleX, titleY, 2);
#define POZHIL_SUBTITLE_HEIGHT 14.0f
#define POZHIL_SUBTITLE nvgCircle(vg, subX, subY, 3);
#define POZHIL_TRAILING_WIDTH 20.0f
#define POZHIL_TRAILING_HEIGHT 20.0f
#define POZHIL_TRAILING nvgCircle(vg, trailX, trailY, 4);
