// What stands for the placeholders of the avatar where it is compiled alone.
#pragma once

#define POZHIL_DIAMETER float diameter = 48.0f;
#define POZHIL_PICTURE "அ.png"
#define POZHIL_BORDER_COLOUR 1.0f, 0.0f, 0.0f, 1.0f
#define POZHIL_BORDER_WIDTH 4.0f
#define POZHIL_INITIALS "அஆ"
