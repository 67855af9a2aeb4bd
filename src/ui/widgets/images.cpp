// Pictures.
#include "ui/widgets/kinds.h"

void writeImage(WidgetWriter& w, const Site& at) { writeNothing(w, at); }

void writeAvatar(WidgetWriter& w, const Site& at) { writeNothing(w, at); }
