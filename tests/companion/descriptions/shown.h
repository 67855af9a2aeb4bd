// What the tests of descriptions share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/check/check.h"
#include "files.h"

/// A module as a program finds it that stands at the root, beside the library.
inline bool readAtRoot(const std::string& path, std::string& text) {
    return readFile(path, text) || readFile(std::string(POZHIL_ROOT "/") + path, text);
}

/// The errors that a check finds in `text`, each in a line.
inline std::string errorsOfCheck(std::string_view text) {
    const companion::SourceText source("நிரல்.பொழில்", std::string(text));
    std::string errors;
    for (const companion::Finding& finding : companion::checkSource(source, readAtRoot)) {
        if (finding.severity != companion::Severity::Error) continue;
        errors += std::to_string(finding.line) + " " + finding.code + " " + finding.message + "\n";
    }
    return errors;
}
