// The animation of a button or a box, written into its block.
#pragma once

#include <functional>
#include <initializer_list>

#include "ui/widget_writer.h"

/// The locals of a widget that an animation moves; its radius is `radius`.
struct Moved {
    const char* x;
    const char* y;
    const char* w;
    const char* h;
};

/// Writes the animation of the widget, if it has one, as a block. Of `colourKeys` the first that
/// its targets hold is the colour it turns to: `turnColour` then writes the lines that take `t` and
/// `targetCol`.
void writeAnimation(WidgetWriter& w, const Site& at, const Moved& moved,
                    std::initializer_list<const char*> colourKeys,
                    const std::function<void()>& turnColour);
