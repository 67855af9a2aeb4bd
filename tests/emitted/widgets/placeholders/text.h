// What stands for the placeholders of the text where it is compiled alone.
#pragma once

#define POZHIL_CONTENT std::string("அ")
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_COLOUR "#000000"
#define POZHIL_WEIGHT "400"
#define POZHIL_UNDERLINE false
#define POZHIL_FONT ""
#define POZHIL_FACE "sans"
#define POZHIL_CHANNELS 0.0f, 0.0f, 0.0f, 1.0f
#define POZHIL_KEY 7ULL
#define POZHIL_TRIGGER "தானாக"
#define POZHIL_DURATION 300.0f
#define POZHIL_CURVE "linear"
#define POZHIL_TARGET 100.0f
