// Links of Markdown pages.
#pragma once

#include <set>
#include <string>
#include <vector>

struct Link {
    int line;
    std::string target;  ///< As it is written, blanks and letters decoded.
};

/// Links and pictures of a page, outside of fences.
std::vector<Link> linksOf(const std::string& pageText);

/// What a link into the page can name behind "#": its headings as the usual viewers of Markdown
/// name them, and the ids that are written out.
std::set<std::string> anchorsOf(const std::string& pageText);
