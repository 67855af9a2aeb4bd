// What stands for the placeholders of the text where it is compiled alone.
#pragma once

#define POZHIL_CONTENT std::string("அ")
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_COLOUR "#000000"
#define POZHIL_WEIGHT "400"
#define POZHIL_UNDERLINE false
#define POZHIL_FONT ""
