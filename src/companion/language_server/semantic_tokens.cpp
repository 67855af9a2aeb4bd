// What each word of a source is: by the scanner's tables, and by the tree for names.
#include <algorithm>

#include "companion/language_server/features.h"
#include "parser/token_predicates.h"

namespace companion::language_server {

namespace {

enum Type : std::size_t {
    kKeyword,
    kOperator,
    kFunction,
    kStruct,
    kInterface,
    kEnum,
    kEnumMember,
    kVariable,
    kParameter,
    kProperty,
    kString,
    kNumber,
    kComment,
    kClass,
    kMethod,
};

std::optional<Type> typeOf(NameKind kind) {
    switch (kind) {
        case NameKind::Function: return kFunction;
        case NameKind::Structure: return kStruct;
        case NameKind::AbstractStructure: return kInterface;
        case NameKind::Enumeration: return kEnum;
        case NameKind::EnumerationMember: return kEnumMember;
        case NameKind::Parameter: return kParameter;
        case NameKind::Member: return kProperty;
        default: return kVariable;
    }
}

/// What is called is a function, though it be declared in another file.
std::optional<Type> typeOfName(const Code& code, std::size_t index, NameKind kind) {
    const bool isCalled = code.isMarkAt(index + 1, "(");
    if (isCalled && kind == NameKind::Variable) return kFunction;
    if (isCalled && kind == NameKind::Member) return kMethod;
    return typeOf(kind);
}

std::optional<Type> typeOfWord(const Code& code, std::size_t index) {
    const CodePiece& piece = code.at(index);
    const Token token{piece.type, std::string(piece.text), 0};
    const bool isKey = code.isMarkAt(index + 1, ":") && piece.type != TokenType::KEYWORD;
    if (isKey) return kProperty;
    switch (piece.type) {
        case TokenType::OPERATOR:
        case TokenType::ASSIGN_OPERATOR:
        case TokenType::INCREMENT:
        case TokenType::DECREMENT:
        case TokenType::UNARY_PLUS:
        case TokenType::UNARY_MINUS:
        case TokenType::BIT_NOT: return kOperator;
        case TokenType::KEYWORD:
        case TokenType::BOOLEAN:
        case TokenType::PRIVATE: return kKeyword;
        case TokenType::IDENTIFIER:
            if (code.isMarkAt(index + 1, "(")) return isWidgetToken(token) ? kClass : kFunction;
            return std::nullopt;
        default: return code.isMarkAt(index + 1, "(") ? kClass : kProperty;
    }
}

std::optional<Type> typeOf(const Code& code, std::size_t index) {
    switch (code.at(index).piece.kind) {
        case PieceKind::Word: return typeOfWord(code, index);
        case PieceKind::Number: return kNumber;
        case PieceKind::Text:
        case PieceKind::Character: return kString;
        default: return std::nullopt;
    }
}

/// Editors want no token over several lines.
void addByLines(std::string_view text, SemanticToken token, std::vector<SemanticToken>& tokens) {
    Range rest = token.range;
    while (rest.begin < rest.end) {
        const std::string_view words = text.substr(rest.begin, rest.end - rest.begin);
        const std::size_t length = std::min(words.find_first_of("\r\n"), words.size());
        if (length > 0) {
            token.range = {rest.begin, rest.begin + length};
            tokens.push_back(token);
        }
        rest.begin += length + 1;
    }
}

}  // namespace

const std::vector<std::string>& semanticTokenTypes() {
    static const std::vector<std::string> types = {
        "keyword", "operator",   "function", "struct",    "interface",
        "enum",    "enumMember", "variable", "parameter", "property",
        "string",  "number",     "comment",  "class",     "method",
    };
    return types;
}

std::vector<SemanticToken> semanticTokensOf(const Analysis& analysis) {
    const Code& code = analysis.code();
    const Names& names = analysis.names();
    std::vector<SemanticToken> tokens;
    auto use = names.uses.begin();
    for (std::size_t at = 0; at < code.size(); at++) {
        const Range range = code.at(at).range();
        while (use != names.uses.end() && use->range.begin < range.begin) ++use;
        const bool isName = use != names.uses.end() && use->range.begin == range.begin;
        const auto type =
            isName ? typeOfName(code, at, names.names[use->name].kind) : typeOf(code, at);
        const bool isDeclaration = isName && use->kind == UseKind::Definition;
        if (type) addByLines(analysis.source.text, {range, *type, isDeclaration}, tokens);
    }
    for (const CodePiece& comment : code.comments()) {
        addByLines(analysis.source.text, {comment.range(), kComment, false}, tokens);
    }
    std::sort(tokens.begin(), tokens.end(), [](const SemanticToken& a, const SemanticToken& b) {
        return a.range.begin < b.range.begin;
    });
    return tokens;
}

}  // namespace companion::language_server
