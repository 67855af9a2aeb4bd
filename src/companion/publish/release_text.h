// The generated text of an application, made ready for its visitors.
#pragma once

#include <string>
#include <vector>

namespace companion {

/// Who brings the font in which pages are written.
enum class TamilFont { OfPage, OfNet };

/// `code` without what a visitor has no use for. Throws std::logic_error if that isn't in it.
std::string releaseText(std::string code, TamilFont font);

/// The addresses of scripts that the program loads from other hosts, in the order of the text.
std::vector<std::string> scriptsOfOtherHosts(const std::string& code);

}  // namespace companion
