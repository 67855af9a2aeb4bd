// What stands for the placeholders of a page where it is compiled alone.
#pragma once

#define POZHIL_COLOUR 1.0f, 0.5f, 0.0f, 1.0f
#define POZHIL_IMAGE std::string("அ.png")
#define POZHIL_VIDEO std::string("அ.mp4")
#define POZHIL_TITLE std::string("அ")
#define POZHIL_WIDGETS nvgRect(vg, 1, 2, 3, 4);
