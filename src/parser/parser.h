// The parser: tokens in, tree out, by recursive descent. The first problem ends the run with a
// report, so no parsing function resumes after an error. One file a grammar: the frame in
// parser.cpp; expressions, primary and lambdas; statements and control flow; definitions and
// structures; modules; application; widgets, widget items and styles, layout widgets, animation;
// database.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "files.h"
#include "lexer/token.h"
#include "parser/definition_log.h"
#include "parser/gathered_parts.h"
#include "parser/kept_scans.h"
#include "syntax/application.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/nesting.h"
#include "syntax/node_places.h"
#include "syntax/statements.h"

class Parser {
public:
    /// `source` and `filename` are for reports only. All three are copied.
    Parser(const std::vector<Token>& tokens, const std::string& source,
           const std::string& filename);
    /// The same over tokens that nobody needs any more: they are moved in, and a text that is
    /// handed over is too.
    Parser(std::vector<Token>&& tokens, std::string source, std::string filename);

    /// The whole tree. Called once.
    Program parse();

    // ---- Cursor ----
    const Token& peek() { return tokens[static_cast<std::size_t>(current)]; }
    /// Takes one token and returns it; at the end the one before END_OF_FILE, again and again.
    const Token& advance() { return take(); }
    bool is_at_end() { return peek().type == TokenType::END_OF_FILE; }
    /// False at the end, so check(END_OF_FILE) is never true.
    bool check(TokenType kind) { return peek().type == kind && kind != TokenType::END_OF_FILE; }
    bool checkKeyword(const std::string& word) { return checkKeyword(word.c_str()); }
    bool checkKeyword(const char* word) { return check(TokenType::KEYWORD) && peek().text == word; }
    /// Takes an OPERATOR token whose text is one of `words`.
    bool match(const std::vector<std::string>& words);
    /// Takes a token of `kind`; raises `code` at `line`, or at the current line if that is -1.
    Token consume(TokenType kind, const std::string& code, int line = -1);
    /// The same for a code that is written out, without a copy of the token.
    const Token& consume(TokenType kind, const char* code, int line = -1);
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
    std::unique_ptr<Statement> parseCompoundAssignmentStatement(std::unique_ptr<Expression> target);
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

    // ---- Web application: each section is entered on its word ----
    std::unique_ptr<Statement> parseWebApp();
    std::unique_ptr<Statement> parseHeader();
    std::unique_ptr<Statement> parseUIBody();
    std::unique_ptr<Statement> parseDefinition();
    std::unique_ptr<Statement> parseDatabaseManager();
    std::unique_ptr<Statement> parseFirebaseConfig();
    /// An empty map. Nothing calls it: property maps are built in place.
    std::map<std::string, std::unique_ptr<Expression>> parseProperties();

    // ---- Widgets ----
    /// Any word is taken for a widget's name; what it means is for the backend to say.
    std::unique_ptr<Statement> parseWidget();

    // Layout widgets, entered behind their word, which stands on `line`.
    std::unique_ptr<Statement> parseColumn(int line);
    std::unique_ptr<Statement> parseRow(int line);
    std::unique_ptr<Statement> parseStack(int line);
    std::unique_ptr<Statement> parseWrap(int line);
    std::unique_ptr<Statement> parseGridView(int line);
    std::unique_ptr<Statement> parseListView(int line);
    std::unique_ptr<Statement> parseContainer(int line);
    std::unique_ptr<Statement> parsePadding(int line);
    std::unique_ptr<Statement> parseExpanded(int line);
    std::unique_ptr<Statement> parseFlexible(int line);
    std::unique_ptr<Statement> parseSpacer(int line);
    std::unique_ptr<Statement> parseTextButton(int line);
    std::unique_ptr<Statement> parseSnackBar(int line);

    /// Entered behind `அசைவூட்டம்`.
    std::unique_ptr<AnimationNode> parseAnimation();
    /// Another reading of a target group. Nothing calls it: parseAnimation fills two maps instead.
    AnimationTargetNode parseAnimationTarget();

    // ---- Realtime database: each entered on its word ----
    std::unique_ptr<Expression> parseRTDBInsertExpression();
    std::unique_ptr<Expression> parseRTDBUpdateExpression();
    std::unique_ptr<Expression> parseRTDBDeleteExpression();
    std::unique_ptr<Statement> parseRTDBReadStatement();

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

    // For tools that ask more of a parse than the tree.
    NodePlaces* places = nullptr;  ///< Takes where nodes stand; null if nobody asks.
    /// Gives an imported file's text; false if there is none.
    std::function<bool(const std::string& path, std::string& text)> readModuleText = readFile;

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

    using MapEntries = std::vector<std::pair<std::string, std::unique_ptr<Expression>>>;
    using Kinds = std::vector<TokenType>;

    /// advance(), for a rule that moves the text into a node: no rule looks back at a name or a
    /// literal.
    Token& take() {
        if (!is_at_end()) current++;
        return tokens[static_cast<std::size_t>(std::max(current - 1, 0))];
    }

    /// Hands `node` on, and notes that it was parsed from the tokens between `first` and the
    /// cursor.
    template <typename Node>
    std::unique_ptr<Node> noted(int first, std::unique_ptr<Node> node) {
        if (places != nullptr && node != nullptr) {
            places->note(*node, isModule ? NodePlaces::kInModule : TokenSpan{first, current});
        }
        return node;
    }

    // Looking at tokens without moving
    const Token& tokenAt(int index) const {
        const auto last = static_cast<int>(tokens.size()) - 1;
        return tokens[static_cast<std::size_t>(std::min(index, last))];
    }
    const Token& next() const { return tokenAt(current + 1); }
    bool checkName();
    bool isArrowAt(int index) const;
    bool startsArrowLambda();
    bool lambdaBeforeColonOnLine();
    bool bracketFurtherOnLine();
    bool isOnLine(int index);
    bool checkAny(const Kinds& kinds);
    bool checkKey(const Kinds& kinds);
    bool checkWord(const char* word);
    bool checkWord(TokenType kind, const char* word);
    bool checkSectionWord();

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
    MapEntries parseMapEntries(bool layoutBeforeColon);
    std::unique_ptr<Expression> takeVariable(bool withLine);
    int operatorLevel();
    std::unique_ptr<Expression> parseOperators(int loosest);
    void deepen(int left, int right);

    // Statements
    using StatementRule = std::unique_ptr<Statement> (Parser::*)();
    StatementRule statementRule();
    void refuseMisplacedTokens();
    std::unique_ptr<Statement> parsePlainStatement(bool inStruct);
    CaseBlock parseCase();
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

    // Application
    void parseHeaderItem(PropertyMap& properties, ScreenConfig& screen);
    void parseScreenSize(ScreenConfig& screen);
    void parseScreenSide(const char* word, float& side);

    // Brackets and the items in them. An item that doesn't stand at the cursor is left alone, and
    // false comes back.
    bool nextItem(int& depth);
    template <typename Item>
    void bracketLoop(int line, int depth, const Item& item);
    template <typename Item>
    void bracketLoop(int line, const Item& item) {
        bracketLoop(line, 0, item);
    }
    void openParenthesis(int line = -1);
    std::unique_ptr<Expression> parseValue();
    void setProperty(PropertyMap& properties, const std::string& key,
                     std::unique_ptr<Expression> value);
    void parseValueOf(PropertyMap& properties, const std::string& key);
    bool parsePropertyItem(PropertyMap& properties, const Kinds& kinds);
    bool parseChildItem(WidgetParts& parts, const Kinds& furtherKinds);
    bool parseAnimationItem(std::unique_ptr<AnimationNode>& animation);
    bool parseAlignmentItem(WidgetParts& parts);
    bool parsePressItem(WidgetParts& parts, PressForm form);
    bool opensPressStatements(PressForm form);
    bool parseShareItem(WidgetParts& parts);
    bool parseStyleItem(WidgetParts& parts, TokenType kind, const char* word, const Kinds& keys,
                        std::string (*storedKey)(const std::string&));
    bool parseButtonStyleItem(WidgetParts& parts);
    bool parseTextStyleItem(WidgetParts& parts);
    void parseTextStyleEntry(WidgetParts& parts);
    static std::unique_ptr<Statement> finishWidget(std::unique_ptr<WidgetNode> node,
                                                   WidgetParts parts);

    // Widgets
    std::unique_ptr<Statement> parseWidgetByWord();
    std::unique_ptr<Statement> parseGenericWidget();
    void parseGenericItem(WidgetParts& parts, int& positional);
    void parsePositionalItem(WidgetParts& parts, int& positional);
    std::unique_ptr<Statement> parseCard(int line);
    std::unique_ptr<Statement> parseListItem(int line);
    std::unique_ptr<Statement> parseAlert(int line);
    void parseAlertItem(WidgetParts& parts);

    // Layout widgets
    WidgetParts parseGroups(int line, const GroupRules& rules);
    bool opensPropertyGroup(const GroupRules& rules);
    void parsePropertyGroup(WidgetParts& parts, int line, const GroupRules& rules);
    void parseChildGroup(WidgetParts& parts, int line, const GroupRules& rules);
    void skipBetweenGroups();
    void parseGridItem(WidgetParts& parts);
    void parseGridGaps(WidgetParts& parts);
    void parseContainerItem(WidgetParts& parts);
    bool parseFlexItem(int& flex);
    void parseSpacerItem(WidgetParts& parts, int line);
    void parseTextButtonItem(WidgetParts& parts, int line);
    bool parseTextButtonLabel(WidgetParts& parts);
    bool parseTextButtonStyle(WidgetParts& parts);
    void parseSnackBarItem(SnackBarNode& node, int line);
    void parseSnackBarMessage(SnackBarNode& node, int line);

    // Animation
    void parseAnimationEntry(AnimationNode& animation);
    void parseTargetGroup(AnimationNode& animation);
    void parseTarget(AnimationNode& animation);
    void parseTargetWord(AnimationTargetNode& target);
    AnimationDelta parseAnimationDelta();

    // Database
    std::unique_ptr<Expression> parseDatabasePath();
    std::unique_ptr<MapLiteral> parseDatabaseEntries(int line);

    // Modules
    std::string readModule(const std::string& path, int line);
    void mergeModule(Parser& module, Program program);

    // All definitions of structures go through these, so that they can be taken back.
    DefinitionLog<StructDefinitionStatement> structLog{structDefinitions};
    DefinitionLog<AbstractStructDefinitionStatement> abstractStructLog{abstractStructDefinitions};

    /// Takes what was parsed out of the tree. It lives on: the tables may point at definitions
    /// inside it.
    void drop(std::unique_ptr<Statement> statement);
    void drop(std::unique_ptr<Expression> expression);
    void drop(PropertyMap properties);
    std::vector<std::unique_ptr<Statement>> dropped;

    bool isModule = false;    ///< What is parsed here was imported.
    int nesting = 0;          ///< Statements and expressions around the cursor.
    int expressionDepth = 0;  ///< Depth of the expression tree that was parsed last.
    int deepestPart = 0;      ///< Depth of the deepest tree in the widget under the cursor.
    StackBounds stack;

    LineScan lambdaScan;   ///< `வினை` with a colon behind it.
    LineScan bracketScan;  ///< `]`
    CloseScan closeScan;   ///< The parenthesis that may close a lambda's parameters.
};

/// { item } ")", over as many lines as the author likes, with indentation counted away from
/// `depth` on. Raises 204 at `line` for a missing parenthesis, 291 for an item that takes nothing
/// and would be looked at for ever.
template <typename Item>
void Parser::bracketLoop(int line, int depth, const Item& item) {
    while (nextItem(depth)) {
        const int before = current;
        item();
        if (current == before) பிழை("பொழில்-291", peek().line);
    }
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
}
