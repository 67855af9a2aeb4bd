// A tree as readable text: one node a line, children indented, the line number behind an @ where
// the node has one. Used by tests alone.
#pragma once

#include <string>

#include "parser/parser.h"
#include "syntax/node.h"

std::string printTree(const Program& program);
std::string printTree(const Expression& expression);

/// What the parser's tables hold, a line an entry; "" if they are empty.
std::string printTables(const Parser& parser);
