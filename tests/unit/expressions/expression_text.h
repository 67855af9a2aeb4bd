// Expressions parsed by themselves, and written back so that a test can say what came out.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/front_end.h"

/// Tokens made by hand: kind and text. The line of each is its place in the row, counted from 1;
/// END_OF_FILE stands behind.
std::vector<Token> row(const std::vector<std::pair<TokenType, std::string>>& tokens);

/// Scanned tokens; the line of each is its place, counted from 1, so that lines tell tokens apart.
std::vector<Token> spread(const std::string& text);

/// A parser that declares நிறங்கள் with சிவப்பு 2 and நீலம் 0.
std::unique_ptr<Parser> parserOf(const std::vector<Token>& tokens);

/// The expression with every grouping shown; what follows it stands behind " | ".
///   a கூட்டு b பெருக்கு c   (a கூட்டு (b பெருக்கு c))      logical: <a மற்றும் b>
///   a[0].b(c) = 1           set(a[0].b(c) = 1)      assignment: (a = 1)
///   (a)                     group(a)                lambda: (a, b => c)
std::string shapeOf(const std::vector<Token>& tokens);
std::string shapeOf(const std::string& text);

/// The tree with places for lines.
std::string treeOf(const std::vector<Token>& tokens);
std::string treeOf(const std::string& text);

/// Passes if the expression is refused at the token in that place.
testing::AssertionResult refusedAt(int place, const std::string& code,
                                   const std::vector<Token>& tokens);
testing::AssertionResult refusedAt(int place, const std::string& code, const std::string& text);
