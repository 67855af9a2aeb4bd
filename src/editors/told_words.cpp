#include "editors/told_words.h"

#include <vector>

#include "companion/pieces.h"
#include "editors/word_groups.h"

namespace editors {

namespace {

using companion::Piece;
using companion::PieceKind;

/// The pieces of a source that aren't blank, and for each of them whether it stands in the
/// parentheses of a widget.
class ToldSource {
public:
    explicit ToldSource(std::string_view source) : source(source) {
        companion::PieceReader reader(source, companion::OpenTexts::AsScanned);
        for (Piece piece{}; reader.next(piece);) {
            if (piece.kind == PieceKind::Blank || piece.kind == PieceKind::LineEnd) continue;
            pieces.push_back(piece);
            noteParentheses();
        }
    }

    void tell(std::ostream& out) const {
        for (std::size_t at = 0; at < pieces.size(); at++) {
            const std::string_view kind = kindOf(at);
            if (!kind.empty()) {
                out << kind << ' ' << pieces[at].begin << ' ' << pieces[at].end << '\n';
            }
        }
    }

private:
    std::string_view textAt(std::size_t at) const {
        if (at >= pieces.size()) return {};
        return source.substr(pieces[at].begin, pieces[at].end - pieces[at].begin);
    }

    /// Behind a widget's name stand parentheses of its own, and often a second pair.
    void noteParentheses() {
        const std::size_t at = pieces.size() - 1;
        const std::string_view text = textAt(at);
        inBody.push_back(!open.empty() && open.back());
        if (text == ")" && !open.empty()) {
            closedBody = open.back();
            open.pop_back();
        } else if (text == "(") {
            const std::string_view before = at == 0 ? "" : textAt(at - 1);
            const std::string_view earlier = at < 2 ? "" : textAt(at - 2);
            open.push_back(opensBody(before) || earlier == "வலைதளம்" ||
                           (before == ")" && closedBody) || (before == ":" && inBody.back()));
        }
    }

    static bool opensBody(std::string_view word) {
        return isOf(Group::Widget, word) || isOf(Group::Section, word);
    }

    std::string_view kindOf(std::size_t at) const {
        switch (pieces[at].kind) {
            case PieceKind::Comment:
            case PieceKind::BlockComment: return "comment";
            case PieceKind::Text: return "text";
            case PieceKind::Character: return "character";
            case PieceKind::Number: return "number";
            case PieceKind::Word: return kindOfWord(at);
            default: return "";
        }
    }

    std::string_view kindOfWord(std::size_t at) const {
        const std::string_view word = textAt(at);
        const std::string_view before = at == 0 ? "" : textAt(at - 1);
        const std::string_view behind = textAt(at + 1);
        if (before == ".") return isOf(Group::Member, word) ? "member" : "";
        if (inBody[at] && behind == ":" && isOf(Group::Property, word)) return "property";
        if (isOf(Group::Widget, word)) return behind == "(" ? "widget" : "";
        if (isOf(Group::BuiltIn, word)) return behind == "(" ? "built-in" : "";
        if (before == "செயல்") return "function";
        if (before == "கட்டமைப்பு" || before == "வடிவமைப்பு") return "structure";
        if (isOf(Group::Truth, word)) return "truth";
        if (isOf(Group::Operator, word)) return "operator";
        if (isOf(Group::Section, word)) return "section";
        return isOf(Group::Keyword, word) ? "keyword" : "";
    }

    std::string_view source;
    std::vector<Piece> pieces;
    std::vector<bool> inBody;
    std::vector<bool> open;  ///< For each parenthesis: whether it holds widgets and properties.
    bool closedBody = false;
};

}  // namespace

void tellWords(std::ostream& out, std::string_view source) { ToldSource(source).tell(out); }

}  // namespace editors
