#include "companion/completion/place.h"

#include <algorithm>
#include <vector>

#include "companion/completion/language_words.h"
#include "companion/completion/typed_word.h"
#include "companion/descriptions/description.h"
#include "companion/pieces.h"
#include "lexer/holds.h"
#include "lexer/word_tables.h"

namespace companion::completion {

namespace {

/// What a new name follows.
constexpr std::string_view kNaming[] = {words::kFunction,    "கட்டமைப்பு",      "வடிவமைப்பு",
                                        words::kApplication, words::kForEach, "வகை"};

/// What is written in parentheses that are open.
struct Opening {
    char mark;
    std::string_view word;    ///< Ahead of them; that of the first ones for second ones.
    std::string_view before;  ///< The word ahead of that.
    bool isSecond;
};

bool isHolder(std::string_view word) {
    for (const Description& row : widgetDescriptions()) {
        if (row.word == word) return true;
    }
    for (const PropertyDescription& row : propertyDescriptions()) {
        if (!row.block.empty() && row.block == word) return true;
    }
    return false;
}

/// A word after which a value has to come.
bool asksForValue(std::string_view word) {
    switch (lookUpWord(word)) {
        case TokenType::KEYWORD:
        case TokenType::OPERATOR:
        case TokenType::ASSIGN_OPERATOR:
        case TokenType::BIT_NOT:
        case TokenType::UNARY_PLUS:
        case TokenType::UNARY_MINUS: return true;
        default: return false;
    }
}

class PlaceReader {
public:
    PlaceReader(std::string_view text, std::size_t offset) : text(text), offset(offset) {}

    Place read();

private:
    bool readPieces();
    void pass(const Piece& piece);
    void open(char mark);
    void close(char mark);
    Place inside(const Piece& piece);
    Place insideText(const Piece& piece);
    Place insideCode();
    PlaceKind kindOfCode();
    PlaceKind kindInHolder();
    PlaceKind kindBehind(const Piece& last);
    PlaceKind kindBehindWord(std::string_view word);
    PlaceKind kindBehindMark(char mark);
    void setHolder(std::size_t depth);
    Range latinRun(std::size_t from) const;

    std::string_view textOf(const Piece& piece) const {
        return text.substr(piece.begin, piece.end - piece.begin);
    }
    /// The word `back` pieces before the place; empty if no word stands there.
    std::string_view wordBack(std::size_t back) const {
        if (pieces.size() < back) return {};
        const Piece& piece = pieces[pieces.size() - back];
        return piece.kind == PieceKind::Word ? textOf(piece) : std::string_view();
    }
    bool isMarkBack(std::size_t back, char mark) const {
        return pieces.size() >= back && text[pieces[pieces.size() - back].begin] == mark;
    }

    const std::string_view text;
    const std::size_t offset;
    std::vector<Piece> pieces;  ///< Ahead of the place, without blanks, line ends, comments.
    std::vector<Opening> openings;
    Opening closed = {'\0', {}, {}, false};    ///< What was closed last.
    Piece current = {PieceKind::Blank, 0, 0};  ///< The piece in which the place is.
    bool opensLine = true;
    Place place;
};

Place PlaceReader::read() {
    if (readPieces()) return inside(current);
    return insideCode();
}

/// True if the place is in the middle of a piece or at a word's end.
bool PlaceReader::readPieces() {
    PieceReader reader(text, OpenTexts::AsMeant);
    Piece piece{PieceKind::Blank, 0, 0};
    while (reader.next(piece) && piece.begin < offset) {
        const bool isLineComment = piece.kind == PieceKind::Comment;
        const bool endsHere = piece.end == offset;
        const bool isOpen = !piece.isClosed || isLineComment;
        const bool isWritten = piece.kind == PieceKind::Word || piece.kind == PieceKind::Number;
        if (piece.end > offset || (endsHere && (isOpen || isWritten))) {
            current = piece;
            return piece.kind != PieceKind::Blank && piece.kind != PieceKind::LineEnd;
        }
        pass(piece);
    }
    return false;
}

void PlaceReader::pass(const Piece& piece) {
    switch (piece.kind) {
        case PieceKind::LineEnd: opensLine = true; return;
        case PieceKind::Blank:
        case PieceKind::Comment:
        case PieceKind::BlockComment: return;
        default: break;
    }
    const char mark = piece.kind == PieceKind::Mark ? text[piece.begin] : '\0';
    if (mark == '(' || mark == '[' || mark == '{') open(mark);
    if (mark == ')' || mark == ']' || mark == '}') close(mark);
    opensLine = mark == ';';
    pieces.push_back(piece);
}

void PlaceReader::open(char mark) {
    Opening opening{mark, wordBack(1), wordBack(2), false};
    if (opening.before == words::kApplication) opening.word = words::kApplication;
    if (mark == '(' && isMarkBack(1, ')') && isHolder(closed.word)) {
        opening = {mark, closed.word, closed.before, true};
    }
    openings.push_back(opening);
}

/// A bracket that closes nothing is passed over.
void PlaceReader::close(char mark) {
    const char opened = mark == ')' ? '(' : mark == ']' ? '[' : '{';
    if (openings.empty() || openings.back().mark != opened) return;
    closed = openings.back();
    openings.pop_back();
}

Place PlaceReader::inside(const Piece& piece) {
    switch (piece.kind) {
        case PieceKind::Text: return insideText(piece);
        case PieceKind::Comment:
        case PieceKind::BlockComment:
            place.kind = PlaceKind::Comment;
            place.typed = latinRun(piece.begin);
            return place;
        case PieceKind::Word: return insideCode();
        default: return place;
    }
}

/// The Latin letters that end at the place.
Range PlaceReader::latinRun(std::size_t from) const {
    std::size_t begin = offset;
    while (begin > from && isLatinLetter(text[begin - 1])) begin--;
    const bool isEscape = begin > from && text[begin - 1] == '\\' && begin < offset;
    return {isEscape ? begin + 1 : begin, offset};
}

Place PlaceReader::insideText(const Piece& piece) {
    place.isQuoted = true;
    const std::string_view word = wordBack(1);
    if (word == words::kImport) {
        place.kind = PlaceKind::ImportPath;
        place.typed = {piece.begin + 1, offset};
        return place;
    }
    place.kind = PlaceKind::Text;
    place.typed = latinRun(piece.begin + 1);
    if (isMarkBack(1, '(')) place.before = wordBack(2);
    if (isMarkBack(1, ':') && !openings.empty() && isHolder(openings.back().word)) {
        setHolder(openings.size());
        place.kind = PlaceKind::ValueText;
        place.property = wordBack(2);
        const Range whole = {piece.begin + 1, offset};
        const bool isOneWord =
            textOf({PieceKind::Text, whole.begin, whole.end}).find(' ') == std::string_view::npos;
        if (isOneWord) place.typed = whole;
    }
    return place;
}

Place PlaceReader::insideCode() {
    const bool isInWord = current.kind == PieceKind::Word;
    place.typed = {isInWord ? current.begin : offset, offset};
    if (offset < text.size()) place.next = text[offset];
    place.kind = kindOfCode();
    return place;
}

PlaceKind PlaceReader::kindOfCode() {
    if (!pieces.empty() && isMarkBack(1, '.')) {
        place.receiver = wordBack(2);
        return PlaceKind::Member;
    }
    const bool inStatements = openings.empty() || openings.back().word == words::kDefinitions;
    if (inStatements) {
        return opensLine || pieces.empty() || isMarkBack(1, '(') ? PlaceKind::Statement
                                                                 : kindBehind(pieces.back());
    }
    const Opening& opening = openings.back();
    if (opening.mark != '(') {
        return isMarkBack(1, opening.mark) ? PlaceKind::Operand : kindBehind(pieces.back());
    }
    if (opening.before == words::kFunction || opening.word == words::kCatch ||
        opening.word == words::kLambda) {
        place.before = opening.before == words::kFunction ? "(" : opening.word;
        return PlaceKind::NewName;
    }
    if (isHolder(opening.word)) return kindInHolder();
    return isMarkBack(1, '(') ? PlaceKind::Operand : kindBehind(pieces.back());
}

/// The property, block or widget that is written next; what a property is given.
PlaceKind PlaceReader::kindInHolder() {
    setHolder(openings.size());
    if (openings.back().word == words::kApplication) return PlaceKind::Section;
    const bool endsLambda =
        isMarkBack(1, ':') && isMarkBack(2, ')') && closed.word == words::kLambda;
    if (isMarkBack(1, ':') && !endsLambda) {
        place.property = wordBack(2);
        return PlaceKind::PropertyValue;
    }
    if (opensLine || isMarkBack(1, '(') || isMarkBack(1, ',')) return PlaceKind::WidgetItem;
    const PlaceKind kind = kindBehind(pieces.back());
    if (kind != PlaceKind::AfterValue) return kind;
    place.followsValue = true;
    return PlaceKind::WidgetItem;
}

/// A block such as இலக்கு belongs to the widget around it and the animation.
void PlaceReader::setHolder(std::size_t depth) {
    const Opening& opening = openings[depth - 1];
    place.holder = opening.word;
    place.isSecond = opening.isSecond;
    place.widget = opening.word;
    const auto isBlock = [&](std::string_view written) {
        const std::string_view word = words::blockOf(written, {});
        const auto& rows = propertyDescriptions();
        return std::any_of(rows.begin(), rows.end(), [&](const auto& row) {
            return !row.block.empty() && row.block == word;
        });
    };
    for (std::size_t at = depth; at > 0 && isBlock(place.widget); at--) {
        place.widget = openings[at - 1].word;
        if (place.widget == "அசைவூட்டம்" && at > 1) place.widget = openings[at - 2].word;
    }
}

PlaceKind PlaceReader::kindBehind(const Piece& last) {
    switch (last.kind) {
        case PieceKind::Word: return kindBehindWord(textOf(last));
        case PieceKind::Mark: return kindBehindMark(text[last.begin]);
        default: return PlaceKind::AfterValue;
    }
}

PlaceKind PlaceReader::kindBehindWord(std::string_view word) {
    place.before = word;
    if (word == words::kImport) return PlaceKind::ImportPath;
    if (holds(kNaming, word)) return PlaceKind::NewName;
    if (wordBack(2) == words::kForEach) return PlaceKind::LoopWord;
    return asksForValue(word) ? PlaceKind::Operand : PlaceKind::AfterValue;
}

PlaceKind PlaceReader::kindBehindMark(char mark) {
    const bool endsValue = mark == ')' || mark == ']' || mark == '}';
    return endsValue ? PlaceKind::AfterValue : PlaceKind::Operand;
}

}  // namespace

Place placeAt(std::string_view text, std::size_t offset) {
    return PlaceReader(text, std::min(offset, text.size())).read();
}

}  // namespace companion::completion
