// What stands for the placeholders of a message's trigger where it is compiled alone.
#pragma once

#define POZHIL_MESSAGE std::string("வணக்கம்")
#define POZHIL_RED 51
#define POZHIL_GREEN 102
#define POZHIL_BLUE 153
