#include "companion/check/names_english.h"

#include <algorithm>

namespace companion {

namespace {

const EnglishWord kWords[] = {
    // Statements.
    {"print", "அச்சிடு", "அச்சிடு(மதிப்பு)", true},
    {"if", "எனில்", "எனில் அ பெரிது 5:", true},
    {"elif", "இல்லைஎனில்", "இல்லைஎனில் அ பெரிது 3:", true},
    {"else", "இல்லை", "இல்லை:", true},
    {"while", "சுற்று", "சுற்று அ சிறிது 5:", true},
    {"for", "ஒவ்வொன்றாக", "ஒவ்வொன்றாக அ இல் எண்கள்:", true},
    {"foreach", "ஒவ்வொன்றாக", "ஒவ்வொன்றாக அ இல் எண்கள்:", true},
    {"break", "நிறுத்து", "நிறுத்து", true},
    {"continue", "தொடர்", "தொடர்", true},
    {"pass", "விடு", "விடு", true},
    {"def", "செயல்", "செயல் கூட்டல்(அ, ஆ):", true},
    {"function", "செயல்", "செயல் கூட்டல்(அ, ஆ):", true},
    {"func", "செயல்", "செயல் கூட்டல்(அ, ஆ):", true},
    {"return", "திரும்பு", "திரும்பு மதிப்பு", true},
    {"class", "கட்டமைப்பு", "கட்டமைப்பு மாணவர்:", true},
    {"struct", "கட்டமைப்பு", "கட்டமைப்பு மாணவர்:", true},
    {"enum", "வகை", "வகை நிறங்கள்:", true},
    {"switch", "தேர்வு", "தேர்வு அ:", true},
    {"match", "தேர்வு", "தேர்வு அ:", true},
    {"case", "நிலை", "நிலை 1:", true},
    {"default", "மற்றவை", "மற்றவை:", true},
    {"try", "முயற்சி", "முயற்சி:", true},
    {"except", "பிடி", "பிடி (தவறு):", true},
    {"catch", "பிடி", "பிடி (தவறு):", true},
    {"import", "நூஇறக்கி", "நூஇறக்கி \"கணிதம்\"", true},
    {"sleep", "காத்திரு", "காத்திரு 1", true},
    // Calls.
    {"input", "உள்ளீடு", "உள்ளீடு(\"பெயர்? \")", false},
    {"len", "நீளம்", "நீளம்(எண்கள்)", false},
    {"length", "நீளம்", "நீளம்(எண்கள்)", false},
    {"size", "நீளம்", "நீளம்(எண்கள்)", false},
    {"range", "வரம்பு", "ஒவ்வொன்றாக அ இல் வரம்பு(5):", false},
    {"int", "எண்", "எண்(\"5\")", false},
    {"float", "எண்", "எண்(\"2.5\")", false},
    {"number", "எண்", "எண்(\"5\")", false},
    {"str", "இணை", "\"\" இணை 5", false},
    {"string", "இணை", "\"\" இணை 5", false},
    {"append", "சேர்", "எண்கள்.சேர்(5)", false},
    {"push", "சேர்", "எண்கள்.சேர்(5)", false},
    {"add", "சேர்", "எண்கள்.சேர்(5)", false},
    {"remove", "நீக்கு", "நீக்கு(எண்கள், 5)", false},
    {"split", "பிளவு", "பிளவு(\"அ,ஆ\", \",\")", false},
    {"replace", "பதில்", "பதில்(\"அஆ\", \"ஆ\", \"இ\")", false},
    {"upper", "பெரியஎ", "பெரியஎ(\"abc\")", false},
    {"lower", "சிறியஎ", "சிறியஎ(\"ABC\")", false},
    {"sqrt", "வர்க்கமூலம்", "வர்க்கமூலம்(16.0)", false},
    {"pow", "அடுக்கு", "அடுக்கு(2.0, 3.0)", false},
    {"abs", "தனிமதிப்பு", "தனிமதிப்பு(கழி 2.5)", false},
    {"ceil", "மேல்எண்", "மேல்எண்(2.5)", false},
    {"floor", "கீழ்எண்", "கீழ்எண்(2.5)", false},
    {"sin", "சைன்", "சைன்(1.0)", false},
    {"tan", "டேன்", "டேன்(1.0)", false},
    {"log", "மடக்கு", "மடக்கு(2.0)", false},
    {"random", "சீரற்ற_எண்", "சீரற்ற_எண்(1, 6)", false},
    {"randint", "சீரற்ற_எண்", "சீரற்ற_எண்(1, 6)", false},
    {"type", "என்னவகை", "என்னவகை(5)", false},
    {"typeof", "என்னவகை", "என்னவகை(5)", false},
    {"open", "கோப்பு_படி", "கோப்பு_படி(\"a.txt\")", false},
    {"date", "தேதி", "தேதி()", false},
    {"time", "நேரம்", "நேரம்()", false},
    {"now", "இப்போதுநேரம்", "இப்போதுநேரம்()", false},
};

}  // namespace

const EnglishWord* englishWord(std::string_view word) {
    const auto* end = std::end(kWords);
    const auto* found = std::find_if(std::begin(kWords), end,
                                     [&](const EnglishWord& row) { return row.english == word; });
    return found == end ? nullptr : found;
}

}  // namespace companion
