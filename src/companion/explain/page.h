// A page that explains one thing, and how it is written on a terminal.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace companion {

/// A part of a page. The lines of prose are wrapped; those of a program stand as they are.
struct PageSection {
    std::string heading;  ///< Empty for the words right under the title.
    std::string text;
    bool isProgram;
};

struct Page {
    std::string title;
    std::string kind;
    std::vector<PageSection> sections;

    /// Adds a section; nothing if `text` is empty.
    void addProse(std::string_view heading, std::string_view text);
    void addProgram(std::string_view heading, std::string_view text);
};

struct PageStyle {
    int width;  ///< Columns of the terminal.
    bool inColour;
};

void writePage(std::ostream& out, const Page& page, const PageStyle& style);

/// `text` in lines that fit into `width` columns, each behind `indent` blanks.
void writeWrapped(std::ostream& out, std::string_view text, int width, int indent);

}  // namespace companion
