// fill_templates OUTPUT NAME on|off PLACEHOLDERS.h... TEMPLATE.cpp...
// Writes all widgets' templates as functions, by the filler that the compiler uses, with every
// switch on or every switch off; and a table of them, application::NAME. What stands for a
// placeholder is the value of its macro in the header named like the template. X, Y and ID stand
// for themselves, and a hole that has no macro holds nothing. The macro AROUND_BLOCK declares what
// the template finds around it.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

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

/// The macros of a header, by name; a value may go on behind a backslash.
Values readMacros(const fs::path& path) {
    static const std::string kHead = "#define ";
    Values values;
    std::istringstream lines(readAll(path));
    std::string* continued = nullptr;
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, kHead.size(), kHead) == 0) {
            std::istringstream words(line.substr(kHead.size()));
            std::string name;
            words >> name >> std::ws;
            std::getline(words, line);
            continued = &values[name];
        }
        if (continued == nullptr) continue;
        const bool goesOn = !line.empty() && line.back() == '\\';
        if (goesOn) line.pop_back();
        *continued += line;
        if (!goesOn) continued = nullptr;
    }
    return values;
}

/// One template: what its placeholders are, and what stands for them.
class Template {
public:
    Template(const fs::path& path, Values macros)
        : name(path.stem().string()), text(readAll(path)), macros(std::move(macros)) {
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

/// All templates as one text. Nothing is written before everything is known to be right.
std::string filledTemplates(const std::string& table, bool isOn,
                            const std::vector<fs::path>& files) {
    std::map<std::string, Values> macros;
    for (const fs::path& path : files) {
        if (path.extension() == ".h") macros[path.stem().string()] = readMacros(path);
    }
    std::ostringstream out;
    std::string rows;
    out << "#include \"emitted/widgets/blocks.h\"\n\nnamespace templates {\n\n";
    for (const fs::path& path : files) {
        if (path.extension() == ".h") continue;
        Template each(path, macros[path.stem().string()]);
        macros.erase(each.name);
        each.write(out, isOn);
        rows += "    {\"" + each.name + (isOn ? "_all_on" : "_all_off") +
                "\", templates::" + each.name + "},\n";
    }
    if (!macros.empty()) throw std::runtime_error("no template " + macros.begin()->first);
    out << "}  // namespace templates\n\nconst application::Block application::" << table
        << "[] = {\n"
        << rows << "    {nullptr, nullptr}};\n";
    return out.str();
}

}  // namespace

int main(int count, char** arguments) {
    try {
        if (count < 5)
            throw std::runtime_error("OUTPUT NAME on|off PLACEHOLDERS.h... TEMPLATE.cpp...");
        const bool isOn = std::string(arguments[3]) == "on";
        const std::string text =
            filledTemplates(arguments[2], isOn, {arguments + 4, arguments + count});
        std::ofstream(arguments[1]) << text;
    } catch (const std::exception& error) {
        std::cerr << "fill_templates: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
