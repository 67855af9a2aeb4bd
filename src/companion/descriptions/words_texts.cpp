// Texts, and what kind a value is of.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

const Words& textWords() {
    static const Words words = {
        described(
            WordKind::BuiltIn, "நீளம்", "நீளம்(மதிப்பு)",
            "பட்டியலிலும் அகராதியிலும் எத்தனை மதிப்புகள் என்று தரும்; உரைக்கு அதன் நீளத்தைத் தரும்.",
            "len, length, size, count", shown_programs::lengths,
            "உரையில் எழுத்துகளை அல்ல, பைட்டுகளை எண்ணும்: ஒரு தமிழ் எழுத்து 3 முதல் 6 வரை. விடையை இடமாகவோ கழித்தலிலோ "
            "நேரே பயன்படுத்த முடியாது; எண்(\"\" இணை நீளம்(அ)) என்று எழுது."),
        described(WordKind::BuiltIn, "பிளவு", "பிளவு(உரை, பிரிப்பது)",
                  "உரையைப் பிரித்து, துண்டுகளின் பட்டியலாகத் தரும்.", "split, separate",
                  shown_programs::texts,
                  "பிரிப்பது காலியாக (\"\") இருந்தால் நிரல் முடிவில்லாமல் ஓடி, நினைவகத்தை நிரப்பிவிடும்."),
        described(WordKind::BuiltIn, "பதில்", "பதில்(உரை, தேடுவது, புதியது)",
                  "உரையில் தேடுவது வரும் இடங்களில் எல்லாம் புதியதை வைத்துத் தரும்; பழைய உரை மாறாது.",
                  "replace, substitute", shown_programs::texts,
                  "தேடுவது காலியாக (\"\") இருந்தால் நிரல் முடிவில்லாமல் ஓடும்."),
        described(WordKind::BuiltIn, "பெரியஎ", "பெரியஎ(உரை)",
                  "ஆங்கில எழுத்துகளைப் பெரிய எழுத்துகளாக்கும்.", "upper, uppercase, capital",
                  shown_programs::texts,
                  "தமிழ் எழுத்துகள் மாறாது. எண்ணோ ஓர் எழுத்தோ ('a') கொடுத்தால் நிரல் நின்றுவிடும்; உரை கொடு."),
        described(WordKind::BuiltIn, "சிறியஎ", "சிறியஎ(உரை)",
                  "ஆங்கில எழுத்துகளைச் சிறிய எழுத்துகளாக்கும்.", "lower, lowercase",
                  shown_programs::texts,
                  "உரையை மட்டும் கொடு; எண்ணோ ஓர் எழுத்தோ ('A') கொடுத்தால் நிரல் நின்றுவிடும்."),
        described(
            WordKind::BuiltIn, "என்னவகை", "என்னவகை(மதிப்பு)",
            "மதிப்பின் வகையை உரையாகத் தரும்: உரை, தசம_எண், எழுத்து, பட்டியல், அகராதி, வினை போன்றவை.",
            "type, typeof, kind", shown_programs::kinds,
            "\"எண் \", \"நிலை \", \"நேரம் \", \"பொருள் \" ஆகியவற்றின் முடிவில் ஓர் இடைவெளி உண்டு; ஒப்பிடும்போது அதையும் எழுது."),
    };
    return words;
}

}  // namespace companion
