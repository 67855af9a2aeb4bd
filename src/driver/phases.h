// The three phases, with what each caller shows for an exception that one of them lets through.
#pragma once

#include <exception>
#include <iostream>

#include "generator/generator.h"
#include "lexer/lexer.h"
#include "parser/parser.h"

/// Runs one phase; on an exception prints `failure` on standard error and returns false.
template <typename Phase>
bool runPhase(Phase phase, const char* failure) {
    try {
        phase();
        return true;
    } catch (const std::exception&) {
        std::cerr << failure;
        return false;
    }
}

/// True if the program's top level holds a web application.
bool holdsWebApp(const Program& program);
