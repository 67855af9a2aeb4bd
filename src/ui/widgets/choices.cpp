// Widgets to choose with.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

constexpr Rgb kPrimary = {33, 150, 243};
constexpr Rgb kUnchecked = {117, 117, 117};

}  // namespace

/// The place's name counts only as a literal: with any other the box is the program's in no way.
/// The label is clickable too; its width is measured as the label itself will be drawn.
void writeCheckBox(WidgetWriter& w, const Site& at) {
    const std::string* name = stringProperty(at.node, "அடையாளம்");
    const WidgetNode* child = firstWidget(at.node);
    const WidgetNode* label = childNamed(at.node, "உரை");
    const Expression* labelText = label == nullptr ? nullptr : property(*label, "உரை");
    w.fill(widget_templates::check_box, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"cb_w", "24.0f"}, {"cb_h", "24.0f"}, "0.0f");
             }},
            {"HAS_LABEL_TEXT", labelText != nullptr},
            w.expression("LABEL_TEXT", labelText),
            {"LABEL_SIZE", to_fstr(label == nullptr ? kFontSize : fontSizeOf(*label))},
            {"STARTS_CHECKED", isTrueLiteral(at.node, "தேர்வுபெட்டிநிலை") ? "true" : "false"},
            {"IS_ENABLED", property(at.node, "செயலிழப்பு") == nullptr},
            {"IS_NAMED", name != nullptr},
            {"NAME", asWritten(name == nullptr ? "" : *name)},
            {"CHECKED_COLOUR", [&] { w.writeChannels(at, "on", kPrimary, "தேர்வு_நிறம்"); }},
            {"UNCHECKED_COLOUR", [&] { w.writeChannels(at, "off", kUnchecked, "தேர்வற்ற_நிறம்"); }},
            {"HAS_CHILD", child != nullptr},
            {"CHILD", [&] { w.writeChild(*child, "cbChildX", "cbTextY"); }}});
}
