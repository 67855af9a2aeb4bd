// Expressions: the dispatch over the nodes.
#include "generator/generator.h"
#include "generator/static_error.h"

void Generator::visitExpression(const Expression* expression) {
    if (const auto* node = dynamic_cast<const NumberLiteral*>(expression)) {
        visitNumberLiteral(node);
    } else if (const auto* node = dynamic_cast<const DoubleLiteral*>(expression)) {
        visitDoubleLiteral(node);
    } else if (const auto* node = dynamic_cast<const StringLiteral*>(expression)) {
        visitStringLiteral(node);
    } else if (const auto* node = dynamic_cast<const CharLiteral*>(expression)) {
        visitCharLiteral(node);
    } else if (const auto* node = dynamic_cast<const BooleanLiteral*>(expression)) {
        visitBooleanLiteral(node);
    } else {
        throw_static_error("பொழில்-399", "Unknown expression type in generator");
    }
}
