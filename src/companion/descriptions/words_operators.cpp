// Operators with two sides, and signs.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kNeedsNumbers =
    "இரண்டு பக்கமும் எண்களாக இருக்க வேண்டும். செயல் பெற்ற மதிப்புகளும் பட்டியலின் மதிப்புகளும் முழு எண்களாகவே எடுக்கப்படும்; "
    "அவற்றில் பின்னம் இருந்தால் நிரல் நின்றுவிடும்.";
constexpr std::string_view kOrdersNumbers =
    "எண்களுக்கு மட்டும் பொருள் உண்டு; இரண்டு உரைகளுக்கு எப்போதும் பொய்.";
constexpr std::string_view kNeedsTruth =
    "இரண்டு பக்கமும் மெய் அல்லது பொய் ஆக வேண்டும்; வெறும் எண் நின்றால் நிரல் நின்றுவிடும்.";
constexpr std::string_view kBitsAreLoose =
    "முழு எண்களுக்கு மட்டும். ஒப்பீடு இதற்கு முன்பே நடந்துவிடும்; (6 பெருக்குஇருமை 3) சமம் 2 என்று அடைப்பில் எழுது.";
constexpr std::string_view kShiftsAreLoose =
    "முழு எண்களுக்கு மட்டும். கூட்டலும் கழித்தலும் இதற்கு முன்பே நடந்துவிடும்; வேண்டிய இடத்தில் அடைப்பு வை.";
constexpr std::string_view kSignsLiterals =
    "எழுதிய எண்ணின் முன்னே மட்டும் வை; பெயரின் முன்னே வைத்தால் நிரல் உருவாகாது. அங்கே 0 கழி பெயர் என்று எழுது.";

Words arithmeticWords() {
    return {
        described(
            WordKind::Operator, "கூட்டு", "அ கூட்டு ஆ",
            "இரண்டு எண்களைக் கூட்டும். ஒரு பக்கம் உரை என்றால் இரண்டையும் சேர்த்து உரையாக்கும்.", "plus, add, +",
            shown_programs::arithmetic,
            "\"வயது\" கூட்டு 12 என்று நேரே எழுதினால் பிழை; இணை என்று எழுது. நீளம் தரும் எண்ணோடு கூட்டினால் விடை "
            "பின்னமாகும்."),
        described(WordKind::Operator, "கழி", "அ கழி ஆ",
                  "முதல் எண்ணிலிருந்து இரண்டாவதைக் கழிக்கும். கழி 5 என்று எழுதினால் அது -5.",
                  "minus, subtract, -", shown_programs::arithmetic, kNeedsNumbers),
        described(WordKind::Operator, "பெருக்கு", "அ பெருக்கு ஆ", "இரண்டு எண்களைப் பெருக்கும்.",
                  "times, multiply, *", shown_programs::arithmetic, kNeedsNumbers),
        described(
            WordKind::Operator, "வகு", "அ வகு ஆ",
            "முதல் எண்ணை இரண்டாவதால் வகுக்கும். இரண்டும் முழு எண் என்றால் விடையும் முழு எண்.",
            "divide, division, /", shown_programs::arithmetic,
            "7 வகு 2 என்பது 3; பின்னம் வேண்டுமானால் 7.0 வகு 2. சுழியத்தால் வகுத்தால் தவறு; முயற்சி அதைப் பிடிக்கும்."),
        described(
            WordKind::Operator, "மீதி", "அ மீதி ஆ", "வகுத்தபின் எஞ்சும் மீதி: 7 மீதி 2 என்பது 1.",
            "modulo, remainder, mod, %", shown_programs::arithmetic,
            "முழு எண்களுக்கு மட்டும். 0 ஆல் மீதி கேட்டால் நிரல் உடனே நின்றுவிடும்; முயற்சியும் அதைப் பிடிக்காது."),
        described(
            WordKind::Operator, "இணை", "அ இணை ஆ", "எந்த இரண்டு மதிப்புகளையும் ஒரே உரையாகச் சேர்க்கும்.",
            "concatenate, join, append, ..", shown_programs::joining,
            "இது கூட்டும் அதே வரிசையில் நடக்கும்: 1 கூட்டு 2 இணை 3 என்பது 33. பெருக்கலை அடைப்பில்லாமலும் எழுதலாம்."),
        described(WordKind::Operator, "மிகை", "மிகை 5",
                  "எண் நேர் எண் என்று காட்டும் குறி: மிகை 5 என்பது 5.", "unary plus, positive, +",
                  shown_programs::signs, kSignsLiterals),
        described(WordKind::Operator, "குறை", "குறை 5", "எண்ணை எதிர் எண்ணாக்கும்: குறை 5 என்பது -5.",
                  "negative, unary minus, -", shown_programs::signs, kSignsLiterals),
    };
}

Words comparisonWords() {
    return {
        described(
            WordKind::Operator, "சமம்", "அ சமம் ஆ", "இரண்டும் ஒன்றுதானா என்று பார்க்கும்: மெய் அல்லது பொய்.",
            "equal, equals, ==", shown_programs::comparison,
            "வகை வேறானால் எப்போதும் பொய்: \"5\" சமம் 5 என்பது பொய். பட்டியல்களையும் பொருள்களையும் ஒப்பிட முடியாது."),
        described(
            WordKind::Operator, "சமமில்லை", "அ சமமில்லை ஆ",
            "இரண்டும் வேறுவேறா என்று பார்க்கும்: மெய் அல்லது பொய்.",
            "not equal, !=", shown_programs::comparison,
            "வகை வேறானால் இதுவும் பொய்தான்: \"5\" சமமில்லை 5 என்பது பொய். இல்லை (அ சமம் ஆ) என்று எழுதினால் சரியாக வரும்."),
        described(WordKind::Operator, "பெரிது", "அ பெரிது ஆ", "இடப்பக்க எண் பெரியதா என்று பார்க்கும்.",
                  "greater, more than, >", shown_programs::comparison, kOrdersNumbers),
        described(WordKind::Operator, "சிறிது", "அ சிறிது ஆ", "இடப்பக்க எண் சிறியதா என்று பார்க்கும்.",
                  "less, smaller, <", shown_programs::comparison, kOrdersNumbers),
        described(WordKind::Operator, "பெரிதுசமம்", "அ பெரிதுசமம் ஆ",
                  "இடப்பக்க எண் பெரியதா அல்லது சமமா என்று பார்க்கும்.",
                  "greater or equal, at least, >=", shown_programs::comparison, kOrdersNumbers),
        described(WordKind::Operator, "சிறிதுசமம்", "அ சிறிதுசமம் ஆ",
                  "இடப்பக்க எண் சிறியதா அல்லது சமமா என்று பார்க்கும்.",
                  "less or equal, at most, <=", shown_programs::comparison, kOrdersNumbers),
        described(WordKind::Operator, "மற்றும்", "அ மற்றும் ஆ",
                  "இரண்டும் மெய் என்றால்தான் மெய். முதல் பக்கம் பொய் என்றால் இரண்டாவதைப் பார்க்காது.", "and, &&",
                  shown_programs::logic, kNeedsTruth),
        described(WordKind::Operator, "அல்லது", "அ அல்லது ஆ",
                  "ஏதேனும் ஒன்று மெய் என்றால் மெய். முதல் பக்கம் மெய் என்றால் இரண்டாவதைப் பார்க்காது.", "or, ||",
                  shown_programs::logic, kNeedsTruth),
        described(
            WordKind::Operator, "இல்லை", "இல்லை மதிப்பு", "மெய்யைப் பொய் ஆக்கும்; பொய்யை மெய் ஆக்கும்.",
            "not, !", shown_programs::logic,
            "ஒப்பீட்டை அடைப்பில் எழுது: இல்லை (அ சமம் 4). பட்டியலுக்கும் அகராதிக்கும், காலியானாலும், பொய் வரும்."),
        described(
            WordKind::Operator, "எனில்", "நிபந்தனை எனில் மதிப்பு இல்லைஎனில் மதிப்பு",
            "நிபந்தனை மெய் என்றால் முதல் மதிப்பு, இல்லாவிட்டால் இரண்டாவது.",
            "ternary, conditional, ?:", shown_programs::value_by_condition,
            "இரண்டு மதிப்புகளும் ஒரே வகையாக இருக்கட்டும். நிபந்தனையில் வெறும் பெயரை எழுதாதே; பெயர் சமம் மெய் என்று எழுது."),
    };
}

Words bitWords() {
    return {
        described(WordKind::Operator, "பெருக்குஇருமை", "அ பெருக்குஇருமை ஆ",
                  "இரு எண்களையும் இருமத்தில் வைத்து, இரண்டிலும் 1 உள்ள இடங்களை மட்டும் வைக்கும்.",
                  "bitwise and, &", shown_programs::bits, kBitsAreLoose),
        described(WordKind::Operator, "கூட்டுஇருமை", "அ கூட்டுஇருமை ஆ",
                  "இரு எண்களையும் இருமத்தில் வைத்து, ஏதேனும் ஒன்றில் 1 உள்ள இடங்களை வைக்கும்.", "bitwise or, |",
                  shown_programs::bits, kBitsAreLoose),
        described(WordKind::Operator, "வேறுஇருமை", "அ வேறுஇருமை ஆ",
                  "இரு எண்களையும் இருமத்தில் வைத்து, ஒன்றில் மட்டும் 1 உள்ள இடங்களை வைக்கும்.", "bitwise xor, ^",
                  shown_programs::bits, kBitsAreLoose),
        described(WordKind::Operator, "எதிர்இருமை", "எதிர்இருமை அ",
                  "எண்ணின் இருமத்தில் 0, 1 இரண்டையும் மாற்றிப் போடும்: எதிர்இருமை 5 என்பது -6.",
                  "bitwise not, complement, ~", shown_programs::bits,
                  "முழு எண்களுக்கு மட்டும்; பின்னம் கொடுத்தால் நிரல் நின்றுவிடும்."),
        described(WordKind::Operator, "இடதுஇருமை", "அ இடதுஇருமை இடங்கள்",
                  "இருமத்தின் இடங்களை இடப்பக்கம் நகர்த்தும்; ஒவ்வொரு இடமும் எண்ணை இரட்டிக்கும்.", "shift left, <<",
                  shown_programs::bits, kShiftsAreLoose),
        described(WordKind::Operator, "வலதுஇருமை", "அ வலதுஇருமை இடங்கள்",
                  "இருமத்தின் இடங்களை வலப்பக்கம் நகர்த்தும்; ஒவ்வொரு இடமும் எண்ணைப் பாதியாக்கும்.",
                  "shift right, >>", shown_programs::bits, kShiftsAreLoose),
    };
}

}  // namespace

const Words& operatorWords() {
    static const Words words = [] {
        Words all = arithmeticWords();
        for (const Words& more : {comparisonWords(), bitWords()}) {
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }();
    return words;
}

}  // namespace companion
