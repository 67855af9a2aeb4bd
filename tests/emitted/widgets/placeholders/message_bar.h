// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float sbWidth = 300.0f, sbHeight = 40.0f;
#define POZHIL_RED 0.196f
#define POZHIL_GREEN 0.196f
#define POZHIL_BLUE 0.196f
#define POZHIL_ALPHA 0.902f
#define POZHIL_MESSAGE std::string("அ")
