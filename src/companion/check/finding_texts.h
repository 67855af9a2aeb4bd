// Findings as text: for people at a terminal, and for programs.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "companion/check/finding.h"
#include "companion/check/source_text.h"

namespace companion {

/// What was found in one file.
struct FileFindings {
    const SourceText* source;
    std::vector<Finding> findings;
};

/// Each finding with its line of the source and a mark under the very characters.
void printForPeople(std::ostream& out, const FileFindings& file, bool inColour);

/// One JSON array of all of them.
void printAsJson(std::ostream& out, const std::vector<FileFindings>& files);

/// "error", "warning" or "hint".
std::string nameOf(Severity severity);

}  // namespace companion
