// What a test sees of a refusal: the report's fields, thrown instead of printed.
#pragma once

#include <string>

#include "error_handler.h"

struct Refusal {
    பிழைவகை kind;
    std::string code;
    std::string message;
    std::string file;
    int line;
    std::string lineText;
    std::string fix;
};
