#include "companion/language_server/outline.h"

#include <algorithm>
#include <set>

#include "parser/token_predicates.h"

namespace companion::language_server {

namespace {

bool isHolder(DeclarationKind kind) {
    return kind == DeclarationKind::Structure || kind == DeclarationKind::AbstractStructure ||
           kind == DeclarationKind::Enumeration;
}

bool isSectionWord(TokenType type) {
    return type == TokenType::HEADER || type == TokenType::BODY || type == TokenType::DEFINITIONS ||
           type == TokenType::DATABASE_MANAGER || type == TokenType::FIREBASE_CONFIG;
}

bool isWidgetWord(const CodePiece& piece) {
    return piece.type == TokenType::PAGE ||
           isWidgetToken(Token{piece.type, std::string(piece.text), 0});
}

/// Walks the pieces once and keeps what it stands in on a stack.
class OutlineReader {
public:
    explicit OutlineReader(const Code& code) : code(code) {}

    std::vector<Declaration> read() {
        for (at = 0; at < code.size(); at++) {
            while (!open.empty() && at >= open.back().end) open.pop_back();
            readPiece();
        }
        return std::move(declarations);
    }

private:
    struct Open {
        std::size_t declaration;
        std::size_t end;  ///< Index behind its last piece.
    };

    void readPiece();
    void readNamed(DeclarationKind kind);
    void readMember();
    void readApplicationWord();
    void readVariable();
    std::vector<DeclaredParameter> parametersFrom(std::size_t bracket) const;

    std::size_t add(DeclarationKind kind, std::size_t nameAt, std::size_t first, std::size_t end);
    void hold(std::size_t declaration, std::size_t end) { open.push_back({declaration, end}); }
    /// The innermost structure, enumeration or function around the cursor.
    const Declaration* around() const {
        return open.empty() ? nullptr : &declarations[open.back().declaration];
    }
    bool isInFunction() const;
    const CodePiece& piece() const { return code.at(at); }
    bool isNameAt(std::size_t index) const {
        return index < code.size() && code.at(index).isWord();
    }

    const Code& code;
    std::size_t at = 0;
    std::vector<Declaration> declarations;
    std::vector<Open> open;
    std::set<std::string_view> variables;
};

bool OutlineReader::isInFunction() const {
    return std::any_of(open.begin(), open.end(), [&](const Open& entry) {
        const DeclarationKind kind = declarations[entry.declaration].kind;
        return kind == DeclarationKind::Function || kind == DeclarationKind::Method;
    });
}

void OutlineReader::readPiece() {
    if (!piece().isWord()) return;
    if (piece().text == "செயல்") return readNamed(DeclarationKind::Function);
    if (piece().opensLine) {
        if (piece().text == "கட்டமைப்பு") return readNamed(DeclarationKind::Structure);
        if (piece().text == "வடிவமைப்பு") return readNamed(DeclarationKind::AbstractStructure);
        if (piece().text == "வகை") return readNamed(DeclarationKind::Enumeration);
        if (around() != nullptr && isHolder(around()->kind)) return readMember();
    }
    if (piece().type == TokenType::WEB_APP || isSectionWord(piece().type) ||
        isWidgetWord(piece())) {
        return readApplicationWord();
    }
    readVariable();
}

/// செயல் name(...):  கட்டமைப்பு name:  வகை name:
void OutlineReader::readNamed(DeclarationKind kind) {
    const std::size_t nameAt = at + 1;
    const bool isStatement = piece().opensLine || (at > 0 && (code.at(at - 1).text == "ரகசிய" ||
                                                              code.at(at - 1).text == "பொது" ||
                                                              code.at(at - 1).isMark("(")));
    if (!isStatement || !isNameAt(nameAt) || code.at(nameAt).line != piece().line) return;
    if (kind == DeclarationKind::Function && around() != nullptr && isHolder(around()->kind)) {
        kind = DeclarationKind::Method;
    }
    const std::size_t end = code.behindBlock(at);
    const std::size_t index = add(kind, nameAt, at, end);
    if (kind == DeclarationKind::Function || kind == DeclarationKind::Method) {
        declarations[index].parameters = parametersFrom(nameAt + 1);
    }
    hold(index, end);
    at = nameAt;
}

/// name = value in a structure, a bare name in an enumeration.
void OutlineReader::readMember() {
    std::size_t nameAt = at;
    const bool isEnumeration = around()->kind == DeclarationKind::Enumeration;
    while (!isEnumeration && isNameAt(nameAt) &&
           (code.at(nameAt).text == "ரகசிய" || code.at(nameAt).text == "பொது")) {
        nameAt++;
    }
    if (!isNameAt(nameAt)) return;
    if (code.at(nameAt).text == "செயல்") return;  // comes by itself
    if (!isEnumeration && !code.isMarkAt(nameAt + 1, "=")) return;
    add(isEnumeration ? DeclarationKind::EnumerationMember : DeclarationKind::Field, nameAt, at,
        code.behindLine(at));
}

/// வலைதளம் name(...)  தலைமை(...)  உரை(...)
void OutlineReader::readApplicationWord() {
    const bool isApplication = piece().type == TokenType::WEB_APP;
    const std::size_t bracket = at + (isApplication ? 2 : 1);
    if (!code.isMarkAt(bracket, "(") || isInFunction()) return;
    std::size_t last = code.closing(bracket);
    if (last < code.size() && code.isMarkAt(last + 1, "(")) last = code.closing(last + 1);
    const std::size_t end = std::min(last + 1, code.size());
    const DeclarationKind kind = isApplication                 ? DeclarationKind::Application
                                 : isSectionWord(piece().type) ? DeclarationKind::Section
                                                               : DeclarationKind::Widget;
    const std::size_t index = add(kind, isApplication ? at + 1 : at, at, end);
    hold(index, end);
}

void OutlineReader::readVariable() {
    if (!piece().opensLine || piece().type != TokenType::IDENTIFIER || isInFunction()) return;
    if (!code.isMarkAt(at + 1, "=") || !variables.insert(piece().text).second) return;
    add(DeclarationKind::Variable, at, at, code.behindLine(at));
}

std::vector<DeclaredParameter> OutlineReader::parametersFrom(std::size_t bracket) const {
    std::vector<DeclaredParameter> parameters;
    if (!code.isMarkAt(bracket, "(")) return parameters;
    const std::size_t end = code.closing(bracket);
    std::size_t first = bracket + 1;  // of the parameter that is being read
    const auto finish = [&](std::size_t behind) {
        if (first < behind) {
            parameters.push_back({code.at(behind - 1).range(),
                                  {code.at(first).piece.begin, code.at(behind - 1).piece.end}});
        }
        first = behind + 1;
    };
    std::size_t index = first;
    for (; index < end && index < code.size() && code.at(index).line == code.at(bracket).line;
         index++) {
        if (code.at(index).isMark(",")) {
            finish(index);
        } else if (!code.at(index).isWord()) {
            return parameters;  // half-written
        }
    }
    finish(index);
    return parameters;
}

std::size_t OutlineReader::add(DeclarationKind kind, std::size_t nameAt, std::size_t first,
                               std::size_t end) {
    Declaration declaration;
    declaration.kind = kind;
    declaration.name = std::string(code.at(nameAt).text);
    declaration.nameRange = code.at(nameAt).range();
    std::size_t headEnd = code.behindLine(first);
    headEnd = std::min(headEnd, std::max(end, first + 1));
    if (headEnd > first + 1 && code.at(headEnd - 1).isMark(":")) headEnd--;
    declaration.head = {code.at(first).piece.begin, code.at(headEnd - 1).piece.end};
    declaration.whole = {code.at(first).piece.begin,
                         code.at(std::max(end, first + 1) - 1).piece.end};
    declaration.whole.end = std::max(declaration.whole.end, declaration.nameRange.end);
    if (!open.empty()) declaration.parent = open.back().declaration;
    declarations.push_back(std::move(declaration));
    return declarations.size() - 1;
}

}  // namespace

std::vector<Declaration> outlineOf(const Code& code) { return OutlineReader(code).read(); }

std::string remarksAbove(const Code& code, const Declaration& declaration) {
    const auto& comments = code.comments();
    auto comment = std::upper_bound(
        comments.begin(), comments.end(), declaration.whole.begin,
        [](std::size_t offset, const CodePiece& piece) { return offset < piece.piece.begin; });
    std::string remarks;
    std::size_t below = declaration.whole.begin;
    while (comment != comments.begin()) {
        --comment;
        const std::string_view between =
            code.text().substr(comment->piece.end, below - comment->piece.end);
        const bool isNear = between.find_first_not_of(" \t\r\n") == std::string_view::npos &&
                            std::count(between.begin(), between.end(), '\n') == 1;
        if (!isNear || !comment->opensLine) break;
        std::string_view words = comment->text;
        while (words.substr(0, kCommentSign.size()) == kCommentSign) {
            words.remove_prefix(kCommentSign.size());
        }
        while (words.size() >= kCommentSign.size() &&
               words.substr(words.size() - kCommentSign.size()) == kCommentSign) {
            words.remove_suffix(kCommentSign.size());
        }
        while (!words.empty() && words.front() == ' ') words.remove_prefix(1);
        if (!remarks.empty()) remarks.insert(0, "\n");
        remarks.insert(0, words);
        below = comment->piece.begin;
    }
    return remarks;
}

}  // namespace companion::language_server
