// What is typed into: elements of the page over frames that the canvas draws.
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// The number under the style's key, or else under the plain one, as a C++ float.
std::string styledNumber(const WidgetNode& widget, const std::string& key, const char* fallback) {
    return numberSizeOr(widget, "style_" + key, numberSizeOr(widget, key, fallback));
}

PozhilColor colourOr(const std::optional<PozhilColor>& colour, const char* fallback) {
    return colour.value_or(colourOfText(fallback));
}

/// The colour of the first of two keys.
std::optional<PozhilColor> firstColour(const WidgetNode& widget, const char* first,
                                       const char* second) {
    const auto colour = colourProperty(widget, first);
    return colour ? colour : colourProperty(widget, second);
}

/// What stands in an input that is empty: `fallback`, a C++ text, if the widget doesn't say.
Fill hintFill(WidgetWriter& w, const Expression* hint, const char* fallback = "\"\"") {
    if (hint == nullptr) return {"HINT", fallback};
    return {"HINT", [&w, hint] {
                w.text.out << "fn_any_to_string(";
                w.writeExpression(hint);
                w.text.out << ").c_str()";
            }};
}

}  // namespace

/// Its sizes are numbers: a share counts as none. An empty name names nothing.
void writeTextBox(WidgetWriter& w, const Site& at) {
    const WidgetNode& box = at.node;
    const std::string* name = stringProperty(box, "அடையாளம்");
    const bool isNamed = name != nullptr && !name->empty();
    const WidgetNode* leading = widgetOf(property(box, "முன்னணி"));
    const auto background = firstColour(box, "style_களப்பின்னணி", "பின்னணி");
    const auto border = colourOf(styledProperty(box, "கரை_நிறம்"));
    const auto text = colourOf(styledProperty(box, "எழுத்து_நிறம்"));
    w.fill(widget_templates::text_box, at,
           {{"WIDTH", styledNumber(box, "அகலம்", "320.0f")},
            {"HEIGHT", styledNumber(box, "உயரம்", "50.0f")},
            {"RADIUS", styledNumber(box, "வளைவு", "8.0f")},
            {"BACKGROUND", channelTexts(colourOr(background, "#FFFFFF"))},
            {"BORDER_COLOUR", channelTexts(colourOr(border, "#E5E7EB"))},
            {"BORDER_WIDTH", styledNumber(box, "கரை_அளவு", "1.0f")},
            {"NAME", asWritten(isNamed ? *name : "default_id")},
            {"OWN_NAME", asWritten("text_" + at.id)},
            {"HAS_LEADING", leading != nullptr},
            {"LEADING_WIDTH", to_fstr(calculateWidgetWidth(leading))},
            {"LEADING_HEIGHT", to_fstr(calculateWidgetHeight(leading))},
            {"LEADING", [&] { w.writeChild(*leading, "leadX", "leadY"); }},
            hintFill(w, property(box, "குறிப்பு")),
            {"IS_MULTILINE", isTrueLiteral(box, "பலவரி") ? "true" : "false"},
            {"TEXT_COLOUR", asWritten(cssText(colourOr(text, "#333333")))},
            {"IS_DISABLED", !isEnabled(box)}});
}

/// One colour alone is the background; beside a background it is the text's.
void writePasswordBox(WidgetWriter& w, const Site& at) {
    const WidgetNode& box = at.node;
    const bool hasBackground = property(box, "பின்னணி") != nullptr;
    const auto background = colourProperty(box, hasBackground ? "பின்னணி" : "நிறம்");
    auto text = colourProperty(box, "எழுத்து_நிறம்");
    if (!text && hasBackground) text = colourProperty(box, "நிறம்");
    const PozhilColor plate = colourOr(background, "#FFFFFF");
    w.fill(widget_templates::password_box, at,
           {{"WIDTH", styledNumber(box, "அகலம்", "320.0f")},
            {"HEIGHT", styledNumber(box, "உயரம்", "60.0f")},
            {"BACKGROUND", channelTexts(plate)},
            {"BACKGROUND_TEXT", asWritten(cssText(plate))},
            {"NAME", asWritten("input_" + at.id)},
            hintFill(w, property(box, "குறிப்பு")),
            {"TEXT_COLOUR", asWritten(cssText(colourOr(text, "#000000")))},
            {"IS_DISABLED", !isEnabled(box)}});
}

void writeSearchBar(WidgetWriter& w, const Site& at) {
    const WidgetNode& bar = at.node;
    const Expression* ownHint = property(bar, "தேடல்_குறிப்பு");
    const Expression* hint = ownHint != nullptr ? ownHint : property(bar, "குறிப்பு");
    const Expression* lens = property(bar, "தேடல்_படம்");
    const Expression* cross = property(bar, "அழி_படம்");
    const auto background = colourProperty(bar, "style_களப்பின்னணி");
    w.fill(widget_templates::search_bar, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"sbW", "350.0f"}, {"sbH", "50.0f"}, "0.0f");
             }},
            {"RADIUS", numberSizeOr(bar, "style_வளைவு", "25.0f")},
            {"FONT_SIZE", numberSizeOr(bar, "style_எழுத்தளவு", "16.0f")},
            {"BACKGROUND", channelTexts(colourOr(background, "#F0F4FA"))},
            {"HAS_LENS_IMAGE", lens != nullptr},
            w.expression("LENS_IMAGE", lens),
            hintFill(w, hint, "\"Search...\""),
            {"NAME", asWritten("search_" + at.id)},
            {"HAS_CLEAR_IMAGE", cross != nullptr},
            w.expression("CLEAR_IMAGE", cross),
            {"IS_DISABLED", !isEnabled(bar)}});
}
