// What the web form needs of the generator, and no more.
#pragma once

#include <functional>
#include <string>

#include "syntax/node.h"

struct ProgramText {
    /// Write a node of the program in place: an expression, or a statement with its lines.
    std::function<void(const Expression*)> visitExpression;
    std::function<void(const Statement*)> visitStatement;
    /// Reports a code at a line with its detail, and ends the process.
    std::function<void(const std::string& code, int line, const std::string& detail)> refuse;
};
