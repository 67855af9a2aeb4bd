// Widgets to choose with.
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

constexpr Rgb kPrimary = {33, 150, 243};
constexpr Rgb kUnchecked = {117, 117, 117};
constexpr Rgb kUnselected = {120, 120, 120};

constexpr ChannelNames kOn = {"onR", "onG", "onB", "onA"};
constexpr ChannelNames kOff = {"offR", "offG", "offB", "offA"};

/// A colour in its literal forms, or a variable's name as the colour's.
std::optional<PozhilColor> namedColour(const WidgetNode& widget, const char* key) {
    const auto* variable = dynamic_cast<const VariableAccess*>(property(widget, key));
    if (variable != nullptr) return parsePozhilColor(variable->name, false);
    return colourProperty(widget, key);
}

}  // namespace

/// The place's name counts only as a literal: with any other the box is the program's in no way.
/// The label is clickable too; its width is measured as the label itself will be drawn.
void writeCheckBox(WidgetWriter& w, const Site& at) {
    const std::string* name = stringProperty(at.node, "அடையாளம்");
    const WidgetNode* child = firstWidget(at.node);
    const WidgetNode* label = childNamed(at.node, "உரை");
    w.fill(widget_templates::check_box, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"cb_w", "24.0f"}, {"cb_h", "24.0f"}, "0.0f");
             }},
            {"HAS_LABEL_TEXT", label != nullptr && property(*label, "உரை") != nullptr},
            label == nullptr ? w.expression("LABEL_TEXT", nullptr)
                             : contentOf(w, "LABEL_TEXT", *label),
            {"LABEL_SIZE", to_fstr(label == nullptr ? kFontSize : fontSizeOf(*label))},
            {"STARTS_CHECKED", isTrueLiteral(at.node, "தேர்வுபெட்டிநிலை") ? "true" : "false"},
            {"IS_ENABLED", isEnabled(at.node)},
            {"IS_NAMED", name != nullptr},
            {"NAME", asWritten(name == nullptr ? "" : *name)},
            {"CHECKED_COLOUR", [&] { w.writeChannels(at, "on", kPrimary, "தேர்வு_நிறம்"); }},
            {"UNCHECKED_COLOUR", [&] { w.writeChannels(at, "off", kUnchecked, "தேர்வற்ற_நிறம்"); }},
            {"HAS_CHILD", child != nullptr},
            {"CHILD", [&] { w.writeChild(*child, "cbChildX", "cbTextY"); }}});
}

void writeRadio(WidgetWriter& w, const Site& at) {
    const Expression* label = property(at.node, "உரை");
    const Expression* value = property(at.node, "மதிப்பு");
    const Expression* group = property(at.node, "குழு_மதிப்பு");
    const bool isOfAGroup = value != nullptr && group != nullptr;
    w.fill(
        widget_templates::radio, at,
        {{"HAS_LABEL", label != nullptr},
         w.expression("LABEL", label),
         {"IS_OF_A_GROUP", isOfAGroup},
         w.expression("VALUE", value),
         w.expression("GROUP_VALUE", group),
         {"IS_ENABLED", isEnabled(at.node)},
         {"HANDLER", [&] { w.writeHandler(at, "மாறியதால்"); }},
         {"SELECTED_COLOUR", [&] { w.writeChannels(at, "on", kPrimary, "தேர்வு_நிறம்"); }},
         {"UNSELECTED_COLOUR", [&] { w.writeChannels(at, "off", kUnselected, "தேர்வற்ற_நிறம்"); }}});
}

void writeSwitch(WidgetWriter& w, const Site& at) {
    const auto colour = [&](const ChannelNames& names, const ChannelBytes& fallback,
                            const char* key) {
        return [&w, &at, &names, fallback, key] {
            w.declareChannels(names, fallback);
            w.assignChannels(names, namedColour(at.node, key));
        };
    };
    w.fill(widget_templates::toggle, at,
           {{"STARTS_ON", isTrueLiteral(at.node, "ஆரம்ப_நிலை") ? "true" : "false"},
            {"ON_COLOUR", colour(kOn, {33, 150, 243, 255}, "இயங்கும்_நிறம்")},
            {"OFF_COLOUR", colour(kOff, {224, 224, 224, 255}, "முடங்கிய_நிறம்")},
            {"IS_ENABLED", isEnabled(at.node)},
            {"HANDLER", [&] { w.writeHandler(at, "மாறியதால்"); }}});
}

void writeSlider(WidgetWriter& w, const Site& at) {
    const Expression* value = property(at.node, "மதிப்பு");
    w.fill(widget_templates::slider, at,
           {{"MINIMUM", numberSizeOr(at.node, "குறைந்தபட்சம்", "0.0f")},
            {"MAXIMUM", numberSizeOr(at.node, "அதிகபட்சம்", "100.0f")},
            {"WIDTH",
             [&] {
                 w.writeWidth(at, {"slW", "200.0f"});
             }},
            {"HAS_VALUE", value != nullptr},
            w.expression("VALUE", value),
            {"IS_ENABLED", isEnabled(at.node)},
            {"HANDLER", [&] { w.writeHandler(at, "மாறியதால்"); }}});
}

/// Its entries are a list of strings, as the source writes it: any other value gives none.
void writeDropdown(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::dropdown, at,
           {{"SIZE",
             [&] {
                 w.writeSize(at, {"ddW", "200.0f"}, {"ddH", "40.0f"}, "0.0f");
             }},
            {"ITEMS",
             [&] {
                 const auto* list = dynamic_cast<const ListLiteral*>(property(at.node, "பட்டியல்"));
                 if (list == nullptr) return;
                 for (const auto& element : list->elements) {
                     const auto* entry = dynamic_cast<const StringLiteral*>(element.get());
                     if (entry == nullptr) continue;
                     w.text.line("items.push_back(" + asWritten(entry->value) + ");");
                 }
             }},
            {"IS_ENABLED", isEnabled(at.node)},
            {"HANDLER", [&] { w.writeHandler(at, "மாறியதால்"); }}});
}
