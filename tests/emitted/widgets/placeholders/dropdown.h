// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_SIZE float ddW = 200.0f, ddH = 40.0f;
#define POZHIL_ITEMS items = {"அ", "ஆ"};
