// Where an application is built: its assets and modules are found by paths that begin there.
#pragma once

#include <string>

#include "companion/check/source_text.h"

namespace companion {

/// Makes the folder of the application at `source.path` the current one, as when it is run, unless
/// only the current one holds its assets or a module. A console program is built where the user
/// stands.
void goWhereItIsBuilt(const SourceText& source);

}  // namespace companion
