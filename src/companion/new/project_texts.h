// What a new project begins with: its files, as they are written.
#pragma once

#include <string_view>

namespace companion {

/// A file of a new project. `$0` in its text stands for the project's name.
struct ProjectFile {
    std::string_view path;
    std::string_view text;
};

inline constexpr std::string_view kConsoleProgram = R"(ஃ எண்களைக் கூட்டி, சராசரியைச் சொல்லும் நிரல்
செயல் தொகை(பட்டியல்):
    விடை = 0
    ஒவ்வொன்றாக எண்மதிப்பு இல் பட்டியல்:
        விடை = விடை கூட்டு எண்மதிப்பு
    திரும்பு விடை

மதிப்பெண்கள் = [78, 92, 85]
அச்சிடு("வணக்கம்!")
அச்சிடு("மொத்தம்: ", தொகை(மதிப்பெண்கள்))
)";

/// The same with a module of the library, where it is found.
inline constexpr std::string_view kLibraryProgram = R"(ஃ எண்களைக் கூட்டி, நூலகத்தின் உதவியுடன் எழுதும் நிரல்
நூஇறக்கி "தொகுப்புகள்/பட்டியல்/பட்டியல்"
நூஇறக்கி "தொகுப்புகள்/எண்/எண்"

மதிப்பெண்கள் = [78, 92, 85]
அச்சிடு("வணக்கம்!")
அச்சிடு("மொத்தம்: ", எண்_இந்திய_உரை(பட்டியல்_தொகை(மதிப்பெண்கள்)))
)";

inline constexpr std::string_view kWebProgram = R"(ஃ அழுத்தும் முறைகளை எண்ணும் வலைதளம்
வலைதளம் என்தளம்(
    தலைமை(
        இணைய_தலைப்பு: "வணக்கம்"
        பின்னணி: "#F4F1EA"
    )

    குமரி(
        நெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 20)(
            படம்(பாதை: "assets/பூ.svg", அகலம்: 120, உயரம்: 120)
            உரை("வணக்கம்!", உரைபாணி(நிறம்: "#1B5E20", அளவு: 40))
            உரை(எண்ணிக்கை, உரைபாணி(நிறம்: "#8A7463", அளவு: 60))
            பொத்தான்(
                "அழுத்துக", அகலம்: 160, உயரம்: 48,
                பொ_பாணி(பொபின்னணி: "#2E7D32", எழுத்து_நிறம்: "#FFFFFF", வளைவு: 24),
                அழுத்தினால்: வினை(): எண்ணிவிடு()
            )
        )
    )

    வரையறை(
        எண்ணிக்கை = 0

        செயல் எண்ணிவிடு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            புதுப்பி()
    )
)
)";

inline constexpr std::string_view kFlower =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="120" height="120" viewBox="0 0 120 120">
  <circle cx="60" cy="26" r="22" fill="#E57373"/>
  <circle cx="94" cy="60" r="22" fill="#F06292"/>
  <circle cx="60" cy="94" r="22" fill="#E57373"/>
  <circle cx="26" cy="60" r="22" fill="#F06292"/>
  <circle cx="60" cy="60" r="20" fill="#FFD54F"/>
</svg>
)";

inline constexpr std::string_view kConsoleReadme = R"(# $0

பொழில் மொழியில் எழுதிய நிரல். தொடங்கும் இடம்: `முதன்மை.பொழில்`. கட்டளைகளை இந்தக் கோப்புறையில் இயக்கு.

| வேலை | கட்டளை |
|---|---|
| இயக்க | `பொழில்-துணை இயக்கு முதன்மை.பொழில்` |
| நிரலின் சொற்கள் மட்டும் வர | `பொழில்-துணை இயக்கு --அமைதி முதன்மை.பொழில்` |
| பிழைகளைப் பார்க்க | `பொழில்-துணை சரிபார் முதன்மை.பொழில்` |
| வரிகளைச் சீராக்க | `பொழில்-துணை வடிவமை முதன்மை.பொழில்` |

தமிழில் தட்டச்ச முடியாத இடத்தில்: `pozhil-thunai run`, `check`, `format`.

பகிர: இந்தக் கோப்புறையை அப்படியே கொடு. பெறுபவரிடம் பொழில் இருந்தால் போதும்.
)";

inline constexpr std::string_view kWebReadme = R"(# $0

பொழில் மொழியில் எழுதிய வலைதளம். தொடங்கும் இடம்: `முதன்மை.பொழில்`. படங்கள் `assets` கோப்புறையில் உள்ளன.
கட்டளைகளை இந்தக் கோப்புறையில் இயக்கு.

| வேலை | கட்டளை |
|---|---|
| இயக்க | `பொழில்-துணை இயக்கு முதன்மை.பொழில்` |
| பிழைகளைப் பார்க்க | `பொழில்-துணை சரிபார் முதன்மை.பொழில்` |
| வரிகளைச் சீராக்க | `பொழில்-துணை வடிவமை முதன்மை.பொழில்` |
| இணையத்தில் வெளியிட | `பொழில்-துணை வெளியிடு முதன்மை.பொழில் தளம்` |

இயக்கினால் உலாவி திறக்கும்; கோப்பைச் சேமிக்கும்போதெல்லாம் பக்கம் புதுப்பிக்கப்படும். நிறுத்த: Ctrl+C.
தமிழில் தட்டச்ச முடியாத இடத்தில்: `pozhil-thunai run`, `check`, `format`, `publish`.

வெளியிட்டால் `தளம்` கோப்புறையில் வலைதளம் முழுவதும் இருக்கும். அதை எந்த இணைய வழங்கியிலும் வைக்கலாம்.
)";

inline constexpr std::string_view kEditorSettings = R"(root = true

[*]
charset = utf-8
end_of_line = lf
insert_final_newline = true
trim_trailing_whitespace = true

[*.பொழில்]
indent_style = space
indent_size = 4
)";

inline constexpr std::string_view kIgnored = R"(/வெளியீடு/
/தளம்/
)";

inline constexpr ProjectFile kCommonFiles[] = {
    {".editorconfig", kEditorSettings},
    {".gitignore", kIgnored},
};

inline constexpr ProjectFile kConsoleFiles[] = {
    {"முதன்மை.பொழில்", kConsoleProgram},
    {"README.md", kConsoleReadme},
};

inline constexpr ProjectFile kLibraryFiles[] = {
    {"முதன்மை.பொழில்", kLibraryProgram},
    {"README.md", kConsoleReadme},
};

inline constexpr ProjectFile kWebFiles[] = {
    {"முதன்மை.பொழில்", kWebProgram},
    {"assets/பூ.svg", kFlower},
    {"README.md", kWebReadme},
};

}  // namespace companion
