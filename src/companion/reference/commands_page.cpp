#include "companion/commands.h"
#include "companion/reference/entries.h"
#include "companion/reference/tool_pages.h"
#include "driver/cache.h"
#include "driver/command_line.h"
#include "driver/web_road.h"

namespace companion::reference {

namespace {

struct Told {
    std::string what;
    const char* meaning;
};

void writeTable(MarkdownPage& page, const char* what, const std::vector<Told>& rows) {
    std::vector<std::vector<std::string>> cells;
    cells.reserve(rows.size());
    for (const Told& row : rows) cells.push_back({code(row.what), escaped(row.meaning)});
    page.table({what, "பொருள்"}, cells);
}

std::string versionOptions() {
    std::string text;
    for (const char* option : kVersionOptions) {
        if (!text.empty()) text += ", ";
        text += code(option);
    }
    return text;
}

void writeCompiler(MarkdownPage& page) {
    page.heading(2, code("பொழில்"));
    page.prose("நிரலைத் தொகுத்து இயக்கும். இதன் இன்னொரு பெயர் pozhil.");
    page.fence("sh", std::string("பொழில் [விருப்பம்...] [நிரல்") + kExtension + "]");
    page.markdown(
        "கோப்பைச் சொல்லாவிட்டால், நிற்கும் கோப்புறையில் உள்ள " + code(kDefaultSource) +
        " எடுத்துக்கொள்ளப்படும். பல கோப்புகளைச் சொன்னால் கடைசியாகச் சொன்னது மட்டும் எடுத்துக்கொள்ளப்படும். " +
        code(kExtension) + " என்று முடியாத எதுவும், தெரியாத விருப்பமும் எதுவும் சொல்லாமல் விடப்படும்.");
    page.table({"விருப்பம்", "பொருள்"},
               {{code(kWatchOption),
                 "கோப்பைக் கவனித்து, அதைச் சேமிக்கும்போதெல்லாம் மீண்டும் தொகுத்து இயக்கும். முதல் சேமிப்பு வரை "
                 "எதுவும் ஓடாது; பிழை வந்தால் கவனிப்பதும் முடியும்."},
                {code(kWebOption),
                 "`வலைதளம்` இல்லாத நிரலையும் வலைதளமாகக் கட்டும். அது இருந்தால் இதை எழுத வேண்டாம்."},
                {versionOptions(), "பதிப்பைச் சொல்லும்."}});
    page.prose(
        "நிரலைப் படிக்கும்போது பிழை வந்தால் முடிவு நிலை 1. அதன்பின், நிரல் எப்படி முடிந்தாலும், 0; நிரலின் சொந்த நிலை "
        "வேண்டுமானால் துணையின் இயக்கு கட்டளையை --quiet சேர்த்து எழுது.");
}

void writeCompanion(MarkdownPage& page) {
    page.heading(2, code("பொழில்-துணை"));
    page.markdown(
        "நிரல் எழுதுவோருக்கு உதவும் கட்டளைகள். இதன் இன்னொரு பெயர் `pozhil-thunai`; ஒவ்வொரு கட்டளைக்கும் ஆங்கிலப் "
        "பெயரும் உண்டு. விதிகள்: [துணையின் விதிகள்](../துணை_விதிகள்.md).");
    std::vector<std::vector<std::string>> rows;
    for (const Command& command : commands()) {
        rows.push_back({code(command.name), code(command.latinName), escaped(command.parameters),
                        escaped(command.summary)});
    }
    page.table({"கட்டளை", "ஆங்கிலப் பெயர்", "பின்னே எழுதுவது", "என்ன செய்யும்"}, rows);
    page.prose(
        "முடிவு நிலை: எல்லாம் சரியானால் 0, ஏதாவது தவறு இருந்தால் 1, அழைத்த விதம் தவறானால் 2. இயக்கு --quiet மட்டும் நிரலின் "
        "சொந்த நிலையைத் தரும்.");
}

const std::vector<Told>& scripts() {
    static const std::vector<Told> rows = {
        {"scripts/run.sh", "எங்கிருந்தும் நிரலைத் தொகுத்து இயக்கும்; வேண்டியவற்றை முதலில் தானே தயாரிக்கும்."},
        {"scripts/install.sh", "பொழிலை எல்லாக் கோப்புறைகளிலிருந்தும் அழைக்கும்படி நிறுவும்."},
        {"scripts/setup_web.sh", "வலைதளங்களைத் தொகுக்க வேண்டியவற்றை நிறுவும்; run.sh இதைத் தானே அழைக்கும்."},
        {"scripts/example_fonts.sh", "ஒரு கோப்புறையின் assets/font உள்ளே இரண்டு எழுத்துருக்களை வைக்கும்."},
        {"scripts/test.sh",
         "பொழிலின் எல்லாச் சோதனைகளையும் ஓட்டும்; fast என்று சேர்த்தால் விரைவானவற்றை மட்டும்."},
        {"scripts/bench.sh", "பொழிலும் அதன் நிரல்களும் எவ்வளவு வேகம் என்று அளக்கும்."},
        {"scripts/package.sh", "Debian கணினிகளில் நிறுவும் பொதியை உருவாக்கும்."},
        {"scripts/reference.sh", "இந்தக் குறிப்பேட்டை மீண்டும் எழுதும்."},
    };
    return rows;
}

const std::vector<Told>& files() {
    static const std::vector<Told> rows = {
        {std::string("பெயர்") + kExtension, "நிரல். இறக்கும் நூல்களும் அப்படியே முடியும்."},
        {kDefaultSource, "கோப்பைச் சொல்லாமல் அழைத்தால் எடுத்துக்கொள்ளப்படும் நிரல்."},
        {"தொகுப்புகள்/", "பொழிலோடு வரும் நூலகம்; எங்கிருந்தும் நூஇறக்கி கொண்டு இறக்கலாம்."},
        {"assets/",
         "வலைதளத்தின் படங்களும் எழுத்துருக்களும். வலைதளத்தை இயக்கும் கோப்புறையில் தேடப்படும்; உள்ளே இருப்பவை எல்லாம் "
         "வலைதளத்தோடு சேரும்."},
        {"assets/font/Tamil-Regular.ttf",
         "ஒவ்வொரு வலைதளமும் திறக்கும் எழுத்துரு; இல்லாவிட்டாலும் உரைகள் தெரியும், உலாவியின் "
         "பதிவில் ஓர் எச்சரிக்கை வரும்."},
        {"assets/font/Coiny-Regular.ttf", "அப்படியே திறக்கும் இரண்டாம் எழுத்துரு."},
        {"வெளியீடு/", "வலைதளத்தை இயக்கும்போது உருவாகும் பக்கம்; அழித்தால் அடுத்த முறை மீண்டும் உருவாகும்."},
        {std::string("/tmp/") + kCacheName,
         "பொழில் தொகுத்த நிரல்; /tmp ஒரு தற்காலிகக் கோப்புறை, TMPDIR அதை மாற்றும். அழித்தாலும் இழப்பில்லை."},
        {"~/.cache/pozhil", "துணையின் இயக்கு தொகுத்தவை, திட்டத்துக்கு ஒரு கோப்புறை. அழித்தாலும் இழப்பில்லை."},
    };
    return rows;
}

const std::vector<Told>& environment() {
    static const std::vector<Told> rows = {
        {"PATH", "g++, em++ போன்ற தொகுப்பான்கள் தேடப்படும் இடங்கள்."},
        {"TMPDIR", "தற்காலிகக் கோப்புறை; இல்லாவிட்டால் /tmp."},
        {"XDG_CACHE_HOME", "துணையின் இயக்கு தொகுத்தவற்றை வைக்கும் இடம்; இல்லாவிட்டால் ~/.cache."},
        {"HOME", "உன் கோப்புறை; ~ என்று மேலே சொன்னது."},
        {"NO_COLOR", "இது இருந்தால் துணை நிறமில்லாமல் எழுதும்."},
        {"NODE_PATH", "வெளியிடு பயன்படுத்தும் கருவிகளின் இடங்கள்; உன்னுடையவை முதலில் தேடப்படும்."},
        {"EMCC_CFLAGS",
         "em++ தொகுப்பானுக்கு உன் சொந்த விருப்பங்கள். இதையோ EM_CONFIG, EM_CACHE, CPATH போன்றவற்றையோ "
         "வைத்தால், முன்பே தயாரித்தவை பயன்படுத்தப்படா; தொகுக்க அதிக நேரம் ஆகும்."},
    };
    return rows;
}

}  // namespace

MarkdownPage commandsPage() {
    MarkdownPage page(pages::kCommands, "கட்டளைகளும் கோப்புகளும்");
    writeCompiler(page);
    writeCompanion(page);
    page.heading(2, "உரைநிரல்கள்");
    page.prose("பொழிலின் கோப்புறையில் உள்ளவை; நிறுவிய பொழிலுக்கு இவை தேவையில்லை.");
    writeTable(page, "உரைநிரல்", scripts());
    page.heading(2, "கோப்புகள்");
    writeTable(page, "கோப்பு", files());
    page.heading(2, "வலைதளத்தின் முகவரி");
    page.markdown(
        "வலைதளத்தை இயக்கினால் அதை " + code("http://localhost:" + std::to_string(kServerPort)) +
        " என்ற முகவரியில் பார்க்கலாம். அந்த வாயிலை வேறொன்று பயன்படுத்தினால் வலைதளம் தொடங்காது. இந்தச் சேவையகம் உன் "
        "கணினிக்கு மட்டும்: கேட்பவருக்கு நீ படிக்கக்கூடிய எந்தக் கோப்பையும் கொடுக்கும். மற்றவர் பார்க்க, "
        "துணையின் `வெளியிடு` எழுதும் கோப்புறையை ஒரு வலை வழங்கியில் வை.");
    page.heading(2, "சூழல் மாறிகள்");
    writeTable(page, "மாறி", environment());
    return page;
}

}  // namespace companion::reference
