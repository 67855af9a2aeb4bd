// The folder into which something is published: it appears whole, and nothing in it but what was
// published there before is ever touched.
#pragma once

#include <string>
#include <vector>

namespace companion {

struct PublishedFile {
    std::string name;  ///< In the folder itself.
    std::string content;
    bool isProgram = false;  ///< May be run.
};

/// What lies in a folder by this name says which files were published there.
extern const char* const kListName;

/// Throws PublishFailure if nothing may be published into `folder`: it is a file, or holds what
/// wasn't published. One that isn't there is made by placeFiles.
void refuseForeignFolder(const std::string& folder);

/// Puts `files` into `folder`, the last one last, and takes away the files of an earlier time whose
/// content changes their name. Throws PublishFailure, or std::filesystem::filesystem_error, with
/// the folder as it was but for files that nothing leads to.
void placeFiles(const std::string& folder, const std::vector<PublishedFile>& files);

}  // namespace companion
