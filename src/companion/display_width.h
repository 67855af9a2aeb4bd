// How wide text is on a terminal.
#pragma once

#include <string_view>

namespace companion {

/// Terminal columns of `text`: vowel signs that sit on their letter take none.
int displayWidth(std::string_view text);

}  // namespace companion
