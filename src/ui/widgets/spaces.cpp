// What lies between widgets, and around them.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// Digits that a float is made of by what is appended: a number with a point becomes text that
/// doesn't compile. Meant: a size here is a whole number.
std::string wholePixels(const std::string& digits) { return digits + ".0f"; }

std::string dividerThickness(const WidgetNode& divider) {
    const auto* number = dynamic_cast<const NumberLiteral*>(styledProperty(divider, "தடிமன்"));
    return number == nullptr ? "1.0f" : wholePixels(number->value);
}

}  // namespace

void writeNothing(WidgetWriter&, const Site&) {}

/// The space is the parent's to give: without a child nothing is written, and the share is taken
/// all the same.
void writeFirstChild(WidgetWriter& w, const Site& at) {
    if (const WidgetNode* child = firstWidget(at.node)) w.write(*child, at.x, at.y);
}

void writeSpacer(WidgetWriter& w, const Site&) { w.text.line("// இவெ (Spacer) - Space reserved"); }

void writeDivider(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::divider, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"divWidth", "300.0f"}, {"divHeight", "20.0f"}, "0.0f");
             }},
            {"THICKNESS", dividerThickness(at.node)},
            {"COLOUR", [&] {
                 w.declareChannels(kShortChannels, {158, 158, 158, 255});
                 w.assignChannels(kShortChannels, colourOf(styledProperty(at.node, "நிறம்")));
             }}});
}

/// The word of a source makes a node of another name, so that a padding that a program writes draws
/// nothing, nor do its children. Meant.
void writePadding(WidgetWriter& w, const Site& at) {
    const std::string* padding = numberProperty(at.node, "அளவு");
    w.fill(widget_templates::padding, at,
           {{"PADDING", wholePixels(padding == nullptr ? "0" : *padding)},
            {"CHILDREN", [&] {
                 for (const WidgetNode* child : widgetChildren(at.node)) {
                     w.write(*child, "childX", "childY");
                 }
             }}});
}

/// Its name is the property of that word. A text that stands alone, as in `பக்கம்("படிவம்", ...)`,
/// names nothing. Meant.
void writeInlinePage(WidgetWriter& w, const Site& at) {
    const std::string* given = stringProperty(at.node, "பக்கம்");
    const std::string name = given == nullptr ? "home" : *given;
    w.text.line("// --- Page: " + name + " ---");
    w.text.block("if (g_currentPage == " + asWritten(name) + ") ", [&] {
        w.text.fill(widget_templates::inline_page,
                    {{"CHILDREN", [&] {
                          for (const WidgetNode* child : widgetChildren(at.node)) {
                              w.write(*child, at.x, at.y);
                          }
                      }}});
    });
}
