// Structures: fields and methods, public unless `ரகசிய` stands before them or around them.
#include "parser/parser.h"

/// structure = "கட்டமைப்பு" name [ "(" identifier ")" ] ":" NEWLINE INDENT { member } DEDENT
/// A parent must be defined before its child.
std::unique_ptr<Statement> Parser::parseStructDefinitionStatement() {
    advance();
    const Token name = expectName("பொழில்-210");
    Token parent = name;
    const bool hasParent = check(TokenType::LEFT_PAREN);
    if (hasParent) {
        const int line = advance().line;
        parent = consume(TokenType::IDENTIFIER, "பொழில்-210");
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    }
    expectColon();
    openBody();

    StructBody body;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        skipNewlines();
        if (check(TokenType::DEDENT)) break;
        parseStructMember(body);
    }
    closeBody();
    if (hasParent) checkParent(name, parent, body);

    auto node = std::make_unique<StructDefinitionStatement>(
        name, parent, hasParent, std::move(body.fields), std::move(body.methods));
    structLog.define(node.get());
    return node;
}

/// member = method | [ "ரகசிய" ] [ "பொது" ] ( "(" group | field | other member )
void Parser::parseStructMember(StructBody& body) {
    if (checkKeyword("செயல்")) return parseDirectMethod(body);

    bool isPrivate = false;
    if (check(TokenType::PRIVATE)) {
        advance();
        isPrivate = true;
        if (check(TokenType::LEFT_PAREN)) return parseStructGroup(body, true);
    }
    if (checkKeyword("பொது")) {
        advance();
        if (check(TokenType::LEFT_PAREN)) return parseStructGroup(body, false);
    }
    if (check(TokenType::IDENTIFIER) && next().type == TokenType::EQUALS) {
        return parseField(body, isPrivate);
    }
    parseOtherMember(body, isPrivate);
}

/// A method that stands directly in the body. Unlike one in a group it isn't asked for its
/// receiver. Meant.
void Parser::parseDirectMethod(StructBody& body) {
    const int first = current;
    advance();
    const Token name = expectName("பொழில்-231");
    consume(TokenType::LEFT_PAREN, "பொழில்-203");
    auto parameters = parseParameters(name.line);
    expectColon();
    auto block = parseFunctionBody();
    std::unique_ptr<Statement> method = std::make_unique<FunctionDefinitionStatement>(
        name, std::move(parameters), std::move(block));
    method = noted(first, std::move(method));
    storeMember(body, method, false);
    skipNewlines();
}

/// field = identifier "=" expression NEWLINE
void Parser::parseField(StructBody& body, bool isPrivate) {
    const int first = current;
    std::string name = advance().text;
    advance();
    auto value = parseExpression();
    body.fields.push_back(
        noted(first, std::make_unique<VarDeclaration>(std::move(name), std::move(value),
                                                      VarType::Unset, isPrivate)));
    expectNewline();
    skipNewlines();
}

/// Whatever else parses in a structure. A statement that is no member is dropped. Meant.
void Parser::parseOtherMember(StructBody& body, bool isPrivate) {
    auto member = parseStatement(true);
    const bool isLost = member != nullptr && !storeMember(body, member, isPrivate);
    if (isLost) drop(std::move(member));
    if (check(TokenType::DEDENT)) return;
    if (isLost) expectNewline();
    skipNewlines();
}

/// group = "(" { member } ")", all of one visibility.
/// Raises 291 where a word (a `பொது`, say) would be looked at for ever.
void Parser::parseStructGroup(StructBody& body, bool isPrivate) {
    const int line = advance().line;
    while (!check(TokenType::RIGHT_PAREN) && !is_at_end()) {
        const int before = current;
        skipLayout();
        if (check(TokenType::RIGHT_PAREN)) break;
        auto member = parseStatement(true);
        if (member != nullptr && !storeMember(body, member, isPrivate)) {
            drop(std::move(member));
        }
        skipNewlines();
        if (current == before) பிழை("பொழில்-291", peek().line);
    }
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    skipNewlines();
}

/// Takes a field or a method into the body; false, with `member` kept, for anything else.
bool Parser::storeMember(StructBody& body, std::unique_ptr<Statement>& member, bool isPrivate) {
    if (auto* field = nodeAs<VarDeclaration>(member.get())) {
        field->isPrivate = isPrivate;
        body.fields.emplace_back(field);
        static_cast<void>(member.release());
        return true;
    }
    if (auto* method = nodeAs<FunctionDefinitionStatement>(member.get())) {
        method->isPrivate = isPrivate;
        body.methodsByName[method->name.text] = method;
        body.methods.emplace_back(method);
        static_cast<void>(member.release());
        return true;
    }
    return false;
}

/// An abstract parent's methods must all be written, with as many parameters (273); any other
/// parent must be a structure that is known by now (272). Both at the structure's name.
void Parser::checkParent(const Token& name, const Token& parent, const StructBody& body) {
    const auto abstract = abstractStructDefinitions.find(parent.text);
    if (abstract == abstractStructDefinitions.end()) {
        if (structDefinitions.count(parent.text) == 0) பிழை("பொழில்-272", name.line);
        return;
    }
    for (const AbstractMethod& demanded : abstract->second->methods) {
        const auto method = body.methodsByName.find(demanded.name.text);
        if (method == body.methodsByName.end() ||
            method->second->parameters.size() != demanded.parameters.size()) {
            பிழை("பொழில்-273", name.line);
        }
    }
}
