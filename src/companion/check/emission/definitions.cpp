// Definitions: functions, methods, structures, and whether C++ takes their names.
#include <algorithm>
#include <string_view>

#include "companion/check/emission/walk.h"
#include "lexer/holds.h"
#include "lexer/utf8.h"

namespace companion {

namespace {

/// Words of C++, and names that its headers replace by something else: no variable can bear them.
constexpr std::string_view kNativeWords[] = {
    "alignas",
    "alignof",
    "and",
    "and_eq",
    "asm",
    "auto",
    "bitand",
    "bitor",
    "bool",
    "break",
    "case",
    "catch",
    "char",
    "char16_t",
    "char32_t",
    "class",
    "compl",
    "const",
    "const_cast",
    "constexpr",
    "continue",
    "decltype",
    "default",
    "delete",
    "do",
    "double",
    "dynamic_cast",
    "else",
    "enum",
    "explicit",
    "export",
    "extern",
    "false",
    "float",
    "for",
    "friend",
    "goto",
    "if",
    "inline",
    "int",
    "long",
    "mutable",
    "namespace",
    "new",
    "noexcept",
    "not",
    "not_eq",
    "nullptr",
    "operator",
    "or",
    "or_eq",
    "private",
    "protected",
    "public",
    "register",
    "reinterpret_cast",
    "return",
    "short",
    "signed",
    "sizeof",
    "static",
    "static_assert",
    "static_cast",
    "struct",
    "switch",
    "template",
    "this",
    "thread_local",
    "throw",
    "true",
    "try",
    "typedef",
    "typeid",
    "typename",
    "union",
    "unsigned",
    "using",
    "virtual",
    "void",
    "volatile",
    "wchar_t",
    "while",
    "xor",
    "xor_eq",
    "NULL",
    "EOF",
    "BUFSIZ",
    "RAND_MAX",
    "SEEK_SET",
    "SEEK_CUR",
    "SEEK_END",
    "INFINITY",
    "NAN",
    "HUGE_VAL",
    "M_PI",
    "M_E",
    "EXIT_SUCCESS",
    "EXIT_FAILURE",
    "CLOCKS_PER_SEC",
    "_tracker",
};

/// Functions of every program that take as many values of any kind: name and count.
struct RuntimeFunction {
    std::string_view name;
    std::size_t count;
};
constexpr RuntimeFunction kRuntimeFunctions[] = {
    {"நீளம்", 1},
    {"நகர்த்து", 1},
};

unsigned codePointOfBytes(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() == 1) return first;
    unsigned value = first & (0xFFU >> (bytes.size() + 1));
    for (const char byte : bytes.substr(1)) {
        value = (value << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return value;
}

struct CodePoints {
    unsigned first;
    unsigned last;
};

/// What g++ takes in a name beside ASCII. Marks like … and → aren't among it.
constexpr CodePoints kNameCharacters[] = {
    {0xA8, 0xA8},     {0xAA, 0xAA},     {0xAD, 0xAD},     {0xAF, 0xAF},       {0xB2, 0xB5},
    {0xB7, 0xBA},     {0xBC, 0xBE},     {0xC0, 0xD6},     {0xD8, 0xF6},       {0xF8, 0x167F},
    {0x1681, 0x180D}, {0x180F, 0x1FFF}, {0x200B, 0x200D}, {0x202A, 0x202E},   {0x203F, 0x2040},
    {0x2054, 0x2054}, {0x2060, 0x218F}, {0x2460, 0x24FF}, {0x2776, 0x2793},   {0x2C00, 0x2DFF},
    {0x2E80, 0x2FFF}, {0x3004, 0x3007}, {0x3021, 0x302F}, {0x3031, 0xD7FF},   {0xF900, 0xFD3D},
    {0xFD40, 0xFDCF}, {0xFDF0, 0xFE44}, {0xFE47, 0xFFFD}, {0x10000, 0xEFFFD},
};

bool isNameCharacter(unsigned code) {
    return code < 0x80 || std::any_of(std::begin(kNameCharacters), std::end(kNameCharacters),
                                      [&](const CodePoints& range) {
                                          return code >= range.first && code <= range.last;
                                      });
}

std::string firstWrongCharacter(const std::string& name) {
    for (const std::string_view bytes : splitCodePoints(name)) {
        if (bytes == "." || !isNameCharacter(codePointOfBytes(bytes))) return std::string(bytes);
    }
    return "";
}

}  // namespace

bool EmissionWalk::isReserved(const std::string& name) const { return holds(kNativeWords, name); }

/// A parameter, a loop's variable, a nested function and a structure bear their own names in C++.
void EmissionWalk::checkLocalName(const Statement& node, const std::string& name) {
    if (isReserved(name)) return tellWord("துணை-305", node, name, {name});
    const std::string wrong = firstWrongCharacter(name);
    if (!wrong.empty()) tellWord("துணை-306", node, name, {name, wrong});
}

void EmissionWalk::checkParameters(const Statement& definition,
                                   const std::vector<Param>& parameters) {
    std::set<std::string> names;
    for (const Param& parameter : parameters) {
        const std::string& name = parameter.name.text;
        checkLocalName(definition, name);
        if (!names.insert(name).second) tellWord("துணை-309", definition, name, {name});
    }
}

/// Its name is fn_ and the word: one of the runtime's own, or one that stands there already, can't
/// be had once more with as many parameters.
void EmissionWalk::checkFunctionName(const FunctionDefinitionStatement& function) {
    const std::string& name = function.name.text;
    const std::size_t count = function.parameters.size();
    const bool isRuntimes =
        std::any_of(std::begin(kRuntimeFunctions), std::end(kRuntimeFunctions),
                    [&](const auto& row) { return row.name == name && row.count == count; });
    const std::string wrong = firstWrongCharacter(name);
    if (isRuntimes) {
        tellWord("துணை-307", function, name, {name});
    } else if (!wrong.empty()) {
        tellWord("துணை-306", function, name, {name, wrong});
    }
    const std::string key = name + "/" + std::to_string(count);
    if (!emittedFunctions.insert(key).second && !importsItself) {
        tellWord("துணை-308", function, name, {name});
    }
}

void EmissionWalk::walkStructure(const StructDefinitionStatement& structure) {
    const std::string& name = structure.name.text;
    checkLocalName(structure, name);
    if (!emittedStructures.insert(name).second && !importsItself) {
        tellWord("துணை-341", structure, name, {name});
    }
    variableTypes[name] = VarType::Object;
    checkMethods(structure);
    currentStructure = name;
    for (const auto& method : structure.methods) walkFunction(*method, name);
    currentStructure.clear();
}

/// Written where an instance is made, so behind everything that may make one.
void EmissionWalk::walkFields(const StructDefinitionStatement& structure) {
    for (const auto& field : structure.fields) {
        knowledge.giveProperty(field->name, walk(*field->initializer).facts);
    }
    for (const auto& method : structure.methods) {
        knowledge.giveProperty(method->name.text, {kFunction, kNoKinds});
    }
}

void EmissionWalk::checkMethods(const StructDefinitionStatement& structure) {
    std::set<std::string> seen;
    for (const auto& method : structure.methods) {
        const std::string& name = method->name.text;
        const std::string key = name + "/" + std::to_string(method->parameters.size());
        if (!seen.insert(key).second) tellWord("துணை-344", *method, name, {name});
    }
}

/// At file scope, `structure` being the one whose method it is, or empty.
void EmissionWalk::walkFunction(const FunctionDefinitionStatement& function,
                                const std::string& structure) {
    const bool isMethod = !structure.empty();
    const std::string& name = function.name.text;
    if (!isMethod) checkFunctionName(function);
    checkParameters(function, function.parameters);

    currentFunction = name;
    currentResult = isMethod ? "" : name;
    locals.clear();
    blocks.clear();
    openBlock();
    for (std::size_t i = 0; i < function.parameters.size(); i++) {
        const Param& parameter = function.parameters[i];
        Local local;
        if (isMethod && i == 0) {
            local.cpp = Cpp::Object;
        } else if (!isMethod) {
            local.node = &parameter;
        }
        declare(parameter.name.text, local);
    }
    const int outerLoops = std::exchange(loops, 0);
    const int outerDepth = std::exchange(blockDepth, 0);
    walkBlock(function.body.get());
    loops = outerLoops;
    blockDepth = outerDepth;
    blocks.clear();
    locals.clear();
    currentFunction.clear();
    currentResult.clear();
}

/// A value in a local: it isn't in sight inside itself.
void EmissionWalk::walkNestedFunction(const FunctionDefinitionStatement& function) {
    const std::string& name = function.name.text;
    checkLocalName(function, name);
    checkParameters(function, function.parameters);
    const bool isDeclaredHere = !blocks.empty() && blocks.back().count(name) != 0 &&
                                locals.count(name) != 0 && locals[name].isVisible;
    if (isDeclaredHere) tellWord("துணை-346", function, name, {name});

    const Locals outerLocals = locals;
    const auto outerBlocks = std::exchange(blocks, {});
    const std::string outerFunction = std::exchange(currentFunction, name);
    const std::string outerResult = std::exchange(currentResult, "");
    const int outerLoops = std::exchange(loops, 0);
    openBlock();
    for (const Param& parameter : function.parameters) declare(parameter.name.text, Local{});
    walkBlock(function.body.get());
    loops = outerLoops;
    currentResult = outerResult;
    currentFunction = outerFunction;
    blocks = outerBlocks;
    locals = outerLocals;

    Local local;
    local.facts = {kFunction, kNoKinds};
    declare(name, local);
}

}  // namespace companion
