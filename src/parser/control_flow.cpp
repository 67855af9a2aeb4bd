// Print, conditions, loops, switch, try, return and the one-word statements. Each rule is entered
// on its keyword.
#include "parser/parser.h"

/// print-statement = "அச்சிடு" [ "(" ] [ expression { "," expression } ] [ ")" ]
/// The parenthesis belongs to the statement: அச்சிடு(1) கூட்டு 2 leaves கூட்டு to the next one.
/// Raises 204 at the parenthesis's line.
std::unique_ptr<Statement> Parser::parsePrintStatement() {
    advance();
    const bool opened = check(TokenType::LEFT_PAREN);
    const int line = peek().line;
    if (opened) advance();

    std::vector<std::unique_ptr<Expression>> expressions;
    if (!opened || !check(TokenType::RIGHT_PAREN)) {
        do {
            expressions.push_back(parseExpression());
        } while (takeComma());
    }
    if (opened) consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return std::make_unique<PrintStatement>(std::move(expressions));
}

/// refresh = "புதுப்பி" "(" ")"
std::unique_ptr<Statement> Parser::parseSetStateStatement() {
    const int line = advance().line;
    consume(TokenType::LEFT_PAREN, "பொழில்-203", line);
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return std::make_unique<SetStateStatement>();
}

/// if-statement = ( "எனில்" | "இல்லைஎனில்" ) expression ":" block
///                [ if-statement | "இல்லை" ":" block ]
/// Raises 221 for a missing condition.
std::unique_ptr<Statement> Parser::parseIfStatement() {
    advance();
    if (check(TokenType::COLON) || check(TokenType::NEWLINE)) பிழை("பொழில்-221", peek().line);
    auto condition = parseExpression();
    expectColon();
    auto thenBranch = parseBlockStatement(false);

    std::unique_ptr<Statement> elseBranch;
    if (checkKeyword("இல்லைஎனில்")) {
        const Nesting level(*this);
        const int first = current;
        elseBranch = noted(first, parseIfStatement());
    } else if (checkKeyword("இல்லை")) {
        advance();
        expectColon();
        elseBranch = parseBlockStatement(false);
    }
    return std::make_unique<IfStatement>(std::move(condition), std::move(thenBranch),
                                         std::move(elseBranch));
}

/// while-statement = "சுற்று" expression ":" block
/// Raises 222 for a missing condition.
std::unique_ptr<Statement> Parser::parseWhileStatement() {
    advance();
    if (check(TokenType::COLON) || check(TokenType::NEWLINE)) பிழை("பொழில்-222", peek().line);
    auto condition = parseExpression();
    expectColon();
    return std::make_unique<WhileStatement>(std::move(condition), parseBlockStatement(false));
}

/// for-statement = "ஒவ்வொன்றாக" name "இல்" expression ":" block
/// A range is no form of its own: it is the call வரம்பு(...) in the expression's place.
std::unique_ptr<Statement> Parser::parseForStatement() {
    advance();
    const Token variable = expectName("பொழில்-223");
    if (!checkKeyword("இல்")) பிழை("பொழில்-223", peek().line);
    advance();
    auto iterable = parseExpression();
    expectColon();
    return std::make_unique<ForStatement>(variable, std::move(iterable),
                                          parseBlockStatement(false));
}

/// switch-statement = "தேர்வு" expression ":" NEWLINE INDENT { case | default } DEDENT
/// Their order is free, and there may be no case at all. The header's refusals stand at its line.
std::unique_ptr<Statement> Parser::parseSwitchStatement() {
    const int line = advance().line;
    auto subject = parseExpression();
    consume(TokenType::COLON, "பொழில்-202", line);
    consume(TokenType::NEWLINE, "பொழில்-202", line);
    skipNewlines();
    consume(TokenType::INDENT, "பொழில்-202", line);

    std::vector<CaseBlock> cases;
    std::unique_ptr<BlockStatement> defaultBlock;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        skipNewlines();
        if (checkKeyword("நிலை")) {
            cases.push_back(parseCase());
        } else if (checkKeyword("மற்றவை")) {
            advance();
            expectColon();
            if (defaultBlock != nullptr) பிழை("பொழில்-225", peek().line);
            defaultBlock = parseBlockStatement(false);
        } else if (!check(TokenType::DEDENT) && !is_at_end()) {
            பிழை("பொழில்-224", peek().line);
        }
    }
    closeBody();
    return std::make_unique<SwitchStatement>(std::move(subject), std::move(cases),
                                             std::move(defaultBlock));
}

/// case = "நிலை" expression ":" block
CaseBlock Parser::parseCase() {
    advance();
    auto value = parseExpression();
    expectColon();
    return CaseBlock{std::move(value), parseBlockStatement(false)};
}

/// try-statement = "முயற்சி" ":" block "பிடி" [ "(" [ name ] ")" ] ":" block
std::unique_ptr<Statement> Parser::parseTryCatchStatement() {
    advance();
    expectColon();
    auto tryBlock = parseBlockStatement(false);
    if (!checkKeyword("பிடி")) பிழை("பொழில்-210", peek().line);
    advance();

    std::string errorName = "பிழை";
    if (check(TokenType::LEFT_PAREN)) {
        const int line = advance().line;
        if (checkName()) errorName = advance().text;
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    }
    expectColon();
    auto catchBlock = parseBlockStatement(false);
    return std::make_unique<TryCatchStatement>(std::move(tryBlock), std::move(catchBlock),
                                               std::move(errorName));
}

/// return-statement = "திரும்பு" [ expression ]
/// Raises 233 outside a function.
std::unique_ptr<Statement> Parser::parseReturnStatement() {
    const int line = advance().line;
    if (functionDepth == 0) பிழை("பொழில்-233", line);
    const bool isBare = check(TokenType::NEWLINE) || check(TokenType::DEDENT);
    return std::make_unique<ReturnStatement>(isBare ? nullptr : parseExpression());
}

std::unique_ptr<Statement> Parser::parseWaitStatement() {
    advance();
    return std::make_unique<WaitStatement>(parseExpression());
}

// Nobody checks that a loop encloses these. Meant.
std::unique_ptr<Statement> Parser::parseBreakStatement() {
    advance();
    return std::make_unique<BreakStatement>();
}

std::unique_ptr<Statement> Parser::parseContinueStatement() {
    advance();
    return std::make_unique<ContinueStatement>();
}

std::unique_ptr<Statement> Parser::parsePassStatement() {
    advance();
    return std::make_unique<PassStatement>();
}
