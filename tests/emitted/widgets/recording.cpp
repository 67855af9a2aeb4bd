#include "emitted/widgets/recording.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>
#include <utility>

#include "emitted/widgets/stand_in/nanovg.h"

namespace stand_in {

namespace {

/// The greatest N of the script's $N; -1 if it has none.
int greatestPlace(const std::string& code) {
    int greatest = -1;
    for (std::size_t at = code.find('$'); at != std::string::npos; at = code.find('$', at + 1)) {
        int place = -1;
        if (std::sscanf(code.c_str() + at, "$%d", &place) == 1)
            greatest = std::max(greatest, place);
    }
    return greatest;
}

std::string argumentText(const Arguments& arguments) {
    std::string text;
    for (const Argument& each : arguments) text += (text.empty() ? "" : ", ") + each.text;
    return "(" + text + ")";
}

/// The code between the braces that a script is given in.
std::string withoutBraces(const std::string& code) {
    if (code.size() < 2 || code.front() != '{' || code.back() != '}') return code;
    const std::size_t begin = code.find_first_not_of(' ', 1);
    const std::size_t end = code.find_last_not_of(' ', code.size() - 2);
    return begin > end ? "" : code.substr(begin, end - begin + 1);
}

/// What a script's text tells of it.
struct ScriptFacts {
    std::string body;
    std::string name;  ///< "" if it is recorded by its body
    int arguments = 0;
};

ScriptFacts readScript(const std::string& code) {
    const std::string body = withoutBraces(code);
    return {body, nameOfScript(body), greatestPlace(body) + 1};
}

/// Found out once: the same few scripts are run in each frame.
const ScriptFacts& factsOf(const std::string& code) {
    static std::unordered_map<std::string, ScriptFacts> known;
    const auto [row, isNew] = known.try_emplace(code);
    if (isNew) row->second = readScript(code);
    return row->second;
}

}  // namespace

std::string describe(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", number);
    return text;
}

std::string describe(const char* text) {
    return text == nullptr ? "null" : describe(std::string(text));
}

std::string describe(const std::string& text) { return "\"" + text + "\""; }

std::string describe(const NVGcolor& colour) {
    std::string text = "rgba(";
    for (const float part : {colour.r, colour.g, colour.b}) text += describe(part * 255.0) + ", ";
    return text + describe(colour.a * 255.0) + ")";
}

std::string describe(const NVGpaint& paint) { return paint.text; }

Recording& recording() {
    static Recording only;
    return only;
}

std::vector<std::string> Recording::take() { return std::exchange(calls, {}); }

void note(const std::string& line) { recording().calls.push_back(line); }

double answer(const std::string& name, const Arguments& arguments) {
    const auto found = recording().answers.find(name);
    return found == recording().answers.end() ? 0 : found->second(arguments);
}

double record(const std::string& name, const Arguments& arguments) {
    note(name + argumentText(arguments));
    return answer(name, arguments);
}

double script(const char* code, const Arguments& arguments) {
    const ScriptFacts& facts = factsOf(code);
    if (facts.arguments != static_cast<int>(arguments.size())) {
        note("a script with " + std::to_string(arguments.size()) + " arguments: " + facts.body);
        return 0;
    }
    const std::string& shown = facts.name.empty() ? facts.body : facts.name;
    if (!facts.name.empty()) {
        note(shown + argumentText(arguments));
    } else {
        note(arguments.empty() ? shown : shown + " " + argumentText(arguments));
    }
    const auto value = runWindowScript(facts.body, arguments, recording().window);
    return value ? *value : answer(shown, arguments);
}

std::vector<std::string>& bound() {
    static std::vector<std::string> names;
    return names;
}

NVGcontext* context() {
    static char only = 0;
    return reinterpret_cast<NVGcontext*>(&only);
}

GLFWwindow* window() {
    static char only = 0;
    return reinterpret_cast<GLFWwindow*>(&only);
}

}  // namespace stand_in
