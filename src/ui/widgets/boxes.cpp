// Boxes: what they say of themselves, and what their style block says for them.
#include <initializer_list>
#include <string>

#include "syntax/alignment.h"
#include "ui/alignment.h"
#include "ui/animation.h"
#include "ui/colours.h"
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

constexpr const char* kStyleBlock = "பெட்டி_பாணி";
constexpr const char* kPress = "அழுத்தினால்";
constexpr PozhilColor kTransparent = {0, 0, 0, 0};

/// What `read` finds under the first of `keys` that it can read: in the box, else in its style
/// block.
template <typename Read>
auto firstFound(const WidgetNode& box, std::initializer_list<const char*> keys, Read read)
    -> decltype(read(box, "")) {
    for (const WidgetNode* node : {&box, childNamed(box, kStyleBlock)}) {
        if (node == nullptr) continue;
        for (const char* key : keys) {
            if (auto found = read(*node, key)) return found;
        }
    }
    return {};
}

std::string pixels(const WidgetNode& box, std::initializer_list<const char*> keys) {
    const auto* number = firstFound(box, keys, [](const WidgetNode& node, const char* key) {
        return dynamic_cast<const NumberLiteral*>(property(node, key));
    });
    return number == nullptr ? "0.0f" : processPercentage(number, "");
}

/// A choice is decided as the program's own conditions are. A part of it that is no size leaves the
/// side as it is.
void writeSide(WidgetWriter& w, const char* local, const Expression* value, const char* base) {
    w.text.line(std::string("float ") + local + " = 100.0f;");
    const auto* choice = dynamic_cast<const TernaryExpression*>(value);
    if (choice == nullptr) {
        const std::string size = processPercentage(value, base);
        if (!size.empty()) w.text.line(std::string(local) + " = " + size + ";");
        return;
    }
    const auto part = [&](const auto& size) {
        return orDefault(processPercentage(size.get(), base), local);
    };
    w.text.indent();
    w.text.out << local << " = (";
    w.writeExpression(choice->condition.get());
    w.text.out << ") ? " << part(choice->thenBranch) << " : " << part(choice->elseBranch) << ";\n";
}

void writeBoxSides(WidgetWriter& w, const WidgetNode& box) {
    writeSide(w, "boxW", firstFound(box, {"style_அகலம்", "அகலம்"}, property), kWidthBase);
    writeSide(w, "boxH", firstFound(box, {"style_உயரம்", "உயரம்"}, property), kHeightBase);
    w.text.line("if (forcedW > 0.0f) boxW = forcedW;");
    w.text.line("if (forcedH > 0.0f) boxH = forcedH;");
}

bool hasPress(const WidgetNode& widget) {
    return property(widget, kPress) != nullptr || !widget.onTapStatements.empty();
}

/// The node that says what a press does: the box, else its style block; null without a press.
const WidgetNode* pressOf(const WidgetNode& box) {
    if (!isEnabled(box)) return nullptr;
    for (const WidgetNode* node : {&box, childNamed(box, kStyleBlock)}) {
        if (node != nullptr && hasPress(*node)) return node;
    }
    return nullptr;
}

/// The box's own, unless a property of the name says another: a string or a member's name. A bare
/// word there says nothing. Meant: an alignment has a group of its own.
சீரமைப்பு_வகை alignmentOf(const WidgetNode& box) {
    const auto* member = dynamic_cast<const GetExpression*>(property(box, "சீரமைப்பு"));
    const std::string* text = stringProperty(box, "சீரமைப்பு");
    if (member != nullptr) text = &member->name.text;
    if (text == nullptr) return box.alignment;
    return alignmentNamed(*text).value_or(box.alignment);
}

void writeBoxChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    const auto [alignX, alignY] = getAlignmentCoords(alignmentOf(at.node));
    w.fill(widget_templates::box_child, at,
           {{"WIDTH", to_fstr(calculateWidgetWidth(&child))},
            {"HEIGHT", to_fstr(calculateWidgetHeight(&child))},
            {"IS_TEXT", child.name == "உரை"},
            {"KIND", asWritten(child.name)},
            contentOf(w, "TEXT", child),
            {"FONT_WEIGHT", asWritten(orDefault(child.textStyle.fontWeight, "400"))},
            {"FONT_SIZE", to_fstr(fontSizeOf(child))},
            {"ALIGN_X", oneDecimal(alignX)},
            {"ALIGN_Y", oneDecimal(alignY)},
            {"CHILD", [&] { w.writeChild(child, "childX", "childY"); }}});
}

void writeBoxChildren(WidgetWriter& w, const Site& at) {
    for (const WidgetNode* child : widgetChildren(at.node)) {
        if (child->name != kStyleBlock) writeBoxChild(w, at, *child);
    }
}

}  // namespace

void writeBox(WidgetWriter& w, const Site& at) {
    const WidgetNode& box = at.node;
    const WidgetNode* press = pressOf(box);
    const Expression* image = firstFound(box, {"பின்னணிபடம்"}, property);
    const auto colour =
        firstFound(box, {"பின்னணி", "பெட்டிபின்னணி", "நிறம்"}, colourProperty).value_or(kTransparent);
    const auto hoverColour =
        firstFound(box, {"style_மேம்படுத்தப்பட்ட_நிறம்", "மேம்படுத்தப்பட்ட_நிறம்"}, colourProperty);
    w.fill(widget_templates::box, at,
           {{"SIZE", [&] { writeBoxSides(w, box); }},
            {"RADIUS", pixels(box, {"style_வளைவு", "வளைவு"})},
            {"SHADOW", pixels(box, {"நிழல்"})},
            {"COLOUR", channelTexts(colour)},
            {"ANIMATION",
             [&] {
                 writeAnimation(
                     w, at, {"boxX", "boxY", "boxW", "boxH"}, {"பெட்டிபின்னணி", "பின்னணி"},
                     [&] { w.text.line("boxColor = lerpColor(boxColor, targetCol, t);"); });
             }},
            {"HAS_HOVER_COLOUR", hoverColour.has_value()},
            {"HOVER_COLOUR", channelTexts(hoverColour.value_or(kTransparent))},
            {"IS_ENABLED", isEnabled(box)},
            {"HAS_IMAGE", image != nullptr},
            w.expression("IMAGE", image),
            {"IS_PRESSED", press != nullptr},
            {"PRESS",
             [&] {
                 w.writeHandler({*press, at.x, at.y, at.id}, kPress);
             }},
            {"OPEN_CLIP", [&] { w.openClip("boxX", "boxY", "boxW", "boxH"); }},
            {"CHILDREN", [&] { writeBoxChildren(w, at); }},
            {"CLOSE_CLIP", [&] { w.closeClip(); }}});
}
