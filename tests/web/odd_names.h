// Names in which a shell would read more than a name.
#pragma once

#include <string>

/// The file that some of these names would make if a shell ran them.
constexpr const char* kTraceOfARun = "ran";

const std::string kOddNames[] = {
    "a b",
    "$HOME",
    "a$(touch ran)",
    "`touch ran`",
    "a;touch ran;",
    "a&touch ran&",
    "a|b",
    "a\"b",
    "\"",
    "'",
    "a'b'c",
    "a\\b",
    "a\\",
    "\\\\",
    "\\$(touch ran)",
    "\\\"",
    "<a>b",
    "(a)",
    "a*",
    "a?",
    "[ab]",
    "{a,b}",
    "~",
    "#a",
    "!a!",
    "a\nb",
    "\\\nb",
    "a\tb",
    "-a",
    "அ ஆ",
    "$((1))",
    "$'a'",
    "\"$(touch ran)\"",
};
