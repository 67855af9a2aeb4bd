// Texts.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

std::string orDefault(const std::string& text, const char* fallback) {
    return text.empty() ? fallback : text;
}

}  // namespace

float fontSizeOf(const WidgetNode& text) {
    return text.textStyle.fontSize > 0 ? text.textStyle.fontSize : kFontSize;
}

void writeText(WidgetWriter& w, const Site& at) {
    const TextStyle& style = at.node.textStyle;
    const Expression* content = property(at.node, "உரை");
    const std::string colour = orDefault(style.color, "#000000");
    const bool isHex = colour[0] == '#';
    w.fill(widget_templates::text, at,
           {{"HAS_CONTENT", content != nullptr},
            w.expression("CONTENT", content),
            {"FONT_SIZE", to_fstr(fontSizeOf(at.node))},
            {"IS_CENTRED", style.textAlign == "மையம்" || style.textAlign == "center"},
            {"COLOUR", asWritten(cssText(parsePozhilColor(colour, isHex)))},
            {"WEIGHT", asWritten(orDefault(style.fontWeight, "400"))},
            {"UNDERLINE", style.underline ? "true" : "false"},
            {"FONT", asWritten(style.fontFamily)}});
}
