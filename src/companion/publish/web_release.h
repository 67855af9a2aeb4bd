// An application as files for any host: built for its visitors, in the current directory.
#pragma once

#include <string>
#include <vector>

#include "companion/publish/folder.h"
#include "syntax/node.h"

namespace companion {

/// Where the compiler's companions lie, and where a build may write.
struct BuildPlaces {
    std::string appDirectory;
    std::string workDirectory;  ///< There, empty, and nobody else's.
};

/// The files of the application, the page last, behind lines that tell what is being done. `code`
/// is its generated text. Throws PublishFailure.
std::vector<PublishedFile> buildWebRelease(const Program& program, const std::string& code,
                                           const BuildPlaces& places);

/// What em++ writes into the script `script` and means nothing to visitors, such as where it was
/// built, gone: the same application gives the same bytes.
std::string withoutTraces(std::string script);

}  // namespace companion
