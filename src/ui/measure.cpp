#include "ui/measure.h"

#include <algorithm>
#include <cstdlib>

#include "ui/properties.h"

namespace {

/// A widget's own size: a percentage measures 0, a number its value; any other value goes on to
/// the next key, and at last to `fallback`.
float explicitSize(const WidgetNode& widget, const char* key, float fallback) {
    for (const std::string& name : {"style_" + std::string(key), std::string(key)}) {
        const Expression* value = property(widget, name);
        if (dynamic_cast<const PercentageLiteral*>(value) != nullptr) return 0;
        if (const auto* number = dynamic_cast<const NumberLiteral*>(value)) {
            return std::strtof(number->value.c_str(), nullptr);
        }
    }
    return fallback;
}

float codePoints(const std::string& text) {
    return static_cast<float>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

/// The first string of the properties in the order of their keys, which needn't be the text. Meant.
float textLength(const WidgetNode& widget) {
    for (const auto& [key, value] : widget.properties) {
        const auto* text = dynamic_cast<const StringLiteral*>(value.get());
        if (text != nullptr) return codePoints(text->value);
    }
    return 10;
}

float textWidth(const WidgetNode& widget) {
    float size = widget.textStyle.fontSize;
    if (size <= 0) {
        const auto* number = dynamic_cast<const NumberLiteral*>(property(widget, "style_அளவு"));
        size = number == nullptr ? 16 : std::strtof(number->value.c_str(), nullptr);
    }
    return textLength(widget) * (0.65F * size);
}

float textHeight(const WidgetNode& widget) {
    return widget.textStyle.fontSize > 0 ? widget.textStyle.fontSize : 20;
}

float checkBoxWidth(const WidgetNode& widget) {
    const WidgetNode* label = firstWidget(widget);
    return explicitSize(widget, "அகலம்",
                        label == nullptr ? 24 : 24 + 12 + calculateWidgetWidth(label));
}

float checkBoxHeight(const WidgetNode& widget) {
    return explicitSize(widget, "உயரம்",
                        std::max(24.0F, calculateWidgetHeight(firstWidget(widget))));
}

struct MeasureRow {
    const char* name;
    float (*width)(const WidgetNode&);
    float (*height)(const WidgetNode&);
};

// In the order in which they are tried.
const MeasureRow kMeasures[] = {
    {"உரை", textWidth, textHeight},
    {"தேர்வுபெட்டி", checkBoxWidth, checkBoxHeight},
};

float measure(const Statement* statement, float (*MeasureRow::*side)(const WidgetNode&)) {
    const auto* widget = dynamic_cast<const WidgetNode*>(statement);
    if (widget == nullptr) return 0;
    for (const MeasureRow& row : kMeasures) {
        if (widget->name == row.name) return (row.*side)(*widget);
    }
    return 0;
}

}  // namespace

float calculateWidgetWidth(const Statement* statement) {
    return measure(statement, &MeasureRow::width);
}

float calculateWidgetHeight(const Statement* statement) {
    return measure(statement, &MeasureRow::height);
}
