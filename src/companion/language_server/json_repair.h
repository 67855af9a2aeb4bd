// Puts right what editors send that is no Unicode, so that a text with a broken character in it can
// still be edited.
#pragma once

#include <string>
#include <string_view>

namespace companion::language_server {

/// `json` with U+FFFD for each byte that is no UTF-8 and for each escaped half of a surrogate pair
/// that stands alone. Such a half counts as one unit of UTF-16, and so does its replacement:
/// positions stay.
std::string repairedJson(std::string_view json);

}  // namespace companion::language_server
