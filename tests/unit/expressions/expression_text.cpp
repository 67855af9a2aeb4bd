#include "unit/expressions/expression_text.h"

#include "support/tree_printer.h"

namespace {

std::string shape(const Expression* node);

template <typename List>
std::string shapes(const List& list) {
    std::string text;
    for (const auto& node : list) text += (text.empty() ? "" : ", ") + shape(node.get());
    return text;
}

/// Literals and names; "" for any other node.
std::string leafShape(const Expression* node) {
    if (const auto* n = dynamic_cast<const NumberLiteral*>(node)) return n->value;
    if (const auto* n = dynamic_cast<const DoubleLiteral*>(node)) return "decimal " + n->value;
    if (const auto* n = dynamic_cast<const StringLiteral*>(node)) return '"' + n->value + '"';
    if (const auto* n = dynamic_cast<const CharLiteral*>(node)) return "'" + n->value + "'";
    if (const auto* n = dynamic_cast<const BooleanLiteral*>(node)) return "boolean " + n->value;
    if (const auto* n = dynamic_cast<const PercentageLiteral*>(node)) return n->value;
    if (const auto* n = dynamic_cast<const VariableAccess*>(node)) return n->name;
    if (const auto* n = dynamic_cast<const ColorExpression*>(node)) {
        return n->isHex ? "hex " + n->hexValue + n->colorName
                        : "colour " + n->colorName + n->hexValue;
    }
    return "";
}

std::string operationShape(const Expression* node) {
    if (const auto* n = dynamic_cast<const GroupingExpression*>(node)) {
        return "group(" + shape(n->expression.get()) + ")";
    }
    if (const auto* n = dynamic_cast<const UnaryExpression*>(node)) {
        return "(" + n->op.text + " " + shape(n->right.get()) + ")";
    }
    if (const auto* n = dynamic_cast<const BinaryExpression*>(node)) {
        return "(" + shape(n->left.get()) + " " + n->op.text + " " + shape(n->right.get()) + ")";
    }
    if (const auto* n = dynamic_cast<const LogicalExpression*>(node)) {
        return "<" + shape(n->left.get()) + " " + n->op.text + " " + shape(n->right.get()) + ">";
    }
    if (const auto* n = dynamic_cast<const TernaryExpression*>(node)) {
        return "(" + shape(n->condition.get()) + " ? " + shape(n->thenBranch.get()) + " : " +
               shape(n->elseBranch.get()) + ")";
    }
    if (const auto* n = dynamic_cast<const AssignmentExpression*>(node)) {
        return "(" + n->name + " " + n->op.text + " " + shape(n->value.get()) + ")";
    }
    return "";
}

std::string mapShape(const MapLiteral& map) {
    std::string text;
    for (const auto& [key, value] : map.entries) {
        text += (text.empty() ? "" : ", ") + ("\"" + key + "\": ") + shape(value.get());
    }
    return "{" + text + "}";
}

std::string lambdaShape(const LambdaExpression& lambda) {
    std::string text;
    for (const Token& name : lambda.parameters) text += (text.empty() ? "" : ", ") + name.text;
    return "(" + text + " => " + shape(lambda.body.get()) + ")";
}

std::string shape(const Expression* node) {
    if (const std::string text = leafShape(node); !text.empty()) return text;
    if (const std::string text = operationShape(node); !text.empty()) return text;
    if (const auto* n = dynamic_cast<const CallExpression*>(node)) {
        return shape(n->callee.get()) + "(" + shapes(n->arguments) + ")";
    }
    if (const auto* n = dynamic_cast<const GetExpression*>(node)) {
        return shape(n->object.get()) + "." + n->name.text;
    }
    if (const auto* n = dynamic_cast<const SetMemberExpression*>(node)) {
        return "set(" + shape(n->object.get()) + "." + n->name.text + " = " +
               shape(n->value.get()) + ")";
    }
    if (const auto* n = dynamic_cast<const IndexExpression*>(node)) {
        return shape(n->object.get()) + "[" + shape(n->index.get()) + "]";
    }
    if (const auto* n = dynamic_cast<const ListLiteral*>(node)) {
        return "[" + shapes(n->elements) + "]";
    }
    if (const auto* n = dynamic_cast<const MapLiteral*>(node)) return mapShape(*n);
    if (const auto* n = dynamic_cast<const LambdaExpression*>(node)) return lambdaShape(*n);
    return "unknown";
}

void numberLines(std::vector<Token>& tokens) {
    for (std::size_t i = 0; i < tokens.size(); i++) tokens[i].line = static_cast<int>(i) + 1;
}

std::string restOf(Parser& parser) {
    std::string text;
    for (; !parser.is_at_end(); parser.advance()) text += " " + parser.peek().text;
    return text.empty() ? "" : " |" + text;
}

}  // namespace

std::vector<Token> row(const std::vector<std::pair<TokenType, std::string>>& tokens) {
    std::vector<Token> made;
    for (const auto& [kind, text] : tokens) made.push_back({kind, text, 0});
    made.push_back({TokenType::END_OF_FILE, "", 0});
    numberLines(made);
    return made;
}

std::vector<Token> spread(const std::string& text) {
    std::vector<Token> tokens = scan(text);
    numberLines(tokens);
    return tokens;
}

std::unique_ptr<Parser> parserOf(const std::vector<Token>& tokens) {
    auto parser = std::make_unique<Parser>(tokens, "", "test.பொழில்");
    parser->enumerations["நிறங்கள்"] = {{"சிவப்பு", 2}, {"நீலம்", 0}};
    return parser;
}

std::string shapeOf(const std::vector<Token>& tokens) {
    const auto parser = parserOf(tokens);
    const auto node = parser->parseExpression();
    return shape(node.get()) + restOf(*parser);
}

std::string shapeOf(const std::string& text) { return shapeOf(scan(text)); }

std::string treeOf(const std::vector<Token>& tokens) {
    return printTree(*parserOf(tokens)->parseExpression());
}

std::string treeOf(const std::string& text) { return treeOf(spread(text)); }

testing::AssertionResult refusedAt(int place, const std::string& code,
                                   const std::vector<Token>& tokens) {
    return refuses(code, place, [&] { parserOf(tokens)->parseExpression(); });
}

testing::AssertionResult refusedAt(int place, const std::string& code, const std::string& text) {
    return refusedAt(place, code, spread(text));
}
