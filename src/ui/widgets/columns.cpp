// Columns and rows.
#include "ui/alignment.h"
#include "ui/flex.h"
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/scrolling.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

using WriteChild = void (*)(WidgetWriter&, const Site&, const WidgetNode&);

/// An animation between other children parses as one of them.
bool isDrawn(const WidgetNode& child) { return child.name != "அசைவூட்டம்"; }

/// What both templates ask for by the same names.
Fills containerFills(WidgetWriter& w, const Site& at, const Scroller& scroller,
                     const FlexAxis& axis, WriteChild writeChild) {
    const auto [alignX, alignY] = getAlignmentCoords(at.node.alignment);
    Fills fills = scrollFills(w, scroller);
    const Fill own[] = {{"CONTAINER_W", [&w, &at] { writeContainerSize(w, at, kAcross); }},
                        {"CONTAINER_H", [&w, &at] { writeContainerSize(w, at, kDown); }},
                        {"SCROLLS", isTrueLiteral(at.node, "உருளும்பட்டை")},
                        {"ALIGN_X", oneDecimal(alignX)},
                        {"ALIGN_Y", oneDecimal(alignY)},
                        {"SHARES", [&w, &at, &axis] { writeShares(w, at.node, axis); }},
                        {"CHILDREN", [&w, &at, writeChild] {
                             for (const WidgetNode* child : widgetChildren(at.node)) {
                                 if (isDrawn(*child)) writeChild(w, at, *child);
                             }
                         }}};
    fills.insert(fills.end(), std::begin(own), std::end(own));
    return fills;
}

// ---- Columns ----

Scroller columnScroller(const Site& at) {
    return {Axis::Down,         "colX",    "colY",           "colW", "colH", "contentH",
            "scrollY_" + at.id, "colY + ", "colX + colW - 6"};
}

void writeDrawnColumnChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    const bool hasShare = shareOf(child).has_value();
    const bool isText = child.name == "உரை";
    const Expression* content = isText ? property(child, "உரை") : nullptr;
    const float height = calculateWidgetHeight(&child);
    w.fill(widget_templates::column_child, at,
           {{"WIDTH", to_fstr(calculateWidgetWidth(&child))},
            {"IS_TEXT", isText},
            {"HAS_CONTENT", content != nullptr},
            contentOf(w, "CONTENT", child),
            {"FONT_SIZE", to_fstr(fontSizeOf(child))},
            {"HAS_SHARE", hasShare},
            {"SHARE", shareText(child, kDown)},
            {"CHILD", [&] { writePlacedChild(w, child, "childX", "currentY", {}); }},
            {"MOVES_ON", hasShare || height > 0},
            {"ADVANCE", hasShare ? shareAdvance(child, kDown) : to_fstr(height)}});
}

void writeColumnSpace(WidgetWriter& w, const WidgetNode& space) {
    w.text.block("", [&] {
        w.text.line("float childW = " + to_fstr(calculateWidgetWidth(&space)) + ";");
        writeSpaceAdvance(w, space, kDown);
    });
}

void writeColumnChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    if (isSpace(child)) return writeColumnSpace(w, child);
    writeDrawnColumnChild(w, at, child);
}

// ---- Rows ----

Scroller rowScroller(const Site& at) {
    return {Axis::Across,       "rowX",    "rowY",           "rowW", "rowH", "contentW",
            "scrollX_" + at.id, "rowX + ", "rowY + rowH - 6"};
}

/// Where a child lies from top to bottom, by the row's alignment.
std::string placeInRow(const WidgetNode& row) {
    const float alignY = getAlignmentCoords(row.alignment).second;
    if (alignY < 0) return "rowY";
    const std::string lowest = "rowY + (containerH - childH_val)";
    return alignY == 0 ? lowest + " / 2.0f" : lowest;
}

/// The width that a row forces on a child: its share, or none.
Forced forcedInRow(const WidgetNode& child) {
    if (!shareOf(child)) return {};
    return {takesOneShare(child) ? kAcross.unit : kAcross.space, "-1.0f"};
}

void writeDrawnRowChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    const bool hasShare = shareOf(child).has_value();
    w.fill(widget_templates::row_child, at,
           {{"TAKES_ONE_SHARE", takesOneShare(child)},
            {"WIDTH", hasShare ? shareText(child, kAcross) : to_fstr(calculateWidgetWidth(&child))},
            {"HEIGHT", to_fstr(calculateWidgetHeight(&child))},
            {"PLACE_Y", placeInRow(at.node)},
            {"CHILD",
             [&] { writePlacedChild(w, child, "currentX", "finalChildY", forcedInRow(child)); }},
            {"ADVANCE", hasShare ? shareAdvance(child, kAcross) : kAcross.space}});
}

void writeRowChild(WidgetWriter& w, const Site& at, const WidgetNode& child) {
    if (!isSpace(child)) return writeDrawnRowChild(w, at, child);
    w.text.block("", [&] { writeSpaceAdvance(w, child, kAcross); });
}

}  // namespace

void writeColumn(WidgetWriter& w, const Site& at) {
    Fills fills = containerFills(w, at, columnScroller(at), kDown, writeColumnChild);
    fills.push_back({"HEIGHT", to_fstr(calculateWidgetHeight(&at.node))});
    fills.push_back({"WRITES_BACK", !isOrigin(at.y)});
    w.fill(widget_templates::column, at, fills);
}

void writeRow(WidgetWriter& w, const Site& at) {
    Fills fills = containerFills(w, at, rowScroller(at), kAcross, writeRowChild);
    fills.push_back({"WIDTH", to_fstr(calculateWidgetWidth(&at.node))});
    w.fill(widget_templates::row, at, fills);
}
