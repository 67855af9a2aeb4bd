// Structures: an empty C++ struct gives std::make_shared a type and inheritance a shape; fields
// and methods live in each instance's properties.
#include <algorithm>

#include "generator/generator.h"
#include "static_error.h"

void Generator::visitStructDefinitionStatement(const StructDefinitionStatement* definition) {
    visited = {nullptr, definition};
    const std::string& name = definition->name.text;
    structNames[name] = true;
    std::string base = "_StructBase";
    if (definition->hasParent) {
        const std::string& parent = definition->parentName.text;
        if (abstractStructDefinitions.count(parent) == 0) {
            if (structDefinitions.count(parent) == 0) {
                பிழை("பொழில்-323", definition->line, "'" + parent + "'");
            }
            base = parent;
        }
    }
    out << "struct " << name << " : public " << base << " {\n";
    writeMemberComments(*definition, true);
    writeMemberComments(*definition, false);
    out << "};\nusing T_" << name << " = std::shared_ptr<" << name << ">;\n";
    variableTypes[name] = VarType::Object;

    currentStruct = name;
    for (const auto& method : definition->methods) visitFunctionDefinitionStatement(method.get());
    currentStruct.clear();
}

/// The members of one visibility, as comments: privacy has no meaning in C++ here, the generator
/// itself keeps it.
void Generator::writeMemberComments(const StructDefinitionStatement& definition, bool isPrivate) {
    const auto matches = [&](const auto& member) { return member->isPrivate == isPrivate; };
    const auto& fields = definition.fields;
    const auto& methods = definition.methods;
    if (std::none_of(fields.begin(), fields.end(), matches) &&
        std::none_of(methods.begin(), methods.end(), matches)) {
        return;
    }
    out << (isPrivate ? "private:\n" : "public:\n");
    for (const auto& field : fields) {
        if (!matches(field)) continue;
        indent();
        out << "// " << field->name << "\n";
    }
    for (const auto& method : methods) {
        if (!matches(method)) continue;
        indent();
        out << "// " << method->name.text << "()\n";
    }
}

/// The parent's members first, so that the child's of the same name replace them.
void Generator::bindPropertiesAndMethods(const std::string& structName,
                                         const std::string& objectName) {
    const std::vector<const StructDefinitionStatement*> ancestry = openAncestry(structName);
    for (auto at = ancestry.rbegin(); at != ancestry.rend(); ++at) {
        const std::string& owner = (*at)->name.text;
        for (const auto& field : (*at)->fields) {
            indent();
            out << objectName << "->properties[\"" << field->name << "\"] = ";
            writeAny(field->initializer.get());
            out << ";\n";
        }
        for (const auto& method : (*at)->methods) writeMethodBinding(owner, objectName, *method);
        boundStructs.erase(owner);
    }
}

/// The structure, its parent, and so on up to the first that is abstract or has none; all of them
/// count as being written from here on. Raises 335 at the structure's line if a field makes the
/// structure that it belongs to, directly or by way of others: the text would never end, and
/// neither would the program.
std::vector<const StructDefinitionStatement*> Generator::openAncestry(const std::string& name) {
    std::vector<const StructDefinitionStatement*> ancestry;
    for (const std::string* next = &name; next != nullptr;) {
        const auto found = structDefinitions.find(*next);
        if (found == structDefinitions.end()) {
            if (abstractStructDefinitions.count(*next) != 0) break;
            பிழை("பொழில்-323", 0, "'" + *next + "'");
        }
        const StructDefinitionStatement* definition = found->second;
        if (!boundStructs.insert(*next).second) {
            பிழை("பொழில்-335", definition->name.line, "'" + *next + "'");
        }
        ancestry.push_back(definition);
        next = definition->hasParent ? &definition->parentName.text : nullptr;
    }
    return ancestry;
}

/// A method as a function value that holds its instance. All parameters go by value.
void Generator::writeMethodBinding(const std::string& structName, const std::string& objectName,
                                   const FunctionDefinitionStatement& method) {
    const auto& parameters = method.parameters;
    const std::string& name = method.name.text;
    const Visited around = visited;
    visited = {nullptr, &method};
    indent();
    out << objectName << "->properties[\"" << name << "\"] = std::any("
        << functionType(static_cast<int>(parameters.size()) - 1) << "([=](";
    for (std::size_t i = 1; i < parameters.size(); i++) {
        out << (i > 1 ? ", " : "") << "std::any " << parameters[i].name.text;
    }
    out << ") { return fn_" << structName << "_" << name
        << "(std::static_pointer_cast<_StructBase>(" << objectName << ")";
    for (std::size_t i = 1; i < parameters.size(); i++) out << ", " << parameters[i].name.text;
    out << "); }));\n";
    visited = around;
}

/// S(1)  ->  an immediately invoked lambda that makes, fills and starts the instance.
/// An inherited `துவக்கம்` is found. Raises 333 for arguments that no `துவக்கம்` takes, and 291
/// without a line for structures whose fields make structures beyond what the stack holds: the
/// parser bounds the depth of a single expression alone.
void Generator::writeConstructor(const CallExpression& call, const std::string& structName) {
    if (stack.halfUsed()) throw_static_error("பொழில்-291", "");
    const std::string instance = "std::static_pointer_cast<_StructBase>(temp_obj)";
    out << "[&]() -> std::any ";
    text.braces([&] {
        text.line("auto temp_obj = std::make_shared<" + structName + ">();");
        bindPropertiesAndMethods(structName, "temp_obj");
        writeConstructorCall(call, structName, constructorOwner(structName), instance);
        text.line("return std::any(" + instance + ");");
    });
    out << "()";
}

/// The structure itself or the nearest ancestor that has a `துவக்கம்`; empty if none has.
std::string Generator::constructorOwner(const std::string& structName) const {
    for (auto at = structDefinitions.find(structName); at != structDefinitions.end();) {
        const StructDefinitionStatement& candidate = *at->second;
        if (hasConstructor(candidate)) return at->first;
        if (!candidate.hasParent) break;
        at = structDefinitions.find(candidate.parentName.text);
    }
    return "";
}

bool Generator::hasConstructor(const StructDefinitionStatement& definition) {
    const auto& methods = definition.methods;
    return std::any_of(methods.begin(), methods.end(),
                       [](const auto& method) { return method->name.text == "துவக்கம்"; });
}

/// The call of the `துவக்கம்` that `owner` has; of none if it is empty, which takes no arguments.
void Generator::writeConstructorCall(const CallExpression& call, const std::string& structName,
                                     const std::string& owner, const std::string& instance) {
    if (owner.empty()) {
        if (call.arguments.empty()) return;
        பிழை("பொழில்-333", call.line, "'" + structName + "' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.");
    }
    indent();
    out << "fn_" << owner << "_துவக்கம்(" << instance;
    for (const auto& argument : call.arguments) {
        out << ", ";
        writeAny(argument.get());
    }
    out << ");\n";
}
