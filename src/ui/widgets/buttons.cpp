// Buttons.
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string>

#include "ui/animation.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

// ---- The label of a button ----

struct Label {
    std::string text = "Click";
    std::string colour;  ///< Empty for white.
    float size = kFontSize;
    std::string weight = "400";
    std::string font;
};

/// A style that stands as a child of the label.
void readStyle(Label& label, const WidgetNode& style) {
    if (const std::string* colour = stringProperty(style, "நிறம்")) label.colour = *colour;
    if (const std::string* size = numberProperty(style, "அளவு")) label.size = std::stof(*size);
    if (const std::string* font = stringProperty(style, "எழுத்துரு")) label.font = *font;
    if (const std::string* weight = stringProperty(style, "தடிமன்")) label.weight = *weight;
    if (const std::string* weight = numberProperty(style, "தடிமன்")) label.weight = *weight;
}

/// What is still as it was at first is taken from the label's own style, its defaults included: so
/// a text among the children is black where the button's own is white. Meant.
void fillUp(Label& label, const TextStyle& style) {
    if (label.colour.empty()) label.colour = style.color;
    if (label.size == kFontSize) label.size = style.fontSize;
    if (label.font.empty()) label.font = style.fontFamily;
    if (label.weight == "400") label.weight = style.fontWeight;
}

/// A text among the children goes before the button's own.
Label labelOf(const WidgetNode& button) {
    Label label;
    const WidgetNode* child = childWithString(button, "உரை", "உரை");
    if (child == nullptr) {
        if (const std::string* own = stringProperty(button, "உரை")) label.text = *own;
        return label;
    }
    label.text = *stringProperty(*child, "உரை");
    if (const WidgetNode* style = childNamed(*child, "உரைபாணி")) readStyle(label, *style);
    fillUp(label, child->textStyle);
    return label;
}

/// Whether a label of that weight is measured in the heavy face, which even the default is. A
/// weight that is neither a word of these nor a number ends the compilation with an exception: so
/// does a text among the children that has no weight of its own. Meant.
bool isHeavy(const std::string& weight) {
    static const char* const kHeavyWords[] = {"700", "800", "900", "தடிமனான", "bold"};
    const auto* end = std::end(kHeavyWords);
    if (std::find(std::begin(kHeavyWords), end, weight) != end) return true;
    return !weight.empty() && std::stoi(weight) > 29;
}

std::string faceOf(const Label& label) {
    const char* face = isHeavy(label.weight) ? "tamil_font" : "sans";
    return label.font.empty() ? face : label.font;
}

// ---- The colours of a button ----

constexpr ChannelNames kFill = {"r", "g", "b", "a"};
constexpr ChannelNames kText = {"tr", "tg", "tb", "ta"};

/// In the order in which they count: the last one that is given holds.
void writeColours(WidgetWriter& w, const WidgetNode& button, const Label& label) {
    w.assignChannels(kFill, colourProperty(button, "பொபின்னணி"));
    w.assignChannels(kFill, colourProperty(button, "style_பின்னணி"));
    if (!label.colour.empty()) w.assignChannels(kText, colourOfText(label.colour));
    w.assignChannels(kText, colourProperty(button, "style_எழுத்து_நிறம்"));
    const auto hover = colourProperty(button, "style_மேம்படுத்தப்பட்ட_நிறம்");
    if (!hover) return;
    const Rgb bytes = channelBytes(*hover);
    w.text.line("int hr = " + std::to_string(bytes.r) + ", hg = " + std::to_string(bytes.g) +
                ", hb = " + std::to_string(bytes.b) + ";");
}

/// From the colour so far to the one that the animation aims at, to the nearest whole channels: a
/// curve may lead beyond either.
void turnColour(WidgetWriter& w) {
    w.text.line("NVGcolor currentCol = lerpColor(nvgRGBA(r, g, b, a), targetCol, t);");
    for (const char* channel : kFill) {
        w.text.line(std::string(channel) + " = std::max(0, std::min(255, (int)(currentCol." +
                    channel + " * 255.0f + 0.5f)));");
    }
}

}  // namespace

void writeButton(WidgetWriter& w, const Site& at) {
    const WidgetNode& button = at.node;
    const Label label = labelOf(button);
    const auto border = colourProperty(button, "style_கரை_நிறம்");
    const std::string borderWidth = numberSizeOr(button, "style_கரை_அளவு", "");
    const std::string shadow = numberSizeOr(button, "style_நிழல்", "");
    w.fill(widget_templates::button, at,
           {{"RADIUS", numberSizeOr(button, "style_வளைவு", numberSizeOr(button, "வளைவு", "8.0f"))},
            {"HAS_SHADOW", !shadow.empty()},
            {"SHADOW", shadow},
            {"COLOURS", [&] { writeColours(w, button, label); }},
            {"FONT_SIZE", to_fstr(label.size)},
            {"FACE", asWritten(faceOf(label))},
            {"LABEL", asWritten(label.text)},
            {"WEIGHT", asWritten(label.weight)},
            {"FONT", asWritten(label.font)},
            {"WIDTH",
             [&] {
                 w.writeWidth(at, {"btnW", "std::max(80.0f, txtW + paddingX)"});
             }},
            {"HEIGHT",
             [&] {
                 w.writeHeight(at, {"btnH", "std::max(36.0f, txtH + paddingY)"});
             }},
            {"ANIMATION",
             [&] {
                 writeAnimation(w, at, {"btnX", "btnY", "btnW", "btnH"},
                                {"பொபின்னணி", "பின்னணி", "பெட்டிபின்னணி"}, [&] { turnColour(w); });
             }},
            {"IS_ENABLED", isEnabled(button)},
            {"HAS_HOVER_COLOUR", colourProperty(button, "style_மேம்படுத்தப்பட்ட_நிறம்").has_value()},
            {"PRESS", [&] { w.writeHandler(at, "அழுத்தினால்"); }},
            {"HAS_BORDER", border && !borderWidth.empty()},
            {"BORDER_COLOUR", border ? channelTexts(*border) : ""},
            {"BORDER_WIDTH", borderWidth}});
}

/// The press is wrapped in a function of its own, which is then called.
void writeTextButton(WidgetWriter& w, const Site& at) {
    const WidgetNode& button = at.node;
    const std::string* label = stringProperty(button, "உரை");
    const PozhilColor colour =
        colourProperty(button, "style_நிறம்").value_or(colourOfText("#ffffff"));
    const PozhilColor hover =
        colourProperty(button, "style_மேம்படுத்தப்பட்ட_நிறம்").value_or(colourOfText("#3AAD68"));
    w.fill(widget_templates::text_button, at,
           {{"LABEL", asWritten(label == nullptr ? "Home" : *label)},
            {"FONT_SIZE", numberSizeOr(button, "style_அளவு", "16.0f")},
            {"IS_ENABLED", isEnabled(button)},
            {"CALLBACK",
             [&] {
                 w.text.block(
                     "std::any callback = std::function<void()>([=]() ",
                     [&] { w.writeHandler(at, "அழுத்தினால்"); }, ");\n");
             }},
            {"HOVER_COLOUR", asWritten(cssText(hover))},
            {"COLOUR", asWritten(cssText(colour))},
            {"CHANNELS", channelTexts(colour)}});
}
