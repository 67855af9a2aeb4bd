// Applications of one widget, and what the widget becomes: by them the tests find out what a
// widget reads, whatever the descriptions say.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where properties are written: between the parentheses of `widget`, or in its style block
/// `block`.
struct Shape {
    std::string widget;
    std::string block;   ///< Empty for the widget's own parentheses.
    std::string source;  ///< The widget, with ⋯ where the properties go.
};

/// Every place of every widget.
const std::vector<Shape>& allShapes();

/// The text that the application of `shape` with `items` in its place becomes: its page, its logic
/// and its database. Nothing if the compiler refuses it.
std::optional<std::string> becomes(const Shape& shape, const std::string& items);
