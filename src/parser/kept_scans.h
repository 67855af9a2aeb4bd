// What looks ahead found, kept for the rules that ask again: looking anew from each place would
// take quadratic time.
#pragma once

/// A look along a line, kept for the statements that follow on the same line.
struct LineScan {
    int end = -1;   ///< Index behind the last token looked at.
    int last = -1;  ///< Index of the last token looked for; -1 if there is none.
};

/// Where the look for a lambda's closing parenthesis stopped, for all that open before it.
struct CloseScan {
    int start = 0;
    int end = 0;
};
