// How much room a widget takes where its source tells no size, by the compiler's own measure.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace companion::reference {

/// One side of a widget, in pixels.
struct MeasuredSide {
    std::string pixels;    ///< Of a widget with a letter of text and nothing in it: "24".
    bool growsWithText;    ///< A longer text makes it larger.
    bool growsWithWidget;  ///< A larger widget inside makes it larger.
};

struct MeasuredSize {
    MeasuredSide width;
    MeasuredSide height;
};

MeasuredSize measuredSizeOf(std::string_view widget);

}  // namespace companion::reference
