// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_STARTS_ON false
#define POZHIL_ON_COLOUR int onR = 33, onG = 150, onB = 243, onA = 255;
#define POZHIL_OFF_COLOUR int offR = 224, offG = 224, offB = 224, offA = 255;
