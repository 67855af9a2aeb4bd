// Files.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kWritesInFolders =
    "கோப்புறை முன்பே இருக்க வேண்டும்; இல்லாவிட்டால் நிரல் நின்றுவிடும். பாதையில் //, *, ? வரக்கூடாது.";

}  // namespace

const Words& fileWords() {
    static const Words words = {
        described(WordKind::BuiltIn, "கோப்பு_எழுது", "கோப்பு_எழுது(\"பாதை\", மதிப்பு)",
                  "கோப்பில் மதிப்பை எழுதும்; கோப்பு இல்லாவிட்டால் உருவாக்கும். முன்பு இருந்தது அழிந்துவிடும்.",
                  "write file, save file, file", shown_programs::files, kWritesInFolders),
        described(
            WordKind::BuiltIn, "கோப்பு_சேர்", "கோப்பு_சேர்(\"பாதை\", மதிப்பு)",
            "கோப்பின் முடிவில் மதிப்பைச் சேர்க்கும்.", "append file", shown_programs::files,
            "புது வரி தானாக வராது; வேண்டுமானால் \"\\n\" சேர்த்து எழுது. கோப்புறை முன்பே இருக்க வேண்டும்."),
        described(
            WordKind::BuiltIn, "கோப்பு_படி", "கோப்பு_படி(\"பாதை\")",
            "கோப்பில் உள்ள முழுவதையும் ஒரே உரையாகத் தரும்.", "read file, open file, load, file",
            shown_programs::files,
            "கோப்பு இல்லாவிட்டால் நிரல் நின்றுவிடும், முயற்சியும் பிடிக்காது; முதலில் கோப்பு_உள்ளதா என்று கேள்."),
        described(WordKind::BuiltIn, "கோப்பு_உள்ளதா", "கோப்பு_உள்ளதா(\"பாதை\")",
                  "கோப்பு அங்கே இருக்கிறதா என்று சொல்லும்: மெய் அல்லது பொய்.", "file exists, exists",
                  shown_programs::files),
        described(WordKind::BuiltIn, "கோப்பு_அழி", "கோப்பு_அழி(\"பாதை\")",
                  "கோப்பை அழிக்கும்; அழிந்தால் மெய், முடியாவிட்டால் பொய்.", "delete file, remove file",
                  shown_programs::files, "கேட்காமல் அழித்துவிடும்; திரும்பப் பெற முடியாது."),
    };
    return words;
}

}  // namespace companion
