// What lies over a page.
#include "ui/widgets/kinds.h"

void writeSnackBarTrigger(WidgetWriter& w, const Site& at) { writeNothing(w, at); }
