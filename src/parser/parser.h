// The parser: tokens in, tree out, by recursive descent. The first problem ends the run with a
// report, so no parsing function resumes after an error. One file a grammar: the frame in
// parser.cpp; expressions, primary and lambdas; statements and control flow; definitions and
// structures; modules.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "lexer/token.h"
#include "parser/nesting.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"

class Parser {
public:
    /// `source` and `filename` are for reports only. All three are copied.
    Parser(const std::vector<Token>& tokens, const std::string& source,
           const std::string& filename);

    /// The whole tree. Called once.
    Program parse();

    // ---- Cursor ----
    const Token& peek();
    /// Takes one token and returns it; at the end the one before END_OF_FILE, again and again.
    const Token& advance();
    bool is_at_end();
    /// False at the end, so check(END_OF_FILE) is never true.
    bool check(TokenType kind);
    bool checkKeyword(const std::string& word);
    /// Takes an OPERATOR token whose text is one of `words`.
    bool match(const std::vector<std::string>& words);
    /// Takes a token of `kind`; raises `code` at `line`, or at the current line if that is -1.
    Token consume(TokenType kind, const std::string& code, int line = -1);
    /// Counts INDENT and DEDENT away inside brackets, where line structure means nothing.
    bool handleIndentation(int& depth);
    void skipNewlines();

    /// Line `line` of the source, counted from 1; "" if there are fewer.
    std::string getLineText(int line);
    /// Reports `code` at `line` and ends the process. Throws std::out_of_range for a code that
    /// the catalogue lacks.
    [[noreturn]] void பிழை(const std::string& code, int line);

    // ---- Statements. Null means that a line yielded no node. ----
    /// `inStruct` is true only for calls from a structure's body.
    std::unique_ptr<Statement> parseStatement(bool inStruct);
    std::unique_ptr<BlockStatement> parseBlockStatement(bool inStruct);
    std::unique_ptr<Statement> parsePrintStatement();
    std::unique_ptr<Statement> parseSetStateStatement();
    std::unique_ptr<Statement> parseIfStatement();
    std::unique_ptr<Statement> parseWhileStatement();
    std::unique_ptr<Statement> parseForStatement();
    std::unique_ptr<Statement> parseSwitchStatement();
    std::unique_ptr<Statement> parseTryCatchStatement();
    std::unique_ptr<Statement> parseReturnStatement();
    std::unique_ptr<Statement> parseBreakStatement();
    std::unique_ptr<Statement> parseContinueStatement();
    std::unique_ptr<Statement> parsePassStatement();
    std::unique_ptr<Statement> parseWaitStatement();

    // Entered with an expression that is parsed already.
    std::unique_ptr<Statement> parseExpressionStatement(std::unique_ptr<Expression> expression);
    std::unique_ptr<Statement> parseVarDeclaration(std::unique_ptr<Expression> target,
                                                   bool inStruct);
    std::unique_ptr<Statement> parseSetStatement(std::unique_ptr<Expression> target);
    std::unique_ptr<Statement> parseCompoundAssignmentStatement(
        std::unique_ptr<Expression> target);
    std::unique_ptr<Statement> parseIncrementStatement(std::unique_ptr<Expression> target);

    // ---- Definitions and modules ----
    std::unique_ptr<Statement> parseFunctionDefinitionStatement(bool isMethod);
    std::unique_ptr<Statement> parseStructDefinitionStatement();
    std::unique_ptr<Statement> parseAbstractStructStatement();
    /// An enumeration: fills `enumerations` and returns null.
    std::unique_ptr<Statement> parseVagaiStatement();
    /// Merges another source into this parse and returns null.
    std::unique_ptr<Statement> parseImportStatement();

    // ---- Expressions, from the loosest level to the tightest ----
    std::unique_ptr<Expression> parseExpression();
    std::unique_ptr<Expression> parseAssignment();
    std::unique_ptr<Expression> parseTernary();
    std::unique_ptr<Expression> parseLogicalOr();
    std::unique_ptr<Expression> parseLogicalAnd();
    std::unique_ptr<Expression> parseBitwiseOr();
    std::unique_ptr<Expression> parseBitwiseXor();
    std::unique_ptr<Expression> parseBitwiseAnd();
    std::unique_ptr<Expression> parseEquality();
    std::unique_ptr<Expression> parseComparison();
    std::unique_ptr<Expression> parseShift();
    std::unique_ptr<Expression> parseTerm();
    std::unique_ptr<Expression> parseFactor();
    std::unique_ptr<Expression> parseUnary();
    std::unique_ptr<Expression> parseCall();
    std::unique_ptr<Expression> parsePrimary();

    // Entered behind the opening bracket, which stands on `line`.
    std::vector<std::unique_ptr<Expression>> parseArguments(int line);
    std::unique_ptr<Expression> parseIndexExpression(std::unique_ptr<Expression> object, int line);
    std::unique_ptr<Expression> parseListLiteral(int line);
    std::unique_ptr<Expression> parseMapLiteral(int line);
    /// Entered on `வினை`.
    std::unique_ptr<Expression> parseLambdaExpression();

    // Read by the generator; the pointers are owned by the tree.
    std::map<std::string, std::vector<Param>> functionParameters;
    std::map<std::string, StructDefinitionStatement*> structDefinitions;
    std::map<std::string, AbstractStructDefinitionStatement*> abstractStructDefinitions;

    std::set<std::string> importedFiles;  ///< Path texts, with their extension.
    /// Imported statements: they go ahead of the program.
    std::vector<std::unique_ptr<Statement>> hoistedStatements;
    std::vector<Token> tokens;
    std::string source;
    std::string filename;
    int current = 0;
    std::map<std::string, std::map<std::string, int>> enumerations;
    int functionDepth = 0;  ///< Function bodies around the cursor.

private:
    /// Counts one level of nesting for as long as it lives; raises 291 when there are too many.
    class Nesting {
    public:
        explicit Nesting(Parser& parser);
        ~Nesting() { parser.nesting--; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Parser& parser;
    };

    /// A structure's members as they are gathered.
    struct StructBody {
        std::vector<std::unique_ptr<VarDeclaration>> fields;
        std::vector<std::unique_ptr<FunctionDefinitionStatement>> methods;
        std::map<std::string, FunctionDefinitionStatement*> methodsByName;
    };

    // Looking at tokens without moving
    const Token& tokenAt(int index) const;
    const Token& next() const;
    bool checkName();
    bool isArrowAt(int index) const;
    bool startsArrowLambda();
    bool lambdaBeforeColonOnLine();
    bool bracketFurtherOnLine();
    bool isOnLine(int index);

    // Steps that many rules share
    Token expectName(const char* code);
    void expectColon();
    void expectNewline();
    void openBody();
    void closeBody();
    bool takeComma();
    void skipLayout();

    // Expressions
    std::unique_ptr<Expression> parseArrowLambda();
    std::unique_ptr<Expression> assignTo(std::unique_ptr<Expression> target);
    std::unique_ptr<Expression> parseMember(std::unique_ptr<Expression> object);
    std::unique_ptr<Expression> foldEnumeration(const Expression& object, const Token& name);
    std::unique_ptr<Expression> parseLiteral();
    std::unique_ptr<Expression> parseNameOrColour();
    std::unique_ptr<Expression> parseBracketed();
    std::unique_ptr<Expression> parseWidgetOrName();
    std::unique_ptr<Expression> takeVariable(bool withLine);
    template <typename Node>
    std::unique_ptr<Expression> parseLeftAssociative(const std::vector<std::string>& words,
                                                     std::unique_ptr<Expression> (Parser::*tighter)());
    void deepen(int left, int right);

    // Statements
    using StatementRule = std::unique_ptr<Statement> (Parser::*)();
    StatementRule statementRule();
    void refuseMisplacedTokens();
    std::unique_ptr<Statement> parsePlainStatement(bool inStruct);
    CaseBlock parseCase();
    std::unique_ptr<Statement> refuseApplication();
    std::unique_ptr<Statement> refuseDatabaseRead();
    VarType typeOfInitializer(const Expression& value);

    // Definitions
    std::vector<Param> parseParameters(int line);
    std::unique_ptr<BlockStatement> parseFunctionBody();
    void parseStructMember(StructBody& body);
    void parseDirectMethod(StructBody& body);
    void parseStructGroup(StructBody& body, bool isPrivate);
    void parseField(StructBody& body, bool isPrivate);
    void parseOtherMember(StructBody& body, bool isPrivate);
    bool storeMember(StructBody& body, std::unique_ptr<Statement>& member, bool isPrivate);
    void checkParent(const Token& name, const Token& parent, const StructBody& body);
    void checkReceiver(const std::vector<Param>& parameters, int line);
    AbstractMethod parseAbstractMethod();

    // Modules
    std::string readModule(const std::string& path, int line);
    void mergeModule(Parser& module, Program program);

    /// Statements that structures dropped: the tables may point at definitions inside them.
    std::vector<std::unique_ptr<Statement>> droppedMembers;

    int nesting = 0;          ///< Statements and expressions around the cursor.
    int expressionDepth = 0;  ///< Depth of the expression tree that was parsed last.
    StackBounds stack;

    /// What a look along a line found, kept for the statements that follow on the same line:
    /// looking anew from each of many would take quadratic time.
    struct LineScan {
        int end = -1;   ///< Index behind the last token looked at.
        int last = -1;  ///< Index of the last token looked for; -1 if there is none.
    };
    LineScan lambdaScan;   ///< `வினை` with a colon behind it.
    LineScan bracketScan;  ///< `]`

    /// Where the look for a lambda's closing parenthesis stopped, for all that open before it.
    struct CloseScan {
        int start = 0;
        int end = 0;
    } closeScan;
};
