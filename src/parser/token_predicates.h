// What a token may stand for, beside its kind.
#pragma once

#include "lexer/token.h"

/// True for a token that can open a widget.
bool isWidgetToken(const Token& token);

/// True for a token that may name a variable, parameter, member or function. It is wide: every
/// word of kind KEYWORD passes, and the grammar decides by position.
bool isValidVariableName(const Token& token);
