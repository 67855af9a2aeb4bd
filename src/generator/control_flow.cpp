// Conditions, loops, switch and try.
#include "generator/generator.h"
#include "generator/limits.h"
#include "static_error.h"

/// { ... } behind what stands on the line already.
void Generator::writeBraces(const BlockStatement* block) {
    text.braces([&] { visitBlockStatement(block); });
}

/// எனில் நி: ... இல்லை: ...  ->  if (நி) { ... } else { ... }
void Generator::visitIfStatement(const IfStatement* statement) {
    indent();
    out << "if (";
    writeTruth(statement->condition.get());
    out << ") ";
    writeBraces(statement->thenBranch.get());
    if (const auto* next = nodeAs<IfStatement>(statement->elseBranch.get())) {
        out << " else ";
        return visitIfStatement(next);  // its indentation included
    }
    if (const auto* last = nodeAs<BlockStatement>(statement->elseBranch.get())) {
        out << " else ";
        writeBraces(last);
    }
    out << "\n";
}

/// சுற்று நி:  ->  while (நி) { ... }
void Generator::visitWhileStatement(const WhileStatement* loop) {
    indent();
    out << "while (";
    writeTruth(loop->condition.get());
    out << ") ";
    writeBraces(loop->body.get());
    out << "\n";
}

/// The loop's variable is a real C++ variable for the length of the loop.
void Generator::visitForStatement(const ForStatement* loop) {
    const std::string& variable = loop->variable.text;
    const bool wasLocal = localVariables.count(variable) != 0;
    localVariables[variable] = true;

    const auto* call = nodeAs<CallExpression>(loop->iterable.get());
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    if (callee != nullptr && callee->name == "வரம்பு") {
        writeCountedLoop(*loop, *call);
    } else {
        writeCollectionLoop(*loop);
    }
    if (!wasLocal) localVariables.erase(variable);
}

/// ஒவ்வொன்றாக v இல் வரம்பு(a, b):  ->  for (long long v = fn_index(a); v < fn_index(b); ++v) { ... }
/// The bound is evaluated anew on every round.
void Generator::writeCountedLoop(const ForStatement& loop, const CallExpression& range) {
    const std::string& variable = loop.variable.text;
    const std::size_t count = range.arguments.size();
    if (count != 1 && count != 2) {
        throw_static_error("பொழில்-331", "'வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்.");
    }
    indent();
    out << "for (long long " << variable << " = ";
    if (count == 1) {
        out << "0";
    } else {
        out << "fn_index(";
        visitExpression(range.arguments[0].get());
        out << ")";
    }
    out << "; " << variable << " < fn_index(";
    visitExpression(range.arguments[count - 1].get());
    out << "); ++" << variable << ") ";
    writeBraces(loop.body.get());
    out << "\n";
}

/// A walk over a list's elements or a dictionary's keys, whichever the value holds when it runs:
/// so the body stands twice. The value must be an lvalue: it is bound by reference. Meant.
void Generator::writeCollectionLoop(const ForStatement& loop) {
    if (++collectionLoops > kMaxCollectionLoops) throw_static_error("பொழில்-291", "");
    const std::string element = loop.variable.text + "_any";
    text.block("", [&] {
        indent();
        out << "auto& _iterable = ";
        visitExpression(loop.iterable.get());
        out << ";\n";

        indent();
        out << "if (_iterable.type() == typeid(std::vector<std::any>)) ";
        text.braces([&] {
            writeWalk("for (const auto& " + element +
                          " : std::any_cast<const std::vector<std::any>&>(_iterable)) ",
                      element, loop);
        });
        out << " else if (_iterable.type() == typeid(std::map<std::string, std::any>)) ";
        text.braces([&] {
            writeWalk(
                "for (const auto& pair : "
                "std::any_cast<const std::map<std::string, std::any>&>(_iterable)) ",
                "std::any(pair.first)", loop);
        });
        out << " else ";
        text.braces([&] {
            indent();
            out << "    pozhil_runtime_error(\"பொழில்-313\", ";
            writePlace(loop.line);
            out << ");\n";
        });
        out << "\n";
    });
    collectionLoops--;
}

/// One of the two walks: `value` is the C++ text of what the loop's variable takes.
void Generator::writeWalk(const std::string& head, const std::string& value,
                          const ForStatement& loop) {
    text.block(head, [&] {
        text.line("std::any " + loop.variable.text + " = " + value + ";");
        visitBlockStatement(loop.body.get());
    });
}

/// தேர்வு x: நிலை 1: ...  ->  a chain of ifs over fn_compare_any, without fall-through.
/// The cases' bodies stand at the level of their ifs. With a default alone the text begins with
/// `else`, which the C++ compiler refuses. Both meant.
void Generator::visitSwitchStatement(const SwitchStatement* statement) {
    text.block("", [&] {
        indent();
        out << "auto _switch_val = ";
        visitExpression(statement->subject.get());
        out << ";\n";
        const char* head = "if (";
        for (const CaseBlock& block : statement->cases) {
            indent();
            out << head << "fn_compare_any(_switch_val, ";
            writeAny(block.value.get());
            out << ", \"==\")) {\n";
            visitBlockStatement(block.body.get());
            text.line("}");
            head = "else if (";
        }
        if (statement->defaultBlock == nullptr) return;
        text.line("else {");
        visitBlockStatement(statement->defaultBlock.get());
        text.line("}");
    });
}

/// முயற்சி: ... பிடி (e): ...  ->  try { ... } catch (const std::exception& e) { ... }
/// The caught name is global, also inside a function.
void Generator::visitTryCatchStatement(const TryCatchStatement* statement) {
    indent();
    out << "try ";
    writeBraces(statement->tryBlock.get());
    out << " catch (const std::exception& e) ";
    text.braces([&] {
        text.line("global_vars[\"" + statement->errorName +
                  "\"] = std::any(std::string(e.what()));");
        visitBlockStatement(statement->catchBlock.get());
    });
    out << "\n";
}
