// The size of a widget as far as the source tells it: an estimate that a parent writes into its
// text as a constant. 0 is legal and means that the frame decides.
#pragma once

#include "syntax/node.h"

/// Pixels; 0 for what is no widget or has no row in the table.
float calculateWidgetWidth(const Statement* statement);
float calculateWidgetHeight(const Statement* statement);
