// Time.
#include "companion/descriptions/words.h"
#include "shown_programs.h"

namespace companion {

namespace {

constexpr std::string_view kAsMember =
    "இப்போது.தேதி() போலப் புள்ளி வைத்து எழுதினால் நிரல் உருவாகாது; நேரத்தை அடைப்புக்குள் கொடு.";
constexpr std::string_view kFieldsCompare =
    "இந்த எண்ணை ஒப்பிடலாம், அச்சிடலாம்; கழித்தால் நிரல் நின்றுவிடும். கணக்கிட எண்(\"\" இணை இப்போது.நாள்) போல மாற்று.";

Description field(std::string_view word, std::string_view form, std::string_view summary,
                  std::string_view english) {
    return described(WordKind::Member, word, form, summary, english, shown_programs::moments,
                     kFieldsCompare);
}

}  // namespace

const Words& timeWords() {
    static const Words words = {
        described(
            WordKind::BuiltIn, "இப்போதுநேரம்", "இப்போதுநேரம்()",
            "இந்தக் கணத்தின் நேரத்தைத் தரும்; .ஆண்டு, .மணி என்று பகுதிகளைப் படிக்கலாம்.",
            "now, current time, date", shown_programs::moments,
            "இரண்டு பெயர்களில் வைத்தாலும் நேரம் ஒன்றுதான்: பிறகு கேட்டது முன்னதையும் மாற்றிவிடும். வைத்துக்கொள்ள வேண்டுமானால் "
            "முழுவதும்(...) என்று உரையாக்கு."),
        described(WordKind::BuiltIn, "தேதி", "தேதி() அல்லது தேதி(நேரம்)",
                  "நாளை உரையாகத் தரும்: 15-01-2026.", "date, today", shown_programs::moments,
                  kAsMember),
        described(WordKind::BuiltIn, "நேரம்", "நேரம்() அல்லது நேரம்(பெயர்)",
                  "மணியை உரையாகத் தரும்: 09:30:05.", "time, clock", shown_programs::moments,
                  kAsMember),
        described(WordKind::BuiltIn, "முழுவதும்", "முழுவதும்() அல்லது முழுவதும்(நேரம்)",
                  "நாளையும் மணியையும் ஒரே உரையாகத் தரும்: 15-01-2026 09:30:05.", "datetime, timestamp",
                  shown_programs::moments, kAsMember),
        field("ஆண்டு", "நேரம்.ஆண்டு", "நேரத்தின் ஆண்டு: 2026.", "year"),
        field("மாதம்", "நேரம்.மாதம்", "நேரத்தின் மாதம்: 1 முதல் 12 வரை.", "month"),
        field("நாள்", "நேரம்.நாள்", "மாதத்தின் எத்தனையாவது நாள்: 1 முதல் 31 வரை.", "day"),
        field("மணி", "நேரம்.மணி", "நேரத்தின் மணி: 0 முதல் 23 வரை.", "hour"),
        field("நிமிடம்", "நேரம்.நிமிடம்", "நேரத்தின் நிமிடம்: 0 முதல் 59 வரை.", "minute"),
        field("வினாடி", "நேரம்.வினாடி", "நேரத்தின் வினாடி: 0 முதல் 59 வரை.", "second"),
        field("வாரநாள்", "நேரம்.வாரநாள்", "வாரத்தின் நாள்: ஞாயிறு 0, திங்கள் 1, சனி 6.",
              "weekday, day of week"),
        described(
            WordKind::Member, "வினாடிகள்", "நேரம்.வினாடிகள்()", "1970 முதல் இதுவரை கடந்த வினாடிகள்.",
            "seconds, epoch, unix time", kNoProgram,
            "இதன் விடை மொழியின் எண் வகை அல்ல: அச்சிட்டால் [தெரியாத வகை] என்று வரும், கணக்கிலும் சேராது. நேரத்தை அளக்க "
            ".மணி, .நிமிடம், .வினாடி ஆகியவற்றைப் பயன்படுத்து."),
        described(WordKind::Member, "உருவாக்கு", "நேரம்.உருவாக்கு(...)",
                  "வேறொரு நேரத்தை உருவாக்க வைத்திருக்கும் பெயர்.", "make time, create time", kNoProgram,
                  "இன்னும் வேலை செய்யாது: எழுதினால் பொழில் ஏற்காது."),
    };
    return words;
}

}  // namespace companion
