// The functions that gather what a widget's template needs and fill it, one a kind.
#pragma once

#include "ui/widget_writer.h"

using WriteWidget = void (*)(WidgetWriter&, const Site&);

void writeNothing(WidgetWriter& w, const Site& at);
void writeText(WidgetWriter& w, const Site& at);
void writeCheckBox(WidgetWriter& w, const Site& at);

// Layout
void writeFirstChild(WidgetWriter& w, const Site& at);
void writeSpacer(WidgetWriter& w, const Site& at);
/// All children one below the other, for containers that don't lay out yet.
void writeInLines(WidgetWriter& w, const Site& at);
