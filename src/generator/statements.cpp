// Statements: the dispatch over the nodes, and the text of each.
#include "generator/generator.h"
#include "generator/static_error.h"

void Generator::visitStatement(const Statement* statement) {
    indent();
    if (const auto* print = dynamic_cast<const PrintStatement*>(statement)) {
        visitPrintStatement(print);
        out << ";\n";
        return;
    }
    throw_static_error("பொழில்-399", "Unknown statement type in generator");
}

/// அச்சிடு(1, "அ")  ->  std::cout << fn_any_to_string(1LL) << fn_any_to_string(...) << std::endl
/// Nothing stands between the values.
void Generator::visitPrintStatement(const PrintStatement* print) {
    out << "std::cout";
    for (const auto& expression : print->expressions) {
        out << " << fn_any_to_string(";
        visitExpression(expression.get());
        out << ")";
    }
    out << " << std::endl";
}

void Generator::visitStructDefinitionStatement(const StructDefinitionStatement*) {
    throw_static_error("பொழில்-399", "Unknown statement type in generator");
}

void Generator::visitFunctionDefinitionStatement(const FunctionDefinitionStatement*) {
    throw_static_error("பொழில்-399", "Unknown statement type in generator");
}
