// The terminal that the process writes to.
#pragma once

namespace companion {

/// True if standard output is a terminal, and NO_COLOR doesn't ask to leave colour out.
bool wantsColour();

/// Columns of the terminal; 80 where standard output is none.
int terminalWidth();

}  // namespace companion
