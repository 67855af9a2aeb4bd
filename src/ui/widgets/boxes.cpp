// Boxes and cards.
#include "ui/widgets/kinds.h"

void writeBox(WidgetWriter& w, const Site& at) { writeInLines(w, at); }

void writeCard(WidgetWriter& w, const Site& at) { writeInLines(w, at); }
