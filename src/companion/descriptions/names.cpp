#include "companion/descriptions/names.h"

#include "parser/operator_levels.h"

namespace companion {

const char* nameOf(WordKind kind) {
    switch (kind) {
        case WordKind::Keyword: return "திறவுச்சொல்";
        case WordKind::Operator: return "செயற்குறி";
        case WordKind::BuiltIn: return "உள்ளமைந்த செயல்";
        case WordKind::Member: return "புள்ளியின் பின்னே வரும் சொல்";
        case WordKind::Widget: return "உறுப்பு";
        case WordKind::Property: return "பண்பு";
        case WordKind::Application: return "வலைதளத்தின் சொல்";
        case WordKind::Mark: return "குறி";
    }
    return "";
}

const char* nameOf(ValueGroup group) {
    switch (group) {
        case ValueGroup::Colour: return "நிறம்";
        case ValueGroup::Alignment: return "சீரமைப்பு";
        case ValueGroup::Curve: return "அசைவூட்டத்தின் வகை";
        case ValueGroup::Trigger: return "அசைவூட்டத்தின் நிலைமை";
    }
    return "";
}

const char* momentOf(CodeMoment moment) {
    switch (moment) {
        case CodeMoment::Never: return "எந்த நிரலும் காட்டாத எண்";
        case CodeMoment::Reading: return "நிரலைப் படிக்கும்போது";
        case CodeMoment::Unshown: return "நிரலைப் படிக்கும்போது, பெட்டி இல்லாமல்";
        case CodeMoment::Running: return "நிரல் ஓடும்போது";
    }
    return "";
}

std::string placeOf(const PropertyDescription& property) {
    if (property.block.empty()) return "";
    if (property.block == "()") return "உறுப்பின் முதல் அடைப்பு";
    return std::string(property.block) + "(...)";
}

bool isPrefixOperator(const Description& word) {
    return word.kind == WordKind::Operator && levelOfOperator(word.word) == 0 &&
           word.form.substr(0, word.word.size()) == word.word;
}

}  // namespace companion
