#include "links.h"

#include <sstream>

#include "support/pattern.h"

namespace {

std::string decoded(const std::string& target) {
    std::string text;
    for (std::size_t at = 0; at < target.size(); ++at) {
        if (target[at] == '%' && at + 2 < target.size()) {
            text += static_cast<char>(std::stoi(target.substr(at + 1, 2), nullptr, 16));
            at += 2;
        } else {
            text += target[at];
        }
    }
    return text;
}

/// Calls `visit` with each line that stands in no fence, and its number.
template <typename Visit>
void eachLine(const std::string& pageText, Visit visit) {
    std::istringstream lines(pageText);
    bool isInside = false;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        number++;
        if (line.rfind("```", 0) == 0) isInside = !isInside;
        if (!isInside) visit(line, number);
    }
}

/// Letters, marks, digits, "-" and "_" stay, blanks become "-", the rest goes.
std::string slug(const std::string& heading) {
    std::string name;
    for (const char letter : heading) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte >= 0x80 || std::isdigit(byte) != 0 || letter == '-' || letter == '_') {
            name += letter;
        } else if (std::isalpha(byte) != 0) {
            name += static_cast<char>(std::tolower(byte));
        } else if (letter == ' ') {
            name += '-';
        }
    }
    static const Pattern signs("…|–|—|→|‘|’|“|”|⋯|⌨");
    return signs.replaced(name, "");
}

bool holds(const std::string& line, const char* text) {
    return line.find(text) != std::string::npos;
}

/// Most lines hold none, and to search for a text is quicker than for a form.
bool mayHoldLink(const std::string& line) {
    return holds(line, "](") || holds(line, "src=") || holds(line, "href=");
}

}  // namespace

std::vector<Link> linksOf(const std::string& pageText) {
    static const Pattern form(R"(\]\(<?([^)>\s]+)>?\))");
    static const Pattern attribute(R"((?:src|href)=\"([^\"]+)\")");
    static const Pattern code("`[^`]*`");
    std::vector<Link> links;
    eachLine(pageText, [&](const std::string& line, int number) {
        if (!mayHoldLink(line)) return;
        const std::string text = code.replaced(line, "");
        for (const Pattern& each : {form, attribute}) {
            for (const Match& match : each.all(text)) links.push_back({number, decoded(match[1])});
        }
    });
    return links;
}

std::set<std::string> anchorsOf(const std::string& pageText) {
    static const Pattern id(R"(<a (?:id|name)=\"([^\"]+)\")");
    std::set<std::string> anchors;
    eachLine(pageText, [&](const std::string& line, int) {
        const std::size_t marks = line.find_first_not_of('#');
        if (marks != 0 && marks != std::string::npos && line[marks] == ' ') {
            anchors.insert(slug(line.substr(marks + 1)));
        }
        if (!holds(line, "<a ")) return;
        for (const Match& match : id.all(line)) anchors.insert(match[1]);
    });
    return anchors;
}
