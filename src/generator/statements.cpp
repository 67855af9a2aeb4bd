// Statements: the dispatch over the nodes, and the plain ones. Control flow stands in
// control_flow.cpp, declarations in declarations.cpp.
#include "generator/generator.h"
#include "static_error.h"

void Generator::visitStatement(const Statement* statement) {
    refuseEndlessText();
    visited = {nullptr, statement};
    if (visitSimpleStatement(statement) || visitIndentingStatement(statement)) return;
    throw_static_error("பொழில்-399", "Unknown statement type in generator");
}

/// Statements of one line: indented here, and ended with `;`. False if the node is none of them.
bool Generator::visitSimpleStatement(const Statement* statement) {
    const auto line = [&](auto visit) {
        indent();
        visit();
        out << ";\n";
        return true;
    };
    if (const auto* node = nodeAs<PrintStatement>(statement)) {
        return line([&] { visitPrintStatement(node); });
    }
    if (const auto* node = nodeAs<VarDeclaration>(statement)) {
        return line([&] { visitVarDeclaration(node); });
    }
    if (const auto* node = nodeAs<CompoundAssignmentStatement>(statement)) {
        return line([&] { visitCompoundAssignmentStatement(node); });
    }
    if (const auto* node = nodeAs<IncrementStatement>(statement)) {
        return line([&] { visitIncrementStatement(node); });
    }
    if (const auto* node = nodeAs<WaitStatement>(statement)) {
        return line([&] { visitWaitStatement(node); });
    }
    if (const auto* node = nodeAs<BreakStatement>(statement)) {
        return line([&] { visitBreakStatement(node); });
    }
    if (const auto* node = nodeAs<ContinueStatement>(statement)) {
        return line([&] { visitContinueStatement(node); });
    }
    if (const auto* node = nodeAs<SetStatement>(statement)) {
        return line([&] { visitSetStatement(node); });
    }
    if (const auto* node = nodeAs<ExpressionStatement>(statement)) {
        return line([&] { visitExpressionStatement(node); });
    }
    if (const auto* node = nodeAs<PassStatement>(statement)) {
        return line([&] { visitPassStatement(node); });
    }
    if (const auto* node = nodeAs<ReturnStatement>(statement)) {
        return line([&] { visitReturnStatement(node); });
    }
    if (const auto* node = nodeAs<RTDBReadStatement>(statement)) {
        return line([&] { visitRTDBReadStatement(node); });
    }
    return false;
}

/// Statements that write their own lines. False if the node is none of them.
bool Generator::visitIndentingStatement(const Statement* statement) {
    if (const auto* node = nodeAs<IfStatement>(statement)) {
        visitIfStatement(node);
    } else if (const auto* node = nodeAs<TryCatchStatement>(statement)) {
        visitTryCatchStatement(node);
    } else if (const auto* node = nodeAs<WhileStatement>(statement)) {
        visitWhileStatement(node);
    } else if (const auto* node = nodeAs<SwitchStatement>(statement)) {
        visitSwitchStatement(node);
    } else if (const auto* node = nodeAs<ForStatement>(statement)) {
        visitForStatement(node);
    } else if (const auto* node = nodeAs<SetStateStatement>(statement)) {
        visitSetStateStatement(node);
    } else if (nodeAs<AbstractStructDefinitionStatement>(statement) != nullptr ||
               nodeAs<StructDefinitionStatement>(statement) != nullptr) {
        // Structures were written at file scope; abstract ones write nothing.
    } else if (const auto* node = nodeAs<FunctionDefinitionStatement>(statement)) {
        visitFunctionDefinitionStatement(node);
    } else if (const auto* node = nodeAs<BlockStatement>(statement)) {
        visitBlockStatement(node);
    } else if (const auto* node = nodeAs<WebAppNode>(statement)) {
        visitWebAppNode(node);
    } else if (const auto* node = dynamic_cast<const WidgetNode*>(statement)) {
        visitWidgetNode(node);
    } else if (const auto* node = nodeAs<LogicBlockNode>(statement)) {
        visitLogicBlockNode(node);
    } else {
        return false;
    }
    return true;
}

/// Writes no braces and leaves the indentation alone: the callers do both.
void Generator::visitBlockStatement(const BlockStatement* block) {
    for (const auto& statement : block->statements) {
        if (statement != nullptr) visitStatement(statement.get());
    }
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

void Generator::visitExpressionStatement(const ExpressionStatement* statement) {
    visitExpression(statement->expression.get());
}

/// காத்திரு 0.5  ->  a sleep of 500 milliseconds; what is no number waits for 0.
void Generator::visitWaitStatement(const WaitStatement* statement) {
    out << "std::this_thread::sleep_for(std::chrono::milliseconds("
           "static_cast<long long>(fn_get_double(";
    visitExpression(statement->duration.get());
    out << ") * 1000)))";
}

void Generator::visitBreakStatement(const BreakStatement*) { out << "break"; }

void Generator::visitContinueStatement(const ContinueStatement*) { out << "continue"; }

void Generator::visitPassStatement(const PassStatement*) { out << "(void)0"; }

void Generator::visitSetStateStatement(const SetStateStatement*) {
    indent();
    out << "// UI-ஐப் புதுப்பித்தல்\n";
    indent();
    out << "updateUI();\n";
}
