// Values as they are written, and the marks of the language.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

const Words& literalWords() {
    static const Words words = {
        described(WordKind::Keyword, "மெய்", "மெய்", "உண்மை என்ற மதிப்பு: ஆம்.", "true, yes",
                  shown_programs::truth,
                  "1, \"மெய்\" ஆகியவை மெய் ஆகாது; நிபந்தனையில் மெய், பொய் அல்லது ஓர் ஒப்பீடு வேண்டும்."),
        described(WordKind::Keyword, "பொய்", "பொய்", "உண்மை அல்ல என்ற மதிப்பு: இல்லை.", "false, no",
                  shown_programs::truth, "0, \"\" ஆகியவை நிபந்தனையில் பொய் ஆகாது; நிரல் நின்றுவிடும்."),
        described(WordKind::Mark, "ஃ", "ஃ குறிப்பு",
                  "இதன் பின்னே வரியின் முடிவு வரை உனக்கான குறிப்பு; நிரலில் சேராது.", "comment",
                  shown_programs::comments),
        described(WordKind::Mark, "ஃஃ", "ஃஃ குறிப்பு ஃஃ",
                  "இரண்டு ஃஃ குறிகளுக்கு நடுவே பல வரிகளில் குறிப்பு எழுதலாம்.",
                  "block comment, multiline comment", shown_programs::comments,
                  "மூட மறந்தால் மீதி நிரல் முழுவதும் குறிப்பாகிவிடும்."),
        described(WordKind::Mark, "=", "பெயர் = மதிப்பு",
                  "மதிப்பை ஒரு பெயரில் வைக்கும். பெயரை முன்பே அறிவிக்கத் தேவையில்லை.",
                  "assign, variable, let, var", shown_programs::short_assignments,
                  "ஒப்பிட சமம் என்று எழுது; = ஒப்பிடாது."),
        described(WordKind::Mark, "=>", "(அ, ஆ) => கோவை",
                  "ஒரே வரியில் பெயரில்லாத சிறு செயலை எழுதும்: இடப்பக்கம் பெறுவது, வலப்பக்கம் தருவது.",
                  "arrow, arrow function", shown_programs::short_functions,
                  "வலப்பக்கம் ஒரே ஒரு கோவைதான்; பல வரிகள் வேண்டுமானால் செயல் என்று எழுது."),
        described(WordKind::Mark, ":", "எனில் நிபந்தனை:",
                  "உள்தள்ளிய வரிகள் இதன் கீழே வரும் என்று சொல்லும்; அகராதியில் சாவியையும் மதிப்பையும் பிரிக்கும்.",
                  "colon, block, indent, indentation", shown_programs::conditions,
                  "இதன் பின்னே அதே வரியில் எழுதாதே; அடுத்த வரியில் நான்கு இடைவெளி உள்தள்ளி எழுது."),
        described(WordKind::Mark, ".", "பொருள்.பண்பு",
                  "பொருளின் பண்பையோ செயலையோ குறிக்கும்; எண்ணில் பின்னத்தின் புள்ளி: 2.5.",
                  "dot, member, decimal point", shown_programs::structure,
                  "பின்னத்தை 2.5 என்று எழுது; ௨.௫ என்று எழுத முடியாது."),
        described(WordKind::Mark, ";", "வரி;வரி",
                  "ஒரே வரியில் இரண்டு வரிகளின் வேலையைப் பிரித்து எழுதும்.", "semicolon, separator",
                  shown_programs::enumeration,
                  "இதன் பின்னே இடைவெளி விட்டால் அது உள்தள்ளலாக எடுத்துக்கொள்ளப்படும்; ஒட்டி எழுது."),
        described(WordKind::Mark, "?", "நிபந்தனை ? மதிப்பு : மதிப்பு",
                  "மதிப்பில் எழுதும் எனில், இல்லைஎனில் ஆகியவற்றின் சுருக்கக் குறி: பொருள் அதுவே.",
                  "ternary, conditional", shown_programs::value_by_condition,
                  "நிபந்தனையில் வெறும் பெயரை எழுதாதே; பெயர் சமம் மெய் என்று எழுது."),
        described(WordKind::Mark, "\"", "\"உரை\"",
                  "இரட்டை மேற்கோளுக்குள் எழுதுவது உரை. உள்ளே \\n என்பது புது வரி.",
                  "string, text, quote, \"\"", shown_programs::literals,
                  "உரை திறந்த வரியிலேயே மூட வேண்டும். \"#\" குறியில் தொடங்கும் உரை நிறமாகும்."),
        described(WordKind::Mark, "'", "'எழுத்து'", "ஒற்றை மேற்கோளுக்குள் எழுதுவது ஓர் எழுத்து.",
                  "char, character, ''", shown_programs::literals, "'' என்று காலியாக விட முடியாது."),
        described(WordKind::Mark, "[", "[மதிப்பு, மதிப்பு]",
                  "பட்டியல்: பல மதிப்புகள் வரிசையாக. பட்டியல்[0] என்பது அதன் முதல் மதிப்பு.",
                  "list, array, index, element, []", shown_programs::lists,
                  "பட்டியல் ஒரே வரியில் முடிய வேண்டும். இடங்கள் 0 முதல் எண்ணப்படும்; இல்லாத இடத்தைக் கேட்டால் "
                  "நிரல் நின்றுவிடும்."),
        described(WordKind::Mark, "{", "{\"சாவி\": மதிப்பு}",
                  "அகராதி: ஒவ்வொரு சாவிக்கும் ஒரு மதிப்பு. அகராதி[\"சாவி\"] என்பது அந்த மதிப்பு.",
                  "dictionary, dict, map, key, {}", shown_programs::dictionaries,
                  "சாவி உரையாக இருக்க வேண்டும்; இல்லாத சாவியைக் கேட்டால் நிரல் நின்றுவிடும்."),
    };
    return words;
}

}  // namespace companion
