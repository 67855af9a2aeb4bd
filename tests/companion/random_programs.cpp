#include "random_programs.h"

#include <iterator>
#include <map>
#include <random>
#include <utility>
#include <vector>

namespace {

enum class ValueKind { Whole, Decimal, Text, Truth, List, Dictionary };
constexpr int kKinds = 6;

const char* const kVariables[] = {"அகம்", "புறம்", "கூடை", "வானம்", "நதி", "மலை", "கடல்"};
const char* const kFunctions[] = {"தேடல்", "கணிப்பு", "மாற்றம்"};
const char* const kParameters[] = {"வந்தது", "தந்தது"};
const char* const kLoopVariables[] = {"சுழல்", "படி"};
const char* const kStructure = "பெட்டகம்";
const char* const kObject = "பொருளொன்று";
const char* const kLambda = "வினைமாறி";
const char* const kTexts[] = {"\"மா\"", "\"12\"", "\"\"", "\"tamil\""};
const char* const kWholes[] = {"0", "1", "2", "3", "7", "10"};
const char* const kDecimals[] = {"2.5", "0.5", "1.0", "10.25"};
const char* const kArithmetic[] = {" கூட்டு ", " கழி ", " பெருக்கு "};
const char* const kComparisons[] = {" சமம் ",    " சமமில்லை ",   " பெரிது ",
                                    " சிறிது ", " பெரிதுசமம் ", " சிறிதுசமம் "};

constexpr int kDeepestExpression = 3;
constexpr int kDeepestBlock = 2;
constexpr int kOddOnesIn = 40;  ///< One in so many operands is of any kind.

struct MadeFunction {
    std::string name;
    std::vector<ValueKind> parameters;
    ValueKind result;
};

/// Writes one program. What it knows of a name's kind is what was assigned to it last.
class ProgramWriter {
public:
    explicit ProgramWriter(std::uint32_t seed) : engine(seed) {}

    std::string write() {
        const int functionCount = below(3);
        for (int i = 0; i < functionCount; i++) writeFunction(kFunctions[i]);
        if (onceIn(3)) writeStructure();
        if (onceIn(3)) writeLambda();
        writeStatements(4 + below(5));
        return text;
    }

private:
    int below(int limit) { return static_cast<int>(engine() % static_cast<unsigned>(limit)); }
    bool onceIn(int times) { return below(times) == 0; }
    template <std::size_t size>
    std::string oneOf(const char* const (&words)[size]) {
        return words[below(static_cast<int>(size))];
    }
    ValueKind anyKind() { return static_cast<ValueKind>(below(kKinds)); }

    void writeLine(const std::string& line) {
        text += std::string(static_cast<std::size_t>(depth) * 4, ' ') + line + "\n";
    }

    template <typename Write>
    void writeBlock(const std::string& head, Write write) {
        writeLine(head);
        depth++;
        write();
        depth--;
    }

    // ---- Expressions ----

    /// An operand of `kind`, or once in a while of any other.
    std::string operand(ValueKind kind, int level) {
        return expression(onceIn(kOddOnesIn) ? anyKind() : kind, level + 1);
    }

    std::string expression(ValueKind kind, int level) {
        if (level >= kDeepestExpression || onceIn(3)) return atom(kind);
        if (onceIn(12)) return "(" + operand(kind, level) + ")";
        switch (kind) {
            case ValueKind::Whole: return whole(level);
            case ValueKind::Decimal: return decimal(level);
            case ValueKind::Text: return joined(level);
            case ValueKind::Truth: return truth(level);
            case ValueKind::List: return list(level);
            case ValueKind::Dictionary: return dictionary(level);
        }
        return "";
    }

    std::string atom(ValueKind kind) {
        const std::string name = nameOf(kind);
        if (!name.empty() && !onceIn(3)) return name;
        if (hasObject && kind == fieldKind && onceIn(2)) {
            return std::string(kObject) + (onceIn(2) ? ".உள்ளே" : ".பெறு()");
        }
        if (hasLambda && kind == ValueKind::Whole && onceIn(4)) {
            return std::string(kLambda) + "(" + oneOf(kWholes) + ")";
        }
        switch (kind) {
            case ValueKind::Whole: return oneOf(kWholes);
            case ValueKind::Decimal: return oneOf(kDecimals);
            case ValueKind::Text: return oneOf(kTexts);
            case ValueKind::Truth: return onceIn(2) ? "மெய்" : "பொய்";
            case ValueKind::List: return "[1, 2, 3]";
            case ValueKind::Dictionary: return "{\"அ\": 1}";
        }
        return "";
    }

    /// A name that holds `kind`; now and then one that nothing was assigned to; empty if there is
    /// none.
    std::string nameOf(ValueKind kind) {
        if (onceIn(kOddOnesIn * 2)) return oneOf(kVariables);
        std::vector<std::string> names;
        for (const auto& [name, known] : kinds) {
            if (known == kind) names.push_back(name);
        }
        return names.empty() ? "" : names[static_cast<std::size_t>(below(int(names.size())))];
    }

    std::string whole(int level) {
        switch (below(10)) {
            case 0:
                return operand(ValueKind::Whole, level) + " மீதி " +
                       operand(ValueKind::Whole, level);
            case 1:
                return operand(ValueKind::Whole, level) + " வகு " +
                       operand(ValueKind::Whole, level);
            case 2:
                return "நீளம்(" + operand(onceIn(2) ? ValueKind::List : ValueKind::Text, level) + ")";
            case 3:
                return "எண்(" + operand(onceIn(2) ? ValueKind::Whole : ValueKind::Decimal, level) +
                       ")";
            case 4: return "குறை " + (onceIn(6) ? atom(ValueKind::Whole) : oneOf(kWholes));
            case 5: return element(level);
            case 6: return call(ValueKind::Whole, level);
            case 7: return chosen(ValueKind::Whole, level);
            default: return arithmetic(ValueKind::Whole, level);
        }
    }

    std::string decimal(int level) {
        switch (below(6)) {
            case 0: return "வர்க்கமூலம்(" + operand(ValueKind::Decimal, level) + ")";
            case 1:
                return operand(ValueKind::Decimal, level) + " வகு " +
                       operand(ValueKind::Decimal, level);
            case 2: return call(ValueKind::Decimal, level);
            case 3: return chosen(ValueKind::Decimal, level);
            default: return arithmetic(ValueKind::Decimal, level);
        }
    }

    std::string arithmetic(ValueKind kind, int level) {
        return operand(kind, level) + oneOf(kArithmetic) + operand(kind, level);
    }

    std::string joined(int level) {
        switch (below(6)) {
            case 0: return "பெரியஎ(" + operand(ValueKind::Text, level) + ")";
            case 1: return call(ValueKind::Text, level);
            case 2: return chosen(ValueKind::Text, level);
            case 3:
                return operand(ValueKind::Text, level) + " கூட்டு " +
                       operand(ValueKind::Text, level);
            default: return operand(ValueKind::Text, level) + " இணை " + operand(anyKind(), level);
        }
    }

    std::string truth(int level) {
        switch (below(6)) {
            case 0:
                return operand(ValueKind::Truth, level) + " மற்றும் " +
                       operand(ValueKind::Truth, level);
            case 1:
                return operand(ValueKind::Truth, level) + " அல்லது " +
                       operand(ValueKind::Truth, level);
            case 2: return "இல்லை " + operand(ValueKind::Truth, level);
            case 3: return call(ValueKind::Truth, level);
            default: return comparison(level);
        }
    }

    std::string comparison(int level) {
        const ValueKind kind = onceIn(3) ? ValueKind::Decimal : ValueKind::Whole;
        return operand(kind, level) + oneOf(kComparisons) + operand(kind, level);
    }

    std::string list(int level) {
        if (onceIn(4)) return "பிளவு(" + operand(ValueKind::Text, level) + ", \",\")";
        if (onceIn(3)) return call(ValueKind::List, level);
        const ValueKind kind = onceIn(4) ? anyKind() : ValueKind::Whole;
        return "[" + operand(kind, level) + ", " + operand(kind, level) + ", " +
               operand(kind, level) + "]";
    }

    std::string dictionary(int level) {
        return "{\"அ\": " + operand(ValueKind::Whole, level) +
               ", \"ஆ\": " + operand(anyKind(), level) + "}";
    }

    std::string element(int level) {
        if (onceIn(3)) return operand(ValueKind::Dictionary, level) + "[\"அ\"]";
        const std::string place =
            onceIn(4) ? operand(ValueKind::Whole, level) : std::to_string(below(3));
        return operand(ValueKind::List, level) + "[" + place + "]";
    }

    std::string chosen(ValueKind kind, int level) {
        const std::string condition =
            onceIn(5) ? operand(ValueKind::Truth, level) : comparison(level);
        return "(" + condition + " ? " + operand(kind, level) + " : " + operand(kind, level) + ")";
    }

    /// A call of a function whose result is of that kind; a plain one if there is none.
    std::string call(ValueKind result, int level) {
        for (const MadeFunction& function : functions) {
            if (function.result == result) return callOf(function, level);
        }
        return atom(result);
    }

    std::string callOf(const MadeFunction& function, int level) {
        std::string arguments;
        for (const ValueKind kind : function.parameters) {
            if (!arguments.empty()) arguments += ", ";
            arguments += operand(kind, level);
        }
        return function.name + "(" + arguments + ")";
    }

    // ---- Statements ----

    void writeStatements(int count) {
        for (int i = 0; i < count; i++) writeStatement();
    }

    void writeStatement() {
        const int limit = depth < kDeepestBlock ? 14 : 9;
        switch (below(limit)) {
            case 0:
            case 1: return writePrint();
            case 2: return writeCompound();
            case 3: return writeListChange();
            case 4: return writeElementChange();
            case 5:
            case 6:
            case 7:
            case 8: return writeAssignment();
            case 9: return writeIf();
            case 10: return writeCountedLoop();
            case 11: return writeWalk();
            case 12: return writeWhile();
            default: return writeChoiceOrTry();
        }
    }

    void writePrint() {
        std::string line = "அச்சிடு(" + operand(anyKind(), 0);
        if (onceIn(2)) line += ", " + operand(anyKind(), 0);
        writeLine(line + ")");
    }

    void writeAssignment() {
        const std::string name = oneOf(kVariables);
        const auto known = kinds.find(name);
        const ValueKind kind = known == kinds.end() || onceIn(5) ? anyKind() : known->second;
        writeLine(name + " = " + expression(kind, 0));
        kinds[name] = kind;
    }

    void writeCompound() {
        const std::string name = nameOf(ValueKind::Whole);
        if (name.empty()) return writePrint();
        writeLine(name + (onceIn(2) ? " கூட்டிசேர் " : " பெருக்குசேர் ") +
                  (onceIn(6) ? expression(ValueKind::Whole, 1) : oneOf(kWholes)));
    }

    void writeListChange() {
        const std::string name = nameOf(ValueKind::List);
        if (name.empty()) return writePrint();
        writeLine(name + ".சேர்(" + operand(anyKind(), 0) + ")");
    }

    void writeElementChange() {
        const ValueKind kind = onceIn(2) ? ValueKind::List : ValueKind::Dictionary;
        const std::string name = nameOf(kind);
        if (name.empty()) return writePrint();
        const std::string place = kind == ValueKind::List ? std::to_string(below(3)) : "\"இ\"";
        writeLine(name + "[" + place + "] = " + operand(anyKind(), 0));
    }

    void writeIf() {
        writeBlock("எனில் " + operand(ValueKind::Truth, 0) + ":",
                   [&] { writeStatements(1 + below(2)); });
        if (onceIn(2)) writeBlock("இல்லை:", [&] { writeStatements(1 + below(2)); });
    }

    void writeCountedLoop() {
        const std::string limit =
            onceIn(4) ? operand(ValueKind::Whole, 2) : std::to_string(below(4));
        writeLoop(limit, "வரம்பு(" + limit + ")", ValueKind::Whole);
    }

    void writeWalk() {
        const std::string name = nameOf(onceIn(4) ? ValueKind::Dictionary : ValueKind::List);
        if (name.empty() || onceIn(8)) return writeCountedLoop();
        writeLoop(name, name,
                  kinds[name] == ValueKind::Dictionary ? ValueKind::Text : ValueKind::Whole);
    }

    /// Only counted loops are safe to change what they go over.
    void writeLoop(const std::string& source, const std::string& range, ValueKind element) {
        const std::string variable = oneOf(kLoopVariables);
        const auto outer = kinds;
        kinds.erase(source);
        kinds[variable] = element;
        writeBlock("ஒவ்வொன்றாக " + variable + " இல் " + range + ":", [&] {
            writeStatements(1 + below(2));
            if (onceIn(6)) writeLine(onceIn(2) ? "நிறுத்து" : "தொடர்");
        });
        kinds.erase(variable);
        if (outer.count(source) != 0) kinds[source] = outer.at(source);
    }

    /// The counter is a name of its own, so the loop ends.
    void writeWhile() {
        const std::string counter = "எண்ணி" + std::string(depth == 0 ? "அ" : "ஆ");
        writeLine(counter + " = 0");
        writeBlock("சுற்று " + counter + " சிறிது 3:", [&] {
            writeLine(counter + " = " + counter + " கூட்டு 1");
            writeStatements(1);
        });
    }

    void writeChoiceOrTry() {
        if (onceIn(2)) {
            writeBlock("முயற்சி:", [&] { writeStatements(1); });
            writeBlock("பிடி (தவறு):", [&] { writeLine("அச்சிடு(தவறு)"); });
            return;
        }
        writeBlock("தேர்வு " + operand(ValueKind::Whole, 1) + ":", [&] {
            writeBlock("நிலை " + oneOf(kWholes) + ":", [&] { writeStatements(1); });
            writeBlock("மற்றவை:", [&] { writeStatements(1); });
        });
    }

    void writeStructure() {
        fieldKind = anyKind();
        writeBlock("கட்டமைப்பு " + std::string(kStructure) + ":", [&] {
            writeLine("உள்ளே = " + expression(fieldKind, 1));
            writeBlock("செயல் பெறு(தான்):", [&] {
                const bool isCounted = fieldKind == ValueKind::Whole && onceIn(2);
                writeLine("திரும்பு தான்.உள்ளே" +
                          (isCounted ? oneOf(kArithmetic) + oneOf(kWholes) : ""));
            });
        });
        writeLine(std::string(kObject) + " = " + kStructure + "()");
        hasObject = true;
    }

    void writeLambda() {
        const auto outer = std::exchange(kinds, {{kParameters[0], ValueKind::Whole}});
        writeLine(std::string(kLambda) + " = (" + kParameters[0] + ") => " +
                  expression(ValueKind::Whole, 1));
        kinds = outer;
        hasLambda = true;
    }

    /// It may read what is assigned outside, as far as it has been met by now: nothing.
    void writeFunction(const char* name) {
        MadeFunction function{name, {}, anyKind()};
        const auto outer = std::exchange(kinds, {});
        std::string parameters;
        const int count = below(3);
        for (int i = 0; i < count; i++) {
            function.parameters.push_back(anyKind());
            kinds[kParameters[i]] = function.parameters.back();
            parameters += (i > 0 ? ", " : "") + std::string(kParameters[i]);
        }
        writeBlock("செயல் " + function.name + "(" + parameters + "):", [&] {
            writeStatements(1 + below(2));
            if (!onceIn(kOddOnesIn)) writeLine("திரும்பு " + expression(function.result, 1));
        });
        kinds = outer;
        functions.push_back(function);
    }

    std::mt19937 engine;
    std::string text;
    int depth = 0;
    std::map<std::string, ValueKind> kinds;
    std::vector<MadeFunction> functions;
    bool hasObject = false;
    ValueKind fieldKind = ValueKind::Whole;
    bool hasLambda = false;
};

}  // namespace

std::string makeRandomProgram(std::uint32_t seed) { return ProgramWriter(seed).write(); }
