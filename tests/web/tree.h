// Trees of applications, built by hand.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "syntax/application.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"

inline std::unique_ptr<Expression> text(const std::string& value) {
    return std::make_unique<StringLiteral>(value);
}

inline std::unique_ptr<Expression> color(const std::string& value, bool isHex) {
    return std::make_unique<ColorExpression>(value, isHex);
}

inline std::unique_ptr<Expression> variable(const std::string& name) {
    return std::make_unique<VariableAccess>(name);
}

/// A map of properties, from pairs of a key and its expression.
template <typename... Pairs>
PropertyMap properties(Pairs... pairs) {
    PropertyMap map;
    (map.emplace(std::move(pairs.first), std::move(pairs.second)), ...);
    return map;
}

inline std::pair<std::string, std::unique_ptr<Expression>> entry(
    const std::string& key, std::unique_ptr<Expression> value) {
    return {key, std::move(value)};
}

inline std::unique_ptr<WidgetNode> widget(const std::string& name, PropertyMap map = {}) {
    return std::make_unique<WidgetNode>(name, std::move(map),
                                        std::vector<std::unique_ptr<Statement>>{},
                                        சீரமைப்பு_வகை::மேல்_இடது, false);
}

inline std::unique_ptr<Statement> head(PropertyMap map) {
    return std::make_unique<HeaderNode>(
        "தலைமை", std::move(map), std::vector<std::unique_ptr<Statement>>{}, ScreenConfig{}, false);
}

inline std::unique_ptr<Statement> application(std::unique_ptr<Statement> header,
                                              std::unique_ptr<Statement> body = nullptr,
                                              std::unique_ptr<Statement> logic = nullptr) {
    return std::make_unique<WebAppNode>("செயலி", nullptr, std::move(header), std::move(body),
                                        std::move(logic));
}

template <typename... Statements>
Program program(Statements... statements) {
    Program made;
    (made.statements.push_back(std::move(statements)), ...);
    return made;
}
