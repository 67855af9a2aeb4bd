#include "ui/flex.h"

#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "widget_templates.h"
#include "writing/texts.h"

const FlexAxis kDown = {
    "உயரம்",      "containerH", "forcedH",    "winHeight", "fixedHeightSum",     "remainingH",
    "unitFlexH", "current_hH", "containerH", "currentY",  calculateWidgetHeight};
const FlexAxis kAcross = {
    "அகலம்",      "containerW",        "forcedW",
    "winWidth",  "fixedWidthSum",     "remainingW",
    "unitFlexW", "current_wW",        "(forcedW > 0.0f ? forcedW : containerW)",
    "currentX",  calculateWidgetWidth};

namespace {

std::string countText(int count) { return std::to_string(count) + ".0f"; }

bool isFlexible(const WidgetNode& child) { return child.name == "நெகிழ்வு"; }

std::string spaceText(const WidgetNode& space, const FlexAxis& axis, const std::string& base) {
    return processPercentage(property(space, axis.key), base);
}

/// What a child without a share takes of the container. An `இவெ` counts by its size of the frame.
std::string fixedSize(const WidgetNode& child, const FlexAxis& axis) {
    const std::string space = isSpace(child) ? spaceText(child, axis, axis.spaceBase) : "";
    return space.empty() ? to_fstr(axis.measure(&child)) : space;
}

}  // namespace

bool isSpace(const WidgetNode& child) { return child.name == "இவெ"; }

/// Only a number gives a container a size of its own: with any other value it takes the measured
/// one. Meant.
void writeContainerSize(WidgetWriter& w, const Site& at, const FlexAxis& axis) {
    const std::string container = axis.container;
    const std::string forced = axis.forced;
    const std::string styled = "style_" + std::string(axis.key);
    const bool isSized =
        property(at.node, styled) != nullptr || property(at.node, axis.key) != nullptr;
    const std::string own = numberSizeOr(at.node, styled, numberSizeOr(at.node, axis.key, ""));
    w.text.line("float " + container + " = (" + forced + " > 0.0f) ? " + forced + " : " +
                to_fstr(axis.measure(&at.node)) + ";");
    if (!own.empty()) w.text.line(container + " = " + own + ";");
    if (!isSized && isOrigin(at.x)) {
        w.text.line("if (" + forced + " < 0.0f) " + container + " = " + axis.window + ";");
    }
}

/// The `பங்கு` of these two is stored and counts for nothing. Meant.
bool takesOneShare(const WidgetNode& child) {
    return child.name == "விரிவாக்கம்" || child.name == "வெற்றிடம்";
}

std::optional<int> shareOf(const WidgetNode& child) {
    if (takesOneShare(child)) return 1;
    if (!isFlexible(child)) return std::nullopt;
    const auto* flexible = dynamic_cast<const FlexibleNode*>(&child);
    return flexible == nullptr ? 1 : flexible->flex;
}

std::string shareText(const WidgetNode& child, const FlexAxis& axis) {
    if (!isFlexible(child)) return axis.unit;
    return std::string(axis.unit) + " * " + countText(shareOf(child).value_or(1));
}

std::string shareAdvance(const WidgetNode& child, const FlexAxis& axis) {
    const std::string share = shareText(child, axis);
    return isFlexible(child) ? "(" + share + ")" : share;
}

void writeShares(WidgetWriter& w, const WidgetNode& container, const FlexAxis& axis) {
    int total = 0;
    for (const WidgetNode* child : widgetChildren(container)) total += shareOf(*child).value_or(0);
    const auto writeFixedSizes = [&] {
        for (const WidgetNode* child : widgetChildren(container)) {
            if (shareOf(*child)) continue;
            w.text.line(std::string(axis.fixedSum) + " += " + fixedSize(*child, axis) +
                        " + spacing;");
        }
    };
    w.text.fill(widget_templates::shares, {{"SPACING", numberSizeOr(container, "இடைவெளி", "0.0f")},
                                           {"TOTAL", countText(total)},
                                           {"FIXED_SUM", axis.fixedSum},
                                           {"FIXED_SIZES", writeFixedSizes},
                                           {"REMAINING", axis.remaining},
                                           {"CONTAINER", axis.container},
                                           {"UNIT", axis.unit}});
}

void writeSpaceAdvance(WidgetWriter& w, const WidgetNode& space, const FlexAxis& axis) {
    const std::string local = axis.space;
    const std::string base =
        "(" + std::string(axis.forced) + " > 0.0f ? " + axis.forced + " : " + axis.container + ")";
    const std::string size = spaceText(space, axis, base);
    w.text.line("float " + local + " = 0.0f;");
    if (!size.empty()) w.text.line(local + " = " + size + ";");
    w.text.line(std::string(axis.cursor) + " += " + local + " + spacing;");
}

void writePlacedChild(WidgetWriter& w, const WidgetNode& child, const std::string& x,
                      const std::string& y, const Forced& forced) {
    w.writeForced(forced, [&] {
        if (child.name != "வெற்றிடம்") w.write(child, x, y);
    });
}
