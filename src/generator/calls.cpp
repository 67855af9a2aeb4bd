// Calls: which of the many things that can be called this one is, in the order of the tests, and
// the text of each. The table of built-ins stands in builtins.cpp.
#include "generator/generator.h"
#include "generator/known_words.h"
#include "static_error.h"

namespace {

struct InputCallRow {
    const char* member;
    const char* text;  ///< $ID stands for the object's name, $A for the first argument.
};

// Members of an input widget. The object's name is the widget's identifier: no variable is read.
const InputCallRow kInputCalls[] = {
    {"பிழைசெய்தி", "g_inputErrors[\"$ID\"] = fn_any_to_string($A)"},
    {"பிழை_அழி", "g_inputErrors.erase(\"$ID\")"},
    {"கொண்டுள்ளது",
     "std::any(g_inputValues[\"$ID\"].find(fn_any_to_string($A)) != std::string::npos)"},
    {"தொடக்கம்", "std::any(g_inputValues[\"$ID\"].find(fn_any_to_string($A)) == 0)"},
    {"முடிவு",
     "([&]() -> std::any { std::string s = g_inputValues[\"$ID\"]; std::string sub = "
     "fn_any_to_string($A); if (s.length() >= sub.length()) { return std::any(0 == "
     "s.compare(s.length() - sub.length(), sub.length(), sub)); } return std::any(false); })()"},
};

}  // namespace

std::vector<std::string_view> inputCallNames() {
    std::vector<std::string_view> names;
    for (const InputCallRow& row : kInputCalls) names.emplace_back(row.member);
    return names;
}

void Generator::visitCallExpression(const CallExpression* call) {
    refuseEndlessText();
    const Expression* callee = call->callee.get();
    if (const auto* member = nodeAs<GetExpression>(callee)) {
        if (!writeInputCall(*call, *member)) writeMemberCall(*call, *member);
    } else if (const auto* lambda = nodeAs<LambdaExpression>(callee)) {
        writeDirectCall(*call, static_cast<int>(lambda->parameters.size()));
    } else if (nodeAs<GroupingExpression>(callee) != nullptr) {
        writeDirectCall(*call, static_cast<int>(call->arguments.size()));
    } else if (const auto* name = nodeAs<VariableAccess>(callee)) {
        writeNamedCall(*call, *name);
    } else {
        throw_static_error("பொழில்-399", "Unknown call expression");
    }
}

/// A user function shadows a built-in of its name, and a built-in shadows a variable.
void Generator::writeNamedCall(const CallExpression& call, const VariableAccess& callee) {
    const std::string& name = callee.name;
    if (functionParameters.count(name) != 0) return writeUserCall(call, name);
    if (structNames.count(name) != 0) return writeConstructor(call, name);
    if (writeBuiltin(call, name)) return;
    if (localVariables.count(name) == 0 && variableTypes.count(name) == 0) {
        throw_static_error("பொழில்-332", "'" + name + "' என்பது ஒரு function இல்லை.");
    }
    writeGuardedCall(call, [&] { visitVariableAccess(&callee); });
}

bool Generator::writeInputCall(const CallExpression& call, const GetExpression& callee) {
    const auto* object = nodeAs<VariableAccess>(callee.object.get());
    if (object == nullptr) return false;
    for (const InputCallRow& row : kInputCalls) {
        if (callee.name.text != row.member) continue;
        writeFilled(row.text, call, object->name);
        return true;
    }
    return false;
}

/// (x => x)(1)  ->  std::any_cast<std::function<std::any(std::any)>>(...)(std::any(1LL))
void Generator::writeDirectCall(const CallExpression& call, int parameterCount) {
    out << "std::any_cast<" << functionType(parameterCount) << ">(";
    visitExpression(call.callee.get());
    out << ")(";
    writeAnyList(call.arguments);
    out << ")";
}

template <typename WriteCallee>
void Generator::writeGuardedCall(const CallExpression& call, WriteCallee writeCallee) {
    out << "([&]() -> std::any { try { g_current_call_line = " << call.line
        << "; return std::any_cast<" << functionType(static_cast<int>(call.arguments.size()))
        << ">(";
    writeCallee();
    out << ")(";
    writeAnyList(call.arguments);
    out << "); } catch (const std::bad_any_cast&) { pozhil_runtime_error(\"பொழில்-332\", ";
    writePlace(call.line);
    out << "); return std::any(); } })()";
}

void Generator::writeMemberCall(const CallExpression& call, const GetExpression& callee) {
    const std::string& member = callee.name.text;
    if (inferExpressionType(callee.object.get()) == VarType::Object) {
        return writeGuardedCall(call, [&] { visitGetExpression(&callee); });
    }
    const auto* object = nodeAs<VariableAccess>(callee.object.get());
    if (object != nullptr && object->name == "நேரம்" && member == "வினாடிகள்") {
        if (!call.arguments.empty()) {
            throw_static_error("பொழில்-331", "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது.");
        }
        out << "std::any(std::chrono::duration<double>("
               "std::chrono::system_clock::now().time_since_epoch()).count())";
    } else if (member == "தேதி" || member == "நேரம்" || member == "முழுவதும்") {
        // One parenthesis too few: the C++ compiler refuses it. Meant; தேதி(t) is the way.
        out << "std::any(fn_" << member << "(std::any_cast<std::tm*>(";
        visitExpression(callee.object.get());
        out << "))";
    } else if (member == "சேர்") {
        writeAppend(call, callee);
    } else {
        throw_static_error("பொழில்-332", "'" + member + "' என்பது ஒரு function இல்லை.");
    }
}

void Generator::writeAppend(const CallExpression& call, const GetExpression& callee) {
    if (call.arguments.size() != 1) {
        பிழை("பொழில்-331", call.line, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்.");
    }
    out << "([&]() -> std::any { try { std::any_cast<std::vector<std::any>&>(";
    visitExpression(callee.object.get());
    out << ").push_back(";
    writeAny(call.arguments[0].get());
    out << "); return std::any(); } catch (const std::bad_alloc&) { "
           "pozhil_runtime_error(\"பொழில்-382\", ";
    writePlace(call.line);
    out << "); return std::any(); } })()";
}

/// கூடு(1, 2)  ->  (g_current_call_line = line, fn_கூடு(std::any(1LL), std::any(2LL)))
/// A by-reference parameter takes a variable, always its entry in global_vars. Meant.
void Generator::writeUserCall(const CallExpression& call, const std::string& name) {
    const std::vector<Param>& parameters = functionParameters.at(name);
    if (call.arguments.size() != parameters.size()) {
        பிழை("பொழில்-331", call.line,
             "'" + name + "' " + std::to_string(parameters.size()) + " உள்ளீடுகளை ஏற்கும், ஆனால் " +
                 std::to_string(call.arguments.size()) + " கொடுக்கப்பட்டுள்ளது.");
    }
    out << "(g_current_call_line = " << call.line << ", fn_" << name << "(";
    for (std::size_t i = 0; i < parameters.size(); i++) {
        if (i > 0) out << ", ";
        const Expression* argument = call.arguments[i].get();
        if (!parameters[i].isMutable) {
            writeAny(argument);
            continue;
        }
        const auto* variable = nodeAs<VariableAccess>(argument);
        if (variable == nullptr) {
            பிழை("பொழில்-331", call.line,
                 "'மாற்று' parameter-க்கு ஒரு மாறி (Variable)-ஐ மட்டும் தான் அனுப்ப முடியும்.");
        }
        out << "global_vars.at(\"" << variable->name << "\")";
    }
    out << "))";
}
