// Buttons.
#include "ui/widgets/kinds.h"

void writeButton(WidgetWriter& w, const Site& at) { writeNothing(w, at); }

void writeTextButton(WidgetWriter& w, const Site& at) { writeNothing(w, at); }
