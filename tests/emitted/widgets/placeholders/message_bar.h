// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float sbWidth = 300.0f, sbHeight = 40.0f;
#define POZHIL_MESSAGE std::string("அ")
