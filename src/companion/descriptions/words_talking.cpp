// Printing and asking.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

const Words& talkingWords() {
    static const Words words = {
        described(WordKind::Keyword, "அச்சிடு", "அச்சிடு(மதிப்பு, மதிப்பு, ...)",
                  "மதிப்புகளை ஒன்றின்பின் ஒன்றாகத் திரையில் எழுதி, வரியை முடிக்கும்.",
                  "print, write, show, echo", shown_programs::greeting,
                  "மதிப்புகளுக்கு நடுவே இடைவெளி தானாக வராது; வேண்டுமானால் \" \" என்று சேர்த்து எழுது. "
                  "பின்ன எண்கள் எப்போதும் ஆறு இலக்கங்களோடு வரும்: 2.5 என்பது 2.500000."),
        described(WordKind::BuiltIn, "உள்ளீடு", "உள்ளீடு(\"கேள்வி\")",
                  "கேள்வியைத் திரையில் காட்டி, எழுதும் ஒரு வரியை உரையாகத் தரும்.",
                  "input, read, ask, prompt", shown_programs::question,
                  "கேள்வி இல்லாமல் உள்ளீடு() என்று எழுதினால் நிரல் உருவாகாது; உள்ளீடு(\"\") என்று எழுது. "
                  "எண்ணை எழுதினாலும் கிடைப்பது உரைதான்: எண்(உள்ளீடு(\"வயது? \")) என்று மாற்று."),
    };
    return words;
}

}  // namespace companion
