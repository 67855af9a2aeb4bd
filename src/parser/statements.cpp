// The statement grammar: the dispatch, what a plain statement may be, and blocks. The statements
// of control flow stand in control_flow.cpp.
#include <string_view>

#include "parser/parser.h"
#include "syntax/database.h"

namespace {
constexpr std::string_view kLambdaWord = "வினை";
}

/// The first test that holds decides. Null, with the cursor unmoved, for DEDENT, NEWLINE and, in
/// a structure, for `பொது`.
std::unique_ptr<Statement> Parser::parseStatement(bool inStruct) {
    const Nesting level(*this);
    const int first = current;
    if (const StatementRule rule = statementRule()) return noted(first, (this->*rule)());
    // செயல் = 1 goes on down, as an assignment to a variable of that name.
    if (checkKeyword("செயல்") && next().type != TokenType::EQUALS) {
        return noted(first, parseFunctionDefinitionStatement(inStruct));
    }
    if (checkKeyword("திரும்பு")) return noted(first, parseReturnStatement());
    if (inStruct && checkKeyword("பொது")) return nullptr;
    if (check(TokenType::DEDENT) || check(TokenType::NEWLINE)) return nullptr;
    refuseMisplacedTokens();
    return noted(first, parsePlainStatement(inStruct));
}

/// The rule of the word that a statement begins with, in the order of the tests; null if none.
Parser::StatementRule Parser::statementRule() {
    struct Row {
        TokenType kind;
        std::string_view word;  ///< Told apart by text only where the kind is KEYWORD.
        StatementRule rule;
    };
    static const Row rows[] = {
        {TokenType::KEYWORD, "வடிவமைப்பு", &Parser::parseAbstractStructStatement},
        {TokenType::KEYWORD, "நூஇறக்கி", &Parser::parseImportStatement},
        {TokenType::KEYWORD, "அச்சிடு", &Parser::parsePrintStatement},
        {TokenType::KEYWORD, "எனில்", &Parser::parseIfStatement},
        {TokenType::RTDB_READ, "", &Parser::parseRTDBReadStatement},
        // The scanner makes it RTDB_READ, so this row is never met. Meant.
        {TokenType::KEYWORD, "நிகழ்நேர.தரவுபடி", &Parser::parseRTDBReadStatement},
        {TokenType::WEB_APP, "", &Parser::parseWebApp},
        {TokenType::REFRESH, "", &Parser::parseSetStateStatement},
        {TokenType::KEYWORD, "முயற்சி", &Parser::parseTryCatchStatement},
        {TokenType::KEYWORD, "சுற்று", &Parser::parseWhileStatement},
        {TokenType::KEYWORD, "காத்திரு", &Parser::parseWaitStatement},
        {TokenType::KEYWORD, "தேர்வு", &Parser::parseSwitchStatement},
        {TokenType::KEYWORD, "ஒவ்வொன்றாக", &Parser::parseForStatement},
        {TokenType::KEYWORD, "நிறுத்து", &Parser::parseBreakStatement},
        {TokenType::KEYWORD, "தொடர்", &Parser::parseContinueStatement},
        {TokenType::KEYWORD, "கட்டமைப்பு", &Parser::parseStructDefinitionStatement},
        {TokenType::KEYWORD, "விடு", &Parser::parsePassStatement},
    };
    for (const Row& row : rows) {
        if (check(row.kind) && (row.kind != TokenType::KEYWORD || peek().text == row.word)) {
            return row.rule;
        }
    }
    // வகை = 3 is an assignment.
    if (checkKeyword("வகை") && next().type == TokenType::IDENTIFIER) {
        return &Parser::parseVagaiStatement;
    }
    return nullptr;
}

/// What no statement begins with, each with a report that tells the likely slip.
void Parser::refuseMisplacedTokens() {
    const Token& token = peek();
    if (check(TokenType::INDENT)) பிழை("பொழில்-111", token.line);
    if (lambdaBeforeColonOnLine()) பிழை("பொழில்-234", token.line);
    if (check(TokenType::RIGHT_PAREN) || check(TokenType::RIGHT_BRACE) ||
        check(TokenType::RIGHT_BRACKET)) {
        பிழை("பொழில்-209", token.line);
    }
    const TokenType behind = next().type;
    if (check(TokenType::IDENTIFIER) && next().line == token.line &&
        (behind == TokenType::NUMBER || behind == TokenType::STRING ||
         behind == TokenType::LEFT_BRACE)) {
        பிழை("பொழில்-208", token.line);
    }
    if ((check(TokenType::COMMA) || check(TokenType::NUMBER)) && bracketFurtherOnLine()) {
        பிழை("பொழில்-209", token.line);
    }
}

/// True if `வினை` stands on the rest of this line with a colon anywhere behind it. In a plain
/// statement only the arrow forms are lambdas.
bool Parser::lambdaBeforeColonOnLine() {
    if (current >= lambdaScan.end) {
        lambdaScan = {current, -1};
        int pending = -1;
        for (int& at = lambdaScan.end; isOnLine(at) && tokenAt(at).type != TokenType::NEWLINE;
             at++) {
            if (tokenAt(at).text == kLambdaWord) pending = at;
            if (tokenAt(at).type == TokenType::COLON) lambdaScan.last = pending;
        }
    }
    return current <= lambdaScan.last;
}

/// True if a `]` stands further on this line.
bool Parser::bracketFurtherOnLine() {
    if (current >= bracketScan.end) {
        bracketScan = {current, -1};
        for (int& at = bracketScan.end; isOnLine(at); at++) {
            if (tokenAt(at).type == TokenType::RIGHT_BRACKET) bracketScan.last = at;
        }
    }
    return current < bracketScan.last;
}

bool Parser::isOnLine(int index) {
    return tokenAt(index).line == peek().line && tokenAt(index).type != TokenType::END_OF_FILE;
}

/// A field of a structure, or an expression that may stand as a statement. parseExpression takes
/// every `=` and compound word itself, so the forms behind it aren't reached; they stay.
std::unique_ptr<Statement> Parser::parsePlainStatement(bool inStruct) {
    if (inStruct && check(TokenType::IDENTIFIER) && next().type == TokenType::EQUALS) {
        std::string name = advance().text;
        advance();
        return std::make_unique<VarDeclaration>(std::move(name), parseExpression(), VarType::Unset,
                                                false);
    }
    auto expression = parseExpression();
    if (check(TokenType::EQUALS)) {
        advance();
        return parseVarDeclaration(std::move(expression), inStruct);
    }
    if (check(TokenType::ASSIGN_OPERATOR) || check(TokenType::INCREMENT) ||
        check(TokenType::DECREMENT)) {
        return parseCompoundAssignmentStatement(std::move(expression));
    }
    if (check(TokenType::RESERVED_136)) return parseIncrementStatement(std::move(expression));
    if (inStruct) பிழை("பொழில்-210", peek().line);
    return parseExpressionStatement(std::move(expression));
}

/// Raises 201 for an expression whose value would be lost.
std::unique_ptr<Statement> Parser::parseExpressionStatement(
    std::unique_ptr<Expression> expression) {
    if (auto* carrier = nodeAs<WidgetExpression>(expression.get())) {
        return std::move(carrier->widget);  // a widget stands as a statement itself
    }
    const Expression* node = expression.get();
    if (nodeAs<CallExpression>(node) == nullptr && nodeAs<AssignmentExpression>(node) == nullptr &&
        nodeAs<SetMemberExpression>(node) == nullptr &&
        nodeAs<RTDBInsertExpression>(node) == nullptr &&
        nodeAs<RTDBUpdateExpression>(node) == nullptr &&
        nodeAs<RTDBDeleteExpression>(node) == nullptr) {
        பிழை("பொழில்-201", peek().line);
    }
    return std::make_unique<ExpressionStatement>(std::move(expression));
}

/// Entered behind the `=`.
std::unique_ptr<Statement> Parser::parseVarDeclaration(std::unique_ptr<Expression> target,
                                                       bool inStruct) {
    const auto* variable = nodeAs<VariableAccess>(target.get());
    if (variable == nullptr) {
        if (inStruct) பிழை("பொழில்-210", peek().line);
        return parseSetStatement(std::move(target));
    }
    auto value = parseExpression();
    const VarType type = typeOfInitializer(*value);
    return std::make_unique<VarDeclaration>(variable->name, std::move(value), type, false);
}

/// The kind that a declaration's value shows by its form; Unset if it shows none.
VarType Parser::typeOfInitializer(const Expression& value) {
    if (nodeAs<ListLiteral>(&value) != nullptr) return VarType::List;
    if (nodeAs<MapLiteral>(&value) != nullptr) return VarType::Map;
    const auto* call = nodeAs<CallExpression>(&value);
    if (call == nullptr) return VarType::Unset;

    if (const auto* callee = nodeAs<VariableAccess>(call->callee.get())) {
        if (callee->name == "இப்போதுநேரம்") return VarType::Time;
        return structDefinitions.count(callee->name) != 0 ? VarType::Object : VarType::Unset;
    }
    if (const auto* member = nodeAs<GetExpression>(call->callee.get())) {
        const auto* object = nodeAs<VariableAccess>(member->object.get());
        if (object != nullptr && object->name == "நேரம்" && member->name.text == "உருவாக்கு") {
            return VarType::Time;
        }
    }
    return VarType::Unset;
}

std::unique_ptr<Statement> Parser::parseSetStatement(std::unique_ptr<Expression> target) {
    return std::make_unique<SetStatement>(std::move(target), parseExpression());
}

std::unique_ptr<Statement> Parser::parseCompoundAssignmentStatement(
    std::unique_ptr<Expression> target) {
    const Token op = advance();
    return std::make_unique<CompoundAssignmentStatement>(std::move(target), op, parseExpression());
}

std::unique_ptr<Statement> Parser::parseIncrementStatement(std::unique_ptr<Expression> target) {
    return std::make_unique<IncrementStatement>(std::move(target), advance());
}

/// block = NEWLINE INDENT { statement } DEDENT
/// No line end is demanded between two statements: one that ended in an inner block has used up
/// the line's. So அ() ஆ() on one line are two.
/// Raises 291 where a structure's `பொது` would be looked at for ever.
std::unique_ptr<BlockStatement> Parser::parseBlockStatement(bool inStruct) {
    openBody();
    auto block = std::make_unique<BlockStatement>();
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        const int before = current;
        if (auto statement = parseStatement(inStruct)) {
            block->statements.push_back(std::move(statement));
        }
        if (!check(TokenType::DEDENT)) skipNewlines();
        if (current == before) பிழை("பொழில்-291", peek().line);
    }
    closeBody();
    return block;
}
