// The built-in calls: one table, in the order in which it is searched. The language has no
// library in source form: each row's text expands in place.
#include <climits>
#include <string_view>

#include "generator/generator.h"
#include "generator/known_words.h"
#include "static_error.h"
#include "writing/marks.h"

namespace {

/// How a wrong number of arguments is refused: with the call's line, or without one.
struct CountRefusal {
    bool hasLine;
    const char* detail;
};

constexpr CountRefusal atLine(const char* detail) { return {true, detail}; }
constexpr CountRefusal withoutLine(const char* detail) { return {false, detail}; }

struct Arity {
    int least;
    int most;
};

constexpr Arity exactly(int count) { return {count, count}; }
constexpr Arity kOptional = {0, 1};
constexpr Arity kAny = {0, INT_MAX};
constexpr CountRefusal kNone = {false, ""};

// The time of the moment, in the C library's static storage.
#define TIME_NOW \
    "[]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()"

struct BuiltinRow {
    std::string_view name;
    Arity arity;
    const char* text;  ///< $A, $B, $C stand for the arguments, $FILE and $LINE for the place.
    CountRefusal refusal;
    const char* bareText = nullptr;  ///< Without arguments, where they are optional.
};

// The mathematical forms cast to long double, so a whole number throws when the program runs:
// வர்க்கமூலம்(16.0). எடு passes two arguments to a function of four, and உள்ளீடு without one none to
// a function of one: the C++ compiler refuses both. All meant.
const BuiltinRow kBuiltins[] = {
    {"இப்போதுநேரம்", kAny, "std::any(" TIME_NOW ")", kNone},
    {"என்னவகை", exactly(1), "std::any(என்னவகை_கண்டுபிடி($A))",
     atLine("('என்னவகை' செயலுக்கு ஒரு மதிப்பு மட்டுமே தர வேண்டும்)")},
    {"வரம்பு", kAny, "nullptr", kNone},
    {"நீளம்", exactly(1), "std::any(fn_நீளம்($A))", withoutLine("'நீளம்' 1 argument மட்டுமே ஏற்கும்.")},
    {"உள்ளீடு", kOptional, "fn_உள்ளீடு(std::any_cast<std::string>($A))",
     withoutLine("'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்."), "fn_உள்ளீடு()"},
    {"எண்", exactly(1), "fn_cast_to_number($A, $LINE)", atLine("")},
    {"வை", exactly(3), "(fn_index_ref($A, std::any($B), $FILE, $LINE) = std::any($C))",
     atLine("('வை' செயலுக்கு 3 மதிப்புகள் தேவை: பட்டியல்/அகராதி, குறியீடு/சாவி, மதிப்பு)")},
    {"நீக்கு", exactly(2), "fn_நீக்கு($A, std::any($B), $FILE, $LINE)", atLine("")},
    {"செல்க", exactly(1), "(g_currentPage = std::any_cast<std::string>($A), g_mouseClicked = false)",
     withoutLine("'செல்க' 1 argument only.")},
    {"நகர்த்து", exactly(1), "fn_நகர்த்து($A)",
     withoutLine("'நகர்த்து' 1 argument மட்டுமே ஏற்கும் (அடையாளம்).")},
    {"சீரற்ற_எண்", exactly(2),
     "std::any((long long)(std::rand() % (std::any_cast<long long>($B) - "
     "std::any_cast<long long>($A) + 1) + std::any_cast<long long>($A)))",
     withoutLine("'சீரற்ற_எண்' 2 arguments ஏற்கும் (min, max).")},

    {"எடு", exactly(2), "fn_எடு( std::any($A), std::any($B))",
     withoutLine("'எடு' 2 arguments ஏற்கும் (object, index).")},
    {"வர்க்கமூலம்", exactly(1), "std::any(std::sqrt(std::any_cast<long double>($A)))",
     withoutLine("'வர்க்கமூலம்' 1 argument மட்டுமே ஏற்கும்.")},
    {"அடுக்கு", exactly(2),
     "std::any(std::pow(std::any_cast<long double>($A), std::any_cast<long double>($B)))",
     withoutLine("'அடுக்கு' 2 arguments ஏற்கும் (அடி, அடுக்கு).")},
    {"தனிமதிப்பு", exactly(1), "std::any(std::abs(std::any_cast<long double>($A)))",
     withoutLine("'தனிமதிப்பு' 1 argument மட்டுமே ஏற்கும்.")},
    {"மேல்எண்", exactly(1), "std::any(fn_மேல்எண்(std::any_cast<long double>($A)))",
     withoutLine("'மேல்எண்' 1 argument மட்டுமே ஏற்கும்.")},
    {"கீழ்எண்", exactly(1), "std::any(fn_கீழ்எண்(std::any_cast<long double>($A)))",
     withoutLine("'கீழ்எண்' 1 argument மட்டுமே ஏற்கும்.")},
    {"சைன்", exactly(1), "std::any(std::sin(std::any_cast<long double>($A)))",
     withoutLine("'சைன்' 1 argument மட்டுமே ஏற்கும்.")},
    {"காஸ்", exactly(1), "std::any(std::cos(std::any_cast<long double>($A)))",
     withoutLine("'காஸ்' 1 argument மட்டுமே ஏற்கும்.")},
    {"டேன்", exactly(1), "std::any(std::tan(std::any_cast<long double>($A)))",
     withoutLine("'டேன்' 1 argument மட்டுமே ஏற்கும்.")},
    {"மடக்கு", exactly(1), "std::any(std::log(std::any_cast<long double>($A)))",
     withoutLine("'மடக்கு' 1 argument மட்டுமே ஏற்கும்.")},
    {"பிளவு", exactly(2),
     "fn_பிளவு( std::any_cast<std::string>($A), std::any_cast<std::string>($B))",
     withoutLine("'பிளவு' 2 arguments ஏற்கும் (string, delimiter).")},
    {"பதில்", exactly(3),
     "fn_பதில்( std::any_cast<std::string>($A), std::any_cast<std::string>($B), "
     "std::any_cast<std::string>($C))",
     withoutLine("'பதில்' 3 arguments ஏற்கும் (string, find, replace).")},
    {"பெரியஎ", exactly(1), "fn_பெரியஎ( std::any_cast<std::string>($A))",
     withoutLine("'பெரியஎ' 1 argument மட்டுமே ஏற்கும்.")},
    {"சிறியஎ", exactly(1), "fn_சிறியஎ( std::any_cast<std::string>($A))",
     withoutLine("'சிறியஎ' 1 argument மட்டுமே ஏற்கும்.")},
    {"கோப்பு_எழுது", exactly(2),
     "fn_கோப்பு_எழுது( std::any_cast<std::string>($A), fn_any_to_string($B), $FILE, $LINE)",
     atLine("'கோப்பு_எழுது' 2 உள்ளீடுகளை ஏற்கும் (path, content).")},
    {"கோப்பு_படி", exactly(1), "fn_கோப்பு_படி( std::any_cast<std::string>($A), $FILE, $LINE)",
     atLine("'கோப்பு_படி' 1 உள்ளீட்டை ஏற்கும் (path).")},
    {"கோப்பு_சேர்", exactly(2),
     "fn_கோப்பு_சேர்( std::any_cast<std::string>($A), fn_any_to_string($B), $FILE, $LINE)",
     atLine("'கோப்பு_சேர்' 2 உள்ளீடுகளை ஏற்கும் (path, content).")},
    {"கோப்பு_அழி", exactly(1), "fn_கோப்பு_அழி( std::any_cast<std::string>($A))",
     withoutLine("'கோப்பு_அழி' 1 argument ஏற்கும் (path).")},
    {"கோப்பு_உள்ளதா", exactly(1), "fn_கோப்பு_உள்ளதா( std::any_cast<std::string>($A))",
     withoutLine("'கோப்பு_உள்ளதா' 1 argument ஏற்கும் (path).")},
    {"தேதி", kOptional, "std::any(fn_தேதி(std::any_cast<std::tm*>($A)))",
     withoutLine("'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."), "std::any(fn_தேதி(" TIME_NOW "))"},
    {"நேரம்", kOptional, "std::any(fn_நேரம்(std::any_cast<std::tm*>($A)))",
     withoutLine("'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."), "std::any(fn_நேரம்(" TIME_NOW "))"},
    {"முழுவதும்", kOptional, "std::any(fn_முழுவதும்(std::any_cast<std::tm*>($A)))",
     withoutLine("'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."),
     "std::any(fn_முழுவதும்(" TIME_NOW "))"},
};

/// What `வை` may store into.
bool isStorable(const Expression* target) {
    return nodeAs<VariableAccess>(target) != nullptr ||
           nodeAs<IndexExpression>(target) != nullptr || nodeAs<GetExpression>(target) != nullptr;
}

}  // namespace

std::vector<std::string_view> builtinNames() {
    std::vector<std::string_view> names;
    for (const BuiltinRow& row : kBuiltins) names.push_back(row.name);
    return names;
}

std::string_view builtinText(std::string_view name) {
    for (const BuiltinRow& row : kBuiltins) {
        if (name == row.name) return row.text;
    }
    return "";
}

/// The text of a built-in call; false if `name` is none. Raises 331 for a wrong number of
/// arguments.
bool Generator::writeBuiltin(const CallExpression& call, const std::string& name) {
    const auto count = static_cast<int>(call.arguments.size());
    if (name == "_set_index_internal") {  // made by the parser, with three arguments
        if (count < 3) throw_static_error("பொழில்-331", "'" + name + "'");
        writeIndexStore(call);
        return true;
    }
    for (const BuiltinRow& row : kBuiltins) {
        if (name != row.name) continue;
        if (count < row.arity.least || count > row.arity.most) {
            if (row.refusal.hasLine) பிழை("பொழில்-331", call.line, row.refusal.detail);
            throw_static_error("பொழில்-331", row.refusal.detail);
        }
        if (name == "வை" && !isStorable(call.arguments[0].get())) {
            பிழை("பொழில்-313", call.line,
                 "('வை' செயலின் முதல் மதிப்பு ஒரு மாறி, பட்டியல் உறுப்பு அல்லது பொருள் பண்பாக "
                 "இருக்க வேண்டும்.)");
        }
        writeFilled(count == 0 && row.bareText != nullptr ? row.bareText : row.text, call);
        return true;
    }
    return false;
}

/// Writes a row's text with its marks filled in; an argument that wasn't given leaves nothing.
/// `id` is the name of an input widget.
void Generator::writeFilled(std::string_view row, const CallExpression& call,
                            const std::string& id) {
    fillMarks(out, row, kTableMarks, [&](std::string_view name) {
        if (name == "FILE") {
            out << sourceFile;
        } else if (name == "LINE") {
            out << call.line;
        } else if (name == "ID") {
            out << id;
        } else if (const auto index = static_cast<std::size_t>(name[0] - 'A');
                   index < call.arguments.size()) {
            visitExpression(call.arguments[index].get());
        }
        return true;
    });
}
