// What stands for the placeholders of the check box where it is compiled alone.
#pragma once

#define POZHIL_SIZE     \
    float cb_w = 24.0f; \
    float cb_h = 24.0f;
#define POZHIL_LABEL_TEXT std::string("அ")
#define POZHIL_LABEL_SIZE 16.0f
#define POZHIL_STARTS_CHECKED true
#define POZHIL_NAME "ஒப்புதல்"
#define POZHIL_CHECKED_COLOUR int onR = 33, onG = 150, onB = 243;
#define POZHIL_UNCHECKED_COLOUR int offR = 117, offG = 117, offB = 117;
#define POZHIL_CHILD nvgCircle(vg, cbChildX, cbTextY, 1);
