// Properties of what is typed into.
#include "companion/descriptions/properties_families.h"

namespace companion {

namespace {

constexpr std::string_view kSearchBars = "தேடல்_பட்டை, தேடுபொறி";
constexpr std::string_view kImagePathText = "படக் கோப்பின் பாதை: \"assets/தேடல்.png\"";

}  // namespace

const PropertyTable& inputProperties() {
    static const PropertyTable rows = {
        {"செயலிழப்பு", "உரைபெட்டி, கடவுமறை, தேடல்_பட்டை, தேடுபொறி", "", "தட்டச்சு செய்ய முடியும்",
         "தட்டச்சு செய்ய முடியாததாக ஆக்கும்.", "disabled, read only", "", ValueKind::Flag,
         "பொய் என்று எழுதினாலும் முடங்கும்; வேண்டாமென்றால் முழுதும் நீக்கு."},
        {"குறிப்பு", "உரைபெட்டி, கடவுமறை", "", "\"\"",
         "பெட்டி வெறுமையாக இருக்கும்போது மங்கலாகத் தெரியும் சொல்.", "hint, placeholder", "",
         ValueKind::Any, ""},
        {"குறிப்பு", kSearchBars, "", "\"Search...\"",
         "பெட்டி வெறுமையாக இருக்கும்போது மங்கலாகத் தெரியும் சொல்.", "hint, placeholder", "",
         ValueKind::Any, ""},
        {"தேடல்_குறிப்பு", kSearchBars, "", "\"Search...\"",
         "குறிப்பு என்பதன் மறுபெயர்; இரண்டும் இருந்தால் இதுவே கணக்கு.", "search hint, placeholder", "",
         ValueKind::Any, ""},
        {"தேடல்_படம்", kSearchBars, kImagePathText, "படம் இல்லை",
         "கண்ணாடிக் குறிக்குப் பின்னால் தெரியும் படம்.", "search icon", "", ValueKind::Any,
         "கண்ணாடிக் குறியும் அதன்மேல் வரையப்படும். svg தெரியாது."},
        {"அழி_படம்", kSearchBars, kImagePathText, "படம் இல்லை", "அழிக்கும் குறிக்குப் பின்னால் தெரியும் படம்.",
         "clear icon", "", ValueKind::Any, "அழிக்கும் குறியும் அதன்மேல் வரையப்படும். svg தெரியாது."},
        {"அகலம்", kSearchBars, "", "350", "பெட்டியின் அகலம்.", "width", "", ValueKind::Size, ""},
        {"உயரம்", kSearchBars, "", "50", "பெட்டியின் உயரம்.", "height", "", ValueKind::Size, ""},
        {"அகலம்", kSearchBars, "", "350", "பெட்டியின் அகலம்.", "width", "தேடல்_பாணி", ValueKind::Size,
         ""},
        {"உயரம்", kSearchBars, "", "50", "பெட்டியின் உயரம்.", "height", "தேடல்_பாணி", ValueKind::Size,
         ""},
        {"களப்பின்னணி", kSearchBars, "", "\"#F0F4FA\"", "பெட்டியின் நிறம்.",
         "background, field background", "தேடல்_பாணி", ValueKind::Colour, ""},
        {"வளைவு", kSearchBars, "", "25", "மூலைகளின் வளைவு.", "radius, rounded", "தேடல்_பாணி",
         ValueKind::Number, ""},
        {"எழுத்தளவு", kSearchBars, "", "16", "தட்டும் எழுத்தின் அளவு.", "font size", "தேடல்_பாணி",
         ValueKind::Number, ""},

        {"பலவரி", "உரைபெட்டி", "", "பொய்", "பல வரிகள் எழுத விடும்.", "multiline, textarea", "",
         ValueKind::Truth, "பெட்டி தானாக உயராது; உயரத்தையும் எழுது."},
        {"முன்னணி", "உரைபெட்டி", "", "எதுவுமில்லை",
         "எழுத்துக்கு முன்னால் தெரியும் உறுப்பு, பெரும்பாலும் ஒரு படம்.", "leading, prefix icon", "",
         ValueKind::Widget, ""},
        {"அகலம்", "உரைபெட்டி", "", "320", "பெட்டியின் அகலம்.", "width", "", ValueKind::Number,
         "சதவீதமோ மாறியோ இங்கே எடுத்துக்கொள்ளப்படா; முழு எண்ணை எழுது."},
        {"உயரம்", "உரைபெட்டி", "", "50", "பெட்டியின் உயரம்.", "height", "", ValueKind::Number,
         "உயரம் எழுதினால் கீழே பிழைசெய்திக்கு இடம் விடப்படாது; அங்கே ஓர் இவெ வை."},
        {"வளைவு", "உரைபெட்டி", "", "8", "மூலைகளின் வளைவு.", "radius, rounded", "", ValueKind::Number,
         ""},
        {"பின்னணி", "உரைபெட்டி", "", "\"#FFFFFF\"", "பெட்டியின் நிறம்.", "background", "",
         ValueKind::Colour, ""},
        {"எழுத்து_நிறம்", "உரைபெட்டி", "", "\"#333333\"", "தட்டும் எழுத்தின் நிறம்.", "text colour", "",
         ValueKind::Colour, ""},
        {"கரை_நிறம்", "உரைபெட்டி", "", "\"#E5E7EB\"", "பெட்டியைச் சுற்றிய கரையின் நிறம்.", "border colour",
         "", ValueKind::Colour, ""},
        {"கரை_அளவு", "உரைபெட்டி", "", "1", "கரையின் தடிமன்.", "border width", "", ValueKind::Number,
         ""},
        {"அகலம்", "உரைபெட்டி", "", "320", "பெட்டியின் அகலம்.", "width", "தேடல்_பாணி", ValueKind::Number,
         ""},
        {"உயரம்", "உரைபெட்டி", "", "50", "பெட்டியின் உயரம்.", "height", "தேடல்_பாணி", ValueKind::Number,
         ""},
        {"வளைவு", "உரைபெட்டி", "", "8", "மூலைகளின் வளைவு.", "radius, rounded", "தேடல்_பாணி",
         ValueKind::Number, ""},
        {"களப்பின்னணி", "உரைபெட்டி", "", "\"#FFFFFF\"", "பெட்டியின் நிறம்.",
         "background, field background", "தேடல்_பாணி", ValueKind::Colour, ""},

        {"அகலம்", "கடவுமறை", "", "320", "பெட்டியின் அகலம்.", "width", "", ValueKind::Number, ""},
        {"உயரம்", "கடவுமறை", "", "60", "பெட்டியின் உயரம்.", "height", "", ValueKind::Number, ""},
        {"பின்னணி", "கடவுமறை", "", "\"#FFFFFF\"", "பெட்டியின் நிறம்.", "background", "",
         ValueKind::Colour, ""},
        {"எழுத்து_நிறம்", "கடவுமறை", "", "\"#000000\"", "தட்டும் எழுத்தின் நிறம்.", "text colour", "",
         ValueKind::Colour, ""},
        {"நிறம்", "கடவுமறை", "", "நிறமில்லை",
         "பின்னணி இல்லாதபோது பெட்டியின் நிறம்; பின்னணி இருந்தால் எழுத்தின் நிறம்.", "colour", "",
         ValueKind::Colour, "குழப்பம் வேண்டாம்: பின்னணி, எழுத்து_நிறம் இரண்டையும் எழுது."},
    };
    return rows;
}

}  // namespace companion
