// Files written whole or not at all.
#pragma once

#include <string>

namespace companion {

enum class Written {
    Yes,
    No,         ///< The disk is full, or the file may not be written; it is as it was.
    IsChanged,  ///< Somebody else wrote to the file meanwhile.
};

/// Puts `text` in the place of `former`, what the file `path` held. A link stays a link, and the
/// file keeps its mode. Whatever happens meanwhile, the file holds the one or the other.
Written replaceFile(const std::string& path, const std::string& former, const std::string& text);

}  // namespace companion
