// Conditions, loops, switch and try.
#include "generator/generator.h"
#include "generator/static_error.h"

namespace {

/// A list walk writes its body twice, so walks inside each other double the text every time.
constexpr int kMaxCollectionLoops = 12;

}  // namespace

/// A line that opens a brace, and one level more.
void Generator::openBrace(const std::string& head) {
    indent();
    out << head << "{\n";
    indentLevel++;
}

/// One level less, and the line that closes the brace.
void Generator::closeBrace(const std::string& tail) {
    indentLevel--;
    indent();
    out << "}" << tail;
}

void Generator::writeIndentedBlock(const BlockStatement* block) {
    indentLevel++;
    visitBlockStatement(block);
    indentLevel--;
}

/// எனில் நி: ... இல்லை: ...  ->  if (நி) { ... } else { ... }
void Generator::visitIfStatement(const IfStatement* statement) {
    indent();
    out << "if (";
    writeTruth(statement->condition.get());
    out << ") {\n";
    writeIndentedBlock(statement->thenBranch.get());
    indent();
    out << "}";
    if (const auto* next = dynamic_cast<const IfStatement*>(statement->elseBranch.get())) {
        out << " else ";
        visitIfStatement(next);  // its indentation included
    } else if (const auto* last =
                   dynamic_cast<const BlockStatement*>(statement->elseBranch.get())) {
        out << " else {\n";
        writeIndentedBlock(last);
        indent();
        out << "}\n";
    } else {
        out << "\n";
    }
}

/// சுற்று நி:  ->  while (நி) { ... }
void Generator::visitWhileStatement(const WhileStatement* loop) {
    indent();
    out << "while (";
    writeTruth(loop->condition.get());
    out << ") {\n";
    writeIndentedBlock(loop->body.get());
    indent();
    out << "}\n";
}

/// The loop's variable is a real C++ variable for the length of the loop.
void Generator::visitForStatement(const ForStatement* loop) {
    const std::string& variable = loop->variable.text;
    const bool wasLocal = localVariables.count(variable) != 0;
    localVariables[variable] = true;

    const auto* call = dynamic_cast<const CallExpression*>(loop->iterable.get());
    const auto* callee =
        call == nullptr ? nullptr : dynamic_cast<const VariableAccess*>(call->callee.get());
    if (callee != nullptr && callee->name == "வரம்பு") {
        writeCountedLoop(variable, *call);
        writeIndentedBlock(loop->body.get());
        indent();
        out << "}\n";
    } else {
        writeCollectionLoop(*loop);
    }
    if (!wasLocal) localVariables.erase(variable);
}

/// ஒவ்வொன்றாக v இல் வரம்பு(a, b):  ->  for (long long v = fn_index(a); v < fn_index(b); ++v) {
/// The bound is evaluated anew on every round.
void Generator::writeCountedLoop(const std::string& variable, const CallExpression& range) {
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
    out << "); ++" << variable << ") {\n";
}

/// A walk over a list's elements or a dictionary's keys, whichever the value holds when it runs:
/// so the body stands twice. The value must be an lvalue: it is bound by reference. Meant.
void Generator::writeCollectionLoop(const ForStatement& loop) {
    if (++collectionLoops > kMaxCollectionLoops) throw_static_error("பொழில்-291", "");
    const std::string& variable = loop.variable.text;

    openBrace("");
    indent();
    out << "auto& _iterable = ";
    visitExpression(loop.iterable.get());
    out << ";\n";

    openBrace("if (_iterable.type() == typeid(std::vector<std::any>)) ");
    openBrace("for (const auto& " + variable +
              "_any : std::any_cast<const std::vector<std::any>&>(_iterable)) ");
    writeLoopBody(variable, (variable + "_any").c_str(), loop);
    closeBrace(" else if (_iterable.type() == typeid(std::map<std::string, std::any>)) {\n");
    indentLevel++;
    openBrace(
        "for (const auto& pair : "
        "std::any_cast<const std::map<std::string, std::any>&>(_iterable)) ");
    writeLoopBody(variable, "std::any(pair.first)", loop);
    closeBrace(" else {\n");
    indentLevel++;
    indent();
    out << "    pozhil_runtime_error(\"பொழில்-313\", ";
    writePlace(loop.line);
    out << ");\n";
    closeBrace();
    closeBrace();
    collectionLoops--;
}

void Generator::writeLoopBody(const std::string& variable, const char* value,
                              const ForStatement& loop) {
    indent();
    out << "std::any " << variable << " = " << value << ";\n";
    visitBlockStatement(loop.body.get());
    closeBrace();
}

/// தேர்வு x: நிலை 1: ...  ->  a chain of ifs over fn_compare_any, without fall-through.
/// With a default alone the text begins with `else`, which the C++ compiler refuses. Meant.
void Generator::visitSwitchStatement(const SwitchStatement* statement) {
    openBrace("");
    indent();
    out << "auto _switch_val = ";
    visitExpression(statement->subject.get());
    out << ";\n";
    bool isFirst = true;
    for (const CaseBlock& block : statement->cases) {
        indent();
        out << (isFirst ? "if (" : "else if (") << "fn_compare_any(_switch_val, ";
        writeAny(block.value.get());
        out << ", \"==\")) {\n";
        visitBlockStatement(block.body.get());
        indent();
        out << "}\n";
        isFirst = false;
    }
    if (statement->defaultBlock != nullptr) {
        indent();
        out << "else {\n";
        visitBlockStatement(statement->defaultBlock.get());
        indent();
        out << "}\n";
    }
    closeBrace();
}

/// முயற்சி: ... பிடி (e): ...  ->  try { ... } catch (const std::exception& e) { ... }
/// The caught name is global, also inside a function.
void Generator::visitTryCatchStatement(const TryCatchStatement* statement) {
    openBrace("try ");
    visitBlockStatement(statement->tryBlock.get());
    closeBrace(" catch (const std::exception& e) {\n");
    indentLevel++;
    indent();
    out << "global_vars[\"" << statement->errorName << "\"] = std::any(std::string(e.what()));\n";
    visitBlockStatement(statement->catchBlock.get());
    closeBrace();
}
