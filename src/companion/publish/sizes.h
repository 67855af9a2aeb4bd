// How large what was published is, as it lies there and as hosts send it.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace companion {

struct FileSize {
    std::string name;
    std::uintmax_t bytes = 0;
    std::optional<std::uintmax_t> gzipBytes;  ///< Nothing where there is no gzip.
};

/// "512 பைட்", "52.3 கிலோபைட்", "1.2 மெகாபைட்".
std::string sizeText(std::uintmax_t bytes);

/// The sizes of the files `names` in `folder`.
std::vector<FileSize> measureFiles(const std::string& folder,
                                   const std::vector<std::string>& names);

/// A line for each file, and one for all of them if there are several.
void printSizes(std::ostream& out, const std::vector<FileSize>& sizes);

}  // namespace companion
