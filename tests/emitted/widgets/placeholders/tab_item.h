// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define AROUND_BLOCK                              \
    float tbX = 0, tbY = 0, tbH = 50, tabW = 100; \
    int curTabIdx_7 = 1;
#define POZHIL_PLACE 1
#define POZHIL_LABEL std::string("அ")
