// The reference of the language as Markdown pages: what the compiler's tables and the companion's
// descriptions hold, in one place. Files are read here and nowhere else: pages are built of text.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace companion::reference {

/// One file of the reference, a page or a picture.
struct ReferenceFile {
    std::string path;  ///< Below the reference's folder, with slashes.
    std::string text;
};

/// A chapter of the guide, in what words can be looked for.
struct Chapter {
    Chapter(std::string file, std::string title, std::string code, std::string text);

    std::string file;   ///< Its name in the guide's folder.
    std::string title;  ///< Its first heading, in Markdown.
    std::string code;   ///< Programs that it shows or has beside it, and spans in backticks.
    std::string text;   ///< All of it.
    std::string bare;   ///< The code without what stands in quotes and comments.
};

/// What stands around the reference in docs/.
struct Surroundings {
    std::vector<Chapter> chapters;   ///< In their order.
    std::set<std::string> pictures;  ///< Names of widgets that have a picture.
};

/// Reads the surroundings in the checkout `root`.
Surroundings readSurroundings(const std::string& root);

/// All files of the reference, each path once.
std::vector<ReferenceFile> referenceFiles(const Surroundings& around);

}  // namespace companion::reference
