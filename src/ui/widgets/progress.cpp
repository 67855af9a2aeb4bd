// What shows a state and takes no press.
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"

namespace {

constexpr ChannelBytes kBar = {33, 150, 243, 255};

/// The literal colour of the style's key, or else of the plain one.
void writeColour(WidgetWriter& w, const Site& at) {
    w.declareChannels(kShortChannels, kBar);
    w.assignChannels(kShortChannels, colourOf(styledProperty(at.node, "நிறம்")));
}

}  // namespace

void writeSpinner(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::spinner, at,
           {{"SIZE", numberSizeOr(at.node, "style_அளவு", "40.0f")},
            {"THICKNESS", numberSizeOr(at.node, "style_தடிமன்", "4.0f")},
            {"COLOUR", [&] {
                 w.declareChannels(kShortChannels, kBar);
                 w.assignChannels(kShortChannels, colourProperty(at.node, "style_நிறம்"));
             }}});
}

void writeProgressBar(WidgetWriter& w, const Site& at) {
    const Expression* value = styledProperty(at.node, "மதிப்பு");
    w.fill(widget_templates::progress_bar, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"lpWidth", "200.0f"}, {"lpHeight", "6.0f"}, "0.0f");
             }},
            {"COLOUR", [&] { writeColour(w, at); }},
            {"HAS_VALUE", value != nullptr},
            w.expression("VALUE", value)});
}

void writeMessageBar(WidgetWriter& w, const Site& at) {
    const Expression* message = property(at.node, "செய்தி");
    w.fill(
        widget_templates::message_bar, at,
        {{"SIZE",
          [&] {
              w.writeSize(at, {"sbWidth", "300.0f"}, {"sbHeight", "40.0f"}, "0.0f");
          }},
         {"COLOUR",
          [&] {
              w.assignParts({"br", "bg", "bb", "ba"}, colourOf(styledProperty(at.node, "பின்னணி")));
          }},
         {"HAS_MESSAGE", message != nullptr},
         w.expression("MESSAGE", message)});
}
