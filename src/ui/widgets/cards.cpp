// Cards.
#include <optional>

#include "ui/colours.h"
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

std::string styledSize(const WidgetNode& card, const std::string& key, const char* fallback) {
    return numberSizeOr(card, "style_" + key, numberSizeOr(card, key, fallback));
}

PozhilColor cardColour(const WidgetNode& card) {
    for (const char* key : {"style_பின்னணி", "பின்னணி", "style_நிறம்"}) {
        if (const auto colour = colourProperty(card, key)) return *colour;
    }
    return {1, 1, 1, 1};
}

void writeCardChildren(WidgetWriter& w, const WidgetNode& card) {
    for (const WidgetNode* child : widgetChildren(card)) {
        w.write(*child, "cardX + 15.0f", "currentChildY");
        w.text.line("currentChildY += " + to_fstr(calculateWidgetHeight(child)) + " + 10.0f;");
    }
}

}  // namespace

void writeCard(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::card, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"cardW", "350.0f"}, {"cardH", "200.0f"}, "0.0f");
             }},
            {"RADIUS", styledSize(at.node, "வளைவு", "12.0f")},
            {"ELEVATION", styledSize(at.node, "எலிவேஷன்", "4.0f")},
            {"COLOUR", channelTexts(cardColour(at.node))},
            {"OPEN_CLIP", [&] { w.openClip("cardX", "cardY", "cardW", "cardH"); }},
            {"CHILDREN", [&] { writeCardChildren(w, at.node); }},
            {"CLOSE_CLIP", [&] { w.closeClip(); }}});
}
