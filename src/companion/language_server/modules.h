// The texts that imports ask for: those of open documents first, then the disk.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/check/compiled_source.h"
#include "companion/language_server/documents.h"

namespace companion::language_server {

/// A module as an import found it.
struct FoundModule {
    std::string path;  ///< Absolute.
    std::string text;
    bool isOfLibrary;  ///< It came with the compiler: nobody's to change.
};

class Modules {
public:
    /// `documents` must outlive it.
    explicit Modules(const Documents& documents) : documents(documents) {}

    /// The folders that the editor has open, in their order.
    std::vector<std::string> folders;

    /// Reads for the document at `path`, which may be empty. A name that isn't absolute is looked
    /// for beside the document, in the open folders and where the server was started. Each path
    /// that was looked at goes into `asked`, each module into `found`; both may be null.
    ModuleReader readerFor(const std::string& path, std::set<std::string>* asked,
                           std::vector<FoundModule>* found) const;

private:
    bool read(const std::string& path, std::string& text) const;

    const Documents& documents;
};

}  // namespace companion::language_server
