// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float sbW = 350.0f, sbH = 50.0f;
#define POZHIL_RADIUS 25.0f
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_BACKGROUND 0.9f, 0.9f, 0.9f, 1.0f
#define POZHIL_LENS_IMAGE std::string("அ")
#define POZHIL_HINT "அ"
#define POZHIL_NAME "search_7"
#define POZHIL_CLEAR_IMAGE std::string("அ")
