// fill_templates NAME on|off PLACEHOLDERS TEMPLATE...
// Writes all widgets' templates as functions, by the filler that the compiler uses, with every
// switch on or every switch off; and a table of them, application::NAME. What stands for a
// placeholder is the value of its macro in PLACEHOLDERS/<template>.h. X, Y and ID stand for
// themselves, and a hole that has no macro holds nothing. The macro AROUND_BLOCK declares what the
// template finds around it.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>

#include "writing/marks.h"
#include "writing/text_writer.h"

namespace fs = std::filesystem;

namespace {

using Values = std::map<std::string, std::string>;

std::string readAll(const fs::path& path) {
    std::ifstream stream(path);
    if (!stream.is_open()) throw std::runtime_error("can't read " + path.string());
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// The macros of a header, by name; a value may go on behind a backslash. A template whose
/// placeholders all stand for themselves needs no header.
Values readMacros(const fs::path& path) {
    Values values;
    if (!fs::exists(path)) return values;
    const std::string text = std::regex_replace(readAll(path), std::regex("\\\\\n *"), "");
    const std::regex macro("(?:^|\n)#define (\\w+) +([^\n]*)");
    for (std::sregex_iterator each(text.begin(), text.end(), macro), end; each != end; ++each) {
        values[(*each)[1]] = (*each)[2];
    }
    return values;
}

/// One template: what its placeholders are, and what stands for them.
class Template {
public:
    Template(const fs::path& path, const fs::path& placeholders)
        : name(path.stem().string()),
          text(readAll(path)),
          macros(readMacros(placeholders / (name + ".h"))) {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) readLine(line);
        refuseUnused();
    }

    void write(std::ostream& out, bool isOn) {
        Fills fills;
        for (const std::string& each : switches) fills.push_back({each, isOn});
        for (const auto& each : values) fills.push_back({each.first, each.second});
        std::ostringstream filled;
        int level = 0;
        TextWriter(filled, level).fill(text, fills);
        const std::string function = filled.str();
        const std::string head = "void " + name + "() {\n";
        const std::size_t begin = function.find(head) + head.size();
        const std::size_t end = function.rfind('}');
        if (begin < head.size() || end == std::string::npos || end < begin) {
            throw std::runtime_error(name + ": no function of that name");
        }
        out << "static " << head << "    BEGIN_BLOCK\n"
            << macros["AROUND_BLOCK"] << "\n{\n"
            << function.substr(begin, end - begin) << "}\n    END_BLOCK\n}\n\n";
    }

    std::string name;

private:
    void readLine(std::string_view line) {
        static const std::string_view kSwitch = "#if POZHIL_";
        if (line.substr(0, kSwitch.size()) == kSwitch) {
            switches.emplace(line.substr(kSwitch.size()));
            return;
        }
        const std::size_t margin = std::min(line.find_first_not_of(' '), line.size());
        const Mark first = findMark(line, kCodeMarks);
        const bool isAlone = first.at == margin && line.substr(first.at + first.length) == ";";
        for (Mark mark = first; mark.at != std::string_view::npos;
             mark = findMark(line, kCodeMarks)) {
            values[std::string(mark.name)] = valueOf(std::string(mark.name), isAlone);
            line.remove_prefix(mark.at + mark.length);
        }
    }

    std::string valueOf(const std::string& placeholder, bool isHole) {
        static const Values kOwn = {{"X", "placeX"}, {"Y", "placeY"}, {"ID", "7"}};
        const auto macro = macros.find("POZHIL_" + placeholder);
        if (macro != macros.end()) return macro->second;
        const auto own = kOwn.find(placeholder);
        if (own != kOwn.end()) return own->second;
        if (isHole) return "";
        throw std::runtime_error("placeholders/" + name + ".h lacks POZHIL_" + placeholder);
    }

    /// A macro that fills nothing is a placeholder that was renamed.
    void refuseUnused() {
        for (const auto& macro : macros) {
            if (macro.first == "AROUND_BLOCK") continue;
            if (values.count(macro.first.substr(std::string("POZHIL_").size())) != 0) continue;
            throw std::runtime_error("placeholders/" + name + ".h: no place for " + macro.first);
        }
    }

    std::string text;
    Values macros;
    Values values;
    std::set<std::string> switches;
};

void writeAll(const std::string& table, bool isOn, const fs::path& placeholders,
              const std::vector<fs::path>& templates) {
    std::string rows;
    std::cout << "#include \"emitted/widgets/blocks.h\"\n\nnamespace templates {\n\n";
    for (const fs::path& path : templates) {
        Template each(path, placeholders);
        each.write(std::cout, isOn);
        rows += "    {\"" + each.name + (isOn ? "_all_on" : "_all_off") +
                "\", templates::" + each.name + "},\n";
    }
    std::cout << "}  // namespace templates\n\nconst application::Block application::" << table
              << "[] = {\n"
              << rows << "    {nullptr, nullptr}};\n";
}

}  // namespace

int main(int count, char** arguments) {
    try {
        if (count < 4) throw std::runtime_error("NAME on|off PLACEHOLDERS TEMPLATE...");
        writeAll(arguments[1], std::string(arguments[2]) == "on", arguments[3],
                 {arguments + 4, arguments + count});
    } catch (const std::exception& error) {
        std::cerr << "fill_templates: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
