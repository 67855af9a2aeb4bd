// A walk over the program as the generator walks it: for every expression the C++ type that its
// text yields, and what kinds of values may be held there. What g++ will refuse and what must end
// the program follows from both.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "companion/check/compiled_source.h"
#include "companion/check/emission/kinds.h"
#include "companion/check/emission/knowledge.h"
#include "companion/check/findings.h"
#include "syntax/application.h"
#include "syntax/database.h"
#include "syntax/literals.h"

namespace companion {

/// A real C++ variable: a parameter, a loop's variable, a nested function.
struct Local {
    Cpp cpp = Cpp::Any;
    const void* node = nullptr;  ///< By which its facts are known; null: it may hold anything.
    Facts facts = kAnything;     ///< Where `node` is null.
    bool isConst = false;        ///< A copy that a lambda holds.
    bool isVisible = true;       ///< False behind the block that it was made in.
};

class EmissionWalk {
public:
    /// Gathers into `knowledge`; with `findings` it tells what it finds, too.
    EmissionWalk(const CompiledSource& compiled, Knowledge& knowledge, Findings* findings);

    void walkProgram();

private:
    // ---- Telling: nothing is told of what was imported ----
    template <typename Node>
    void tell(const char* code, const Node& node, const std::vector<std::string>& parts = {});
    void tellWord(const char* code, const Statement& node, const std::string& word,
                  const std::vector<std::string>& parts = {});
    void tellAt(const char* code, std::optional<Range> range,
                const std::vector<std::string>& parts);
    /// The same for what ends the program, unless it may be caught.
    template <typename Node>
    void tellStop(const char* code, const Node& node, const std::vector<std::string>& parts = {});
    void tellSides(const char* code, const BinaryExpression& binary);
    bool isCaught() const;
    std::string textOf(const Expression& node) const;

    // ---- Definitions ----
    template <typename Definition, typename Visit>
    void walkDefinitions(Visit visit);
    void walkStructure(const StructDefinitionStatement& structure);
    void walkFields(const StructDefinitionStatement& structure);
    void walkFunction(const FunctionDefinitionStatement& function, const std::string& structure);
    void walkNestedFunction(const FunctionDefinitionStatement& function);
    void checkFunctionName(const FunctionDefinitionStatement& function);
    void checkMethods(const StructDefinitionStatement& structure);
    void checkParameters(const Statement& definition, const std::vector<Param>& parameters);
    void checkLocalName(const Statement& node, const std::string& name);
    bool isReserved(const std::string& name) const;

    // ---- Statements ----
    void walkBlock(const BlockStatement* block);
    void walkBody(const BlockStatement* block);
    void walkStatement(const Statement& statement);
    bool walkControlFlow(const Statement& statement);
    void walkIf(const IfStatement& statement);
    void walkFor(const ForStatement& loop);
    void walkCountedLoop(const ForStatement& loop, const CallExpression& range);
    void walkCollectionLoop(const ForStatement& loop);
    void walkLoopBody(const ForStatement& loop, Local variable);
    void walkSwitch(const SwitchStatement& statement);
    void walkTry(const TryCatchStatement& statement);
    void walkReturn(const ReturnStatement& statement);
    void walkJump(const Statement& statement, const char* word);
    void walkApplication(const WebAppNode& app);
    void walkLogic(const Statement* statement);
    void walkWidget(const WidgetNode& widget);

    // ---- Expressions ----
    Value walk(const Expression& expression);
    std::optional<Value> walkLiteral(const Expression& expression);
    Value walkOperation(const Expression& expression);
    Value walkNumber(const NumberLiteral& literal);
    Value walkText(const Expression& node, const std::string& text);
    Value walkVariable(const VariableAccess& access);
    Value walkAssignment(const AssignmentExpression& assignment);
    void walkCompound(const AssignmentExpression& assignment, const Value& target,
                      const Value& value);
    Value targetOf(const AssignmentExpression& assignment);
    void checkLocalTarget(const AssignmentExpression& assignment, const Value& target,
                          const Value& value);
    Value walkMember(const GetExpression& access);
    Value walkSetMember(const SetMemberExpression& assignment);
    Value walkIndex(const IndexExpression& access);
    void checkIndex(const Expression& index, const Value& object, const Value& place);
    Value walkList(const ListLiteral& list);
    Value walkMap(const MapLiteral& map);
    Value walkLambda(const LambdaExpression& lambda);
    Value walkTernary(const TernaryExpression& ternary);
    Value walkUnary(const UnaryExpression& unary);
    Value walkGrouping(const GroupingExpression& grouping);
    Value walkLogical(const LogicalExpression& logical);

    // ---- Operators ----
    struct Sides {
        Value left;
        Value right;
    };
    Value walkBinary(const BinaryExpression& binary);
    Value operate(const BinaryExpression& binary, const Sides& sides);
    Value operateNative(const BinaryExpression& binary, const Sides& sides, VarType kind);
    Cpp castSide(const Expression& side, const Value& value, Cpp type);
    void checkSum(const BinaryExpression& binary, const Sides& sides);
    Value divide(const BinaryExpression& binary, const Sides& sides, VarType kind);
    Value compare(const BinaryExpression& binary, const Sides& sides, VarType kind);
    void walkTruth(const Expression& side);
    void requireTruth(const Expression& node, const Value& value);

    /// The value is cast to a native number in a calculation; `wanted` is one kind.
    void requireNumber(const Expression& node, const Value& value, Kinds wanted);
    /// Raises what g++ makes of a cast of a null pointer; true if it does.
    bool refusesCast(const Expression& node, const Value& value);

    // ---- Calls ----
    Value walkCall(const CallExpression& call);
    std::vector<Value> walkArguments(const CallExpression& call);
    Value walkNamedCall(const CallExpression& call, const VariableAccess& callee);
    Value walkUserCall(const CallExpression& call, const std::string& name);
    void passArgument(const Param& parameter, const Expression& argument);
    Value walkConstructor(const CallExpression& call, const std::string& name);
    Value walkMemberCall(const CallExpression& call, const GetExpression& callee);
    Value walkAppend(const CallExpression& call, const GetExpression& callee);
    Value walkDirectCall(const CallExpression& call);
    Value walkBuiltin(const CallExpression& call, const std::string& name);
    void checkArgument(const CallExpression& call, std::size_t index, char wanted,
                       const Value& value, const std::string& name);
    void checkBuiltinCall(const CallExpression& call, const std::string& name);
    void checkResultIsKept(const Expression& expression);
    void checkGivesSomething(const Expression& node, const Value& value);
    Value walkIndexStore(const CallExpression& call);
    Value walkIndexTarget(const Expression& expression);
    void addElement(const Expression& container, const Value& value);
    bool isBuiltin(const std::string& name) const;

    // ---- What the compiler takes an expression for, before anything in it is visited ----
    VarType guess(const Expression* expression) const;
    VarType guessCall(const CallExpression& call) const;
    VarType guessVariable(const VariableAccess& access) const;
    VarType guessMember(const GetExpression& access) const;

    // ---- Names in sight ----
    using Locals = std::map<std::string, Local>;
    bool isLocal(const std::string& name) const { return locals.count(name) != 0; }
    void declare(const std::string& name, const Local& local);
    void openBlock() { blocks.emplace_back(); }
    void closeBlock();
    Value valueOfLocal(const Local& local) const;

    const CompiledSource& compiled;
    Knowledge& knowledge;
    Findings* findings;

    std::unordered_map<std::string, VarType> variableTypes;
    Locals locals;
    std::vector<std::map<std::string, std::optional<Local>>> blocks;  ///< What each one hides.
    std::unordered_set<std::string> emittedFunctions;                 ///< Those that can be called.
    std::set<std::string> emittedStructures;
    std::unordered_map<std::string, const FunctionDefinitionStatement*> functionNodes;
    std::set<std::string> boundStructures;
    std::string currentFunction;
    std::string currentStructure;
    std::string currentResult;  ///< The function whose results are gathered; empty in others.
    const Expression* memberAssignment = nullptr;  ///< The one that stands as a statement.
    int loops = 0;
    int tries = 0;
    int blockDepth = 0;  ///< Blocks around the cursor, without those of definitions.
    bool isInHandler = false;
    bool importsItself = false;  ///< So that everything is defined twice.
};

/// The whole number that is written there; false if it isn't one.
bool readsWhole(const Expression& node, long long& number);

/// The import by which the program asks for itself; nothing if there is none.
std::optional<Range> findImportOfItself(const CompiledSource& compiled);

template <typename Node>
void EmissionWalk::tell(const char* code, const Node& node, const std::vector<std::string>& parts) {
    if (findings != nullptr) tellAt(code, compiled.rangeOf(node), parts);
}

template <typename Node>
void EmissionWalk::tellStop(const char* code, const Node& node,
                            const std::vector<std::string>& parts) {
    if (!isCaught()) tell(code, node, parts);
}

}  // namespace companion
