// Markdown that viewers agree on: what is prose stays prose, cells stay in their row.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace companion::reference {

/// `text` as prose: no sign of it is taken for markup.
std::string escaped(std::string_view text);
/// `text` between backticks, also in a cell of a table.
std::string code(std::string_view text);
/// A link; `text` is Markdown already.
std::string link(std::string_view text, std::string_view target);
/// What a link leads to: `<a id="...">`.
std::string anchor(std::string_view id);

/// A page that grows from its top on. What isn't called Markdown is escaped on the way.
class MarkdownPage {
public:
    MarkdownPage(std::string path, std::string_view title);

    /// A heading that links name by `id`; without one, as viewers name it.
    void heading(int level, std::string_view markdown, std::string_view id = "");
    void prose(std::string_view text);
    void markdown(std::string_view paragraph);
    /// `label` in bold, and the text behind it; nothing without a text.
    void labelled(std::string_view label, std::string_view text);
    void labelledMarkdown(std::string_view label, std::string_view markdown);
    /// Points of a list, in Markdown.
    void points(const std::vector<std::string>& markdown);
    /// A table of cells in Markdown; nothing without rows.
    void table(const std::vector<std::string>& header,
               const std::vector<std::vector<std::string>>& rows);
    /// Lines as they are, such as a program's; nothing without any.
    void fence(std::string_view kind, std::string_view lines);

    /// A program and what it prints. One that stood on the page before is linked instead.
    void program(std::string_view lines, std::string_view prints);

    const std::string& path() const { return place; }
    const std::string& text() const { return all; }

private:
    std::string place;
    std::string all;
    std::string section;  ///< A link to the last heading that has an id; empty before it.
    std::map<std::string, std::string> programs;  ///< Programs shown, with their sections.
};

}  // namespace companion::reference
