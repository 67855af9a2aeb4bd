// Lists and dictionaries.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

const Words& listWords() {
    static const Words words = {
        described(
            WordKind::Member, "சேர்", "பட்டியல்.சேர்(மதிப்பு)", "பட்டியலின் முடிவில் ஒரு மதிப்பைச் சேர்க்கும்.",
            "append, push, add", shown_programs::lists,
            "பெயரில் உள்ள பட்டியலில்தான் சேர்க்க முடியும். பொருளின் பண்பிலோ ஒரு பட்டியலின் இடத்திலோ இருந்தால், அதை ஒரு பெயரில் "
            "எடுத்து, சேர்த்து, திருப்பி வை."),
        described(
            WordKind::BuiltIn, "வை", "வை(பட்டியல், இடம், மதிப்பு)",
            "பட்டியலின் இடத்திலோ அகராதியின் சாவியிலோ ஒரு மதிப்பை வைக்கும்; பட்டியல்[இடம்] = மதிப்பு என்பதும் இதுவே.",
            "set, store, put, assign", shown_programs::lists,
            "பட்டியலில் இல்லாத இடத்தில் வைக்க முடியாது; புதிதாகச் சேர்க்க .சேர்(...) எழுது."),
        described(
            WordKind::BuiltIn, "நீக்கு", "நீக்கு(பட்டியல், மதிப்பு)",
            "பட்டியலில் அந்த மதிப்பு முதலில் வரும் இடத்தை நீக்கும்.", "remove, delete, erase",
            shown_programs::lists,
            "இடத்தை அல்ல, மதிப்பைக் கொடு. மதிப்பு இல்லாவிட்டாலும், பட்டியலுக்குப் பதில் அகராதி கொடுத்தாலும் நிரல் நின்றுவிடும்."),
        described(WordKind::BuiltIn, "எடு", "பட்டியல்[இடம்]", "பட்டியலின் ஓர் இடத்தை எடுக்கும் சொல்.",
                  "get, at, element", shown_programs::lists,
                  "எடு(பட்டியல், 0) என்று எழுதினால் நிரல் உருவாகாது; எப்போதும் பட்டியல்[0] என்று எழுது."),
    };
    return words;
}

}  // namespace companion
