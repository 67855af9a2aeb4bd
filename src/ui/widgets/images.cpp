// Pictures.
#include "files.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// The ending in capitals counts too, a mixed one doesn't.
bool isGif(const std::string& path) { return hasEnding(path, ".gif") || hasEnding(path, ".GIF"); }

}  // namespace

void writeImage(WidgetWriter& w, const Site& at) {
    const std::string* given = stringProperty(at.node, "பாதை");
    const std::string path = given == nullptr ? "logo.png" : *given;
    Fills fills = {{"SIZE",
                    [&] {
                        w.writeSize(at, {"tw", "100.0f"}, {"th", "100.0f"}, "0.0f");
                    }},
                   {"RADIUS", numberSizeOr(at.node, "வளைவு", "0.0f")},
                   {"PATH", asWritten(path)}};
    if (isGif(path)) return w.fill(widget_templates::gif_image, at, fills);
    fills.push_back({"IS_VECTOR", hasEnding(path, ".svg")});
    w.fill(widget_templates::image, at, fills);
}

namespace {

/// The width, the height, twice the radius: the last one that is given holds.
void writeDiameter(WidgetWriter& w, const Site& at) {
    w.writeWidth(at, {"diameter", "48.0f"});
    w.assignHeight(at, "diameter");
    const std::string radius =
        numberSizeOr(at.node, "style_வளைவு", numberSizeOr(at.node, "வளைவு", ""));
    if (!radius.empty()) w.text.line("diameter = " + radius + " * 2.0f;");
}

std::string literalOf(const WidgetNode* widget, const char* key) {
    return asWritten(widget == nullptr ? "" : *stringProperty(*widget, key));
}

}  // namespace

void writeAvatar(WidgetWriter& w, const Site& at) {
    const WidgetNode& avatar = at.node;
    const WidgetNode* picture = childWithString(avatar, "படம்", "பாதை");
    const WidgetNode* initials = childWithString(avatar, "உரை", "உரை");
    const std::string width =
        numberSizeOr(avatar, "style_கரை_அளவு", numberSizeOr(avatar, "கரை_அளவு", "0.0f"));
    const auto border = colourOf(styledProperty(avatar, "கரை_நிறம்"));
    w.fill(
        widget_templates::avatar, at,
        {{"DIAMETER", [&] { writeDiameter(w, at); }},
         {"BACKGROUND",
          [&] {
              w.assignParts({"br", "bg", "bb", "ba"}, colourOf(styledProperty(avatar, "பின்னணி")));
          }},
         {"HAS_PICTURE", picture != nullptr},
         {"PICTURE", literalOf(picture, "பாதை")},
         {"HAS_BORDER", width != "0.0f"},
         {"BORDER_COLOUR", channelTexts(border.value_or(colourOfText("#000000")))},
         {"BORDER_WIDTH", width},
         {"HAS_INITIALS", initials != nullptr},
         {"INITIALS", literalOf(initials, "உரை")}});
}
