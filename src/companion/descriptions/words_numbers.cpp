// Numbers and mathematics.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kNeedsPoint =
    "புள்ளியுள்ள எண் வேண்டும்: 16 அல்ல, 16.0. முழு எண் கொடுத்தால் நிரல் நின்றுவிடும்.";
constexpr std::string_view kAnglesNeedPoint =
    "கோணத்தை ஆரையத்தில் கொடு: 180 பாகை என்பது 3.14159. முழு எண் கொடுத்தால் நிரல் நின்றுவிடும்; 1 அல்ல, 1.0.";

}  // namespace

const Words& numberWords() {
    static const Words words = {
        described(
            WordKind::BuiltIn, "எண்", "எண்(உரை)", "உரையாக இருக்கும் எண்ணைக் கணக்கிடக்கூடிய எண்ணாக்கும்.",
            "int, number, parse, to number, float", shown_programs::text_to_number,
            "உரையில் எண் மட்டும் இருக்க வேண்டும்; பின்னே இடைவெளி இருந்தாலும் நிரல் நின்றுவிடும், முயற்சியும் பிடிக்காது."),
        described(WordKind::BuiltIn, "வர்க்கமூலம்", "வர்க்கமூலம்(எண்)",
                  "எந்த எண்ணை அதே எண்ணால் பெருக்கினால் இது வரும் என்று தரும்.", "sqrt, square root",
                  shown_programs::powers, kNeedsPoint),
        described(WordKind::BuiltIn, "அடுக்கு", "அடுக்கு(அடி, எத்தனை)",
                  "ஓர் எண்ணை அதே எண்ணால் பல முறை பெருக்கும்: அடுக்கு(2.0, 10.0) என்பது 1024.",
                  "pow, power, exponent, **", shown_programs::powers,
                  "இரண்டும் புள்ளியுள்ள எண்களாக வேண்டும்: 2 அல்ல, 2.0. முழு எண் கொடுத்தால் நிரல் நின்றுவிடும்."),
        described(WordKind::BuiltIn, "தனிமதிப்பு", "தனிமதிப்பு(எண்)",
                  "எண்ணின் குறியை நீக்கும்: -2.5 என்பது 2.5 ஆகும்.", "abs, absolute value",
                  shown_programs::powers, kNeedsPoint),
        described(WordKind::BuiltIn, "மேல்எண்", "மேல்எண்(எண்)",
                  "பின்ன எண்ணை மேலே உள்ள முழு எண்ணாக்கும்: 2.1 என்பது 3.", "ceil, ceiling, round up",
                  shown_programs::rounding, kNeedsPoint),
        described(WordKind::BuiltIn, "கீழ்எண்", "கீழ்எண்(எண்)",
                  "பின்ன எண்ணைக் கீழே உள்ள முழு எண்ணாக்கும்: 2.9 என்பது 2.", "floor, round down",
                  shown_programs::rounding, kNeedsPoint),
        described(WordKind::BuiltIn, "சைன்", "சைன்(கோணம்)", "கோணத்தின் சைன் மதிப்பு.", "sin, sine",
                  shown_programs::angles, kAnglesNeedPoint),
        described(
            WordKind::BuiltIn, "காஸ்", "சைன்(கோணம் கூட்டு 1.5707963267948966)", "கோணத்தின் கொசைன் மதிப்பு.",
            "cos, cosine", kNoProgram,
            "இந்தப் பெயரில் கிரந்த எழுத்து இருப்பதால் பொழில் அதை ஏற்காது; மேலே உள்ளபடி சைன் கொண்டு எழுது."),
        described(WordKind::BuiltIn, "டேன்", "டேன்(கோணம்)", "கோணத்தின் டேன் மதிப்பு.", "tan, tangent",
                  shown_programs::angles, kAnglesNeedPoint),
        described(WordKind::BuiltIn, "மடக்கு", "மடக்கு(எண்)",
                  "எண்ணின் இயல் மடக்கை: மடக்கு(10.0) என்பது 2.302585.", "log, ln, logarithm",
                  shown_programs::angles,
                  "அடி 10 அல்ல, 2.71828. முழு எண் கொடுத்தால் நிரல் நின்றுவிடும்; 10 அல்ல, 10.0."),
        described(WordKind::BuiltIn, "சீரற்ற_எண்", "சீரற்ற_எண்(குறைந்தது, அதிகம்)",
                  "இரண்டு முழு எண்களுக்கு நடுவே ஏதோ ஒன்றைத் தரும்; இரண்டு முனைகளும் சேரும்.",
                  "random, rand, dice", shown_programs::chance,
                  "ஒவ்வொரு முறை நிரலை ஓட்டும்போதும் அதே எண்கள் அதே வரிசையில் வரும். முழு எண்கள் மட்டும்."),
    };
    return words;
}

}  // namespace companion
