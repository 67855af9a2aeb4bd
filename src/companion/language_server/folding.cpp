// What can be folded: blocks, brackets over several lines, comments over several lines.
#include <algorithm>

#include "companion/language_server/features.h"

namespace companion::language_server {

namespace {

class Folds {
public:
    explicit Folds(const Analysis& analysis) : code(analysis.code()), places(analysis.places) {}

    std::vector<FoldedLines> find() {
        addBlocks();
        addBrackets();
        addComments();
        std::sort(folds.begin(), folds.end(), [](const FoldedLines& a, const FoldedLines& b) {
            return a.first != b.first ? a.first < b.first : a.last > b.last;
        });
        folds.erase(std::unique(folds.begin(), folds.end(),
                                [](const FoldedLines& a, const FoldedLines& b) {
                                    return a.first == b.first;
                                }),
                    folds.end());
        return std::move(folds);
    }

private:
    void add(std::size_t begin, std::size_t end, bool isComment, int lastLinesLeft = 0) {
        const int first = places.positionOf(begin).line;
        const int last = places.positionOf(end).line - lastLinesLeft;
        if (last > first) folds.push_back({first, last, isComment});
    }

    /// Lines that stand deeper than the one above them.
    void addBlocks() {
        struct Open {
            std::size_t first;
            int indent;
        };
        std::vector<Open> open;
        const auto closeDownTo = [&](int indent, std::size_t behind) {
            while (!open.empty() && open.back().indent >= indent) {
                add(code.at(open.back().first).piece.begin, code.at(behind - 1).piece.end, false);
                open.pop_back();
            }
        };
        for (std::size_t at = 0; at < code.size(); at++) {
            if (!code.at(at).opensLine) continue;
            closeDownTo(code.at(at).indent, at);
            open.push_back({at, code.at(at).indent});
        }
        if (code.size() > 0) closeDownTo(0, code.size());
    }

    /// The line of the closing bracket stays to be seen.
    void addBrackets() {
        for (std::size_t at = 0; at < code.size(); at++) {
            const std::size_t last = code.closing(at);
            if (last >= code.size()) continue;
            add(code.at(at).piece.begin, code.at(last).piece.begin, false, 1);
        }
    }

    void addComments() {
        const auto& comments = code.comments();
        for (std::size_t at = 0; at < comments.size();) {
            std::size_t last = at;
            while (last + 1 < comments.size() && comments[last + 1].opensLine &&
                   comments[at].opensLine && comments[last + 1].line == comments[last].line + 1) {
                last++;
            }
            add(comments[at].piece.begin, comments[last].piece.end, true);
            at = last + 1;
        }
    }

    const Code& code;
    const TextPlaces& places;
    std::vector<FoldedLines> folds;
};

}  // namespace

std::vector<FoldedLines> foldedLinesOf(const Analysis& analysis) { return Folds(analysis).find(); }

}  // namespace companion::language_server
