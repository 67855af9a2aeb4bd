// What a program printed, as a reader sees it on a terminal: what is typed stands behind "⌨ ", to
// the line's end.
#pragma once

#include <string>

struct Transcript {
    std::string typed;    ///< A line for each time that something is typed.
    std::string printed;  ///< What the program itself writes.
};

/// Takes the two apart.
Transcript readTranscript(const std::string& text);

/// True if `text` is `pattern`, where "⋯" stands for any text within a line.
bool isLike(const std::string& text, const std::string& pattern);

/// Without the marks that colour a terminal, without the saying, and without empty lines around it.
std::string plainReport(const std::string& report);

/// What a run printed: its own text, and the report that ended it. Empty without one.
struct RunText {
    std::string printed;
    std::string report;
};
RunText splitAtReport(const std::string& output);
