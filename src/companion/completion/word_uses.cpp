#include "companion/completion/word_uses.h"

#include <algorithm>
#include <iterator>

#include "lexer/holds.h"

namespace companion::completion {

namespace {

constexpr std::string_view kStatements[] = {
    "அச்சிடு",
    "எனில்",
    "இல்லைஎனில்",
    "இல்லை",
    "சுற்று",
    "ஒவ்வொன்றாக",
    "நிறுத்து",
    "தொடர்",
    "தேர்வு",
    "நிலை",
    "மற்றவை",
    "முயற்சி",
    "பிடி",
    "காத்திரு",
    "விடு",
    "செயல்",
    "திரும்பு",
    "கட்டமைப்பு",
    "வடிவமைப்பு",
    "வகை",
    "நூஇறக்கி",
    "ரகசிய",
    "ரகசியம்",
    "பொது",
    "மாறிலி",
    "தான்",
    "self",
    "காட்சி_நிலை",
    "வை",
    "நீக்கு",
    "கோப்பு_எழுது",
    "செல்க",
    "நகர்த்து",
    "புதுப்பி",
    "வலைதளம்",
    "நிகழ்நேர.தரவுசேர்",
    "நிகழ்நேர.தரவுமாற்று",
    "நிகழ்நேர.தரவுஅழி",
    "நிகழ்நேர.தரவுபடி",
};

constexpr std::string_view kOperands[] = {"மெய்", "பொய்", "தான்", "self", "வினை"};
constexpr std::string_view kSignsAlone[] = {"மிகை", "குறை", "எதிர்இருமை", "இல்லை"};

/// The words that programs use most, the most common first.
constexpr std::string_view kCommon[] = {
    "அச்சிடு",      "எனில்",        "செயல்",      "திரும்பு",    "அகலம்",      "உரை",       "உயரம்",
    "எண்",          "கூட்டு",       "ஒவ்வொன்றாக",  "இல்",         "இல்லை",      "சமம்",       "இணை",
    "உள்ளீடு",       "வரம்பு",       "சுற்று",     "நிறம்",       "அளவு",      "உரைபாணி",   "சீரமைப்பு",
    "இடைவெளி",     "வளைவு",       "பெட்டி",     "பொத்தான்",     "நெடுவரிசை", "கிடைவரிசை", "மெய்",
    "பொய்",         "சிறிது",      "பெரிது",    "தான்",        "வினை",      "நீளம்",       "பெருக்கு",
    "கழி",         "வகு",         "அழுத்தினால்", "சேர்",        "கட்டமைப்பு",  "வலைதளம்",    "மையம்",
    "இல்லைஎனில்",    "மீதி",         "மற்றும்",     "அல்லது",      "சமமில்லை",   "பின்னணி",    "பொபின்னணி",
    "பெட்டிபின்னணி", "எழுத்து_நிறம்", "தடிமன்",     "பெட்டி_பாணி", "பொ_பாணி",   "படம்",       "பாதை",
    "பட்டியல்",      "மதிப்பு",      "நிழல்",      "தேர்வு",      "நிலை",      "மற்றவை",     "பெரிதுசமம்",
    "சிறிதுசமம்",   "பிளவு",       "பதில்",      "நிறுத்து",    "தொடர்",      "காத்திரு",   "முயற்சி",
    "பிடி",        "குறிப்பு",     "அடையாளம்",   "நூஇறக்கி",    "செல்க",      "உரைபெட்டி",  "புதுப்பி",
    "ஒன்றுசேர்",     "கூட்டிசேர்",
};

}  // namespace

bool beginsStatement(std::string_view word) { return holds(kStatements, word); }
bool isOperand(std::string_view word) { return holds(kOperands, word); }
bool isUnary(std::string_view word) { return holds(kSignsAlone, word) || word == "கழி"; }
bool isSignAlone(std::string_view word) { return holds(kSignsAlone, word); }

int rankOf(std::string_view word) {
    const auto* found = std::find(std::begin(kCommon), std::end(kCommon), word);
    return static_cast<int>(found - std::begin(kCommon));
}

}  // namespace companion::completion
