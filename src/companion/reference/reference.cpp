// All pages and pictures, and the page of contents in front of them.
#include "companion/reference/reference.h"

#include "companion/descriptions/widgets_families.h"
#include "companion/descriptions/words.h"
#include "companion/reference/code_pages.h"
#include "companion/reference/entries.h"
#include "companion/reference/tool_pages.h"
#include "companion/reference/value_pages.h"
#include "companion/reference/where.h"
#include "companion/reference/widget_pages.h"
#include "companion/reference/word_pages.h"

namespace companion::reference {

namespace {

struct Content {
    const char* page;
    const char* title;
    const char* about;
};
const Content kContents[] = {
    {pages::kKeywords, "திறவுச்சொற்கள்", "நிரலின் அமைப்பைச் சொல்லும் சொற்கள்"},
    {pages::kOperators, "செயற்குறிகள்", "கணக்கு, ஒப்பீடு, மாற்றம்; எது முதலில் நடக்கும்"},
    {pages::kMarks, "குறிகள்", "சொற்களுக்கு நடுவே நிற்கும் குறிகள்"},
    {pages::kBuiltIns, "உள்ளமைந்த செயல்கள்", "எங்கும் அழைக்கக்கூடியவை: பெறுவது, தருவது, வரக்கூடிய பிழைகள்"},
    {pages::kMembers, "புள்ளியின் பின்னே வரும் சொற்கள்", "பட்டியல், நேரம், உரைபெட்டி ஆகியவற்றின் சொற்கள்"},
    {pages::kApplication, "வலைதளத்தின் பகுதிகள்", "தலைமை, குமரி, வரையறை, பாணிகள், தரவுத்தளம்"},
    {pages::kWidgets, "உறுப்புகள்", "திரையில் நிற்பவை: படம், பண்புகள், அளவு"},
    {pages::kProperties, "பண்புகள்", "சொல்லின் வழியே: எந்த உறுப்பு படிக்கும்"},
    {pages::kColours, "நிறங்கள்", "பெயருள்ள நிறங்கள்"},
    {pages::kPlaces, "சீரமைப்பும் நிலைமையும்", "எங்கே நிற்கும், எப்போது அசையும்"},
    {pages::kCurves, "அசைவின் வளைவுகள்", "ஒவ்வொன்றின் படத்தோடு"},
    {pages::kCodes, "பிழைகள்", "ஒவ்வோர் எண்ணும்: நிரல், அறிக்கை, திருத்தம்"},
    {"../துணை_விதிகள்.md", "துணையின் விதிகள்", "துணை கண்டுபிடிப்பவை எல்லாம்"},
    {pages::kCommands, "கட்டளைகளும் கோப்புகளும்", "பொழில், பொழில்-துணை, கோப்புகள், சூழல்"},
    {pages::kLimits, "எல்லைகள்", "எண்கள், பெயர்கள், ஆழம்"},
    {pages::kReserved, "ஒதுக்கிய சொற்கள்", "பெயராக வைக்க முடியாத மற்றவை"},
    {pages::kWhere, "எங்கே?", "ஒவ்வொரு சொல்லுக்கும் வழிகாட்டியின் அதிகாரமும் குறிப்பும்"},
};

std::string wordLinks(const std::vector<Description>& words) {
    std::string text;
    for (const Description& word : words) {
        if (!text.empty()) text += ", ";
        text += linkTo(entryOf(word), pages::kContents);
    }
    return text;
}

MarkdownPage contentsPage() {
    MarkdownPage page(pages::kContents, "பொழிலின் குறிப்பேடு");
    page.prose(
        "மொழியின் எல்லாச் சொற்களும், எல்லாப் பிழைகளும், எல்லாக் கட்டளைகளும் ஒரே இடத்தில். முனையத்திலும் கேட்கலாம்:");
    page.fence("sh", "பொழில்-துணை விளக்கு எனில்");
    page.markdown("முதலிலிருந்து கற்றுக்கொள்ள: " + link("வழிகாட்டி", "../வழிகாட்டி/README.md") + ".");
    std::vector<std::vector<std::string>> rows;
    for (const Content& content : kContents) {
        rows.push_back({link(escaped(content.title), content.page), escaped(content.about)});
    }
    page.table({"பக்கம்", "என்ன இருக்கிறது"}, rows);
    page.heading(2, "சொற்கள், பொருள் வாரியாக");
    for (const WordTopic& topic : wordTopics()) {
        page.heading(3, escaped(topic.title));
        page.markdown(wordLinks(topic.words));
    }
    for (const WidgetFamily& family : widgetFamilies()) {
        page.heading(3, escaped(family.title));
        page.markdown(wordLinks(family.words));
    }
    return page;
}

void add(std::vector<ReferenceFile>& files, const MarkdownPage& page) {
    std::string text = page.text();
    while (text.size() > 1 && text[text.size() - 2] == '\n') text.pop_back();
    files.push_back({page.path(), std::move(text)});
}

}  // namespace

std::vector<ReferenceFile> referenceFiles(const Surroundings& around) {
    std::vector<ReferenceFile> files;
    for (const MarkdownPage& page :
         {contentsPage(), keywordsPage(), operatorsPage(), marksPage(), builtInsPage(),
          membersPage(), applicationPage(), widgetsPage(around.pictures), propertiesPage(),
          coloursPage(), placesPage(), curvesPage(), codesPage(), commandsPage(), limitsPage(),
          reservedPage(), wherePage(around.chapters)}) {
        add(files, page);
    }
    for (const auto& pages : {widgetPages(around.pictures), codePages()}) {
        for (const MarkdownPage& page : pages) add(files, page);
    }
    for (const auto& pictures : {colourPictures(), curvePictures()}) {
        files.insert(files.end(), pictures.begin(), pictures.end());
    }
    return files;
}

}  // namespace companion::reference
