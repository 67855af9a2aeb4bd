// Names, members and elements: reading and assigning them.
#include "generator/generator.h"
#include "generator/known_words.h"
#include "writing/marks.h"

namespace {

struct TextRow {
    const char* word;
    const char* text;  ///< $ID stands for the object's name.
};

// Properties of an input widget. The object's name is the widget's identifier: no variable is read.
const TextRow kInputProperties[] = {
    {"வெறுமை", "g_inputValues[\"$ID\"].empty()"},
    {"வெறுமைஇல்லை", "(!g_inputValues[\"$ID\"].empty())"},
    {"நீளம்", "std::any((long long)g_inputValues[\"$ID\"].length())"},
    {"பெரியஎழுத்து", "fn_பெரியஎ(std::string(g_inputValues[\"$ID\"]))"},
    {"சிறியஎழுத்து", "fn_சிறியஎ(std::string(g_inputValues[\"$ID\"]))"},
    {"சுத்தம்", "fn_சுத்தம்(std::string(g_inputValues[\"$ID\"]))"},
    {"உரைதரவு", "std::any(g_inputValues[\"$ID\"])"},
};

const TextRow kTimeFields[] = {
    {"ஆண்டு", "->tm_year + 1900"}, {"மாதம்", "->tm_mon + 1"}, {"நாள்", "->tm_mday"},
    {"மணி", "->tm_hour"},         {"நிமிடம்", "->tm_min"},   {"வினாடி", "->tm_sec"},
    {"வாரநாள்", "->tm_wday"},
};

struct CompoundRow {
    const char* word;
    const char* symbol;  ///< Another spelling of the word.
    const char* sign;
};

const CompoundRow kCompoundAssignments[] = {
    {"ஒன்றுசேர்", "+=", "+"}, {"கூட்டிசேர்", "+=", "+"},   {"ஒன்றுகழி", "-=", "-"},
    {"கழிசேர்", "-=", "-"},  {"பெருக்குசேர்", "*=", "*"}, {"வகுசேர்", "/=", "/"},
    {"மீதிசேர்", "%=", "%"},  {"பெஇசேர்", "&=", "&"},     {"கூட்டுஇசேர்", "|=", "|"},
    {"வேஇசேர்", "^=", "^"},  {"இடதுஇசேர்", "<<=", "<<"}, {"வலதுஇசேர்", ">>=", ">>"},
};

/// The sign of a compound assignment; null for a plain one.
const char* compoundSign(const std::string& word) {
    for (const CompoundRow& row : kCompoundAssignments) {
        if (word == row.word || word == row.symbol) return row.sign;
    }
    return nullptr;
}

template <std::size_t count>
std::vector<std::string_view> wordsOf(const TextRow (&rows)[count]) {
    std::vector<std::string_view> words;
    for (const TextRow& row : rows) words.emplace_back(row.word);
    return words;
}

bool isReceiver(const std::string& name) { return name == "தான்" || name == "self"; }

/// A constant is a name of this form: it may be assigned once.
bool isConstantName(const std::string& name) {
    return name == "மாறிலி" || name.rfind("மாறிலி_", 0) == 0;
}

}  // namespace

std::vector<std::string_view> inputPropertyNames() { return wordsOf(kInputProperties); }

std::vector<std::string_view> timeFieldNames() { return wordsOf(kTimeFields); }

/// அ  ->  global_vars["அ"], or அ for a real C++ variable.
/// A name that was never assigned isn't refused: it reads as an empty value when the program runs.
void Generator::visitVariableAccess(const VariableAccess* access) {
    if (isReceiver(access->name) && currentStruct.empty()) பிழை("பொழில்-325", access->line, "");
    if (localVariables.count(access->name) != 0) {
        out << access->name;
    } else {
        out << "global_vars[\"" << access->name << "\"]";
    }
}

/// அ = 1  ->  (global_vars["அ"] = std::any(1LL), global_vars["அ"])
/// Only inside a function is a real variable the target, though reads take it everywhere. Meant.
void Generator::visitAssignmentExpression(const AssignmentExpression* assignment) {
    const std::string& name = assignment->name;
    const Expression* value = assignment->value.get();
    if (isConstantName(name) && variableTypes.count(name) != 0) {
        பிழை("பொழில்-315", assignment->line, "");
    }
    const bool isLocal = !currentFunction.empty() && localVariables.count(name) != 0;
    const std::string target = isLocal ? name : "global_vars[\"" + name + "\"]";
    const VarType kind = inferExpressionType(value);
    variableTypes[name] = kind;

    out << "(" << target << " = ";
    if (const char* sign = compoundSign(assignment->op.text)) {
        out << "std::any(std::any_cast<long long>(" << target << ") " << sign << " ";
        visitExpression(value);
        out << ")";
    } else if (kind == VarType::Object || kind == VarType::List || kind == VarType::Map ||
               kind == VarType::Time) {
        visitExpression(value);
    } else {
        writeAny(value);
    }
    out << ", " << target << ")";
}

/// அ.ஆ  ->  fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(அ), "ஆ", "file", line)
void Generator::visitGetExpression(const GetExpression* access) {
    if (writeInputProperty(*access)) return;
    const VarType kind = inferExpressionType(access->object.get());
    if (kind == VarType::Object) {
        checkPrivateField(access->object.get(), access->name.text, access->line);
        out << "fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(";
        visitExpression(access->object.get());
        out << "), \"" << access->name.text << "\", ";
        writePlace(access->line);
        out << ")";
    } else if (kind == VarType::Time) {
        writeTimeField(*access);
    } else {
        பிழை("பொழில்-304", access->line, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
}

bool Generator::writeInputProperty(const GetExpression& access) {
    const auto* object = nodeAs<VariableAccess>(access.object.get());
    if (object == nullptr) return false;
    for (const TextRow& row : kInputProperties) {
        if (access.name.text != row.word) continue;
        fillMarks(out, row.text, kTableMarks, [&](std::string_view) {
            out << object->name;
            return true;
        });
        return true;
    }
    return false;
}

/// நே.ஆண்டு  ->  std::any_cast<std::tm*>(நே)->tm_year + 1900
void Generator::writeTimeField(const GetExpression& access) {
    for (const TextRow& row : kTimeFields) {
        if (access.name.text != row.word) continue;
        out << "std::any_cast<std::tm*>(";
        visitExpression(access.object.get());
        out << ")" << row.text;
        return;
    }
    பிழை("பொழில்-304", access.line, "நேரப் பொருளில் '" + access.name.text + "' என்ற பகுதி இல்லை.");
}

/// Raises 321 if any structure at all, not just the object's own, has a private field of this
/// name. Meant. The receiver may reach its own fields.
void Generator::checkPrivateField(const Expression* object, const std::string& field, int line) {
    const auto* variable = nodeAs<VariableAccess>(object);
    if (variable == nullptr || isReceiver(variable->name)) return;
    for (const auto& [name, structure] : structDefinitions) {
        for (const auto& candidate : structure->fields) {
            if (candidate->name == field && candidate->isPrivate) {
                பிழை("பொழில்-321", line, "'" + field + "'");
            }
        }
    }
}

/// Raises 322 for a part of a time, 304 for what is no object, 321 for a private field.
void Generator::checkMemberAssignment(const SetMemberExpression& assignment) {
    const Expression* object = assignment.object.get();
    const auto* variable = nodeAs<VariableAccess>(object);
    if (variable != nullptr && variable->name == "காட்சி_நிலை") return;
    const VarType kind = inferExpressionType(object);
    if (kind == VarType::Time) பிழை("பொழில்-322", assignment.line, "");
    if (kind != VarType::Object) {
        பிழை("பொழில்-304", assignment.line, "இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது");
    }
    checkPrivateField(object, assignment.name.text, assignment.line);
}

/// A whole line with its own indentation and end, though it is an expression; the statement's own
/// `;` then stands on a line alone. Meant.
void Generator::visitSetMemberExpression(const SetMemberExpression* assignment) {
    const auto* variable = nodeAs<VariableAccess>(assignment->object.get());
    const std::string& property = assignment->name.text;
    indent();
    if (variable != nullptr && variable->name == "காட்சி_நிலை") {
        out << "global_vars[\"" << property << "\"] = ";
        writeAny(assignment->value.get());
        out << ";\n";
        return;
    }
    out << "fn_set_property(";
    visitExpression(assignment->object.get());
    out << ", \"" << property << "\", ";
    writeAny(assignment->value.get());
    out << ", ";
    writePlace(assignment->line);
    out << ");\n";
}

/// அ[0]  ->  fn_எடு(அ, std::any(0LL), "file", line)
void Generator::visitIndexExpression(const IndexExpression* access) {
    out << "fn_எடு(";
    visitExpression(access->object.get());
    out << ", ";
    writeAny(access->index.get());
    out << ", ";
    writePlace(access->line);
    out << ")";
}

/// அ[0] = 1  ->  (fn_index_ref(அ, std::any(0LL), "file", line) = std::any(1LL))
void Generator::writeIndexStore(const CallExpression& call) {
    out << "(fn_index_ref(";
    writeIndexTarget(call.arguments[0].get());
    out << ", ";
    writeAny(call.arguments[1].get());
    out << ", ";
    writePlace(call.line);
    out << ") = ";
    writeAny(call.arguments[2].get());
    out << ")";
}

/// What an element is stored into: a chain of elements goes by reference all the way.
void Generator::writeIndexTarget(const Expression* expression) {
    const auto* element = nodeAs<IndexExpression>(expression);
    if (element == nullptr) return visitExpression(expression);
    out << "fn_index_ref(";
    writeIndexTarget(element->object.get());
    out << ", ";
    writeAny(element->index.get());
    out << ", ";
    writePlace(element->line);
    out << ")";
}
