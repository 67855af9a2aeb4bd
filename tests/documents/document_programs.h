// The programs that the documents show: sources below docs/நிரல்கள், a folder a chapter, and beside
// each what comes of it.
#pragma once

#include <string>
#include <vector>

struct DocumentProgram {
    std::string chapter;  ///< The folder's name: "01".
    std::string name;     ///< Without the ending.
    std::string source;   ///< Path.

    /// Path of the file beside the source that ends in `extension`.
    std::string besides(const std::string& extension) const;
    bool has(const std::string& extension) const;
    bool isApplication() const;
    /// Shown for what is wrong with it: it is refused, stops, or the check finds something.
    bool isWrong() const;
};

/// The folder of all chapters, with a slash at its end.
extern const char* const kDocumentPrograms;

/// Names of the chapters' folders, in order.
std::vector<std::string> documentChapters();
/// The sources of a chapter, in order.
std::vector<DocumentProgram> documentPrograms(const std::string& chapter);
/// The sources of all chapters.
std::vector<DocumentProgram> allDocumentPrograms();

/// True if another source of the folder imports it.
bool isImported(const DocumentProgram& program);
