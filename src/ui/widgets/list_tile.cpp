// Lines of a list.
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

std::string widthOf(const WidgetNode* widget) { return to_fstr(calculateWidgetWidth(widget)); }
std::string heightOf(const WidgetNode* widget) { return to_fstr(calculateWidgetHeight(widget)); }

}  // namespace

/// What it shows stands in its properties: widgets, for anything else draws nothing.
void writeListTile(WidgetWriter& w, const Site& at) {
    const WidgetNode* leading = widgetOf(property(at.node, "முன்னணி"));
    const WidgetNode* title = widgetOf(property(at.node, "தலைப்பு"));
    const WidgetNode* subtitle = widgetOf(property(at.node, "துணைத்_தலைப்பு"));
    const WidgetNode* trailing = widgetOf(property(at.node, "பின்னணி_விட்ஜெட்"));
    const bool isTwoLines = property(at.node, "துணைத்_தலைப்பு") != nullptr;
    w.fill(widget_templates::list_tile, at,
           {{"WIDTH", numberSizeOr(at.node, "அகலம்", "200.0f")},
            {"HEIGHT", numberSizeOr(at.node, "உயரம்", isTwoLines ? "72.0f" : "56.0f")},
            {"RADIUS", numberSizeOr(at.node, "வளைவு", "8.0f")},
            {"COLOUR",
             [&] {
                 w.declareChannels(kShortChannels, {255, 255, 255, 255});
                 w.assignChannels(kShortChannels, colourProperty(at.node, "பின்னணி"));
             }},
            {"IS_ENABLED", isEnabled(at.node)},
            {"HANDLER", [&] { w.writeHandler(at, "அழுத்தினால்"); }},
            {"HAS_LEADING", leading != nullptr},
            {"LEADING_WIDTH", widthOf(leading)},
            {"LEADING_HEIGHT", heightOf(leading)},
            {"LEADING", [&] { w.writeChild(*leading, "leadX", "leadY"); }},
            {"HAS_TITLE", title != nullptr},
            {"TITLE_HEIGHT", heightOf(title)},
            {"TITLE", [&] { w.writeChild(*title, "titleX", "titleY"); }},
            {"HAS_SUBTITLE", isTwoLines},
            {"HAS_SUBTITLE_WIDGET", subtitle != nullptr},
            {"SUBTITLE_HEIGHT", heightOf(subtitle)},
            {"SUBTITLE", [&] { w.writeChild(*subtitle, "subX", "subY"); }},
            {"HAS_TRAILING", trailing != nullptr},
            {"TRAILING_WIDTH", widthOf(trailing)},
            {"TRAILING_HEIGHT", heightOf(trailing)},
            {"TRAILING", [&] { w.writeChild(*trailing, "trailX", "trailY"); }}});
}
