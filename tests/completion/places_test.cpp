// What is offered depends on the place: words of the language, names of the document, properties,
// values, modules.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "companion/completion/module_paths.h"
#include "companion/descriptions/properties_of.h"
#include "offered.h"

namespace {

using companion::completion::CompletionItem;
using companion::completion::CompletionSettings;
using companion::completion::ItemKind;
using completion_test::labelsAt;
using completion_test::labelsOf;
using completion_test::listed;
using completion_test::offered;
using completion_test::rankIn;

using Labels = std::vector<std::string>;

bool holdsLabel(const Labels& labels, std::string_view label) { return rankIn(labels, label) >= 0; }

CompletionItem itemAt(std::string_view source, std::string_view label) {
    for (const CompletionItem& item : offered(source)) {
        if (item.label == label) return item;
    }
    ADD_FAILURE() << label << " isn't offered in " << source;
    return {};
}

/// A page with `item` in it.
std::string page(const std::string& item) {
    return "வலைதளம் ஒன்று(\n    தலைமை(பின்னணி: \"#FFFFFF\")\n    குமரி(\n        " + item +
           "\n    )\n    வரையறை(\n        எத்தனை = 0\n\n        செயல் கூட்டிவிடு():\n"
           "            எத்தனை = எத்தனை கூட்டு 1\n    )\n)\n";
}

// ---- Statements and values ----

TEST(Places, AStatementBeginsWithAWordOfStatements) {
    const Labels labels = labelsAt("அ = 1\n¦\n");
    EXPECT_EQ(labels.front(), "அ");
    EXPECT_LT(rankIn(labels, "அச்சிடு"), 3);
    EXPECT_TRUE(holdsLabel(labels, "எனில்"));
    EXPECT_FALSE(holdsLabel(labels, "சமம்"));
    EXPECT_FALSE(holdsLabel(labels, "அகலம்"));
    EXPECT_FALSE(holdsLabel(labels, "பொத்தான்"));
}

TEST(Places, BehindAValueStandsAnOperator) {
    for (const char* source : {"எனில் அ ¦", "எனில் 5 ¦", "அ = (ஆ) ¦", "அச்சிடு(\"அ\" ¦)", "அ ¦"}) {
        const Labels labels = labelsAt(source);
        EXPECT_TRUE(holdsLabel(labels, "கூட்டு")) << source << listed(labels);
        EXPECT_FALSE(holdsLabel(labels, "அச்சிடு")) << source;
        EXPECT_FALSE(holdsLabel(labels, "நீளம்")) << source;
    }
}

TEST(Places, BehindAnOperatorStandsAValue) {
    for (const char* source : {"எனில் அ சமம் ¦", "அ = ¦", "அச்சிடு(¦)", "அச்சிடு(1, ¦)", "திரும்பு ¦",
                               "அ = [1, ¦]", "அ = {\"க\": ¦}", "சுற்று ¦", "அ கூட்டிசேர் ¦"}) {
        const Labels labels = labelsAt(source);
        EXPECT_TRUE(holdsLabel(labels, "நீளம்")) << source << listed(labels);
        EXPECT_TRUE(holdsLabel(labels, "மெய்")) << source;
        EXPECT_FALSE(holdsLabel(labels, "சமம்")) << source;
        EXPECT_FALSE(holdsLabel(labels, "செயல்")) << source;
    }
}

TEST(Places, ALoopGoesThroughSomething) {
    EXPECT_EQ(labelsAt("ஒவ்வொன்றாக அ ¦"), Labels{"இல்"});
    EXPECT_EQ(labelsAt("ஒவ்வொன்றாக அ il¦").front(), "இல்");
    const Labels labels = labelsAt("பட்டியலில் = [1]\nஒவ்வொன்றாக அ இல் ¦");
    EXPECT_TRUE(holdsLabel(labels, "வரம்பு"));
    EXPECT_TRUE(holdsLabel(labels, "பட்டியலில்"));
    EXPECT_FALSE(holdsLabel(labelsAt("அ = ¦"), "வரம்பு"));
}

TEST(Places, ANewNameIsNoWordOfTheLanguage) {
    for (const char* source : {"செயல் achchidu¦", "கட்டமைப்பு achchidu¦", "வகை achchidu¦",
                               "ஒவ்வொன்றாக achchidu¦", "வலைதளம் achchidu¦"}) {
        const auto items = offered(source);
        for (const CompletionItem& item : items) EXPECT_EQ(item.kind, ItemKind::Text) << source;
    }
    EXPECT_EQ(labelsAt("செயல் malar¦").front(), "மலர்");
    EXPECT_EQ(labelsAt("செயல் thuv¦").front(), "துவக்கம்");
    EXPECT_EQ(labelsAt("செயல் அ(thaan¦").front(), "தான்");
}

TEST(Places, NothingStandsInANumber) {
    EXPECT_EQ(labelsAt("அ = 12¦"), Labels{});
    EXPECT_EQ(labelsAt("அ = 1.¦"), Labels{});
}

TEST(Places, ASignDoesNotBecomeAnOperator) {
    const Labels labels = labelsAt("அ = 1 ¦");
    EXPECT_FALSE(holdsLabel(labels, "மிகை"));
    EXPECT_TRUE(holdsLabel(labelsAt("அ = ¦"), "குறை"));
}

// ---- Names ----

TEST(Places, NamesComeWithWhatTheyTake) {
    const std::string source = "செயல் கூட்டிவை(முதலாவது, அடுத்தது):\n    திரும்பு முதலாவது\n\nkoott¦\n";
    const CompletionItem item = itemAt(source, "கூட்டிவை");
    EXPECT_EQ(item.snippet, "கூட்டிவை(${1:முதலாவது}, ${2:அடுத்தது})");
    EXPECT_EQ(item.kind, ItemKind::Function);
    EXPECT_EQ(itemAt("செயல் கூட்டிவை(அ):\n    விடு\nkoott¦(1)\n", "கூட்டிவை").inserted, "கூட்டிவை");
}

TEST(Places, ParametersEndWithTheirFunction) {
    const std::string function = "செயல் கூட்டிவை(முதலாவது):\n    ";
    EXPECT_TRUE(holdsLabel(labelsAt(function + "அச்சிடு(mu¦)\n"), "முதலாவது"));
    EXPECT_TRUE(holdsLabel(labelsAt(function + "விடு\n    அச்சிடு(mu¦)\nஅ = 1\n"), "முதலாவது"));
    EXPECT_FALSE(holdsLabel(labelsAt(function + "விடு\n\nஅச்சிடு(mu¦)\n"), "முதலாவது"));
}

TEST(Places, NamesAreFoundInABrokenDocument) {
    const std::string source =
        "மலர்கள் = [1, 2\nஎனில் எனில்:\n   (((\nசெயல் பறித்துவை(எது)\n  \"\nஅச்சிடு(mal¦\n";
    const Labels labels = labelsAt(source);
    EXPECT_EQ(labels.front(), "மலர்கள்") << listed(labels);
}

TEST(Places, TheWordThatIsWrittenIsNoName) {
    EXPECT_FALSE(holdsLabel(labelsAt("எண்ணிவை¦ = 1\n"), "எண்ணிவை"));
    EXPECT_TRUE(holdsLabel(labelsAt("எண்ணிவை = 1\nஎண்ண¦\n"), "எண்ணிவை"));
}

constexpr std::string_view kStructure =
    "கட்டமைப்பு பூனைகள்:\n    ரகசிய மறைவானது = 1\n    செயல் துவக்கம்(தான், பெயராக):\n"
    "        தான்.பெயராக = பெயராக\n    செயல் கத்து(தான், எத்தனைமுறை):\n        விடு\n\n"
    "வகை காலங்கள்:\n    காலைநேரம்\n    மாலைநேரம்\n;\n";

TEST(Places, MembersStandBehindADot) {
    const std::string source = std::string(kStructure) + "அ = பூனைகள்(\"க\")\nஅ.¦\n";
    const Labels labels = labelsAt(source);
    EXPECT_LT(rankIn(labels, "பெயராக"), 4) << listed(labels);
    EXPECT_TRUE(holdsLabel(labels, "கத்து"));
    EXPECT_TRUE(holdsLabel(labels, "சேர்"));
    EXPECT_TRUE(holdsLabel(labels, "ஆண்டு"));
    EXPECT_FALSE(holdsLabel(labels, "துவக்கம்"));
    EXPECT_FALSE(holdsLabel(labels, "அச்சிடு"));
    EXPECT_FALSE(holdsLabel(labels, "உரைதரவு"));
    EXPECT_EQ(itemAt(source, "கத்து").snippet, "கத்து(${1:எத்தனைமுறை})");
    EXPECT_EQ(labelsAt(std::string(kStructure) + "அ.kath¦").front(), "கத்து");
}

TEST(Places, AnEnumerationHasItsMembersAlone) {
    const Labels labels = labelsAt(std::string(kStructure) + "அ = காலங்கள்.¦\n");
    EXPECT_EQ(labels, (Labels{"காலைநேரம்", "மாலைநேரம்"}));
}

TEST(Places, AStructureIsMadeWithWhatItsConstructorTakes) {
    const CompletionItem item = itemAt(std::string(kStructure) + "அ = poonai¦", "பூனைகள்");
    EXPECT_EQ(item.snippet, "பூனைகள்(${1:பெயராக})");
    EXPECT_EQ(item.kind, ItemKind::Structure);
}

TEST(Places, AnObjectItselfHasItsOwnMembers) {
    const std::string source =
        "கட்டமைப்பு பூனைகள்:\n    செயல் கத்து(தான்):\n        தான்.ஒலியாக = 1\n        தான்.¦\n";
    EXPECT_EQ(labelsAt(source), (Labels{"கத்து", "ஒலியாக"}));
}

TEST(Places, AnInputOfThePageHasWhatWasTyped) {
    const std::string source =
        "வலைதளம் ஒன்று(\n    குமரி(\n        உரைபெட்டி(அடையாளம்: \"ஊர்ப்பெயர்\")\n"
        "    )\n    வரையறை(\n        அ = ஊர்ப்பெயர்.¦\n    )\n)\n";
    const Labels labels = labelsAt(source);
    EXPECT_LT(rankIn(labels, "உரைதரவு"), 4) << listed(labels);
    EXPECT_TRUE(holdsLabel(labels, "வெறுமை"));
}

TEST(Places, TheDatabaseHasFourMembers) {
    const Labels labels = labelsAt("நிகழ்நேர.¦");
    EXPECT_EQ(labels, (Labels{"தரவுசேர்", "தரவுமாற்று", "தரவுஅழி", "தரவுபடி"}));
    EXPECT_EQ(itemAt("நிகழ்நேர.del¦", "தரவுஅழி").snippet, "தரவுஅழி(\"${1:இடம்}\")");
}

TEST(Places, ModulesBringTheirNames) {
    const companion::ModuleReader read = [](const std::string& path, std::string& text) {
        if (path == "கணக்கு.பொழில்") text = "நூஇறக்கி \"உள்ளே\"\nசெயல் இரட்டிப்பு(முதலாவது):\n    விடு\n";
        if (path == "உள்ளே.பொழில்") text = "நூஇறக்கி \"கணக்கு\"\nமாறிலி_அடி = 3\n";
        return !text.empty();
    };
    const auto labels = labelsOf(offered("நூஇறக்கி \"கணக்கு\"\nஅ = ¦", {}, read));
    EXPECT_TRUE(holdsLabel(labels, "இரட்டிப்பு"));
    EXPECT_TRUE(holdsLabel(labels, "மாறிலி_அடி"));
    EXPECT_FALSE(holdsLabel(labels, "முதலாவது"));
}

TEST(Places, ImportsNameModules) {
    CompletionSettings settings;
    settings.modulePaths = [] { return Labels{"கணக்கு", "வலைதளம்"}; };
    auto items = offered("நூஇறக்கி \"kana¦\"", settings);
    ASSERT_EQ(labelsOf(items), Labels{"கணக்கு"});
    EXPECT_EQ(items[0].inserted, "கணக்கு");
    EXPECT_EQ(items[0].kind, ItemKind::Module);
    items = offered("நூஇறக்கி ¦", settings);
    ASSERT_EQ(labelsOf(items), (Labels{"கணக்கு", "வலைதளம்"}));
    EXPECT_EQ(items[0].inserted, "\"கணக்கு\"");
}

TEST(Places, ModulesLieInFolders) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::u8path(testing::TempDir()) / "கோப்புறை_நூல்கள்";
    fs::remove_all(folder);
    fs::create_directories(folder / fs::u8path("உள்ளே"));
    fs::create_directories(folder / ".git");
    for (const char* name : {"கணக்கு.பொழில்", "உள்ளே/வரைதல்.pozhil", "குறிப்பு.txt", ".git/அ.பொழில்"}) {
        std::ofstream(folder / fs::u8path(name)) << "\n";
    }
    EXPECT_EQ(companion::completion::modulePathsIn(folder.u8string()),
              (Labels{"உள்ளே/வரைதல்.pozhil", "கணக்கு"}));
    EXPECT_EQ(companion::completion::modulePathsIn((folder / "x").u8string()), Labels{});
    fs::remove_all(folder);
}

// ---- Applications ----

TEST(Places, AnApplicationHasSections) {
    EXPECT_EQ(labelsAt("வலைதளம் ஒன்று(\n    ¦\n)\n"),
              (Labels{"தலைமை", "குமரி", "வரையறை", "தரவுத்தளமேலாண்மை"}));
    EXPECT_EQ(labelsAt("வலைதளம் ஒன்று(\n    head¦\n)\n").front(), "தலைமை");
}

TEST(Places, AWidgetHasExactlyThePropertiesThatItReads) {
    int widgets = 0;
    for (const companion::Description& row : companion::widgetDescriptions()) {
        const bool isSection = row.word == "தலைமை" || row.word == "பயர்பேசு_அமைப்பு";
        if (row.kind != companion::WordKind::Widget && !isSection) continue;
        widgets++;
        std::vector<std::string> wanted;
        for (const auto* property : companion::propertiesOf(row.word)) {
            const bool isOwn = property->block.empty() || property->block == "()";
            if (isOwn && rankIn(wanted, property->word) < 0) wanted.emplace_back(property->word);
        }
        CompletionSettings settings;
        settings.most = 1000;
        std::vector<std::string> properties;
        for (const auto& item : offered(page(std::string(row.word) + "(¦)"), settings)) {
            if (item.kind == ItemKind::Property) properties.push_back(item.label);
        }
        std::sort(wanted.begin(), wanted.end());
        std::sort(properties.begin(), properties.end());
        EXPECT_EQ(properties, wanted) << row.word;
    }
    EXPECT_GT(widgets, 25);
}

TEST(Places, ABlockHasExactlyItsProperties) {
    const auto propertiesAt = [](const std::string& item) {
        Labels labels;
        for (const CompletionItem& found : offered(page(item))) {
            EXPECT_EQ(found.kind, ItemKind::Property) << found.label;
            labels.push_back(found.label);
        }
        std::sort(labels.begin(), labels.end());
        return labels;
    };
    EXPECT_EQ(
        propertiesAt("உரை(\"அ\", உரைபாணி(¦))"),
        (Labels{"அடிக்குறிப்பு", "அளவு", "உரைசீரமைப்பு", "எழுத்துரு", "சீரமைப்பு", "தடிமன்", "நிறம்"}));
    EXPECT_EQ(propertiesAt("உரை(\"அ\", பாணி(¦))"), propertiesAt("உரை(\"அ\", உரைபாணி(¦))"));
    EXPECT_EQ(propertiesAt("உரைபொத்தான்(உரை \"அ\", பாணி(¦))"),
              propertiesAt("உரைபொத்தான்(உரை \"அ\", உரைபொ_பாணி(¦))"));
    EXPECT_EQ(propertiesAt("உரை(\"அ\", அசைவூட்டம்(காலம்: 3, இலக்கு(¦)))"),
              (Labels{"மங்குநழுவு", "மதிப்பு"}));
}

TEST(Places, TheSecondParenthesesOfABoxHaveNoAlignment) {
    EXPECT_TRUE(holdsLabel(labelsAt(page("பெட்டி(¦)")), "சீரமைப்பு"));
    const Labels labels = labelsAt(page("பெட்டி(சீரமைப்பு: மையம்)(¦)"));
    EXPECT_FALSE(holdsLabel(labels, "சீரமைப்பு"));
    EXPECT_TRUE(holdsLabel(labels, "அகலம்"));
    EXPECT_TRUE(holdsLabel(labels, "பெட்டி_பாணி"));
    EXPECT_TRUE(holdsLabel(labels, "அசைவூட்டம்"));
}

TEST(Places, PropertiesComeWithTheirUsualValue) {
    EXPECT_EQ(itemAt(page("பெட்டி(ag¦)"), "அகலம்").snippet, "அகலம்: ${1:100}");
    EXPECT_EQ(itemAt(page("பெட்டி(ag¦: 5)"), "அகலம்").inserted, "அகலம்");
    EXPECT_EQ(itemAt(page("பெட்டி(ag¦: 5)"), "அகலம்").snippet, "");
    EXPECT_EQ(itemAt(page("பொத்தான்(onpress¦)"), "அழுத்தினால்").snippet,
              "அழுத்தினால்: வினை(): ${1:செயல்_பெயர்}()");
    EXPECT_EQ(itemAt(page("நெடுவரிசை(urul¦)"), "உருளும்பட்டை").snippet, "உருளும்பட்டை: ${1|மெய்,பொய்|}");
}

TEST(Places, PropertiesHaveTheirValues) {
    EXPECT_EQ(labelsAt(page("நெடுவரிசை(சீரமைப்பு: mai¦)(")).front(), "மையம்");
    EXPECT_EQ(labelsAt(page("நெடுவரிசை(சீரமைப்பு: ¦)(")).size(), 9U);
    EXPECT_EQ(labelsAt(page("நெடுவரிசை(உருளும்பட்டை: ¦)(")), (Labels{"மெய்", "பொய்"}));
    EXPECT_EQ(labelsAt(page("உரை(\"அ\", உரைபாணி(நிறம்: \"red¦\"))")).front(), "சிவப்பு");
    EXPECT_EQ(itemAt(page("உரை(\"அ\", உரைபாணி(நிறம்: sivap¦))"), "சிவப்பு").inserted, "\"சிவப்பு\"");
    EXPECT_EQ(itemAt(page("உரை(\"அ\", உரைபாணி(நிறம்: \"sivap¦\"))"), "சிவப்பு").inserted, "சிவப்பு");
    EXPECT_EQ(labelsAt(page("உரை(\"அ\", அசைவூட்டம்(நிலைமை: \"hov¦\"))")).front(), "hover");
    EXPECT_EQ(labelsAt(page("உரை(\"அ\", அசைவூட்டம்(வகை: \"bounce¦\"))")).front(), "துள்ளல்");
    const Labels visible = labelsAt(page("பொத்தான்(\"அ\", அழுத்தினால்: ¦)"));
    EXPECT_EQ(visible.front(), "வினை(): கூட்டிவிடு()") << listed(visible);
    EXPECT_EQ(labelsAt(page("உரை(eth¦)")).front(), "எத்தனை");
    EXPECT_EQ(labelsAt(page("பொத்தான்(\"அ\", அழுத்தினால்: வினை(): koo¦)")).front(), "கூட்டிவிடு");
}

TEST(Places, PagesAndInputsAreCalledByTheirNames) {
    const std::string pages =
        "வலைதளம் ஒன்று(\n    தலைமை(பக்கம்: \"முகப்பு\")\n    குமரி(\n"
        "        உரை(\"அ\", அடையாளம்: \"மேலே\")\n    )\n    வரையறை(\n        ";
    EXPECT_EQ(labelsAt(pages + "செல்க(\"¦\")\n    )\n)\n"), Labels{"முகப்பு"});
    EXPECT_EQ(labelsAt(pages + "நகர்த்து(\"¦\")\n    )\n)\n"), Labels{"மேலே"});
}

TEST(Places, StatementsStandInDefinitions) {
    const std::string source = "வலைதளம் ஒன்று(\n    வரையறை(\n        எத்தனை = 0\n        ";
    const Labels labels = labelsAt(source + "¦\n    )\n)\n");
    EXPECT_TRUE(holdsLabel(labels, "செயல்"));
    EXPECT_TRUE(holdsLabel(labels, "எத்தனை"));
    EXPECT_FALSE(holdsLabel(labels, "நெடுவரிசை"));
}

// ---- Texts and comments ----

TEST(Places, TextsAndCommentsTakeTamilAlone) {
    for (const char* source : {"அச்சிடு(\"print¦\")", "அச்சிடு(\"print¦", "ஃ print¦",
                               "ஃ print¦\nஅ = 1\n", "ஃஃ\nprint¦\nஃஃ\n", "ஃஃ print¦"}) {
        for (const CompletionItem& item : offered(source)) {
            EXPECT_EQ(item.kind, ItemKind::Text) << source << item.label;
        }
        EXPECT_FALSE(holdsLabel(labelsAt(source), "அச்சிடு")) << source;
    }
    EXPECT_EQ(labelsAt("அச்சிடு(\"vanakkam¦\")").front(), "வணக்கம்");
    EXPECT_EQ(labelsAt("அச்சிடு(\"அம்மா vanakkam¦\")").front(), "வணக்கம்");
    EXPECT_EQ(labelsAt("அச்சிடு(\"அ\\nvanakkam¦\")").front(), "வணக்கம்");
    EXPECT_EQ(labelsAt("ஃ nandri¦").front(), "நன்றி");
    EXPECT_EQ(labelsAt("அச்சிடு(\"¦\")"), Labels{});
    EXPECT_EQ(labelsAt("ஃ ¦"), Labels{});
    EXPECT_EQ(labelsAt("அ = 'a¦'"), Labels{});
}

TEST(Places, BehindATextOrCommentIsCode) {
    EXPECT_TRUE(holdsLabel(labelsAt("அச்சிடு(\"அ\" ¦)"), "இணை"));
    EXPECT_EQ(labelsAt("ஃ print\nprint¦").front(), "அச்சிடு");
    EXPECT_EQ(labelsAt("ஃஃ அ ஃஃ print¦").front(), "அச்சிடு");
}

TEST(Places, TransliterationIsSwitchedOff) {
    CompletionSettings settings;
    settings.transliterates = false;
    EXPECT_TRUE(offered("அச்சிடு(\"vanakkam¦\")", settings).empty());
    EXPECT_TRUE(offered("malargalukku¦", settings).empty());
    EXPECT_FALSE(offered("malargalukku¦").empty());
}

TEST(Places, ANameThatWasWrittenWinsOverOneThatIsMadeUp) {
    EXPECT_EQ(labelsAt("ஃ valli¦").front(), "வல்லி");
    EXPECT_EQ(labelsAt("ஃ வள்ளி\nஃ valli¦").front(), "வள்ளி");
    EXPECT_EQ(labelsAt("வள்ளி = 1\nvalli¦").front(), "வள்ளி");
}

TEST(Places, NoNameIsOfferedThatIsRefused) {
    const Labels labels = labelsAt("அ = 1\nvilai¦\n");
    EXPECT_FALSE(holdsLabel(labels, "விலை")) << listed(labels);
    EXPECT_EQ(labelsAt("ஃ vilai¦").front(), "விலை");
}

TEST(Places, AWordCanBeAPropertyAndAWidget) {
    const auto items = offered(page("வட்டத்தேர்வு(urai¦)"));
    EXPECT_EQ(items.at(0).kind, ItemKind::Property);
    EXPECT_EQ(items.at(1).kind, ItemKind::Widget);
    EXPECT_EQ(items.at(1).label, "உரை");
}

// ---- What is written ----

TEST(Inserted, ReplacesWhatWasTypedAndNoMore) {
    const auto items = offered("அ = 1\n    achch¦idu(1)\n");
    ASSERT_FALSE(items.empty());
    const std::size_t begin = std::string("அ = 1\n    ").size();
    EXPECT_EQ(items[0].replaced.begin, begin);
    EXPECT_EQ(items[0].replaced.end, begin + 5);
    EXPECT_EQ(items[0].filterText, "achch");
}

TEST(Inserted, SortsAsItIsListed) {
    const auto items = offered("¦");
    for (std::size_t at = 1; at < items.size(); at++) {
        EXPECT_LT(items[at - 1].sortText, items[at].sortText);
    }
    EXPECT_EQ(items[0].filterText, items[0].label);
}

TEST(Inserted, BlocksAreIndentedAsTheDocumentIs) {
    EXPECT_EQ(itemAt("if¦", "எனில்").snippet, "எனில் ${1:நிபந்தனை}:\n    $0");
    EXPECT_EQ(itemAt("சுற்று மெய்:\n\tவிடு\nif¦", "எனில்").snippet, "எனில் ${1:நிபந்தனை}:\n\t$0");
    EXPECT_EQ(itemAt("சுற்று மெய்:\n  விடு\nif¦", "எனில்").snippet, "எனில் ${1:நிபந்தனை}:\n  $0");
    EXPECT_EQ(itemAt("if¦", "எனில்").inserted, "எனில்");
}

TEST(Inserted, AnOperatorStandsAlone) {
    EXPECT_EQ(itemAt("அ = ஆ tern¦", "எனில்").inserted, "எனில்");
    EXPECT_EQ(itemAt("அ = ஆ tern¦", "எனில்").snippet, "");
}

}  // namespace
