// Containers and what fills the space between widgets.
#include <algorithm>

#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "writing/texts.h"

namespace {

constexpr float kLinesMargin = 16;  // pixels
constexpr float kLineHeight = 32;   // pixels

/// What a child takes of the lines, those inside it included.
float linesHeight(const WidgetNode& widget) {
    const float own = calculateWidgetHeight(&widget);
    if (own > 0) return std::max(own, kLineHeight);
    float height = widget.children.empty() ? 0 : kLinesMargin;
    for (const auto& child : widget.children) {
        const auto* inner = dynamic_cast<const WidgetNode*>(child.get());
        if (inner != nullptr) height += linesHeight(*inner);
    }
    return height;
}

}  // namespace

void writeNothing(WidgetWriter&, const Site&) {}

/// The space is the parent's to give: without a child nothing is written, and the share is taken
/// all the same.
void writeFirstChild(WidgetWriter& w, const Site& at) {
    if (const WidgetNode* child = firstWidget(at.node)) w.write(*child, at.x, at.y);
}

void writeSpacer(WidgetWriter& w, const Site&) { w.text.line("// இவெ (Spacer) - Space reserved"); }

void writeInLines(WidgetWriter& w, const Site& at) {
    w.text.block("", [&] {
        // Inside each other the place is named like this block's own locals.
        w.text.line("float linesX = " + at.x + ";");
        w.text.line("float linesY = " + at.y + ";");
        w.text.line("float childX = linesX + " + to_fstr(kLinesMargin) + ";");
        w.text.line("float childY = linesY + " + to_fstr(kLinesMargin) + ";");
        for (const auto& child : at.node.children) {
            const auto* widget = dynamic_cast<const WidgetNode*>(child.get());
            if (widget == nullptr) continue;
            w.writeChild(*widget, "childX", "childY");
            w.text.line("childY += " + to_fstr(linesHeight(*widget)) + ";");
        }
    });
}
