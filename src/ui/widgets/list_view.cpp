// Lists that scroll.
#include "ui/measure.h"
#include "ui/properties.h"
#include "ui/scrolling.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

Scroller listScroller(const Site& at) {
    return {Axis::Down,
            "listStartX",
            "listStartY",
            "winWidth",
            "winHeight",
            "totalContentHeight",
            "scrollOffset_" + at.id,
            "",
            "winWidth - 6",
            /*yieldsWheel=*/false};
}

/// A measure of half pixels makes a text that doesn't compile: 2.5.0f. Meant.
std::string wholeNumber(float value) { return numberText(value) + ".0f"; }

void writeHeights(WidgetWriter& w, const WidgetNode& list) {
    for (const WidgetNode* child : widgetChildren(list)) {
        w.text.line("totalContentHeight += " + wholeNumber(calculateWidgetHeight(child)) + ";");
    }
}

void writeListChild(WidgetWriter& w, const WidgetNode& child) {
    w.text.block("", [&] {
        w.text.line("float childX = listStartX + (winWidth - " +
                    wholeNumber(calculateWidgetWidth(&child)) + ") / 2.0f;");
        w.writeChild(child, "childX", "currentY");
        w.text.line("currentY += " + wholeNumber(calculateWidgetHeight(&child)) + ";");
    });
}

}  // namespace

/// The name is written a second time where the list begins, with the same place. Meant.
void writeList(WidgetWriter& w, const Site& at) {
    const Expression* name = property(at.node, "அடையாளம்");
    Fills fills = scrollFills(w, listScroller(at));
    fills.push_back({"IS_NAMED", name != nullptr});
    fills.push_back(w.expression("NAME", name));
    fills.push_back({"HEIGHTS", [&] { writeHeights(w, at.node); }});
    fills.push_back({"CHILDREN", [&] {
                         for (const WidgetNode* child : widgetChildren(at.node)) {
                             writeListChild(w, *child);
                         }
                     }});
    w.fill(widget_templates::list, at, fills);
}
