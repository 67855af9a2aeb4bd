// Containers that place their children by a pattern: on top of each other, in lines, in cells.
#include "ui/alignment.h"
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/sizes.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

using WriteChild = void (*)(WidgetWriter&, const Site&, const WidgetNode&);

/// The hole of a template that holds a container's children, each written by `write`.
Fill childrenOf(WidgetWriter& w, const Site& at, WriteChild write) {
    return {"CHILDREN", [&w, &at, write] {
                for (const WidgetNode* child : widgetChildren(at.node)) write(w, at, *child);
            }};
}

Fill widthOf(const WidgetNode& child) { return {"WIDTH", to_fstr(calculateWidgetWidth(&child))}; }
Fill heightOf(const WidgetNode& child) {
    return {"HEIGHT", to_fstr(calculateWidgetHeight(&child))};
}

void writeStackChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    const auto [alignX, alignY] = getAlignmentCoords(at.node.alignment);
    w.fill(widget_templates::stack_child, at,
           {widthOf(child),
            heightOf(child),
            {"AX", oneDecimal(alignX)},
            {"AY", oneDecimal(alignY)},
            {"DX", numberSizeOr(child, "நகர்வு_X", "0.0f")},
            {"DY", numberSizeOr(child, "நகர்வு_Y", "0.0f")},
            {"CHILD", [&] { w.writeChild(child, "childX", "childY"); }}});
}

/// The place is the container's own cursor. So a child that tells its parent where it ends, as a
/// column does, moves the rest of the line down. Meant.
Fill childAtCursor(WidgetWriter& w, const WidgetNode& child) {
    return {"CHILD", [&w, &child] { w.writeChild(child, "curX", "curY"); }};
}

void writeWrapChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    w.fill(widget_templates::wrap_child, at,
           {widthOf(child), heightOf(child), childAtCursor(w, child)});
}

void writeGridChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    w.fill(widget_templates::grid_child, at, {heightOf(child), childAtCursor(w, child)});
}

/// The digits of the first of the two keys that has a number, else two. A grid without either is
/// measured by three. Meant.
std::string gridColumns(const WidgetNode& grid) {
    for (const char* key : {"cols", "குறுக்கு_எண்ணிக்கை"}) {
        if (const std::string* columns = numberProperty(grid, key)) return *columns;
    }
    return "2";
}

/// What lies between two cells: the space among the properties, then the keys in their order.
std::string gridGap(const WidgetNode& grid, const char* side, const char* key,
                    const char* otherKey) {
    std::string gap = "10.0f";
    for (const auto& each : grid.properties) {
        const WidgetNode* space = widgetOf(each.second.get());
        if (space != nullptr && space->name == "இவெ") gap = numberSizeOr(*space, side, gap);
    }
    return numberSizeOr(grid, otherKey, numberSizeOr(grid, key, gap));
}

}  // namespace

void writeStack(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::stack, at,
           {widthOf(at.node), heightOf(at.node), childrenOf(w, at, writeStackChild)});
}

void writeWrap(WidgetWriter& w, const Site& at) {
    w.fill(widget_templates::wrap, at,
           {{"SPACING", numberSizeOr(at.node, "இடைவெளி", "10.0f")},
            {"WRITES_BACK", !isOrigin(at.y)},
            childrenOf(w, at, writeWrapChild)});
}

/// The measure refuses a grid of no columns, so it is asked for in any case.
void writeGrid(WidgetWriter& w, const Site& at) {
    const std::string measured = to_fstr(calculateWidgetWidth(&at.node));
    w.fill(widget_templates::grid, at,
           {{"COLUMNS", gridColumns(at.node)},
            {"GAP_H", gridGap(at.node, "அகலம்", "h_gap", "கி_இவெ")},
            {"GAP_V", gridGap(at.node, "உயரம்", "v_gap", "நெ_இவெ")},
            {"WIDTH", numberSizeOr(at.node, "width", numberSizeOr(at.node, "அகலம்", measured))},
            childrenOf(w, at, writeGridChild)});
}
