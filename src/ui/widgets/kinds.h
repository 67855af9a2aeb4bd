// The functions that gather what a widget's template needs and fill it, one a kind.
#pragma once

#include "ui/widget_writer.h"

using WriteWidget = void (*)(WidgetWriter&, const Site&);

constexpr float kFontSize = 16;  ///< Pixels, where no style gives another.

/// The size of a text as its style gives it, in pixels, before the window scales it.
float fontSizeOf(const WidgetNode& text);

void writeNothing(WidgetWriter& w, const Site& at);
void writeText(WidgetWriter& w, const Site& at);
void writeCheckBox(WidgetWriter& w, const Site& at);

// Layout
void writeFirstChild(WidgetWriter& w, const Site& at);
void writeSpacer(WidgetWriter& w, const Site& at);
/// All children one below the other, for containers that don't lay out yet.
void writeInLines(WidgetWriter& w, const Site& at);
