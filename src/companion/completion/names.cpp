#include "companion/completion/names.h"

#include <algorithm>
#include <set>
#include <unordered_set>

#include "companion/completion/language_words.h"
#include "companion/pieces.h"
#include "lexer/holds.h"
#include "lexer/word_tables.h"
#include "parser/module_files.h"

namespace companion::completion {

namespace {

constexpr std::string_view kHidden[] = {"ரகசிய", "ரகசியம்", "பொது"};
constexpr int kTabStop = 4;
constexpr std::size_t kMostModules = 200;

/// Properties whose text is the name of something.
constexpr struct {
    std::string_view property;
    NameKind kind;
} kNamingProperties[] = {
    {"அடையாளம்", NameKind::Input},
    {"காட்சி_பெயர்", NameKind::Variable},
    {"பக்கம்", NameKind::Page},
};

bool isTamil(std::string_view word) {
    return word.size() >= 3 && word.substr(0, 1) == "\xE0" &&
           (word.substr(1, 1) == "\xAE" || word.substr(1, 1) == "\xAF");
}

/// A definition whose indented lines are being read.
struct OpenBlock {
    int indent;
    NameKind kind;  ///< Function, Structure or Enumeration.
    std::string name;
    std::vector<std::size_t> locals;  ///< Names that end with the block.
};

class NameReader {
public:
    NameReader(std::string_view text, Range passedOver) : text(text), passedOver(passedOver) {}
    DocumentNames read();

private:
    struct CodePiece {
        Piece piece;
        std::string_view text;
        int indent;  ///< Of its line, if it is the first there; else -1.
    };

    void readPieces();
    void noteWords(std::string_view written);
    void noteWord(std::string_view word);
    void beginLine(const CodePiece& first);
    void readPiece(std::size_t at);
    void readFunction(std::size_t at);
    void readParameters(std::size_t at, DocumentName& function, std::size_t block);
    void readNamedText(std::size_t at);
    void readWord(std::size_t at);
    std::size_t add(std::string_view name, NameKind kind, std::string_view owner = {});

    bool isWord(std::size_t at) const {
        return at < pieces.size() && pieces[at].piece.kind == PieceKind::Word;
    }
    /// A word that the language leaves to programs.
    bool isName(std::size_t at) const {
        return isWord(at) && lookUpWord(pieces[at].text) == TokenType::IDENTIFIER;
    }
    bool isMark(std::size_t at, char mark) const {
        return at < pieces.size() && pieces[at].piece.kind == PieceKind::Mark &&
               pieces[at].text.front() == mark;
    }
    bool isAssigned(std::size_t at) const { return isMark(at, '=') && !isMark(at + 1, '>'); }
    bool isIn(NameKind kind) const { return !blocks.empty() && blocks.back().kind == kind; }

    const std::string_view text;
    const Range passedOver;
    std::vector<CodePiece> pieces;
    std::vector<OpenBlock> blocks;
    std::set<std::string> known;
    std::unordered_set<std::string_view> written;
    DocumentNames found;
};

DocumentNames NameReader::read() {
    readPieces();
    for (std::size_t at = 0; at < pieces.size(); at++) {
        if (pieces[at].indent >= 0) beginLine(pieces[at]);
        readPiece(at);
    }
    return std::move(found);
}

void NameReader::readPieces() {
    PieceReader reader(text, OpenTexts::AsMeant);
    Piece piece{PieceKind::Blank, 0, 0};
    int indent = 0;
    while (reader.next(piece)) {
        const std::string_view shown = text.substr(piece.begin, piece.end - piece.begin);
        switch (piece.kind) {
            case PieceKind::LineEnd: indent = 0; break;
            case PieceKind::Blank:
                for (const char blank : shown) {
                    if (indent >= 0) {
                        indent += blank == '\t' ? kTabStop - indent % kTabStop : 1;
                    }
                }
                break;
            case PieceKind::Comment:
            case PieceKind::BlockComment: noteWords(shown); break;
            default:
                if (piece.begin == passedOver.begin && piece.kind == PieceKind::Word) {
                    indent = -1;
                    break;
                }
                if (piece.kind == PieceKind::Word) noteWord(shown);
                if (piece.kind == PieceKind::Text) noteWords(shown);
                pieces.push_back({piece, shown, indent});
                indent = -1;
        }
    }
}

void NameReader::noteWord(std::string_view word) {
    if (isTamil(word) && written.insert(word).second) found.writtenWords.emplace_back(word);
}

void NameReader::noteWords(std::string_view written) {
    std::size_t begin = 0;
    for (std::size_t at = 0; at <= written.size(); at++) {
        const bool isTamilByte =
            at < written.size() && static_cast<unsigned char>(written[at]) > 127;
        if (isTamilByte) continue;
        if (at > begin) noteWord(written.substr(begin, at - begin));
        begin = at + 1;
    }
}

/// What isn't indented further than a definition's first line ends it.
void NameReader::beginLine(const CodePiece& first) {
    while (!blocks.empty() && first.indent <= blocks.back().indent) {
        for (const std::size_t name : blocks.back().locals) {
            found.names[name].scope.end = first.piece.begin;
        }
        blocks.pop_back();
    }
}

void NameReader::readPiece(std::size_t at) {
    if (pieces[at].piece.kind == PieceKind::Text) return readNamedText(at);
    if (isWord(at)) readWord(at);
}

void NameReader::readWord(std::size_t at) {
    const std::string_view word = pieces[at].text;
    const bool isFirst = pieces[at].indent >= 0;
    if (isFirst && isIn(NameKind::Enumeration)) {
        add(word, NameKind::EnumerationMember, blocks.back().name);
    } else if (word == words::kFunction && isWord(at + 1)) {
        readFunction(at);
    } else if (isFirst && holds(words::kStructures, word) && isWord(at + 1)) {
        add(pieces[at + 1].text, NameKind::Structure);
        blocks.push_back(
            {pieces[at].indent, NameKind::Structure, std::string(pieces[at + 1].text), {}});
    } else if (isFirst && word == words::kEnumeration && isWord(at + 1)) {
        add(pieces[at + 1].text, NameKind::Enumeration);
        blocks.push_back(
            {pieces[at].indent, NameKind::Enumeration, std::string(pieces[at + 1].text), {}});
    } else if (word == words::kForEach && isName(at + 1)) {
        add(pieces[at + 1].text, NameKind::Variable);
    } else if (word == words::kCatch && isMark(at + 1, '(') && isName(at + 2)) {
        add(pieces[at + 2].text, NameKind::Variable);
    } else if (at > 0 && isMark(at - 1, '.') && isName(at) && isAssigned(at + 1)) {
        add(word, NameKind::Field);
    } else if (isName(at) && isAssigned(at + 1)) {
        const bool begins = isFirst || (at > 0 && (holds(kHidden, pieces[at - 1].text) ||
                                                   isMark(at - 1, ';') || isMark(at - 1, '(')));
        if (!begins) return;
        const bool isField = isIn(NameKind::Structure);
        add(word, isField ? NameKind::Field : NameKind::Variable,
            isField ? blocks.back().name : "");
    }
}

void NameReader::readFunction(std::size_t at) {
    const bool isMethod = isIn(NameKind::Structure);
    const std::string owner = isMethod ? blocks.back().name : "";
    const int indent = std::max(pieces[at].indent, 0);
    const std::size_t name =
        add(pieces[at + 1].text, isMethod ? NameKind::Method : NameKind::Function, owner);
    blocks.push_back({indent, NameKind::Function, std::string(pieces[at + 1].text), {}});
    DocumentName function = found.names[name];
    readParameters(at + 2, function, blocks.size() - 1);
    found.names[name] = std::move(function);
}

/// `at` is where the parentheses open.
void NameReader::readParameters(std::size_t at, DocumentName& function, std::size_t block) {
    if (!isMark(at, '(')) return;
    function.parameters.clear();
    for (at++; at < pieces.size() && !isMark(at, ')') && pieces[at].indent < 0; at++) {
        const std::string_view word = pieces[at].text;
        if (holds(words::kReceivers, word) || !isName(at)) continue;
        function.parameters.emplace_back(word);
        blocks[block].locals.push_back(found.names.size());
        const std::size_t begin = pieces[at].piece.end;
        found.names.push_back(
            {std::string(word), NameKind::Parameter, "", {}, {begin, text.size()}, ""});
    }
}

/// அடையாளம்: "ஊர்" names an input, நூஇறக்கி "பாதை" a module.
void NameReader::readNamedText(std::size_t at) {
    const std::string_view quoted = pieces[at].text;
    if (quoted.size() < 3 || !pieces[at].piece.isClosed) return;
    const std::string_view name = quoted.substr(1, quoted.size() - 2);
    if (at > 0 && isWord(at - 1) && pieces[at - 1].text == words::kImport) {
        found.imports.emplace_back(name);
    }
    if (at < 2 || !isMark(at - 1, ':') || !isWord(at - 2)) return;
    for (const auto& row : kNamingProperties) {
        if (row.property == pieces[at - 2].text) add(name, row.kind);
    }
}

/// The index of the name; an earlier one of the same kind and owner stays.
std::size_t NameReader::add(std::string_view name, NameKind kind, std::string_view owner) {
    const std::string key =
        std::string(name) + "/" + std::string(owner) + "/" + std::to_string(static_cast<int>(kind));
    if (known.insert(key).second) {
        found.names.push_back(
            {std::string(name), kind, std::string(owner), {}, {0, text.size()}, ""});
        return found.names.size() - 1;
    }
    const auto same = [&](const DocumentName& other) {
        return other.text == name && other.kind == kind && other.owner == owner;
    };
    return static_cast<std::size_t>(std::find_if(found.names.begin(), found.names.end(), same) -
                                    found.names.begin());
}

}  // namespace

DocumentNames namesOf(std::string_view text, Range passedOver) {
    return NameReader(text, passedOver).read();
}

void addModuleNames(DocumentNames& names,
                    const std::function<bool(const std::string& path, std::string& text)>& read) {
    if (!read) return;
    for (std::size_t at = 0; at < names.imports.size() && at < kMostModules; at++) {
        std::string text;
        const auto files = moduleFilesOf(names.imports[at]);
        const auto isThere = [&](const std::string& file) { return read(file, text); };
        if (std::none_of(files.begin(), files.end(), isThere)) continue;
        DocumentNames module = namesOf(text, {text.size(), text.size()});
        for (DocumentName& name : module.names) {
            if (name.kind == NameKind::Parameter) continue;
            name.scope = {0, std::string::npos};
            name.module = names.imports[at];
            names.names.push_back(std::move(name));
        }
        for (std::string& import : module.imports) {
            if (!holds(names.imports, import)) names.imports.push_back(std::move(import));
        }
    }
}

}  // namespace companion::completion
