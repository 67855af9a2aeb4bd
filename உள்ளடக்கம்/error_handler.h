// The one form of diagnostic report. Shared by the compiler and every generated program.
#pragma once

#include <string>

/// Class of a diagnostic; its value picks the class title of the report.
enum பிழைவகை {
    LEXICAL_ERROR = 0,
    SYNTAX_ERROR = 1,
    SEMANTIC_ERROR = 2,
    OPERATION_ERROR = 3,
    RUNTIME_ERROR = 4,
};

/// Prints reports. Has no instances: all its functions are static.
class ErrorHandler {
public:
    /// Prints the report on standard output and ends the process with status 1.
    /// `line` counts from 1; `lineText` is that line of the source, shown as it stands.
    [[noreturn]] static void அறிக்கை(பிழைவகை kind, std::string code, std::string message,
                                    std::string file, int line, std::string lineText,
                                    std::string fix);

    /// One of the fifty sayings, picked at random.
    static std::string பொன்மொழி_பெறு();

    /// Columns that `text` takes in a terminal: one a character, two for four-byte characters.
    static int visualWidth(std::string text);
};
