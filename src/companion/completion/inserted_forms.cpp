#include "companion/completion/inserted_forms.h"

#include <algorithm>

namespace companion::completion {

namespace {

/// Words whose snippet isn't read from their form. A tab stands for one level of indentation.
struct FormRow {
    WordKind kind;
    std::string_view word;
    std::string_view snippet;
};

constexpr FormRow kForms[] = {
    {WordKind::Keyword, "அச்சிடு", "அச்சிடு(${1:மதிப்பு})"},
    {WordKind::Keyword, "எனில்", "எனில் ${1:நிபந்தனை}:\n\t$0"},
    {WordKind::Keyword, "இல்லைஎனில்", "இல்லைஎனில் ${1:நிபந்தனை}:\n\t$0"},
    {WordKind::Keyword, "இல்லை", "இல்லை:\n\t$0"},
    {WordKind::Keyword, "சுற்று", "சுற்று ${1:நிபந்தனை}:\n\t$0"},
    {WordKind::Keyword, "ஒவ்வொன்றாக", "ஒவ்வொன்றாக ${1:பெயர்} இல் ${2:வரம்பு(${3:10})}:\n\t$0"},
    {WordKind::Keyword, "வரம்பு", "வரம்பு(${1:முடிவு})"},
    {WordKind::Keyword, "தேர்வு", "தேர்வு ${1:மதிப்பு}:\n\tநிலை ${2:1}:\n\t\t$0\n\tமற்றவை:\n\t\tவிடு"},
    {WordKind::Keyword, "நிலை", "நிலை ${1:மதிப்பு}:\n\t$0"},
    {WordKind::Keyword, "மற்றவை", "மற்றவை:\n\t$0"},
    {WordKind::Keyword, "முயற்சி", "முயற்சி:\n\t${1:விடு}\nபிடி (${2:தவறு}):\n\t$0"},
    {WordKind::Keyword, "பிடி", "பிடி (${1:தவறு}):\n\t$0"},
    {WordKind::Keyword, "காத்திரு", "காத்திரு ${1:1}"},
    {WordKind::Keyword, "செயல்", "செயல் ${1:பெயர்}($2):\n\t$0"},
    {WordKind::Keyword, "திரும்பு", "திரும்பு ${1:மதிப்பு}"},
    {WordKind::Keyword, "வினை", "வினை(): $0"},
    {WordKind::Keyword, "கட்டமைப்பு",
     "கட்டமைப்பு ${1:பெயர்}:\n\tசெயல் துவக்கம்(தான், ${2:அ}):\n\t\tதான்.${2:அ} = ${2:அ}\n\t\t$0"},
    {WordKind::Keyword, "தான்", "தான்.$0"},
    {WordKind::Keyword, "துவக்கம்", "துவக்கம்(தான்$1):\n\t$0"},
    {WordKind::Keyword, "ரகசிய", "ரகசிய ${1:பண்பு} = ${2:மதிப்பு}"},
    {WordKind::Keyword, "ரகசியம்", "ரகசியம் ${1:பண்பு} = ${2:மதிப்பு}"},
    {WordKind::Keyword, "பொது", "பொது ${1:பண்பு} = ${2:மதிப்பு}"},
    {WordKind::Keyword, "வடிவமைப்பு", "வடிவமைப்பு ${1:பெயர்}:\n\tசெயல் ${2:செயல்_பெயர்}(தான்)\n$0"},
    {WordKind::Keyword, "வகை", "வகை ${1:பெயர்}:\n\t${2:உறுப்பு}\n;\n$0"},
    {WordKind::Keyword, "நூஇறக்கி", "நூஇறக்கி \"$1\""},
    {WordKind::Keyword, "மாறிலி", "மாறிலி_${1:பெயர்} = ${2:மதிப்பு}"},
    {WordKind::Keyword, "காட்சி_நிலை", "காட்சி_நிலை.${1:பெயர்} = ${2:மதிப்பு}"},
    {WordKind::BuiltIn, "எடு", "${1:பட்டியல்}[${2:0}]"},
    {WordKind::BuiltIn, "காஸ்", "சைன்(${1:கோணம்} கூட்டு 1.5707963267948966)"},
    {WordKind::BuiltIn, "தேதி", "தேதி($1)"},
    {WordKind::BuiltIn, "நேரம்", "நேரம்($1)"},
    {WordKind::BuiltIn, "முழுவதும்", "முழுவதும்($1)"},
    {WordKind::Application, "வலைதளம்",
     "வலைதளம் ${1:பெயர்}(\n\tதலைமை(இணைய_தலைப்பு: \"${2:தலைப்பு}\")\n\tகுமரி(\n"
     "\t\tநெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 16)(\n\t\t\t$0\n\t\t)\n\t)\n\tவரையறை(\n\t)\n)"},
    {WordKind::Application, "தலைமை", "தலைமை(இணைய_தலைப்பு: \"${1:தலைப்பு}\")"},
    {WordKind::Application, "குமரி",
     "குமரி(\n\tநெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 16)(\n\t\t$0\n\t)\n)"},
    {WordKind::Application, "வரையறை", "வரையறை(\n\t$0\n)"},
    {WordKind::Application, "தரவுத்தளமேலாண்மை", "தரவுத்தளமேலாண்மை(\n\tபயர்பேசு_அமைப்பு(\n\t\t$0\n\t)\n)"},
    {WordKind::Application, "புதுப்பி", "புதுப்பி()"},
    {WordKind::Application, "அசைவூட்டம்",
     "அசைவூட்டம்(காலம்: ${1:300}, நிலைமை: \"${2|தானாக,சுட்டி_மேல்|}\", இலக்கு($0))"},
    {WordKind::Application, "நிகழ்நேர.தரவுசேர்",
     "நிகழ்நேர.தரவுசேர்(\"${1:இடம்}\") { \"${2:பெயர்}\": ${3:மதிப்பு} }"},
    {WordKind::Application, "நிகழ்நேர.தரவுமாற்று",
     "நிகழ்நேர.தரவுமாற்று(\"${1:இடம்}\") { \"${2:பெயர்}\": ${3:மதிப்பு} }"},
    {WordKind::Application, "நிகழ்நேர.தரவுஅழி", "நிகழ்நேர.தரவுஅழி(\"${1:இடம்}\")"},
    {WordKind::Application, "நிகழ்நேர.தரவுபடி", "நிகழ்நேர.தரவுபடி(\"${1:இடம்}\") {\n\t$0\n}"},
    {WordKind::Widget, "உரை", "உரை(\"$1\")"},
    {WordKind::Widget, "பொத்தான்", "பொத்தான்(\"${1:சொல்}\", அழுத்தினால்: வினை(): ${2:செயல்_பெயர்}())"},
    {WordKind::Widget, "உரைபொத்தான்",
     "உரைபொத்தான்(உரை \"${1:சொல்}\", அழுத்தினால்: வினை(): ${2:செயல்_பெயர்}())"},
    {WordKind::Widget, "படம்", "படம்(பாதை: \"${1:assets/}\", அகலம்: ${2:200}, உயரம்: ${3:200})"},
    {WordKind::Widget, "நெடுவரிசை", "நெடுவரிசை(சீரமைப்பு: ${1:மையம்}, இடைவெளி: ${2:12})(\n\t$0\n)"},
    {WordKind::Widget, "கிடைவரிசை", "கிடைவரிசை(சீரமைப்பு: ${1:மையம்}, இடைவெளி: ${2:8})(\n\t$0\n)"},
    {WordKind::Widget, "அடுக்கி", "அடுக்கி(சீரமைப்பு: ${1:மையம்})(\n\t$0\n)"},
    {WordKind::Widget, "மடிப்பு", "மடிப்பு(இடைவெளி: ${1:8})(\n\t$0\n)"},
    {WordKind::Widget, "கட்டம்_காட்சி", "கட்டம்_காட்சி(cols: ${1:3}, width: ${2:340})(\n\t$0\n)"},
    {WordKind::Widget, "பட்டியல்_காட்சி", "பட்டியல்_காட்சி(\n\t$0\n)"},
    {WordKind::Widget, "பெட்டி",
     "பெட்டி(சீரமைப்பு: ${1:மையம்})(\n\tஅகலம்: ${2:200}, உயரம்: ${3:100}\n\t$0\n)"},
    {WordKind::Widget, "அட்டை", "அட்டை(\n\tஅட்டை_பாணி(அகலம்: ${1:260}, உயரம்: ${2:90})\n\t$0\n)"},
    {WordKind::Widget, "இவெ", "இவெ(உயரம்: ${1:20})"},
    {WordKind::Widget, "வெற்றிடம்", "வெற்றிடம்()"},
    {WordKind::Widget, "பிரிப்பான்", "பிரிப்பான்(அகலம்: ${1:300})"},
    {WordKind::Widget, "உரைபெட்டி", "உரைபெட்டி(அடையாளம்: \"${1:பெயர்}\", குறிப்பு: \"$2\")"},
    {WordKind::Widget, "அறிவிப்பு_பட்டை", "அறிவிப்பு_பட்டை(செய்தி: \"$1\")"},
    // A property or child of these stands in the line of the parenthesis.
    {WordKind::Widget, "உள்_இவெ", "உள்_இவெ()( $0 )"},
    {WordKind::Widget, "உள்_இவே", "உள்_இவே()( $0 )"},
};

std::string indented(std::string_view form, std::string_view indent) {
    std::string text;
    for (const char byte : form) {
        if (byte == '\t') {
            text += indent;
        } else {
            text += byte;
        }
    }
    return text;
}

std::string stop(std::size_t number, std::string_view text) {
    return "${" + std::to_string(number) + ":" + std::string(text) + "}";
}

/// `சீரற்ற_எண்(குறைந்தது, அதிகம்)`  ->  `சீரற்ற_எண்(${1:குறைந்தது}, ${2:அதிகம்})`
std::string snippetOfForm(std::string_view word, std::string_view form) {
    const std::size_t open = form.find('(');
    const std::size_t close = form.find(')');
    const std::size_t dot = form.find('.');
    const std::size_t begin = dot != std::string_view::npos && dot < open ? dot + 1 : 0;
    if (open == std::string_view::npos || close == std::string_view::npos) return "";
    if (form.substr(begin, open - begin) != word) return "";
    std::string snippet = std::string(word) + "(";
    std::string_view rest = form.substr(open + 1, close - open - 1);
    for (std::size_t number = 1; !rest.empty(); number++) {
        const std::size_t end = std::min(rest.find(", "), rest.size());
        std::string_view argument = rest.substr(0, end);
        const bool isQuoted = argument.size() > 1 && argument.front() == '"';
        if (isQuoted) argument = argument.substr(1, argument.size() - 2);
        if (number > 1) snippet += ", ";
        snippet += isQuoted ? "\"" + stop(number, argument) + "\"" : stop(number, argument);
        rest.remove_prefix(std::min(end + 2, rest.size()));
    }
    return snippet + ")";
}

bool isWritten(std::string_view value) {
    if (value.empty()) return false;
    const bool isNumber = value.find_first_not_of("0123456789.") == std::string_view::npos;
    return isNumber || value == "மெய்" || value == "பொய்" ||
           (value.front() == '"' && value.back() == '"' && value.size() > 1);
}

/// What is between the quotes of a value as a source writes it; the value itself else.
std::string_view bareValue(std::string_view value) {
    const bool isQuoted = value.size() > 1 && value.front() == '"';
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

std::string stopFor(const PropertyDescription& property) {
    const bool isKnown = isWritten(property.defaultValue);
    const std::string_view known = isKnown ? bareValue(property.defaultValue) : "";
    switch (property.kind) {
        case ValueKind::Number:
        case ValueKind::Decimal:
        case ValueKind::Size:
        case ValueKind::Weight: return known.empty() ? "$1" : stop(1, known);
        case ValueKind::Text:
        case ValueKind::Word:
        case ValueKind::Colour:
        case ValueKind::NamedColour:
        case ValueKind::PageColour: return "\"" + (known.empty() ? "$1" : stop(1, known)) + "\"";
        case ValueKind::Truth: return known == "மெய்" ? "${1|பொய்,மெய்|}" : "${1|மெய்,பொய்|}";
        case ValueKind::Flag: return "மெய்";
        case ValueKind::Texts: return "[\"$1\"]";
        case ValueKind::Alignment: return "${1:மையம்}";
        case ValueKind::Widget:
        case ValueKind::Any: break;
    }
    constexpr std::string_view kAction = "ஒரு வினை";
    const bool isAction = property.value.substr(0, kAction.size()) == kAction;
    return isAction ? "வினை(): ${1:செயல்_பெயர்}()" : "$1";
}

}  // namespace

std::string snippetOf(const Description& word, std::string_view indent) {
    for (const FormRow& row : kForms) {
        if (row.kind == word.kind && row.word == word.word) return indented(row.snippet, indent);
    }
    switch (word.kind) {
        case WordKind::BuiltIn:
        case WordKind::Member: return snippetOfForm(word.word, word.form);
        case WordKind::Widget:
        case WordKind::Application: return std::string(word.word) + "($0)";
        default: return "";
    }
}

std::string snippetOf(const PropertyDescription& property) {
    return std::string(property.word) + ": " + stopFor(property);
}

std::string snippetOfBlock(std::string_view block) { return std::string(block) + "($1)"; }

std::string snippetOfCall(std::string_view name, const std::vector<std::string>& parameters) {
    std::string snippet = std::string(name) + "(";
    for (std::size_t at = 0; at < parameters.size(); at++) {
        if (at > 0) snippet += ", ";
        snippet += stop(at + 1, parameters[at]);
    }
    return snippet + ")";
}

std::string withoutStops(std::string_view snippet) {
    std::string text;
    int depth = 0;
    for (std::size_t at = 0; at < snippet.size(); at++) {
        const char byte = snippet[at];
        if (byte == '$') {
            at++;
            const bool isBraced = at < snippet.size() && snippet[at] == '{';
            if (!isBraced) continue;
            const std::size_t begin = snippet.find_first_of(":|", at);
            if (snippet[begin] == ':') {
                depth++;
                at = begin;
                continue;
            }
            // Of a choice the first.
            const std::size_t end = snippet.find_first_of(",|", begin + 1);
            text += snippet.substr(begin + 1, end - begin - 1);
            at = snippet.find('}', end);
        } else if (byte == '}' && depth > 0) {
            depth--;
        } else {
            text += byte;
        }
    }
    return text;
}

std::string indentationOf(std::string_view text) {
    constexpr std::size_t kUsual = 4;
    constexpr std::size_t kWidest = 8;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', end + 1)) {
        const std::size_t word = text.find_first_not_of(' ', end + 1);
        if (word == std::string_view::npos) break;
        if (text[word] == '\t' && word == end + 1) return "\t";
        const std::size_t width = word - end - 1;
        const bool isLine = text[word] != '\n' && text[word] != '\r' && text[word] != '\t';
        if (isLine && width > 1 && width <= kWidest) return std::string(width, ' ');
    }
    return std::string(kUsual, ' ');
}

}  // namespace companion::completion
