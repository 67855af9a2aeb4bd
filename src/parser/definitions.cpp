// Functions, abstract structures and enumerations. Besides nodes they fill the parser's tables.
// Structures stand in structures.cpp.
#include "parser/parser.h"

/// parameters = [ [ "மாற்று" ] name { "," [ "மாற்று" ] name } ] ")"
/// Entered behind the parenthesis; the name that it belongs to stands on `line`. Raises 232 for
/// what can't be a name.
std::vector<Param> Parser::parseParameters(int line) {
    std::vector<Param> parameters;
    if (!check(TokenType::RIGHT_PAREN)) {
        do {
            skipNewlines();
            const bool isMutable =
                checkKeyword("மாற்று") || (check(TokenType::IDENTIFIER) && peek().text == "மாற்று");
            if (isMutable) advance();
            parameters.push_back({expectName("பொழில்-232"), isMutable});
        } while (takeComma());
    }
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return parameters;
}

/// Raises 271 at `line` unless the list begins with the receiver.
void Parser::checkReceiver(const std::vector<Param>& parameters, int line) {
    if (parameters.empty() ||
        (parameters[0].name.text != "தான்" && parameters[0].name.text != "self")) {
        பிழை("பொழில்-271", line);
    }
}

std::unique_ptr<BlockStatement> Parser::parseFunctionBody() {
    functionDepth++;
    auto body = parseBlockStatement(false);
    functionDepth--;
    return body;
}

/// function = "செயல்" name "(" parameters ":" block
/// A method must begin with the receiver; any other function enters `functionParameters` before
/// its body is parsed.
std::unique_ptr<Statement> Parser::parseFunctionDefinitionStatement(bool isMethod) {
    advance();
    const Token name = expectName("பொழில்-231");
    consume(TokenType::LEFT_PAREN, "பொழில்-203", name.line);
    auto parameters = parseParameters(name.line);
    expectColon();
    if (isMethod) {
        checkReceiver(parameters, name.line);
    } else {
        functionParameters[name.text] = parameters;
    }
    auto body = parseFunctionBody();
    return std::make_unique<FunctionDefinitionStatement>(name, std::move(parameters),
                                                         std::move(body));
}

/// abstract-structure = "வடிவமைப்பு" identifier ":" NEWLINE INDENT { abstract-method } DEDENT
std::unique_ptr<Statement> Parser::parseAbstractStructStatement() {
    advance();
    const Token name = consume(TokenType::IDENTIFIER, "பொழில்-210");
    expectColon();
    openBody();

    std::vector<AbstractMethod> methods;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        skipNewlines();
        if (check(TokenType::DEDENT)) break;
        methods.push_back(parseAbstractMethod());
        expectNewline();
        skipNewlines();
    }
    closeBody();
    auto node = std::make_unique<AbstractStructDefinitionStatement>(name, std::move(methods));
    abstractStructLog.define(node.get());
    return node;
}

/// abstract-method = "செயல்" identifier "(" parameters [ ":" { NEWLINE } [ INDENT ] "விடு" ]
/// An indented விடு works for the last method only: its DEDENT closes the structure. Meant.
AbstractMethod Parser::parseAbstractMethod() {
    if (!checkKeyword("செயல்")) பிழை("பொழில்-210", peek().line);
    advance();
    const Token name = consume(TokenType::IDENTIFIER, "பொழில்-231");
    consume(TokenType::LEFT_PAREN, "பொழில்-203");
    auto parameters = parseParameters(name.line);
    checkReceiver(parameters, peek().line);

    if (check(TokenType::COLON)) {
        advance();
        skipNewlines();
        if (check(TokenType::INDENT)) advance();
        if (!checkKeyword("விடு")) பிழை("பொழில்-210", peek().line);
        advance();
    }
    return {name, std::move(parameters)};
}

/// enumeration = "வகை" identifier ":" NEWLINE INDENT { name NEWLINE } DEDENT
/// Members count from 0. There is no node: null comes back, and at top level the caller then
/// drops the first token behind the enumeration. Meant.
std::unique_ptr<Statement> Parser::parseVagaiStatement() {
    advance();
    const std::string name = advance().text;
    expectColon();
    openBody();

    int counter = 0;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        skipNewlines();
        const Token member = expectName("பொழில்-210");
        enumerations[name][member.text] = counter++;
        expectNewline();
        skipNewlines();
    }
    closeBody();
    return nullptr;
}
