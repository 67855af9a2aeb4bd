// What there is to explain, by topic.
#pragma once

#include <ostream>

#include "companion/explain/page.h"

namespace companion {

/// The topics, each with its words; and how to ask for one.
void writeContents(std::ostream& out, const PageStyle& style);

}  // namespace companion
