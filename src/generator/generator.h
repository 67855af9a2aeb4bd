// The generator: tree in, the whole text of one C++17 translation unit out. Runtime text comes
// from src/emitted, in the order of the table in frame.cpp; the program's own text is written by
// the visitors, which tell nodes apart by their type and append to one stream.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "syntax/application.h"
#include "syntax/database.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/nesting.h"
#include "syntax/node.h"
#include "syntax/statements.h"
#include "syntax/var_type.h"
#include "writing/text_writer.h"

struct PozhilColor;
struct ProgramText;
class WebForm;

class Generator {
public:
    /// Keeps a reference to `program`, which must outlive the generator; all else is copied, or
    /// moved in. The tables are the parser's. `filename` is the path as the user gave it: it goes
    /// into the text.
    Generator(
        const Program& program, const std::map<std::string, std::vector<Param>>& functionParameters,
        const std::map<std::string, StructDefinitionStatement*>& structDefinitions,
        const std::map<std::string, AbstractStructDefinitionStatement*>& abstractStructDefinitions,
        std::string sourceText, std::string filename);
    ~Generator();

    /// The whole translation. Called once. Throws std::runtime_error by throw_static_error, and
    /// lets the exceptions of number conversion through.
    std::string generate();

    /// Appends four blanks a level.
    void indent();
    /// Line `line` of the source, counted from 1; "" if there is none.
    std::string getLineText(int line);
    /// Reports `code` at `line`, with `detail` in brackets unless it is empty, and ends the
    /// process. A code that the catalogue lacks is told in one line on standard error.
    [[noreturn]] void பிழை(const std::string& code, int line, const std::string& detail);

    /// The best estimate of what an expression holds; Dynamic if nothing better is known.
    /// Raises 325 for the receiver's name outside a structure.
    VarType inferExpressionType(const Expression* expression);
    /// C++ token of an operator word. Raises 304 at line 0 for a word that has none.
    std::string mapOperator(const std::string& word);

    // ---- Statements ----
    void visitStatement(const Statement* statement);
    void visitBlockStatement(const BlockStatement* block);
    void visitPrintStatement(const PrintStatement* print);
    void visitExpressionStatement(const ExpressionStatement* statement);
    void visitVarDeclaration(const VarDeclaration* declaration);
    void visitSetStatement(const SetStatement* statement);
    void visitCompoundAssignmentStatement(const CompoundAssignmentStatement* statement);
    void visitIncrementStatement(const IncrementStatement* statement);
    void visitIfStatement(const IfStatement* statement);
    void visitWhileStatement(const WhileStatement* loop);
    void visitForStatement(const ForStatement* loop);
    void visitSwitchStatement(const SwitchStatement* statement);
    void visitTryCatchStatement(const TryCatchStatement* statement);
    void visitWaitStatement(const WaitStatement* statement);
    void visitBreakStatement(const BreakStatement* statement);
    void visitContinueStatement(const ContinueStatement* statement);
    void visitPassStatement(const PassStatement* statement);
    void visitSetStateStatement(const SetStateStatement* statement);
    void visitReturnStatement(const ReturnStatement* statement);
    void generateLogic(const Statement* statement);
    void visitLogicBlockNode(const LogicBlockNode* logic);

    // ---- Definitions ----
    void visitFunctionDefinitionStatement(const FunctionDefinitionStatement* definition);
    void visitStructDefinitionStatement(const StructDefinitionStatement* definition);
    /// Writes what fills the properties of `objectName`, a new instance of `structName`.
    void bindPropertiesAndMethods(const std::string& structName, const std::string& objectName);

    // ---- Expressions ----
    void visitExpression(const Expression* expression);
    void visitNumberLiteral(const NumberLiteral* literal);
    void visitDoubleLiteral(const DoubleLiteral* literal);
    void visitStringLiteral(const StringLiteral* literal);
    void visitCharLiteral(const CharLiteral* literal);
    void visitBooleanLiteral(const BooleanLiteral* literal);
    void visitVariableAccess(const VariableAccess* access);
    void visitAssignmentExpression(const AssignmentExpression* assignment);
    void visitGetExpression(const GetExpression* access);
    void visitSetMemberExpression(const SetMemberExpression* assignment);
    void visitIndexExpression(const IndexExpression* access);
    void visitListLiteral(const ListLiteral* list);
    void visitMapLiteral(const MapLiteral* map);
    void visitLambdaExpression(const LambdaExpression* lambda);
    void visitTernaryExpression(const TernaryExpression* ternary);
    void visitBinaryExpression(const BinaryExpression* binary);
    void visitLogicalExpression(const LogicalExpression* logical);
    void visitUnaryExpression(const UnaryExpression* unary);
    void visitGroupingExpression(const GroupingExpression* grouping);
    void visitCallExpression(const CallExpression* call);

    // ---- The realtime database ----
    void visitDatabaseManagerNode(const DatabaseManagerNode* manager);
    void visitFirebaseConfigNode(const FirebaseConfigNode* config);
    void visitRTDBInsertExpression(const RTDBInsertExpression* insert);
    void visitRTDBUpdateExpression(const RTDBUpdateExpression* update);
    void visitRTDBDeleteExpression(const RTDBDeleteExpression* removal);
    void visitRTDBReadStatement(const RTDBReadStatement* read);

    // ---- Web applications: handed on to the web form ----
    void generateWebBoilerplate(const ScreenConfig& screen);
    void visitWebAppNode(const WebAppNode* app);
    void generateUI(const Statement* statement);
    void generateHeader(const Statement* statement);
    void visitWidgetNode(const WidgetNode* widget);
    void genTextWidget(const WidgetNode* widget);
    void genColumnWidget(const WidgetNode* widget);
    /// Draws a widget; `x` and `y` are C++ expressions for its place, in pixels.
    void generateWidgetCode(const WidgetNode* widget, const std::string& x, const std::string& y);
    PozhilColor parsePozhilColor(std::string value, bool isHex);
    void visitColorExpression(const ColorExpression* colour);

    // Kept empty: a widget lays out, styles and listens where it is drawn.
    void genButtonWidget(const WidgetNode*) {}
    void calculateLayout(const WidgetNode*) {}
    void applyStyles(const WidgetNode*) {}
    void generateEventHandlers(const WebAppNode*) {}

    const Program& program;
    std::stringstream out;
    std::map<std::string, VarType> variableTypes;  ///< Kind last assigned, in traversal order.
    std::map<std::string, bool> structNames;       ///< Structures already emitted.
    std::set<std::string> constants;
    std::map<std::string, StructDefinitionStatement*> structDefinitions;
    std::map<std::string, AbstractStructDefinitionStatement*> abstractStructDefinitions;
    std::string currentStruct;  ///< Structure whose methods are emitted; empty outside.
    std::map<std::string, std::vector<Param>> functionParameters;
    std::string currentFunction;  ///< Function being emitted; empty at top level.
    std::string sourceText;
    std::string filename;
    /// Names that are real C++ variables here: parameters, loop variables, nested functions. Every
    /// other name lives in global_vars.
    std::map<std::string, bool> localVariables;
    int indentLevel = 0;

    /// What was visited last, for tools that point at what was refused without a line.
    struct Visited {
        const Expression* expression = nullptr;  ///< Null behind the begin of a statement.
        const Statement* statement = nullptr;
    } visited;

private:
    /// One section of the generated file: fixed text, or text that a function writes.
    struct Section {
        const char* title;
        std::string_view text;
        void (Generator::*write)();
        bool isHeld = false;  ///< an object may hold it compiled
    };
    static const Section kSections[];

    ProgramText programText();
    void writeText(std::string_view section);
    template <typename Definition, typename Visit>
    void visitDefinitions(Visit visit);
    /// A call of the database by its template, in a block that only the browser's build reads.
    void writeForBrowser(std::string_view call, const Fills& fills);
    void writeJsonPairs(const MapLiteral& data, bool areAllQuoted);

    void writeStructures();
    void writeFunctions();
    void writeInitGlobals();
    void writeMain();
    void writeConsoleMain();

    // ---- Pieces of text that many visitors write ----
    /// The visitor's text as a value of its own: std::any( ... )
    void writeAny(const Expression* expression);
    /// Arguments as std::any values, joined by commas.
    void writeAnyList(const std::vector<std::unique_ptr<Expression>>& arguments);
    /// "source path", line
    void writePlace(int line);
    /// The std::function type of a language function with that many parameters; a negative count
    /// is none.
    static std::string functionType(int parameterCount);

    // ---- Statements ----
    bool visitSimpleStatement(const Statement* statement);
    bool visitIndentingStatement(const Statement* statement);
    void writeCountedLoop(const ForStatement& loop, const CallExpression& range);
    void writeCollectionLoop(const ForStatement& loop);
    void writeWalk(const std::string& head, const std::string& value, const ForStatement& loop);
    void writeBraces(const BlockStatement* block);
    void writeStatementConstructor(const std::string& name, const CallExpression& call);
    std::string constructorOwner(const std::string& structName) const;
    static bool hasConstructor(const StructDefinitionStatement& definition);
    void writeConstructorCall(const CallExpression& call, const std::string& structName,
                              const std::string& owner, const std::string& instance);
    void checkReturnKind(const Expression& value);

    // ---- Kinds ----
    VarType inferCall(const CallExpression& call);
    VarType inferVariable(const VariableAccess& access);
    VarType inferMember(const GetExpression& access);
    struct SideKinds {
        VarType left;
        VarType right;
    };
    using ChainKinds = std::unordered_map<const BinaryExpression*, SideKinds>;
    VarType inferBinary(const BinaryExpression& binary);
    SideKinds inferChain(const BinaryExpression& outermost, ChainKinds* inner);
    SideKinds takeSideKinds(const BinaryExpression& binary);

    // ---- Expressions ----
    bool visitValue(const Expression* expression);
    bool visitOperation(const Expression* expression);
    void writeNativeOperation(const BinaryExpression& binary, VarType left, VarType right);
    void writeNativeSide(const Expression* side, const std::string& type);
    void writeTruth(const Expression* side);
    bool writeInputProperty(const GetExpression& access);
    void writeTimeField(const GetExpression& access);
    void checkPrivateField(const Expression* object, const std::string& field, int line);
    void checkMemberAssignment(const SetMemberExpression& assignment);
    void writeIndexTarget(const Expression* expression);

    // ---- Calls ----
    bool writeInputCall(const CallExpression& call, const GetExpression& callee);
    void writeDirectCall(const CallExpression& call, int parameterCount);
    void writeMemberCall(const CallExpression& call, const GetExpression& callee);
    void writeAppend(const CallExpression& call, const GetExpression& callee);
    void writeNamedCall(const CallExpression& call, const VariableAccess& callee);
    void writeUserCall(const CallExpression& call, const std::string& name);
    void writeConstructor(const CallExpression& call, const std::string& structName);
    void writeIndexStore(const CallExpression& call);
    bool writeBuiltin(const CallExpression& call, const std::string& name);
    void writeFilled(std::string_view row, const CallExpression& call, const std::string& id = "");
    /// A call of a value that may be no function of this arity: reported at run time then.
    template <typename WriteCallee>
    void writeGuardedCall(const CallExpression& call, WriteCallee writeCallee);

    // ---- Definitions ----
    void writeTopLevelFunction(const FunctionDefinitionStatement& definition);
    void writeNestedFunction(const FunctionDefinitionStatement& definition);
    void writeFunctionBody(const FunctionDefinitionStatement& definition, const char* lastLine);
    void writeMemberComments(const StructDefinitionStatement& definition, bool isPrivate);
    std::vector<const StructDefinitionStatement*> openAncestry(const std::string& name);
    void writeMethodBinding(const std::string& structName, const std::string& objectName,
                            const FunctionDefinitionStatement& method);

    /// Raises 291 without a line for a text that no compiler would take: some forms write a part of
    /// the source twice, and inside each other they double the text every time.
    void refuseEndlessText();

    TextWriter text{out, indentLevel};
    std::string sourceFile;  ///< `filename` as a string literal.
    std::unique_ptr<WebForm> web;
    ChainKinds chainKinds;  ///< Of a chain's operators that are still to be visited.
    StackBounds stack;
    std::set<std::string> boundStructs;  ///< Structures whose members are being written.
    int collectionLoops = 0;  ///< List walks around the cursor; each doubles its body's text.
};
