// What stands for the placeholders of the list where it is compiled alone.
#pragma once

#define POZHIL_NAME std::string("அ")
#define POZHIL_HEIGHTS totalContentHeight += 900.0f;
#define POZHIL_SCROLL_RANGE static float scrollOffset_7 = 20.0f;
#define POZHIL_OPEN_VIEW nvgSave(vg);
#define POZHIL_CHILDREN nvgCircle(vg, listStartX, currentY, spacing);
#define POZHIL_CLOSE_VIEW nvgRestore(vg);
