#include "companion/reference/markdown.h"

#include "companion/reference/word_bytes.h"

namespace companion::reference {

namespace {

/// An underscore inside a word is no markup to any viewer, one at its end is.
bool standsInsideWord(std::string_view text, std::size_t at) {
    return at > 0 && at + 1 < text.size() && isWordByte(text[at - 1]) && isWordByte(text[at + 1]);
}

std::string row(const std::vector<std::string>& cells) {
    std::string text = "|";
    for (const std::string& cell : cells) text += " " + cell + " |";
    return text + "\n";
}

}  // namespace

std::string escaped(std::string_view text) {
    std::string prose;
    for (std::size_t at = 0; at < text.size(); at++) {
        const char sign = text[at];
        if (sign == '<') {
            prose += "&lt;";
        } else if (sign == '&') {
            prose += "&amp;";
        } else if (sign == '\n') {
            prose += ' ';
        } else {
            const bool isMarkup = std::string_view("\\`*[]|").find(sign) != std::string_view::npos;
            if (isMarkup || (sign == '_' && !standsInsideWord(text, at))) prose += '\\';
            prose += sign;
        }
    }
    return prose;
}

/// Backticks inside need a longer row of them outside, and a blank between.
std::string code(std::string_view text) {
    std::string span;
    for (const char sign : text) {
        if (sign == '|') span += '\\';  // a table is cut into cells before its spans are found
        span += sign;
    }
    return span.find('`') == std::string::npos ? "`" + span + "`" : "`` " + span + " ``";
}

std::string link(std::string_view text, std::string_view target) {
    return "[" + std::string(text) + "](" + std::string(target) + ")";
}

std::string anchor(std::string_view id) { return "<a id=\"" + std::string(id) + "\"></a>"; }

MarkdownPage::MarkdownPage(std::string path, std::string_view title) : place(std::move(path)) {
    heading(1, escaped(title));
}

void MarkdownPage::heading(int level, std::string_view markdown, std::string_view id) {
    if (!id.empty()) {
        section = link(markdown, "#" + std::string(id));
        all += anchor(id) + "\n\n";
    }
    all += std::string(static_cast<std::size_t>(level), '#') + " " + std::string(markdown) + "\n\n";
}

void MarkdownPage::prose(std::string_view text) { markdown(escaped(text)); }

void MarkdownPage::markdown(std::string_view paragraph) {
    const std::size_t end = paragraph.find_last_not_of(' ');
    if (end != std::string_view::npos) all += std::string(paragraph.substr(0, end + 1)) + "\n\n";
}

void MarkdownPage::labelled(std::string_view label, std::string_view text) {
    labelledMarkdown(label, escaped(text));
}

void MarkdownPage::labelledMarkdown(std::string_view label, std::string_view markdown) {
    if (markdown.empty()) return;
    this->markdown("**" + std::string(label) + ":** " + std::string(markdown));
}

void MarkdownPage::points(const std::vector<std::string>& markdown) {
    for (const std::string& point : markdown) all += "- " + point + "\n";
    if (!markdown.empty()) all += "\n";
}

void MarkdownPage::table(const std::vector<std::string>& header,
                         const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty()) return;
    all += row(header) + row(std::vector<std::string>(header.size(), "---"));
    for (const auto& cells : rows) all += row(cells);
    all += "\n";
}

void MarkdownPage::fence(std::string_view kind, std::string_view lines) {
    if (lines.empty()) return;
    all += "```" + std::string(kind) + "\n" + std::string(lines);
    if (lines.back() != '\n') all += "\n";
    all += "```\n\n";
}

void MarkdownPage::program(std::string_view lines, std::string_view prints) {
    if (lines.empty()) return;
    const auto [known, isNew] = programs.emplace(lines, section);
    if (!isNew && !known->second.empty()) {
        labelledMarkdown("எடுத்துக்காட்டு", known->second + " பகுதியில் உள்ள நிரல் இதையும் காட்டுகிறது.");
        return;
    }
    fence("பொழில்", lines);
    fence("வெளியீடு", prints);
}

}  // namespace companion::reference
