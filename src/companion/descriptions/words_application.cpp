// What the functions of an application call and read: pages, its inputs, its state.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kNamesAWidget =
    "புள்ளியின் முன்னே உரைபெட்டியின் அடையாளத்தை எழுது; மாறியின் பெயர் அல்ல. வலைதளத்தில் மட்டும் வேலை செய்யும்.";

Description ofInput(std::string_view word, std::string_view form, std::string_view summary,
                    std::string_view english,
                    const ShownProgram& program = shown_programs::input_field,
                    std::string_view trap = kNamesAWidget) {
    return described(WordKind::Member, word, form, summary, english, program, trap);
}

}  // namespace

const Words& applicationWords() {
    static const Words words = {
        described(
            WordKind::BuiltIn, "செல்க", "செல்க(\"பக்கம்\")", "வலைதளத்தின் இன்னொரு பக்கத்தைத் திறக்கும்.",
            "navigate, go to, open page", shown_programs::pages,
            "இல்லாத பக்கத்தின் பெயரைக் கொடுத்தால் திரை காலியாகும். வலைதளம் அல்லாத நிரலில் எழுதினால் நிரல் உருவாகாது."),
        described(WordKind::BuiltIn, "நகர்த்து", "நகர்த்து(\"அடையாளம்\")",
                  "அந்த அடையாளம் உள்ள உறுப்பு தெரியும்படி திரையை உருட்டும்.", "scroll to, scroll",
                  shown_programs::pages, "அந்த அடையாளத்தில் உறுப்பு இல்லாவிட்டால் ஒன்றும் நடக்காது."),
        described(WordKind::Keyword, "காட்சி_நிலை", "காட்சி_நிலை.பெயர் = மதிப்பு",
                  "திரையில் காட்டும் பெயரின் மதிப்பை மாற்றும்; பெயர் = மதிப்பு என்பதும் அதையே செய்யும்.",
                  "state, set state", shown_programs::state,
                  "மதிப்பைப் படிக்க வெறும் பெயரை எழுது; காட்சி_நிலை.பெயர் என்று படிக்க முடியாது."),
        ofInput("வெறுமை", "அடையாளம்.வெறுமை", "உரைபெட்டியில் ஒன்றும் எழுதவில்லையா என்று சொல்லும்.",
                "empty, is empty"),
        ofInput("வெறுமைஇல்லை", "அடையாளம்.வெறுமைஇல்லை",
                "உரைபெட்டியில் ஏதாவது எழுதியிருக்கிறதா என்று சொல்லும்.", "not empty, filled",
                shown_programs::input_texts),
        ofInput("உரைதரவு", "அடையாளம்.உரைதரவு", "உரைபெட்டியில் எழுதியதை உரையாகத் தரும்.",
                "value, text, content", shown_programs::input_texts),
        ofInput(
            "நீளம்", "அடையாளம்.நீளம்", "எழுதியதன் நீளம்.", "length", shown_programs::input_texts,
            "எழுத்துகளை அல்ல, பைட்டுகளை எண்ணும்: ஒரு தமிழ் எழுத்து 3 முதல் 6 வரை. புள்ளியின் முன்னே உரைபெட்டியின் அடையாளம் வேண்டும்."),
        ofInput("பெரியஎழுத்து", "அடையாளம்.பெரியஎழுத்து",
                "எழுதியதில் ஆங்கில எழுத்துகளைப் பெரியதாக்கித் தரும்.", "uppercase, upper",
                shown_programs::input_texts),
        ofInput("சிறியஎழுத்து", "அடையாளம்.சிறியஎழுத்து",
                "எழுதியதில் ஆங்கில எழுத்துகளைச் சிறியதாக்கித் தரும்.", "lowercase, lower",
                shown_programs::input_texts),
        ofInput("சுத்தம்", "அடையாளம்.சுத்தம்", "எழுதியதன் இரு முனைகளிலும் உள்ள இடைவெளிகளை நீக்கித் தரும்.",
                "trim, strip"),
        ofInput("கொண்டுள்ளது", "அடையாளம்.கொண்டுள்ளது(\"@\")", "எழுதியதில் அந்த உரை இருக்கிறதா என்று சொல்லும்.",
                "contains, includes"),
        ofInput("தொடக்கம்", "அடையாளம்.தொடக்கம்(\"91\")", "எழுதியது அந்த உரையில் தொடங்குகிறதா என்று சொல்லும்.",
                "starts with, prefix", shown_programs::input_texts),
        ofInput("முடிவு", "அடையாளம்.முடிவு(\".com\")", "எழுதியது அந்த உரையில் முடிகிறதா என்று சொல்லும்.",
                "ends with, suffix", shown_programs::input_texts),
        ofInput("பிழைசெய்தி", "அடையாளம்.பிழைசெய்தி(\"செய்தி\")",
                "உரைபெட்டியின் கீழே ஒரு பிழைச் செய்தியைக் காட்டும்.", "error message, set error"),
        ofInput("பிழை_அழி", "அடையாளம்.பிழை_அழி()", "உரைபெட்டியின் பிழைச் செய்தியை நீக்கும்.",
                "clear error"),
    };
    return words;
}

}  // namespace companion
