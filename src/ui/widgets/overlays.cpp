// What lies over a page.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"

namespace {

/// What a message says: its text, or that of the widget which stands for it. A widget without one
/// is replaced by a word, and a message without anything by a sentence.
Fill messageFill(WidgetWriter& w, const SnackBarNode& message) {
    const Expression* value = property(message, "செய்தி");
    const WidgetNode* widget = value == nullptr ? firstWidget(message) : widgetOf(value);
    const char* fallback = value != nullptr    ? "[விட்ஜெட்]"
                           : widget != nullptr ? "தகவல்"
                                               : "இப்போது இல்லை நீ பிறகு சேர்த்துக்கலாம் ";
    const Expression* said = widget == nullptr ? value : property(*widget, "உரை");
    if (said != nullptr) return w.expression("MESSAGE", said);
    return {"MESSAGE", "std::string(u8\"" + std::string(fallback) + "\")"};
}

}  // namespace

/// std::function<std::any()>([=]() mutable -> std::any { global_vars["active_sb"] = ...; })
void writeSnackBarTrigger(WidgetWriter& w, const SnackBarNode& message) {
    const Rgb colour = channelBytes(
        colourProperty(message, "பின்னணி").value_or(colourOfText(message.backgroundColor)));
    w.text.out << "std::function<std::any()>([=]() mutable -> std::any ";
    w.text.braces([&] {
        w.text.fill(widget_templates::snack_bar_trigger, {messageFill(w, message),
                                                          {"RED", std::to_string(colour.r)},
                                                          {"GREEN", std::to_string(colour.g)},
                                                          {"BLUE", std::to_string(colour.b)}});
        w.text.line("return std::any();");
    });
    w.text.out << ")";
}
