#include "unit/ui_grammar/rebreaker.h"

#include <algorithm>
#include <stdexcept>

#include "parser/token_predicates.h"

Rebreaker::Rebreaker(const std::vector<Token>& tokens, unsigned seed)
    : tokens(tokens), last(tokens.size() - 1), random(seed) {}

bool Rebreaker::isLayout(const Token& token) const {
    return token.type == TokenType::NEWLINE || token.type == TokenType::INDENT ||
           token.type == TokenType::DEDENT;
}

std::size_t Rebreaker::skipLayout(std::size_t at) const {
    while (isLayout(token(at))) at++;
    return at;
}

void Rebreaker::write(const Token& token) {
    const bool isString = token.type == TokenType::STRING;
    out += (isString ? "\"" + token.text + "\"" : token.text) + " ";
}

/// The indentation that a new line may take depends on what the bracket around it has open.
void Rebreaker::breakLine(bool mayIndent, bool mayDedent) {
    int& depth = levels.back().depth;
    out += "\n";
    if (oneIn(8)) out += "\n";
    if (oneIn(12)) out += "   ஃ விளக்கம் (\n";
    if (mayIndent && oneIn(3)) {
        widths.push_back(widths.back() + 1 + static_cast<int>(random() % 6));
        depth++;
    } else if (mayDedent) {
        while (depth > 0 && oneIn(2)) {
            widths.pop_back();
            depth--;
        }
    }
    out += std::string(static_cast<std::size_t>(widths.back()), ' ');
}

void Rebreaker::breakSomewhere() {
    if (oneIn(2)) breakLine(true, true);
}

/// Between two items: a comma, a break, both in either order, or neither.
void Rebreaker::separate() {
    if (oneIn(2)) {
        if (levels.back().bracket != Bracket::TextStyle) breakSomewhere();
        out += ", ";
    }
    breakSomewhere();
}

void Rebreaker::breakBefore(const Token& next) {
    const Bracket bracket = levels.back().bracket;
    const bool closes = next.type == TokenType::RIGHT_PAREN || next.type == TokenType::RIGHT_BRACE;
    switch (bracket) {
        case Bracket::Expression: return;
        case Bracket::Free:
        case Bracket::Map: return breakSomewhere();
        case Bracket::Body:
            if (oneIn(2)) breakLine(justOpened, closes);
            return;
        case Bracket::Press:
            if (justOpened || closes) breakSomewhere();
            return;
        default: break;
    }
    if (closes) {
        breakSomewhere();
    } else if (justOpened) {
        if (bracket != Bracket::Properties) breakSomewhere();
    } else if (boundary) {
        separate();
    }
}

/// What the parenthesis behind this word holds.
Rebreaker::Bracket Rebreaker::bracketAt(std::size_t word) const {
    if (!levels.empty() && levels.back().bracket == Bracket::Free) return Bracket::Free;
    switch (token(word).type) {
        case TokenType::ANIMATION: return Bracket::Free;
        case TokenType::STYLE: return Bracket::TextStyle;
        case TokenType::ON_PRESS: return Bracket::Press;
        case TokenType::BODY: return Bracket::Body;
        case TokenType::HEADER:
        case TokenType::DATABASE_MANAGER:
        case TokenType::FIREBASE_CONFIG:
        case TokenType::BUTTON_STYLE:
        case TokenType::TEXT_BUTTON_STYLE:
        case TokenType::SEARCH_STYLE:
        case TokenType::ALERT_STYLE:
        case TokenType::PAGE: return Bracket::Items;
        case TokenType::TEXT:
            if (levels.back().owner == TokenType::TEXT_BUTTON) return Bracket::Expression;
            return Bracket::Items;
        case TokenType::COLUMN:
        case TokenType::ROW:
        case TokenType::STACK:
        case TokenType::LIST_VIEW: return groupAt(word + 1);
        case TokenType::BOX:
            // An alignment has a group of its own, on one line.
            return token(word + 2).text == "சீரமைப்பு" ? Bracket::Expression : Bracket::Items;
        default: break;
    }
    if (levels.empty()) return Bracket::Items;  // the application's own
    if (token(word).text == "மடிப்பு") return groupAt(word + 1);
    if (isWidgetToken(token(word))) return Bracket::Items;
    const bool isChild = levels.back().bracket == Bracket::Children;
    return isChild ? Bracket::Items : Bracket::Expression;
}

/// A group of properties, if one of them stands directly behind the parenthesis.
Rebreaker::Bracket Rebreaker::groupAt(std::size_t parenthesis) const {
    const TokenType first = token(parenthesis + 1).type;
    const bool isKey =
        first == TokenType::IDENTIFIER || first == TokenType::WIDTH || first == TokenType::HEIGHT;
    const bool isProperty =
        first == TokenType::ANIMATION || (isKey && token(parenthesis + 2).type == TokenType::COLON);
    return isProperty ? Bracket::Properties : Bracket::Children;
}

bool Rebreaker::isAlignmentOfABox(const Level& level) {
    return level.bracket == Bracket::Expression && level.owner == TokenType::BOX;
}

void Rebreaker::open(const Token& bracket) {
    const TokenType owner = at == 0 ? TokenType::UNKNOWN : token(at - 1).type;
    if (bracket.type == TokenType::LEFT_BRACE) {
        levels.push_back({Bracket::Map, owner});
    } else if (bracket.type == TokenType::LEFT_BRACKET) {
        levels.push_back({Bracket::Expression, owner});
    } else if (justClosedGroup) {
        levels.push_back(
            {groupOwner == TokenType::BOX ? Bracket::Items : Bracket::Children, owner});
    } else {
        levels.push_back({bracketAt(at - 1), owner});
    }
}

/// Statements keep their lines; only the width that they start from changes.
void Rebreaker::writeLogic() {
    write(token(at++));
    write(token(at++));
    int level = 0;
    for (int parentheses = 1; parentheses > 0; at++) {
        const Token& next = token(at);
        if (next.type == TokenType::INDENT) level++;
        if (next.type == TokenType::DEDENT) level--;
        if (next.type == TokenType::NEWLINE) {
            std::size_t behind = at + 1;
            int change = 0;
            for (; isLayout(token(behind)); behind++) {
                if (token(behind).type == TokenType::INDENT) change++;
                if (token(behind).type == TokenType::DEDENT) change--;
            }
            const int width = widths.back() + 3 * (level + change);
            out += "\n" + std::string(static_cast<std::size_t>(width), ' ');
        }
        if (isLayout(next)) continue;
        if (next.type == TokenType::LEFT_PAREN) parentheses++;
        if (next.type == TokenType::RIGHT_PAREN) parentheses--;
        write(next);
    }
}

std::string Rebreaker::text() {
    while (token(at).type != TokenType::END_OF_FILE) {
        const Token& next = token(at);
        if (levels.empty() && isLayout(next)) {
            at++;
            continue;
        }
        const bool separates = next.type == TokenType::COMMA &&
                               levels.back().bracket != Bracket::Expression &&
                               levels.back().bracket != Bracket::Map;
        if (isLayout(next) || separates) {
            boundary = true;
            at++;
            continue;
        }
        if (!levels.empty() && !(justClosedGroup && next.type == TokenType::LEFT_PAREN)) {
            breakBefore(next);
        }
        boundary = false;
        const bool wasGroup =
            next.type == TokenType::RIGHT_PAREN &&
            (levels.back().bracket == Bracket::Properties ||
             levels.back().owner == TokenType::GRID_VIEW || isAlignmentOfABox(levels.back()));
        if (next.type == TokenType::DEFINITIONS) {
            writeLogic();
            justOpened = justClosedGroup = false;
            boundary = true;
            continue;
        }
        write(next);
        const bool opens = next.type == TokenType::LEFT_PAREN ||
                           next.type == TokenType::LEFT_BRACE ||
                           next.type == TokenType::LEFT_BRACKET;
        if (opens) open(next);
        justOpened = opens;
        justClosedGroup = wasGroup;
        const bool closes = next.type == TokenType::RIGHT_PAREN ||
                            next.type == TokenType::RIGHT_BRACE ||
                            next.type == TokenType::RIGHT_BRACKET;
        if (closes) {
            groupOwner = levels.back().owner;
            levels.pop_back();
        }
        at++;
    }
    return out + "\n";
}
