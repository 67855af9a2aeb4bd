// Words that change a variable.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kTakesWholeNumbers =
    "முழு எண்களுக்கு மட்டும்; வலப்பக்கம் எழுதிய எண்ணாக இருக்க வேண்டும். வேறு பெயரைச் சேர்க்க அ = அ கூட்டு ஆ போல முழுவதும் எழுது.";

constexpr std::string_view kStoresInLists =
    "பட்டியலின் இடத்தில் எழுதினால் கணக்கு நடக்காது: அ[0] கூட்டிசேர் 1 என்பது 1 ஐ வைத்துவிடும். அங்கே அ[0] = அ[0] கூட்டு 1 என்று "
    "எழுது; வலப்பக்கம் வேறு பெயர் வந்தாலும் அப்படியே.";

}  // namespace

const Words& assignmentWords() {
    static const Words words = {
        described(WordKind::Operator, "ஒன்றுசேர்", "பெயர் ஒன்றுசேர் 1",
                  "பெயரில் உள்ள எண்ணோடு வலப்பக்க எண்ணைக் கூட்டும்.", "increment, ++", shown_programs::steps,
                  "வலப்பக்கம் எண் இல்லாமல் எழுத முடியாது: எண்ணி ஒன்றுசேர் 1 என்று எழுது."),
        described(WordKind::Operator, "ஒன்றுகழி", "பெயர் ஒன்றுகழி 1",
                  "பெயரில் உள்ள எண்ணிலிருந்து வலப்பக்க எண்ணைக் கழிக்கும்.", "decrement, --",
                  shown_programs::steps,
                  "வலப்பக்கம் எண் இல்லாமல் எழுத முடியாது: எண்ணி ஒன்றுகழி 1 என்று எழுது."),
        described(WordKind::Operator, "கூட்டிசேர்", "பெயர் கூட்டிசேர் எண்",
                  "பெயரில் உள்ள எண்ணைக் கூட்டி, விடையை அதிலேயே வைக்கும்.",
                  "add assign, +=", shown_programs::short_assignments, kStoresInLists),
        described(WordKind::Operator, "கழிசேர்", "பெயர் கழிசேர் எண்",
                  "பெயரில் உள்ள எண்ணிலிருந்து கழித்து, விடையை அதிலேயே வைக்கும்.",
                  "subtract assign, -=", shown_programs::short_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "பெருக்குசேர்", "பெயர் பெருக்குசேர் எண்",
                  "பெயரில் உள்ள எண்ணைப் பெருக்கி, விடையை அதிலேயே வைக்கும்.",
                  "multiply assign, *=", shown_programs::short_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "வகுசேர்", "பெயர் வகுசேர் எண்",
                  "பெயரில் உள்ள எண்ணை வகுத்து, முழு எண் விடையை அதிலேயே வைக்கும்.",
                  "divide assign, /=", shown_programs::short_assignments,
                  "0 ஆல் வகுத்தால் நிரல் உடனே நின்றுவிடும்; முயற்சியும் அதைப் பிடிக்காது."),
        described(WordKind::Operator, "மீதிசேர்", "பெயர் மீதிசேர் எண்",
                  "பெயரில் உள்ள எண்ணை வகுத்து, மீதியை அதிலேயே வைக்கும்.",
                  "modulo assign, %=", shown_programs::short_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "பெஇசேர்", "பெயர் பெஇசேர் எண்",
                  "பெருக்குஇருமை செய்து, விடையை அதே பெயரில் வைக்கும்.",
                  "and assign, &=", shown_programs::short_bit_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "கூட்டுஇசேர்", "பெயர் கூட்டுஇசேர் எண்",
                  "கூட்டுஇருமை செய்து, விடையை அதே பெயரில் வைக்கும்.",
                  "or assign, |=", shown_programs::short_bit_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "வேஇசேர்", "பெயர் வேஇசேர் எண்",
                  "வேறுஇருமை செய்து, விடையை அதே பெயரில் வைக்கும்.",
                  "xor assign, ^=", shown_programs::short_bit_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "இடதுஇசேர்", "பெயர் இடதுஇசேர் இடங்கள்",
                  "இடதுஇருமை செய்து, விடையை அதே பெயரில் வைக்கும்.", "shift left assign, <<=",
                  shown_programs::short_bit_assignments, kTakesWholeNumbers),
        described(WordKind::Operator, "வலதுஇசேர்", "பெயர் வலதுஇசேர் இடங்கள்",
                  "வலதுஇருமை செய்து, விடையை அதே பெயரில் வைக்கும்.", "shift right assign, >>=",
                  shown_programs::short_bit_assignments, kTakesWholeNumbers),
    };
    return words;
}

}  // namespace companion
