// Warnings.
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// Taken of the window, whatever a parent forces.
void writeAlertSides(WidgetWriter& w, const WidgetNode& alert) {
    const auto side = [&](const char* local, const char* fallback, const char* key,
                          const char* base) {
        const std::string size = processPercentage(styledProperty(alert, key), base);
        w.text.line(std::string("float ") + local + " = " + (size.empty() ? fallback : size) + ";");
    };
    side("alertW", "400.0f", "அகலம்", "winWidth");
    side("alertH", "280.0f", "உயரம்", "winHeight");
}

}  // namespace

void writeAlert(WidgetWriter& w, const Site& at) {
    const auto background = colourOf(styledProperty(at.node, "பின்னணி"));
    w.fill(widget_templates::alert, at,
           {{"SIZE", [&] { writeAlertSides(w, at.node); }},
            {"RADIUS", numberSizeOr(at.node, "style_வளைவு", "16.0f")},
            {"SHADOW", numberSizeOr(at.node, "style_நிழல்", "8.0f")},
            {"BACKGROUND", channelTexts(background.value_or(PozhilColor{1, 1, 1, 1}))},
            {"OPEN_CLIP", [&] { w.openClip("alertX", "alertY", "alertW", "alertH"); }},
            {"CHILDREN",
             [&] {
                 for (const WidgetNode* child : widgetChildren(at.node)) {
                     w.writeChild(*child, "alertX", "alertY", {"alertW", "alertH"});
                 }
             }},
            {"CLOSE_CLIP", [&] { w.closeClip(); }}});
}
