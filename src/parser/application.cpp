// A web application and its sections: head, body, logic, database. The shape is bracketed: a word
// and parentheses, with free indentation inside.
#include <utility>

#include "number_text.h"
#include "parser/parser.h"

namespace {

template <typename Node>
bool is(const Expression& value) {
    return dynamic_cast<const Node*>(&value) != nullptr;
}

}  // namespace

/// application = "வலைதளம்" [ identifier ] "(" { property | section } ")"
/// Sections stand in any order, and a later one replaces an earlier. Anything else is passed over.
/// Raises 401 unless head, body and logic are there.
std::unique_ptr<Statement> Parser::parseWebApp() {
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::PAGE, TokenType::TITLE};
    const int line = consume(TokenType::WEB_APP, "பொழில்-241").line;
    std::string name = check(TokenType::IDENTIFIER) ? advance().text : "MyApp";
    openParenthesis();

    PropertyMap properties;
    std::unique_ptr<Statement> databaseManager;
    std::unique_ptr<Statement> header;
    std::unique_ptr<Statement> body;
    std::unique_ptr<Statement> logic;
    bool bodySeen = false;  // an empty body is null, and counts
    bracketLoop(line, [&] {
        if (parsePropertyItem(properties, keys)) return;
        if (check(TokenType::DATABASE_MANAGER)) {
            drop(std::exchange(databaseManager, parseDatabaseManager()));
        } else if (check(TokenType::HEADER)) {
            drop(std::exchange(header, parseHeader()));
        } else if (check(TokenType::BODY)) {
            drop(std::exchange(body, parseUIBody()));
            bodySeen = true;
        } else if (check(TokenType::DEFINITIONS)) {
            drop(std::exchange(logic, parseDefinition()));
        } else {
            advance();
        }
    });
    if (header == nullptr || !bodySeen || logic == nullptr) பிழை("பொழில்-401", peek().line);

    auto app = std::make_unique<WebAppNode>(std::move(name), std::move(databaseManager),
                                            std::move(header), std::move(body), std::move(logic));
    app->properties = std::move(properties);
    return app;
}

/// head = "தலைமை" "(" { head-item } ")"
std::unique_ptr<Statement> Parser::parseHeader() {
    const int line = consume(TokenType::HEADER, "பொழில்-243").line;
    openParenthesis();
    PropertyMap properties;
    ScreenConfig screen;
    bracketLoop(line, [&] { parseHeaderItem(properties, screen); });
    return std::make_unique<HeaderNode>("தலைமை", std::move(properties), WidgetList(), screen);
}

/// head-item = key ":" expression
/// Unknown words are parsed and dropped. Raises 402, 362 or 303 at the key's line for a value of
/// the wrong kind.
void Parser::parseHeaderItem(PropertyMap& properties, ScreenConfig& screen) {
    if (takeComma()) return;
    if (checkKeyword("சுற்றளவு")) return parseScreenSize(screen);

    const TokenType kind = peek().type;
    const Token word = advance();
    if (kind == TokenType::BACKGROUND || kind == TokenType::BOX_BACKGROUND ||
        (kind == TokenType::IDENTIFIER && word.text == "பின்னணி")) {
        auto value = parseValue();
        if (!is<StringLiteral>(*value) && !is<ColorExpression>(*value) &&
            !is<GetExpression>(*value)) {
            பிழை("பொழில்-362", word.line);
        }
        setProperty(properties, "பின்னணி", std::move(value));
    } else if (kind == TokenType::BACKGROUND_IMAGE || kind == TokenType::BACKGROUND_VIDEO) {
        auto value = parseValue();
        if (!is<StringLiteral>(*value)) பிழை("பொழில்-303", word.line);
        setProperty(properties, word.text, std::move(value));
    } else if (kind == TokenType::PAGE) {
        parseValueOf(properties, word.text);
    } else if (kind == TokenType::IDENTIFIER) {
        auto value = parseValue();
        if (word.text != "இணைய_தலைப்பு" && word.text != "சின்னம்") return drop(std::move(value));
        if (!is<StringLiteral>(*value)) பிழை("பொழில்-402", word.line);
        setProperty(properties, word.text, std::move(value));
    }
}

/// screen-size = "சுற்றளவு" ":" ( "அதுவே" | [ "அகலம்" ":" number ] [ "உயரம்" ":" number ] )
/// The scanner makes none of these words a KEYWORD, so no source gets here. Meant.
void Parser::parseScreenSize(ScreenConfig& screen) {
    advance();
    expectColon();
    screen.useDefault = checkKeyword("அதுவே");
    if (screen.useDefault) {
        advance();
        return;
    }
    parseScreenSide("அகலம்", screen.width);
    takeComma();
    parseScreenSide("உயரம்", screen.height);
}

void Parser::parseScreenSide(const char* word, float& side) {
    if (!checkKeyword(word)) return;
    advance();
    expectColon();
    side = floatOf(consume(TokenType::NUMBER, "பொழில்-243").text);
}

/// body = "குமரி" "(" [ widget ] ")"
/// Null for an empty body. A second widget is no `)`. At the end of the text a widget is still
/// looked for, so 203 tells of its parenthesis.
std::unique_ptr<Statement> Parser::parseUIBody() {
    const int line = consume(TokenType::BODY, "பொழில்-242").line;
    openParenthesis();
    skipNewlines();
    while (check(TokenType::INDENT)) advance();
    std::unique_ptr<Statement> root;
    if (!check(TokenType::RIGHT_PAREN)) root = parseWidget();
    skipNewlines();
    while (check(TokenType::DEDENT)) advance();
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return root;
}

/// logic = "வரையறை" "(" { statement } ")"
/// A statement that leaves no node (an enumeration, an import) leaves a null.
std::unique_ptr<Statement> Parser::parseDefinition() {
    const int line = consume(TokenType::DEFINITIONS, "பொழில்-244").line;
    openParenthesis();
    auto body = std::make_unique<BlockStatement>();
    bracketLoop(line, [&] {
        body->statements.push_back(parseStatement(false));
        skipNewlines();
    });
    return std::make_unique<LogicBlockNode>(std::move(body));
}

/// database = "தரவுத்தளமேலாண்மை" "(" [ firebase-config ] ")"
std::unique_ptr<Statement> Parser::parseDatabaseManager() {
    const int line = consume(TokenType::DATABASE_MANAGER, "பொழில்-241").line;
    openParenthesis();
    std::unique_ptr<Statement> config;
    bracketLoop(line, [&] {
        if (check(TokenType::FIREBASE_CONFIG)) {
            drop(std::exchange(config, parseFirebaseConfig()));
        } else {
            advance();
        }
    });
    return std::make_unique<DatabaseManagerNode>(std::move(config));
}

/// firebase-config = "பயர்பேசு_அமைப்பு" "(" { identifier ":" expression } ")"
std::unique_ptr<Statement> Parser::parseFirebaseConfig() {
    const int line = consume(TokenType::FIREBASE_CONFIG, "பொழில்-241").line;
    openParenthesis();
    PropertyMap properties;
    bracketLoop(line, [&] {
        const Token word = advance();
        if (word.type == TokenType::IDENTIFIER) parseValueOf(properties, word.text);
    });
    return std::make_unique<FirebaseConfigNode>(std::move(properties));
}

std::map<std::string, std::unique_ptr<Expression>> Parser::parseProperties() { return {}; }
