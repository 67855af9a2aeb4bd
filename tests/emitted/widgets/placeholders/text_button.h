// What stands for the placeholders of the text button where it is compiled alone.
#pragma once

#define POZHIL_LABEL "அ"
#define POZHIL_FONT_SIZE 16.0f
#define POZHIL_CALLBACK \
    std::any callback = std::function<void()>([=]() { global_vars["அழுத்தம்"] = true; });
#define POZHIL_HOVER_COLOUR "rgba(58,173,104,1.000000)"
#define POZHIL_COLOUR "rgba(255,255,255,1.000000)"
#define POZHIL_CHANNELS 1.0f, 1.0f, 1.0f, 1.0f
