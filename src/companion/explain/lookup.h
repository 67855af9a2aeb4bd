// Finds what is asked for: a word as it stands, its name elsewhere, how it sounds in Latin letters,
// or a code.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/explain/page.h"

namespace companion {

/// The pages for `asked`; none if nothing is known by that name.
std::vector<Page> pagesFor(std::string_view asked);

/// Names that are near to `asked`, the nearest first, five at most.
std::vector<std::string> nearestTo(std::string_view asked);

}  // namespace companion
