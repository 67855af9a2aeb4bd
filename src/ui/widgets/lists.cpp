// Containers that place their children by a pattern: on top of each other, in lines, in cells,
// below each other without an end.
#include "ui/widgets/kinds.h"

void writeStack(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeWrap(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeGrid(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeList(WidgetWriter& w, const Site& at) { writeInLines(w, at); }
