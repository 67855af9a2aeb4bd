// All that is known of one text of one document. Parts that may not be asked for are made when they
// are.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/check/check.h"
#include "companion/language_server/code.h"
#include "companion/language_server/modules.h"
#include "companion/language_server/names.h"
#include "companion/language_server/outline.h"
#include "companion/language_server/text_places.h"

namespace companion::language_server {

class Analysis {
public:
    /// Takes the text of `document` through the compiler. `modules` isn't kept.
    Analysis(const Document& document, const Modules& modules);
    /// The same for a file that isn't open.
    Analysis(std::string path, std::string text, const Modules& modules);
    Analysis(const Analysis&) = delete;
    Analysis& operator=(const Analysis&) = delete;

    const std::string uri;
    const std::string path;
    const int version;
    const SourceText source;
    const TextPlaces places;
    std::set<std::string> asked;       ///< Paths at which its modules were looked for.
    std::vector<FoundModule> modules;  ///< Those that it imports, and those that they import.
    const CompiledSource compiled;

    const std::vector<Finding>& findings() const;
    const Code& code() const;
    const std::vector<Declaration>& outline() const;
    /// By the tree where there is one, else by the words.
    const Names& names() const;

private:
    Analysis(std::string uri, std::string path, int version, std::string text,
             const Modules& modules);

    mutable std::optional<std::vector<Finding>> foundFindings;
    mutable std::optional<Code> readCode;
    mutable std::optional<std::vector<Declaration>> readOutline;
    mutable std::optional<Names> foundNames;
};

/// A text of another file, by its words alone: where a module declares what.
struct ModuleOutline {
    explicit ModuleOutline(const FoundModule& module)
        : path(module.path),
          isOfLibrary(module.isOfLibrary),
          text(module.text),
          places(text),
          code(text),
          outline(outlineOf(code)) {}
    ModuleOutline(const ModuleOutline&) = delete;
    ModuleOutline& operator=(const ModuleOutline&) = delete;

    const std::string path;
    const bool isOfLibrary;
    const std::string text;
    const TextPlaces places;
    const Code code;
    const std::vector<Declaration> outline;
};

}  // namespace companion::language_server
