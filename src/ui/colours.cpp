#include "ui/colours.h"

#include <cstdio>
#include <map>

#include "ui/properties.h"
#include "writing/texts.h"

namespace {

const std::map<std::string, PozhilColor> pozhil_colors = {
    {"வெள்ளை", {1.0F, 1.0F, 1.0F, 1.0F}},      {"கருப்பு", {0.0F, 0.0F, 0.0F, 1.0F}},
    {"சிவப்பு", {1.0F, 0.0F, 0.0F, 1.0F}},     {"பச்சை", {0.0F, 1.0F, 0.0F, 1.0F}},
    {"நீலம்", {0.0F, 0.0F, 1.0F, 1.0F}},        {"மஞ்சள்", {1.0F, 1.0F, 0.0F, 1.0F}},
    {"ஆரஞ்சு", {1.0F, 0.647F, 0.0F, 1.0F}},    {"ஊதா", {0.5F, 0.0F, 0.5F, 1.0F}},
    {"இளஞ்சிவப்பு", {1.0F, 0.75F, 0.8F, 1.0F}}, {"சாம்பல்", {0.5F, 0.5F, 0.5F, 1.0F}},
    {"பழுப்பு", {0.65F, 0.16F, 0.16F, 1.0F}},  {"வானநீலம்", {0.53F, 0.81F, 0.92F, 1.0F}},
    {"தங்கம்", {1.0F, 0.84F, 0.0F, 1.0F}},      {"வெள்ளி", {0.75F, 0.75F, 0.75F, 1.0F}},
    {"சுண்ணாம்பு", {0.0F, 1.0F, 0.0F, 1.0F}},   {"கடல்நீலம்", {0.0F, 0.41F, 0.58F, 1.0F}},
};

}  // namespace

std::vector<std::string_view> colourNames() {
    std::vector<std::string_view> names;
    names.reserve(pozhil_colors.size());
    for (const auto& each : pozhil_colors) names.emplace_back(each.first);
    return names;
}

/// A sign in a hexadecimal text reads as a channel beyond every int: it counts as full.
int channelByte(float channel) {
    const float byte = channel * 255;
    return byte < 256 ? static_cast<int>(byte) : 255;
}

Rgb channelBytes(const PozhilColor& colour) {
    return {channelByte(colour.r), channelByte(colour.g), channelByte(colour.b)};
}

/// Short hexadecimal forms aren't expanded: they stay black. Nor is an unknown name refused: it is
/// black too. Meant.
PozhilColor parsePozhilColor(std::string value, bool isHex) {
    if (!isHex) {
        const auto found = pozhil_colors.find(value);
        return found == pozhil_colors.end() ? PozhilColor{0, 0, 0, 1} : found->second;
    }
    if (value.rfind('#', 0) == 0) value.erase(0, 1);
    unsigned red = 0;
    unsigned green = 0;
    unsigned blue = 0;
    unsigned alpha = 255;
    // What can't be read leaves the channels behind it as they are.
    if (value.size() == 8) {
        static_cast<void>(
            std::sscanf(value.c_str(), "%02x%02x%02x%02x", &red, &green, &blue, &alpha));
    } else if (value.size() > 5) {
        static_cast<void>(std::sscanf(value.c_str(), "%02x%02x%02x", &red, &green, &blue));
    }
    const auto part = [](unsigned byte) { return static_cast<float>(byte) / 255.0F; };
    return {part(red), part(green), part(blue), part(alpha)};
}

PozhilColor colourOf(const ColorExpression& colour) {
    return parsePozhilColor(colour.isHex ? colour.hexValue : colour.colorName, colour.isHex);
}

PozhilColor colourOfText(const std::string& text) {
    return parsePozhilColor(text, text.rfind('#', 0) == 0);
}

std::optional<PozhilColor> colourOf(const Expression* value) {
    if (const auto* colour = dynamic_cast<const ColorExpression*>(value)) return colourOf(*colour);
    if (const auto* text = dynamic_cast<const StringLiteral*>(value)) {
        return colourOfText(text->value);
    }
    if (const auto* member = dynamic_cast<const GetExpression*>(value)) {
        const auto* object = dynamic_cast<const VariableAccess*>(member->object.get());
        if (object != nullptr && object->name == "நிறம்") {
            return parsePozhilColor(member->name.text, false);
        }
    }
    return std::nullopt;
}

std::optional<PozhilColor> colourProperty(const WidgetNode& widget, const std::string& key) {
    return colourOf(property(widget, key));
}

std::string channelTexts(const PozhilColor& colour) {
    return to_fstr(colour.r) + ", " + to_fstr(colour.g) + ", " + to_fstr(colour.b) + ", " +
           to_fstr(colour.a);
}

std::string cssText(const PozhilColor& colour) {
    const Rgb bytes = channelBytes(colour);
    return "rgba(" + std::to_string(bytes.r) + "," + std::to_string(bytes.g) + "," +
           std::to_string(bytes.b) + "," + sixDecimals(colour.a) + ")";
}
