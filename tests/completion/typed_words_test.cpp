// What learners type on a Latin keyboard, and the word of the language that comes first.
#include <gtest/gtest.h>

#include <iostream>

#include "companion/completion/typed_word.h"
#include "offered.h"

namespace {

using completion_test::labelsAt;
using completion_test::listed;
using completion_test::rankIn;

struct TypedRow {
    const char* typed;
    const char* wanted;
};

struct TypedTable {
    const char* before;  ///< What stands ahead of what is typed.
    const char* after;
    std::vector<TypedRow> rows;
};

const std::vector<TypedTable>& tables() {
    static const std::vector<TypedTable> all = {
        {"",
         "\n",
         {
             // Words as they are pronounced, in several spellings
             {"achchidu", "அச்சிடு"},
             {"acchidu", "அச்சிடு"},
             {"achidu", "அச்சிடு"},
             {"achitu", "அச்சிடு"},
             {"accidu", "அச்சிடு"},
             {"asidu", "அச்சிடு"},
             {"Achchidu", "அச்சிடு"},
             {"achchid", "அச்சிடு"},
             {"achch", "அச்சிடு"},
             {"enil", "எனில்"},
             {"yenil", "எனில்"},
             {"eni", "எனில்"},
             {"illaienil", "இல்லைஎனில்"},
             {"ilaienil", "இல்லைஎனில்"},
             {"illai", "இல்லை"},
             {"ilai", "இல்லை"},
             {"suttru", "சுற்று"},
             {"sutru", "சுற்று"},
             {"chutru", "சுற்று"},
             {"surru", "சுற்று"},
             {"ovvondraaga", "ஒவ்வொன்றாக"},
             {"ovvonraga", "ஒவ்வொன்றாக"},
             {"ovonraka", "ஒவ்வொன்றாக"},
             {"ovvon", "ஒவ்வொன்றாக"},
             {"niruththu", "நிறுத்து"},
             {"niruthu", "நிறுத்து"},
             {"thodar", "தொடர்"},
             {"todar", "தொடர்"},
             {"thaervu", "தேர்வு"},
             {"thervu", "தேர்வு"},
             {"theervu", "தேர்வு"},
             {"nilai", "நிலை"},
             {"matravai", "மற்றவை"},
             {"mattravai", "மற்றவை"},
             {"marravai", "மற்றவை"},
             {"muyarchi", "முயற்சி"},
             {"muyarsi", "முயற்சி"},
             {"pidi", "பிடி"},
             {"kaaththiru", "காத்திரு"},
             {"kathiru", "காத்திரு"},
             {"vidu", "விடு"},
             {"seyal", "செயல்"},
             {"cheyal", "செயல்"},
             {"seial", "செயல்"},
             {"thirumbu", "திரும்பு"},
             {"thirumpu", "திரும்பு"},
             {"tirumbu", "திரும்பு"},
             {"kattamaippu", "கட்டமைப்பு"},
             {"katamaipu", "கட்டமைப்பு"},
             {"kattam", "கட்டமைப்பு"},
             {"vadivamaippu", "வடிவமைப்பு"},
             {"vadivam", "வடிவமைப்பு"},
             {"vagai", "வகை"},
             {"vakai", "வகை"},
             {"nooirakki", "நூஇறக்கி"},
             {"nuirakki", "நூஇறக்கி"},
             {"nooi", "நூஇறக்கி"},
             {"ragasiya", "ரகசிய"},
             {"rakasiyam", "ரகசியம்"},
             {"pothu", "பொது"},
             {"thaan", "தான்"},
             {"than", "தான்"},
             {"maarili", "மாறிலி"},
             {"vai", "வை"},
             {"neekku", "நீக்கு"},
             {"nikku", "நீக்கு"},
             {"koppu_ezhuthu", "கோப்பு_எழுது"},
             {"koppuezhuthu", "கோப்பு_எழுது"},
             {"koappuezhudhu", "கோப்பு_எழுது"},
             {"selga", "செல்க"},
             {"nagarthu", "நகர்த்து"},
             {"puthuppi", "புதுப்பி"},
             {"pudhupi", "புதுப்பி"},
             {"valaithalam", "வலைதளம்"},
             {"valaidhalam", "வலைதளம்"},
             {"ulleedu", "உள்ளீடு"},
             {"ullidu", "உள்ளீடு"},
             // Without vowels
             {"achdu", "அச்சிடு"},
             {"enl", "எனில்"},
             {"str", "கட்டமைப்பு"},
             {"chtr", "சுற்று"},
             {"syl", "செயல்"},
             {"thrmb", "திரும்பு"},
             {"ktmp", "கட்டமைப்பு"},
             {"nrthu", "நிறுத்து"},
             {"mtrv", "மற்றவை"},
             {"ovvnrk", "ஒவ்வொன்றாக"},
             {"kthr", "காத்திரு"},
             {"trmb", "திரும்பு"},
             {"thrv", "தேர்வு"},
             {"vdvmp", "வடிவமைப்பு"},
             {"vlthlm", "வலைதளம்"},
             {"mrl", "மாறிலி"},
             {"prnt", "அச்சிடு"},
             {"fnctn", "செயல்"},
             {"whl", "சுற்று"},
             {"rtrn", "திரும்பு"},
             // Words of other languages
             {"if", "எனில்"},
             {"print", "அச்சிடு"},
             {"prin", "அச்சிடு"},
             {"write", "அச்சிடு"},
             {"for", "ஒவ்வொன்றாக"},
             {"foreach", "ஒவ்வொன்றாக"},
             {"while", "சுற்று"},
             {"whil", "சுற்று"},
             {"else", "இல்லை"},
             {"elif", "இல்லைஎனில்"},
             {"elseif", "இல்லைஎனில்"},
             {"break", "நிறுத்து"},
             {"brea", "நிறுத்து"},
             {"continue", "தொடர்"},
             {"switch", "தேர்வு"},
             {"match", "தேர்வு"},
             {"case", "நிலை"},
             {"default", "மற்றவை"},
             {"try", "முயற்சி"},
             {"catch", "பிடி"},
             {"except", "பிடி"},
             {"wait", "காத்திரு"},
             {"sleep", "காத்திரு"},
             {"pass", "விடு"},
             {"function", "செயல்"},
             {"func", "செயல்"},
             {"def", "செயல்"},
             {"return", "திரும்பு"},
             {"ret", "திரும்பு"},
             {"class", "கட்டமைப்பு"},
             {"struct", "கட்டமைப்பு"},
             {"enum", "வகை"},
             {"import", "நூஇறக்கி"},
             {"imp", "நூஇறக்கி"},
             {"include", "நூஇறக்கி"},
             {"private", "ரகசிய"},
             {"public", "பொது"},
             {"self", "self"},
             {"const", "மாறிலி"},
             {"interface", "வடிவமைப்பு"},
             {"app", "வலைதளம்"},
             {"navigate", "செல்க"},
             {"scroll", "நகர்த்து"},
             {"input", "உள்ளீடு"},
             {"refresh", "புதுப்பி"},
             {"remove", "நீக்கு"},
             {"set", "வை"},
             {"state", "காட்சி_நிலை"},
             {"insert", "நிகழ்நேர.தரவுசேர்"},
             // In Tamil letters already
             {"அச்", "அச்சிடு"},
             {"எனி", "எனில்"},
             {"செய", "செயல்"},
             {"சுற்", "சுற்று"},
         }},
        {"விடை = ",
         "\n",
         {
             {"mei", "மெய்"},
             {"mey", "மெய்"},
             {"poi", "பொய்"},
             {"poy", "பொய்"},
             {"true", "மெய்"},
             {"false", "பொய்"},
             {"yes", "மெய்"},
             {"en", "எண்"},
             {"int", "எண்"},
             {"number", "எண்"},
             {"neelam", "நீளம்"},
             {"nilam", "நீளம்"},
             {"length", "நீளம்"},
             {"len", "நீளம்"},
             {"ulleedu", "உள்ளீடு"},
             {"input", "உள்ளீடு"},
             {"pilavu", "பிளவு"},
             {"split", "பிளவு"},
             {"pathil", "பதில்"},
             {"replace", "பதில்"},
             {"periyae", "பெரியஎ"},
             {"upper", "பெரியஎ"},
             {"lower", "சிறியஎ"},
             {"ennavagai", "என்னவகை"},
             {"type", "என்னவகை"},
             {"seeratra_en", "சீரற்ற_எண்"},
             {"siratra", "சீரற்ற_எண்"},
             {"random", "சீரற்ற_எண்"},
             {"rand", "சீரற்ற_எண்"},
             {"vargamoolam", "வர்க்கமூலம்"},
             {"sqrt", "வர்க்கமூலம்"},
             {"pow", "அடுக்கு"},
             {"adukku", "அடுக்கு"},
             {"abs", "தனிமதிப்பு"},
             {"floor", "கீழ்எண்"},
             {"keezhen", "கீழ்எண்"},
             {"kilen", "கீழ்எண்"},
             {"ceil", "மேல்எண்"},
             {"melen", "மேல்எண்"},
             {"now", "இப்போதுநேரம்"},
             {"ippothuneram", "இப்போதுநேரம்"},
             {"koppu_padi", "கோப்பு_படி"},
             {"koppupadi", "கோப்பு_படி"},
             {"date", "தேதி"},
             {"theathi", "தேதி"},
             {"theethi", "தேதி"},
             {"lambda", "வினை"},
             {"vinai", "வினை"},
             {"thaan", "தான்"},
             {"this", "தான்"},
             {"sin", "சைன்"},
             {"cos", "காஸ்"},
             {"get", "எடு"},
             {"mlen", "மேல்எண்"},
         }},
        {"அ = ஆ ",
         "\n",
         {
             {"koottu", "கூட்டு"},   {"kuttu", "கூட்டு"},     {"plus", "கூட்டு"},
             {"add", "கூட்டு"},      {"kazhi", "கழி"},       {"kali", "கழி"},
             {"minus", "கழி"},      {"perukku", "பெருக்கு"}, {"peruku", "பெருக்கு"},
             {"times", "பெருக்கு"},  {"vagu", "வகு"},        {"divide", "வகு"},
             {"meedhi", "மீதி"},     {"mithi", "மீதி"},       {"mod", "மீதி"},
             {"inai", "இணை"},       {"concatenate", "இணை"}, {"samam", "சமம்"},
             {"camam", "சமம்"},      {"equal", "சமம்"},       {"samamillai", "சமமில்லை"},
             {"not", "சமமில்லை"},    {"peridhu", "பெரிது"},  {"perithu", "பெரிது"},
             {"greater", "பெரிது"}, {"siridhu", "சிறிது"},  {"siru", "சிறிது"},
             {"less", "சிறிது"},    {"matrum", "மற்றும்"},    {"mattrum", "மற்றும்"},
             {"and", "மற்றும்"},      {"alladhu", "அல்லது"},   {"or", "அல்லது"},
             {"smm", "சமம்"},        {"prthu", "பெரிது"},    {"ternary", "எனில்"},
         }},
        {"வலைதளம் ஒன்று(\n    குமரி(\n        ",
         "\n    )\n)\n",
         {
             {"uraipoththaan", "உரைபொத்தான்"},
             {"button", "பொத்தான்"},
             {"butt", "பொத்தான்"},
             {"poththaan", "பொத்தான்"},
             {"pothan", "பொத்தான்"},
             {"pththn", "பொத்தான்"},
             {"text", "உரை"},
             {"urai", "உரை"},
             {"image", "படம்"},
             {"padam", "படம்"},
             {"column", "நெடுவரிசை"},
             {"neduvarisai", "நெடுவரிசை"},
             {"nedu", "நெடுவரிசை"},
             {"row", "கிடைவரிசை"},
             {"kidaivarisai", "கிடைவரிசை"},
             {"stack", "அடுக்கி"},
             {"box", "பெட்டி"},
             {"petti", "பெட்டி"},
             {"card", "அட்டை"},
             {"attai", "அட்டை"},
             {"grid", "கட்டம்_காட்சி"},
             {"list", "பட்டியல்_காட்சி"},
             {"checkbox", "தேர்வுபெட்டி"},
             {"slider", "அளவி"},
             {"switch", "மாற்றி"},
             {"textbox", "உரைபெட்டி"},
             {"dropdown", "கீழ்வரி"},
             {"tabs", "தத்தல்"},
             {"dialog", "எச்சரிக்கை"},
             {"divider", "பிரிப்பான்"},
         }},
        {"வலைதளம் ஒன்று(\n    குமரி(\n        பொத்தான்(\"சொல்\", ",
         ")\n    )\n)\n",
         {
             {"onclick", "அழுத்தினால்"},
             {"azhuththinaal", "அழுத்தினால்"},
             {"alut", "அழுத்தினால்"},
             {"width", "அகலம்"},
             {"agalam", "அகலம்"},
             {"akalam", "அகலம்"},
             {"height", "உயரம்"},
             {"uyaram", "உயரம்"},
             {"radius", "வளைவு"},
             {"valaivu", "வளைவு"},
             {"disabled", "செயலிழப்பு"},
             {"id", "அடையாளம்"},
             {"style", "பொ_பாணி"},
             {"popaani", "பொ_பாணி"},
             {"asaivoottam", "அசைவூட்டம்"},
             {"animation", "அசைவூட்டம்"},
         }},
    };
    return all;
}

TEST(TypedWords, FindWhatIsMeantFirst) {
    int rows = 0;
    int first = 0;
    int amongThree = 0;
    for (const TypedTable& table : tables()) {
        for (const TypedRow& row : table.rows) {
            const auto labels = labelsAt(std::string(table.before) + row.typed + "¦" + table.after);
            const int rank = rankIn(labels, row.wanted);
            rows++;
            first += rank == 0 ? 1 : 0;
            amongThree += rank >= 0 && rank < 3 ? 1 : 0;
            if (rank != 0) {
                std::cout << row.typed << " is to be " << row.wanted << ", rank " << rank << ":"
                          << listed(labels) << "\n";
            }
        }
    }
    std::cout << rows << " rows: " << first << " first, " << amongThree << " among three\n";
    EXPECT_GE(rows, 200);
    EXPECT_EQ(first, rows);
}

TEST(TypedWords, AreNearInMoreThanOneWay) {
    using companion::completion::Closeness;
    using companion::completion::FoundBy;
    const FoundBy word("எனில்", "if, else if, when");
    const auto closeness = [&](const char* typed) {
        return companion::completion::TypedWord(typed).closenessTo(word);
    };
    EXPECT_EQ(closeness(""), Closeness::Whole);
    EXPECT_EQ(closeness("எனில்"), Closeness::Whole);
    EXPECT_EQ(closeness("எனி"), Closeness::Prefix);
    EXPECT_EQ(closeness("நி"), Closeness::None);
    EXPECT_EQ(closeness("if"), Closeness::English);
    EXPECT_EQ(closeness("ElseIf"), Closeness::English);
    EXPECT_EQ(closeness("ennil"), Closeness::Sound);
    EXPECT_EQ(closeness("eni"), Closeness::SoundPrefix);
    EXPECT_EQ(closeness("wh"), Closeness::SoundPrefix);
    EXPECT_EQ(closeness("enl"), Closeness::Consonants);
    EXPECT_EQ(closeness("nl"), Closeness::None);
    EXPECT_EQ(closeness("anl"), Closeness::None);
    EXPECT_EQ(companion::completion::TypedWord("achd").closenessTo(FoundBy("அச்சிடுக")),
              Closeness::ConsonantPrefix);
    EXPECT_EQ(companion::completion::TypedWord("box").closenessTo(FoundBy("உரை", "text box")),
              Closeness::EnglishInside);
}

}  // namespace
