// What grammar rules gather before they make a node of it, and what tells similar rules apart.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "syntax/animation.h"
#include "syntax/definitions.h"
#include "syntax/statements.h"
#include "syntax/widgets.h"

/// A structure's members.
struct StructBody {
    std::vector<std::unique_ptr<VarDeclaration>> fields;
    std::vector<std::unique_ptr<FunctionDefinitionStatement>> methods;
    std::map<std::string, FunctionDefinitionStatement*> methodsByName;
};

/// What a widget's parentheses hold.
struct WidgetParts {
    PropertyMap properties;
    WidgetList children;
    WidgetList onTapStatements;
    சீரமைப்பு_வகை alignment = சீரமைப்பு_வகை::மேல்_இடது;
    TextStyle textStyle;
    std::unique_ptr<AnimationNode> animation;
};

/// What tells apart the layout widgets that take a group of children, or one of properties and one
/// of children.
struct GroupRules {
    bool hasAlignment;
    bool refusesSections;  ///< A section word among the children is a missing `)`.
};
constexpr GroupRules kLikeColumn = {true, true};

/// How the parenthesised form of a press handler is read.
enum class PressForm {
    Statements,         ///< Statements behind a keyword or a database word.
    KeywordStatements,  ///< Statements behind a keyword alone.
    Expression,
    ExpressionInFreeLayout,  ///< Indentation around it isn't counted.
};
