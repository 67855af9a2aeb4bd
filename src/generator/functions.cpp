// Functions and return. A top-level function becomes a free C++ function, one inside a function a
// std::function held in a local.
#include "generator/generator.h"

namespace {

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

void Generator::visitFunctionDefinitionStatement(const FunctionDefinitionStatement* definition) {
    visited = {nullptr, definition};
    if (currentFunction.empty()) {
        writeTopLevelFunction(*definition);
    } else {
        writeNestedFunction(*definition);
    }
}

/// செயல் கூடு(a, மாற்று b):  ->  std::any fn_கூடு(std::any a, std::any& b) { ... }
/// Of a structure's method the first parameter is the receiver. It starts at the margin, whatever
/// stands around it.
void Generator::writeTopLevelFunction(const FunctionDefinitionStatement& definition) {
    const bool isMethod = !currentStruct.empty();
    const std::string& name = definition.name.text;
    currentFunction = name;
    localVariables.clear();
    const int levelAround = indentLevel;
    indentLevel = 0;

    out << "std::any fn_" << (isMethod ? currentStruct + "_" : "") << name << "(";
    for (std::size_t i = 0; i < definition.parameters.size(); i++) {
        const Param& parameter = definition.parameters[i];
        localVariables[parameter.name.text] = true;
        if (i > 0) out << ", ";
        if (isMethod && i == 0) {
            out << "std::shared_ptr<_StructBase> ";
        } else {
            out << (parameter.isMutable ? "std::any& " : "std::any ");
        }
        out << parameter.name.text;
    }
    out << ") ";
    writeFunctionBody(definition, "return std::any(); // Default return");
    out << "\n\n";
    indentLevel = levelAround;
    currentFunction.clear();
    localVariables.clear();
}

/// { ... } with what counts the call before the statements, and `lastLine` behind them.
void Generator::writeFunctionBody(const FunctionDefinitionStatement& definition,
                                  const char* lastLine) {
    text.braces([&] {
        text.line("CallTracker _tracker(" + sourceFile + ");");
        visitBlockStatement(definition.body.get());
        out << "\n";
        text.line(lastLine);
    });
}

/// Its name becomes a local only behind it, so it can't call itself; a call by name goes the way
/// of a top-level function and isn't found by the C++ compiler. It is a value to hand on. Meant.
void Generator::writeNestedFunction(const FunctionDefinitionStatement& definition) {
    const std::string& name = definition.name.text;
    indent();
    out << "std::any " << name << " = std::any("
        << functionType(static_cast<int>(definition.parameters.size())) << "([=](";
    for (std::size_t i = 0; i < definition.parameters.size(); i++) {
        out << (i > 0 ? ", " : "") << "std::any " << definition.parameters[i].name.text;
    }
    out << ") mutable -> std::any ";

    const std::string enclosingFunction = currentFunction;
    const auto enclosingLocals = localVariables;
    currentFunction = name;
    for (const Param& parameter : definition.parameters) {
        localVariables[parameter.name.text] = true;
    }
    writeFunctionBody(definition, "return std::any();");
    out << "));\n";
    currentFunction = enclosingFunction;
    localVariables = enclosingLocals;
    localVariables[name] = true;
}

/// திரும்பு அ  ->  return std::any(அ)
/// Outside a function the value is dropped, and main ends. Meant.
void Generator::visitReturnStatement(const ReturnStatement* statement) {
    if (currentFunction.empty()) {
        out << "return 0; // C++ main requires int";
        return;
    }
    if (statement->value == nullptr) {
        out << "return std::any()";
        return;
    }
    checkReturnKind(*statement->value);
    out << "return ";
    writeAny(statement->value.get());
}

/// A function's name tells by convention what it returns. Raises 334 at the value's line.
void Generator::checkReturnKind(const Expression& value) {
    const VarType kind = inferExpressionType(&value);
    const std::string& name = currentFunction;
    const bool isCompound = kind == VarType::List || kind == VarType::Map;
    const bool isNumber = kind == VarType::Integer || kind == VarType::Decimal;
    const std::string subject = "'" + name + "' ஒரு ";
    const std::string other = " அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.";

    if (contains(name, "_எண்") || name == "எண்") {
        if (isCompound || kind == VarType::String || kind == VarType::Object) {
            பிழை("பொழில்-334", value.line, subject + "'எண்' (Number)-ஐ" + other);
        }
    } else if (contains(name, "_உரை") || name == "உரை") {
        if (isCompound || isNumber) {
            பிழை("பொழில்-334", value.line, subject + "'உரை' (String)-ஐ" + other);
        }
    } else if (contains(name, "_பட்டியல்") || name == "பட்டியல்") {
        if (kind != VarType::List && kind != VarType::Dynamic) {
            பிழை("பொழில்-334", value.line, subject + "'பட்டியல்' (List)-ஐ அனுப்ப வேண்டும்.");
        }
    }
}
