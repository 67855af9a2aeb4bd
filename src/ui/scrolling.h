// What containers that scroll share: the wheel, the way to a widget that the program asked for, the
// edges and the bar.
#pragma once

#include <string>

#include "ui/widget_writer.h"

enum class Axis { Across, Down };

/// A container that scrolls along one axis, by the C++ texts of its own locals.
struct Scroller {
    Axis axis;
    std::string x;  ///< What it shows of the window, with the three below.
    std::string y;
    std::string w;
    std::string h;
    std::string content;    ///< The length of all that it holds, along the axis.
    std::string offset;     ///< The static that says how far it is scrolled.
    std::string barOrigin;  ///< "colY + ": where the bar's way begins; empty for the window's edge.
    std::string barEdge;    ///< Where the bar lies across its way.
    bool yieldsWheel = true;  ///< Leaves the wheel to a row that the pointer is over.
};

/// The four holes of a container that scrolls, in whatever order its template has them:
/// SCROLL_RANGE declares the static and `maxScroll` and takes the wheel; OPEN_VIEW and CLOSE_VIEW
/// cut off what lies outside, and show the bar; SCROLL_TO_WIDGET goes on towards the widget asked
/// for. Keeps a reference to `w`.
Fills scrollFills(WidgetWriter& w, const Scroller& scroller);
