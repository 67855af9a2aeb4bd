// Colours: resolved when the source is compiled, written into the text as literals.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "syntax/expressions.h"
#include "syntax/widgets.h"

/// Four channels from 0 to 1.
struct PozhilColor {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 1;
};

/// Three channels from 0 to 255.
struct Rgb {
    int r;
    int g;
    int b;
};

/// The names of all colours that have one.
std::vector<std::string_view> colourNames();

/// A colour by its hexadecimal text or by its name; black for what is neither.
PozhilColor parsePozhilColor(std::string value, bool isHex);

PozhilColor colourOf(const ColorExpression& colour);

/// A colour by a text: hexadecimal behind `#`, else a name.
PozhilColor colourOfText(const std::string& text);

/// The colour that a value stands for in one of its literal forms, as colourProperty.
std::optional<PozhilColor> colourOf(const Expression* value);

/// A colour property in one of its literal forms: a colour, a string with `#` or a name, a member
/// of `நிறம்`. Nothing for any other value: the widget's default stays.
std::optional<PozhilColor> colourProperty(const WidgetNode& widget, const std::string& key);

/// A channel from 0 to 255, cut down to a whole number.
int channelByte(float channel);
Rgb channelBytes(const PozhilColor& colour);

/// The four channels as float literals, joined by commas.
std::string channelTexts(const PozhilColor& colour);

/// "rgba(R,G,B,A)" for the text layer.
std::string cssText(const PozhilColor& colour);
