// Statement forms that today's grammar doesn't lead to: it makes assignments expressions. They
// stay, since the dispatch over the nodes knows them.
#include "generator/generator.h"

/// A declaration as a statement. Inside a function a new local that is a list or a map, and an
/// object that no constructor makes, come out as text that the C++ compiler refuses. Meant.
void Generator::visitVarDeclaration(const VarDeclaration* declaration) {
    const std::string& name = declaration->name;
    const Expression* value = declaration->initializer.get();
    if (name == "மாறிலி") constants.insert(name);

    const bool inFunction = !currentFunction.empty();
    if (inFunction && localVariables.count(name) == 0 && variableTypes.count(name) == 0) {
        localVariables[name] = true;
        out << "std::any ";
    }
    VarType type = declaration->type;
    if (type == VarType::Unset) type = inferExpressionType(value);
    if (type == VarType::Map || type == VarType::List || !inFunction) variableTypes[name] = type;

    const bool isGlobal = !inFunction || variableTypes.count(name) != 0;
    out << (isGlobal ? "global_vars[\"" + name + "\"]" : name);

    if (type == VarType::Object) {
        out << " = std::any();\n";
        const auto* call = nodeAs<CallExpression>(value);
        const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
        if (callee != nullptr && structNames.count(callee->name) != 0) {
            return writeStatementConstructor(name, *call);
        }
    }
    const VarType kind = inferExpressionType(value);
    out << " = ";
    if (type == VarType::Time || kind == VarType::Object || kind == VarType::List ||
        kind == VarType::Map || kind == VarType::Time) {
        visitExpression(value);
    } else {
        writeAny(value);
    }
}

/// An instance in a variable of its own. Only the structure's own `துவக்கம்` is found here, not an
/// inherited one. Meant.
void Generator::writeStatementConstructor(const std::string& name, const CallExpression& call) {
    const std::string structName = dynamic_cast<const VariableAccess&>(*call.callee).name;
    const std::string object = "obj_" + name;
    variableTypes[name] = VarType::Object;
    indent();
    out << "auto " << object << " = std::make_shared<" << structName << ">();\n";
    bindPropertiesAndMethods(structName, object);

    const std::string instance = "std::static_pointer_cast<_StructBase>(" + object + ")";
    const auto definition = structDefinitions.find(structName);
    const bool isOwn = definition != structDefinitions.end() && hasConstructor(*definition->second);
    writeConstructorCall(call, structName, isOwn ? structName : "", instance);
    indent();
    out << (currentFunction.empty() ? "global_vars[\"" + name + "\"]" : name) << " = std::any("
        << instance << ")";
}

/// அ[0] = 1 and அ.ஆ = 1 as statements. Any other target writes nothing.
void Generator::visitSetStatement(const SetStatement* statement) {
    if (const auto* element = nodeAs<IndexExpression>(statement->target.get())) {
        // File and line are left to their defaults: a failure shows an empty name and line 0.
        // Meant.
        out << "fn_index_ref(";
        visitExpression(element->object.get());
        out << ", ";
        writeAny(element->index.get());
        out << ") = ";
        writeAny(statement->value.get());
        return;
    }
    const auto* member = nodeAs<GetExpression>(statement->target.get());
    if (member == nullptr) return;

    const int line = statement->line;
    const VarType kind = inferExpressionType(member->object.get());
    if (kind == VarType::Time) பிழை("பொழில்-322", line, "");
    if (kind != VarType::Object) {
        பிழை("பொழில்-304", line, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
    checkPrivateField(member->object.get(), member->name.text, line);
    out << "std::any_cast<std::shared_ptr<_StructBase>>(";
    visitExpression(member->object.get());
    out << ")->properties[\"" << member->name.text << "\"] = ";
    writeAny(statement->value.get());
}

/// As the table maps the word to `+=`, the text assigns to a temporary. Meant.
void Generator::visitCompoundAssignmentStatement(const CompoundAssignmentStatement* statement) {
    visitExpression(statement->target.get());
    out << " = std::any(std::any_cast<long long>(";
    visitExpression(statement->target.get());
    out << ") " << mapOperator(statement->op.text) << " std::any_cast<long long>(";
    visitExpression(statement->value.get());
    out << "))";
}

void Generator::visitIncrementStatement(const IncrementStatement* statement) {
    visitExpression(statement->target.get());
    out << " = std::any(std::any_cast<long long>(";
    visitExpression(statement->target.get());
    out << ") " << mapOperator(statement->op.text) << ")";
}
