#include "ui/scrolling.h"

#include "widget_templates.h"

namespace {

/// The text of `scroller` that belongs to its axis.
const std::string& along(const Scroller& scroller, const std::string& across,
                         const std::string& down) {
    return scroller.axis == Axis::Across ? across : down;
}
const std::string& viewLength(const Scroller& s) { return along(s, s.w, s.h); }

void writeRange(WidgetWriter& w, const Scroller& s) {
    w.text.fill(widget_templates::scroll_range, {{"OFFSET", s.offset},
                                                 {"LEFT", s.x},
                                                 {"TOP", s.y},
                                                 {"WIDTH", s.w},
                                                 {"HEIGHT", s.h},
                                                 {"LENGTH", viewLength(s)},
                                                 {"CONTENT", s.content},
                                                 {"YIELDS", s.yieldsWheel},
                                                 {"IS_ACROSS", s.axis == Axis::Across}});
}

void writeWayToWidget(WidgetWriter& w, const Scroller& s) {
    w.text.fill(widget_templates::scroll_to_widget,
                {{"TARGET", along(s, "targetX_id", "targetY_id")},
                 {"DESIRED", along(s, "desiredX", "desiredY")},
                 {"AXIS", along(s, "x", "y")},
                 {"ORIGIN", along(s, s.x, s.y)},
                 {"OFFSET", s.offset}});
}

void openView(WidgetWriter& w, const Scroller& s) {
    w.text.line("nvgSave(vg);");
    w.text.line("nvgScissor(vg, " + s.x + ", " + s.y + ", " + s.w + ", " + s.h + ");");
    w.openClip(s.x, s.y, s.w, s.h);
}

void closeView(WidgetWriter& w, const Scroller& s) {
    w.text.line("nvgRestore(vg);");
    w.closeClip();
    w.text.fill(
        widget_templates::scroll_bar,
        {{"LENGTH", along(s, "barW", "barH")},
         {"START", along(s, "barX", "barY")},
         {"RECTANGLE", along(s, "barX, " + s.barEdge + ", barW, 4", s.barEdge + ", barY, 4, barH")},
         {"PLACE", s.barOrigin + "(" + s.offset + " / " + s.content + ") * " + viewLength(s)},
         {"VIEW", viewLength(s)},
         {"CONTENT", s.content}});
}

}  // namespace

Fills scrollFills(WidgetWriter& w, const Scroller& scroller) {
    const auto hole = [&w, scroller](const char* name,
                                     void (*write)(WidgetWriter&, const Scroller&)) {
        return Fill{name, [&w, scroller, write] { write(w, scroller); }};
    };
    return {hole("SCROLL_RANGE", writeRange), hole("OPEN_VIEW", openView),
            hole("SCROLL_TO_WIDGET", writeWayToWidget), hole("CLOSE_VIEW", closeView)};
}
