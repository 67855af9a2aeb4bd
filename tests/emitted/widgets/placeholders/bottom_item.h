// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define AROUND_BLOCK               \
    float itemW = 100, navY = 500; \
    int currentIndex = 1;
#define POZHIL_PLACE 1
#define POZHIL_ICON "அ.png"
#define POZHIL_LABEL std::string("அ")
