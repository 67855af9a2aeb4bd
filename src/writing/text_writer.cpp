#include "writing/text_writer.h"

#include <algorithm>
#include <stdexcept>

#include "writing/marks.h"

namespace {

constexpr std::string_view kSwitchHead = "#if POZHIL_";
constexpr std::size_t kIndentBytes = 4;

bool beginsWith(std::string_view text, std::string_view head) {
    return text.substr(0, head.size()) == head;
}

/// Fills one template. A line is left out while a switch around it stands the other way.
class TemplateFill {
public:
    TemplateFill(TextWriter& writer, const Fills& fills)
        : writer(writer), fills(fills), placed(fills.size()) {}

    void write(std::string_view text) {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            writeLine(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        if (!conditions.empty()) throw std::logic_error("a directive isn't closed");
        for (const Fill& fill : fills) {
            if (!placed[placeOf(fill.name)]) refuse("has no place", fill.name);
        }
    }

private:
    struct Condition {
        bool isSwitch;  ///< Resolved here; any other passes through.
        bool holds;
    };

    [[noreturn]] static void refuse(const char* what, std::string_view name) {
        throw std::logic_error("placeholder " + std::string(name) + " " + what);
    }

    /// Where the first fill of this name stands; behind the last if there is none.
    std::size_t placeOf(std::string_view name) const {
        std::size_t place = 0;
        while (place < fills.size() && fills[place].name != name) place++;
        return place;
    }

    const Fill& find(std::string_view name) {
        const std::size_t place = placeOf(name);
        if (place == fills.size()) refuse("isn't filled", name);
        placed[place] = true;
        return fills[place];
    }

    bool isLeftOut() const {
        return std::any_of(conditions.begin(), conditions.end(),
                           [](const Condition& each) { return !each.holds; });
    }

    void writeLine(std::string_view line) {
        const std::size_t margin = std::min(line.find_first_not_of(' '), line.size());
        const std::string_view content = line.substr(margin);
        if (beginsWith(content, "#")) return writeDirective(content);
        if (isLeftOut()) return lookUpMarks(content);
        if (content.empty()) {
            writer.out << "\n";
            return;
        }
        const int depth = static_cast<int>(margin / kIndentBytes);
        const Mark mark = findMark(content, kCodeMarks);
        if (mark.at == 0 && content.substr(mark.length) == ";") {
            const Fill& fill = find(mark.name);
            if (const auto* write = std::get_if<std::function<void()>>(&fill.value)) {
                writer.level += depth;
                (*write)();
                writer.level -= depth;
                return;
            }
        }
        writer.indent();
        writer.out << line.substr(0, margin);
        fillMarks(writer.out, content, kCodeMarks, [this](std::string_view name) {
            writeInPlace(find(name));
            return true;
        });
        writer.out << "\n";
    }

    void writeInPlace(const Fill& fill) {
        if (const auto* text = std::get_if<std::string>(&fill.value)) {
            writer.out << *text;
        } else if (const auto* write = std::get_if<std::function<void()>>(&fill.value)) {
            (*write)();
        } else {
            refuse("is a switch", fill.name);
        }
    }

    /// What is left out must be filled all the same: a mistake shows whichever way switches stand.
    void lookUpMarks(std::string_view content) {
        for (Mark mark = findMark(content, kCodeMarks); mark.at != std::string_view::npos;
             mark = findMark(content, kCodeMarks)) {
            find(mark.name);
            content.remove_prefix(mark.at + mark.length);
        }
    }

    void writeDirective(std::string_view content) {
        if (beginsWith(content, kSwitchHead)) {
            const std::string_view name = content.substr(kSwitchHead.size());
            const auto* holds = std::get_if<bool>(&find(name).value);
            if (holds == nullptr) refuse("is no switch", name);
            conditions.push_back({true, *holds});
            return;
        }
        if (beginsWith(content, "#if")) {
            passThrough(content);
            conditions.push_back({false, true});
            return;
        }
        const bool closes = beginsWith(content, "#endif");
        if (closes || beginsWith(content, "#else")) {
            if (conditions.empty()) throw std::logic_error("a directive isn't opened");
            Condition& innermost = conditions.back();
            const bool isSwitch = innermost.isSwitch;
            if (isSwitch && !closes) innermost.holds = !innermost.holds;
            if (closes) conditions.pop_back();
            if (isSwitch) return;
        }
        passThrough(content);
    }

    void passThrough(std::string_view content) {
        if (!isLeftOut()) writer.out << content << "\n";
    }

    TextWriter& writer;
    const Fills& fills;
    std::vector<Condition> conditions;
    std::vector<bool> placed;  ///< Of each fill: it was met in the template.
};

}  // namespace

void TextWriter::indent() {
    for (int i = 0; i < level; i++) out << "    ";
}

void TextWriter::line(std::string_view text) {
    indent();
    out << text << "\n";
}

void TextWriter::fill(std::string_view text, const Fills& fills) {
    TemplateFill(*this, fills).write(text);
}
