// What lies between widgets, and around them.
#include "ui/widgets/kinds.h"

void writeDivider(WidgetWriter& w, const Site& at) { writeNothing(w, at); }

void writePadding(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeInlinePage(WidgetWriter& w, const Site& at) { writeInLines(w, at); }
