// The realtime database's four words: insert, update and delete are expressions that stand as
// statements, read is a statement with a body.
#include "syntax/database.h"

#include <algorithm>

#include "parser/parser.h"

/// insert = "நிகழ்நேர.தரவுசேர்" path "{" entries "}"
std::unique_ptr<Expression> Parser::parseRTDBInsertExpression() {
    const int line = advance().line;
    auto path = parseDatabasePath();
    const int depth = expressionDepth;
    auto data = parseDatabaseEntries(line);
    deepen(depth, expressionDepth);
    auto node = std::make_unique<RTDBInsertExpression>(std::move(path), std::move(data));
    node->line = line;
    return node;
}

/// update = "நிகழ்நேர.தரவுமாற்று" path "{" entries "}"
std::unique_ptr<Expression> Parser::parseRTDBUpdateExpression() {
    const int line = advance().line;
    auto path = parseDatabasePath();
    const int depth = expressionDepth;
    auto data = parseDatabaseEntries(line);
    deepen(depth, expressionDepth);
    auto node = std::make_unique<RTDBUpdateExpression>(std::move(path), std::move(data));
    node->line = line;
    return node;
}

/// delete = "நிகழ்நேர.தரவுஅழி" path
std::unique_ptr<Expression> Parser::parseRTDBDeleteExpression() {
    const int line = advance().line;
    auto node = std::make_unique<RTDBDeleteExpression>(parseDatabasePath());
    deepen(expressionDepth, 0);
    node->line = line;
    return node;
}

/// read = "நிகழ்நேர.தரவுபடி" path "{" { statement } "}"
std::unique_ptr<Statement> Parser::parseRTDBReadStatement() {
    const int line = advance().line;
    auto path = parseDatabasePath();
    skipNewlines();
    consume(TokenType::LEFT_BRACE, "பொழில்-206");
    std::vector<std::unique_ptr<Statement>> body;
    skipLayout();
    while (!check(TokenType::RIGHT_BRACE) && !is_at_end()) {
        if (auto statement = parseStatement(false)) body.push_back(std::move(statement));
        skipLayout();
    }
    consume(TokenType::RIGHT_BRACE, "பொழில்-206");
    auto node = std::make_unique<RTDBReadStatement>(std::move(path), std::move(body));
    node->line = line;
    return node;
}

/// path = "(" expression ")"
std::unique_ptr<Expression> Parser::parseDatabasePath() {
    openParenthesis();
    auto path = parseExpression();
    consume(TokenType::RIGHT_PAREN, "பொழில்-204");
    return path;
}

/// Like a map literal, but a line may also break between a key and its colon. The keyword stands
/// on `line`.
std::unique_ptr<MapLiteral> Parser::parseDatabaseEntries(int line) {
    skipNewlines();
    consume(TokenType::LEFT_BRACE, "பொழில்-206");
    auto data = std::make_unique<MapLiteral>(parseMapEntries(true));
    consume(TokenType::RIGHT_BRACE, "பொழில்-206");
    data->line = line;
    return data;
}
