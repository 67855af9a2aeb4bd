// The page that visitors get: the template without what belongs to the development server.
#pragma once

#include <string>
#include <vector>

#include "companion/publish/folder.h"
#include "driver/page.h"

namespace companion {

/// A file of the program: the name by which the program asks for it, and the one under which it
/// lies.
struct ProgramFile {
    std::string name;     ///< "index.wasm".
    std::string address;  ///< Relative to the page.
    std::size_t bytes;
};

/// A font beside the page.
struct FontFile {
    int weight;
    std::string address;
};

/// `page` is the template, `visitors` the text that takes the place of its section about the
/// server. Throws PublishFailure if that section isn't in it.
std::string publishedPage(std::string page, const std::string& visitors, const PageHead& head,
                          const std::vector<ProgramFile>& files,
                          const std::vector<FontFile>& fonts);

}  // namespace companion
