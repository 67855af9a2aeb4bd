// Columns and rows.
#include "ui/widgets/kinds.h"

void writeColumn(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeRow(WidgetWriter& w, const Site& at) { writeInLines(w, at); }
