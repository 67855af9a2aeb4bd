// Carries out scripts that do nothing but read and set fields of `window`:
//   statement = ["var"] place ("=" | "+=") value ";" | "return" value ";" | if-statement
//   if-statement = "if" "(" value ")" block [ "else" block ]
//   value = single ["||" single] | single "!==" single "?" single ":" single
//   single = ["-"] (number | $N | place)          place = window.FIELD | NAME
#include <cctype>
#include <cstdlib>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "emitted/widgets/recording.h"

namespace stand_in {

namespace {

struct NotUnderstood {};

std::size_t signLength(const std::string& code, std::size_t at) {
    for (const std::string_view sign : {"+=", "||", "!=="}) {
        if (code.compare(at, sign.size(), sign) == 0) return sign.size();
    }
    return 1;
}

std::vector<std::string> cutIntoTokens(const std::string& code) {
    const auto isWordByte = [](char byte) {
        return std::isalnum(static_cast<unsigned char>(byte)) != 0 || byte == '_' || byte == '.' ||
               byte == '$';
    };
    std::vector<std::string> tokens;
    for (std::size_t at = 0; at < code.size();) {
        std::size_t end = at;
        while (end < code.size() && isWordByte(code[end])) end++;
        if (end == at) end = at + signLength(code, at);
        if (code[at] != ' ') tokens.push_back(code.substr(at, end - at));
        at = end;
    }
    return tokens;
}

/// The same few scripts are run in each frame.
const std::vector<std::string>& tokensOf(const std::string& code) {
    static std::unordered_map<std::string, std::vector<std::string>> known;
    const auto [row, isNew] = known.try_emplace(code);
    if (isNew) row->second = cutIntoTokens(code);
    return row->second;
}

class WindowScript {
public:
    using Fields = std::map<std::string, double>;

    WindowScript(const std::vector<std::string>& tokens, const Arguments& arguments,
                 const Fields& window)
        : window(window), tokens(tokens), arguments(arguments) {}

    /// The value that is returned; 0 if none is. Throws NotUnderstood.
    double run() {
        while (at < tokens.size()) runStatement(true);
        return result;
    }

    Fields window;

private:
    struct Place {
        Fields& fields;
        std::string name;
    };

    const std::string& peek() const {
        if (at >= tokens.size()) throw NotUnderstood();
        return tokens[at];
    }

    bool takes(std::string_view token) {
        if (peek() != token) return false;
        at++;
        return true;
    }

    void expect(std::string_view token) {
        if (!takes(token)) throw NotUnderstood();
    }

    /// `acts` tells whether the statement does what it says: in a branch not taken it doesn't.
    void runStatement(bool acts) {
        if (takes("if")) return runIf(acts);
        if (takes("return")) return runReturn(acts);
        takes("var");
        const Place place = takePlace();
        const bool adds = takes("+=");
        if (!adds) expect("=");
        const double value = readValue();
        expect(";");
        if (!acts || hasReturned) return;
        double& target = place.fields[place.name];
        target = adds ? target + value : value;
    }

    void runReturn(bool acts) {
        const double value = readValue();
        expect(";");
        if (!acts || hasReturned) return;
        result = value;
        hasReturned = true;
    }

    void runIf(bool acts) {
        expect("(");
        const bool holds = readValue() != 0;
        expect(")");
        runBlock(acts && holds);
        if (at < tokens.size() && takes("else")) runBlock(acts && !holds);
    }

    void runBlock(bool acts) {
        expect("{");
        while (!takes("}")) runStatement(acts);
    }

    double readValue() {
        const double first = readSingle();
        if (takes("||")) {
            const double second = readSingle();
            return first != 0 ? first : second;
        }
        if (!takes("!==")) return first;
        const bool differs = first != readSingle();
        expect("?");
        const double then = readSingle();
        expect(":");
        const double otherwise = readSingle();
        return differs ? then : otherwise;
    }

    double readSingle() {
        const double sign = takes("-") ? -1 : 1;
        const std::string& token = peek();
        const std::size_t digits = token[0] == '$' ? 1 : 0;
        char* end = nullptr;
        const double number = std::strtod(token.c_str() + digits, &end);
        if (token.size() == digits || *end != '\0') return sign * readPlace();
        at++;
        return sign *
               (digits == 0 ? number : arguments.at(static_cast<std::size_t>(number)).number);
    }

    /// A field that was never set counts as 0, as it does to the program.
    double readPlace() {
        const Place place = takePlace();
        const auto found = place.fields.find(place.name);
        if (found != place.fields.end()) return found->second;
        if (&place.fields == &locals) throw NotUnderstood();
        return 0;
    }

    Place takePlace() {
        static const std::string head = "window.";
        std::string name = peek();
        const bool isField = name.compare(0, head.size(), head) == 0;
        if (isField) name.erase(0, head.size());
        if (name.empty() || std::isalpha(static_cast<unsigned char>(name[0])) == 0 ||
            name.find('.') != std::string::npos) {
            throw NotUnderstood();
        }
        at++;
        return {isField ? window : locals, name};
    }

    const std::vector<std::string>& tokens;
    std::size_t at = 0;
    const Arguments& arguments;
    Fields locals;
    bool hasReturned = false;
    double result = 0;
};

}  // namespace

std::optional<double> runWindowScript(const std::string& code, const Arguments& arguments,
                                      std::map<std::string, double>& window) {
    WindowScript reader(tokensOf(code), arguments, window);
    try {
        const double value = reader.run();
        window = std::move(reader.window);
        return value;
    } catch (const NotUnderstood&) {
        return std::nullopt;
    }
}

}  // namespace stand_in
