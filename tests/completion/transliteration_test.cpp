// Latin letters and the Tamil word that is meant by them, with the figures that are to hold.
#include <gtest/gtest.h>

#include <iostream>

#include "companion/completion/known_words.h"
#include "companion/completion/tamil_letters.h"

namespace {

using companion::completion::tamilFor;

struct Row {
    const char* typed;
    const char* wanted;
};

constexpr Row kRows[] = {
    {"amma", "அம்மா"},
    {"appa", "அப்பா"},
    {"akka", "அக்கா"},
    {"anna", "அண்ணா"},
    {"thambi", "தம்பி"},
    {"thangai", "தங்கை"},
    {"thaaththaa", "தாத்தா"},
    {"thatha", "தாத்தா"},
    {"paatti", "பாட்டி"},
    {"maamaa", "மாமா"},
    {"magan", "மகன்"},
    {"magal", "மகள்"},
    {"kuzhandhai", "குழந்தை"},
    {"kulanthai", "குழந்தை"},
    {"nanban", "நண்பன்"},
    {"nanbargal", "நண்பர்கள்"},
    {"aasiriyar", "ஆசிரியர்"},
    {"maanavar", "மாணவர்"},
    {"maanavi", "மாணவி"},
    {"manithan", "மனிதன்"},
    {"makkal", "மக்கள்"},
    {"pen", "பெண்"},
    {"vanakkam", "வணக்கம்"},
    {"vanakam", "வணக்கம்"},
    {"nandri", "நன்றி"},
    {"nanri", "நன்றி"},
    {"thamizh", "தமிழ்"},
    {"tamil", "தமிழ்"},
    {"thamil", "தமிழ்"},
    {"pozhil", "பொழில்"},
    {"peyar", "பெயர்"},
    {"vayadhu", "வயது"},
    {"vayathu", "வயது"},
    {"oor", "ஊர்"},
    {"mugavari", "முகவரி"},
    {"naadu", "நாடு"},
    {"veedu", "வீடு"},
    {"maram", "மரம்"},
    {"marangal", "மரங்கள்"},
    {"malar", "மலர்"},
    {"poo", "பூ"},
    {"pookkal", "பூக்கள்"},
    {"pazham", "பழம்"},
    {"pazhangal", "பழங்கள்"},
    {"maambazham", "மாம்பழம்"},
    {"vaazhai", "வாழை"},
    {"malai", "மலை"},
    {"mazhai", "மழை"},
    {"kadal", "கடல்"},
    {"aaru", "ஆறு"},
    {"vaanam", "வானம்"},
    {"nilaa", "நிலா"},
    {"nila", "நிலா"},
    {"suuriyan", "சூரியன்"},
    {"sooriyan", "சூரியன்"},
    {"kaatru", "காற்று"},
    {"neer", "நீர்"},
    {"thanneer", "தண்ணீர்"},
    {"thannir", "தண்ணீர்"},
    {"paal", "பால்"},
    {"arisi", "அரிசி"},
    {"uppu", "உப்பு"},
    {"idli", "இட்லி"},
    {"dhosai", "தோசை"},
    {"thosai", "தோசை"},
    {"soru", "சோறு"},
    {"unavu", "உணவு"},
    {"meen", "மீன்"},
    {"muttai", "முட்டை"},
    {"naai", "நாய்"},
    {"poonai", "பூனை"},
    {"maadu", "மாடு"},
    {"yaanai", "யானை"},
    {"kudhirai", "குதிரை"},
    {"singam", "சிங்கம்"},
    {"puli", "புலி"},
    {"kurangu", "குரங்கு"},
    {"paravai", "பறவை"},
    {"kili", "கிளி"},
    {"mayil", "மயில்"},
    {"kozhi", "கோழி"},
    {"onru", "ஒன்று"},
    {"ondru", "ஒன்று"},
    {"irandu", "இரண்டு"},
    {"moondru", "மூன்று"},
    {"naangu", "நான்கு"},
    {"ainthu", "ஐந்து"},
    {"aindhu", "ஐந்து"},
    {"ezhu", "ஏழு"},
    {"ettu", "எட்டு"},
    {"onbathu", "ஒன்பது"},
    {"paththu", "பத்து"},
    {"pathu", "பத்து"},
    {"nooru", "நூறு"},
    {"aayiram", "ஆயிரம்"},
    {"kaalai", "காலை"},
    {"maalai", "மாலை"},
    {"iravu", "இரவு"},
    {"pagal", "பகல்"},
    {"indru", "இன்று"},
    {"netru", "நேற்று"},
    {"naalai", "நாளை"},
    {"thingal", "திங்கள்"},
    {"sevvaai", "செவ்வாய்"},
    {"pudhan", "புதன்"},
    {"vyaazhan", "வியாழன்"},
    {"velli", "வெள்ளி"},
    {"sani", "சனி"},
    {"gnaayiru", "ஞாயிறு"},
    {"pongal", "பொங்கல்"},
    {"palli", "பள்ளி"},
    {"kalloori", "கல்லூரி"},
    {"vaguppu", "வகுப்பு"},
    {"paadam", "பாடம்"},
    {"mathippen", "மதிப்பெண்"},
    {"madhippen", "மதிப்பெண்"},
    {"moththam", "மொத்தம்"},
    {"motham", "மொத்தம்"},
    {"saraasari", "சராசரி"},
    {"puththagam", "புத்தகம்"},
    {"noolagam", "நூலகம்"},
    {"kelvi", "கேள்வி"},
    {"vidai", "விடை"},
    {"ezhuththu", "எழுத்து"},
    {"sol", "சொல்"},
    {"kavithai", "கவிதை"},
    {"kadhai", "கதை"},
    {"paadal", "பாடல்"},
    {"kural", "குறள்"},
    {"thirukkural", "திருக்குறள்"},
    {"agaram", "அகரம்"},
    {"kanakku", "கணக்கு"},
    {"enni", "எண்ணி"},
    {"ennikkai", "எண்ணிக்கை"},
    {"parappu", "பரப்பு"},
    {"vattam", "வட்டம்"},
    {"sadhuram", "சதுரம்"},
    {"panam", "பணம்"},
    {"kadai", "கடை"},
    {"porul", "பொருள்"},
    {"thogai", "தொகை"},
    {"vilai", "விலை"},
    {"kaasu", "காசு"},
    {"mudhal", "முதல்"},
    {"kadaisi", "கடைசி"},
    {"nalla", "நல்ல"},
    {"puthiya", "புதிய"},
    {"periya", "பெரிய"},
    {"siriya", "சிறிய"},
    {"naan", "நான்"},
    {"nee", "நீ"},
    {"neengal", "நீங்கள்"},
    {"avan", "அவன்"},
    {"aval", "அவள்"},
    {"adhu", "அது"},
    {"ithu", "இது"},
    {"enna", "என்ன"},
    {"enge", "எங்கே"},
    {"eppadi", "எப்படி"},
    {"yaar", "யார்"},
    {"aam", "ஆம்"},
    {"illai", "இல்லை"},
    {"vendum", "வேண்டும்"},
    {"seithi", "செய்தி"},
    {"vilaiyaattu", "விளையாட்டு"},
    {"paarkka", "பார்க்க"},
    {"mudivu", "முடிவு"},
    {"thodakkam", "தொடக்கம்"},
    {"niram", "நிறம்"},
    {"sivappu", "சிவப்பு"},
    {"pachai", "பச்சை"},
    {"neelam", "நீலம்"},
    {"manjal", "மஞ்சள்"},
    {"karuppu", "கருப்பு"},
    {"vellai", "வெள்ளை"},
    {"mozhi", "மொழி"},
    {"kuzhu", "குழு"},
    {"vetri", "வெற்றி"},
    {"anbu", "அன்பு"},
    {"magizhchi", "மகிழ்ச்சி"},
    {"kanavu", "கனவு"},
    {"unmai", "உண்மை"},
    {"azhagu", "அழகு"},
    {"nambikkai", "நம்பிக்கை"},
    // People's and places' names
    {"kannan", "கண்ணன்"},
    {"murugan", "முருகன்"},
    {"valli", "வள்ளி"},
    {"meena", "மீனா"},
    {"mani", "மணி"},
    {"selvi", "செல்வி"},
    {"ezhil", "எழில்"},
    {"kumaran", "குமரன்"},
    {"chennai", "சென்னை"},
    {"madurai", "மதுரை"},
    {"kovai", "கோவை"},
    {"thanjai", "தஞ்சை"},
    {"nellai", "நெல்லை"},
    {"kumari", "குமரி"},
    // What stands in no list
    {"kuruvi", "குருவி"},
    {"nandu", "நண்டு"},
    {"vandu", "வண்டு"},
    {"thavalai", "தவளை"},
    {"paambu", "பாம்பு"},
    {"karumbu", "கரும்பு"},
    {"thengai", "தேங்காய்"},
    {"thenkaai", "தேங்காய்"},
    {"kambu", "கம்பு"},
    {"nellikkaai", "நெல்லிக்காய்"},
    {"pattam", "பட்டம்"},
    {"pambaram", "பம்பரம்"},
    {"kudai", "குடை"},
    {"seruppu", "செருப்பு"},
    {"satai", "சட்டை"},
    {"sattai", "சட்டை"},
    {"kuppai", "குப்பை"},
    {"thottam", "தோட்டம்"},
    {"uzhavan", "உழவன்"},
    {"nel", "நெல்"},
    {"kiNaRu", "கிணறு"},
    {"puLLi", "புள்ளி"},
    {"viral", "விரல்"},
    {"muthu", "முத்து"},
    {"thangam", "தங்கம்"},
    {"maanickam", "மாணிக்கம்"},
    {"pavalam", "பவளம்"},
    {"mullai", "முல்லை"},
    {"kurinji", "குறிஞ்சி"},
    {"marutham", "மருதம்"},
    {"neythal", "நெய்தல்"},
    {"paalai", "பாலை"},
};

struct Figures {
    int rows = 0;
    int first = 0;
    int amongThree = 0;
};

Figures figuresOf(bool withKnownWords) {
    Figures figures;
    for (const Row& row : kRows) {
        const auto candidates = tamilFor(row.typed, {}, withKnownWords, 3);
        int rank = -1;
        std::string shown;
        for (std::size_t at = 0; at < candidates.size(); at++) {
            shown += " " + candidates[at];
            if (candidates[at] == row.wanted) rank = static_cast<int>(at);
        }
        figures.rows++;
        figures.first += rank == 0 ? 1 : 0;
        figures.amongThree += rank >= 0 ? 1 : 0;
        if (rank != 0 && withKnownWords) {
            std::cout << row.typed << " is to be " << row.wanted << ":" << shown << "\n";
        }
    }
    std::cout << figures.rows << " rows: " << figures.first << " first, " << figures.amongThree
              << " among three\n";
    return figures;
}

TEST(Transliteration, FindsWhatIsMeant) {
    const Figures figures = figuresOf(true);
    EXPECT_GE(figures.rows, 200);
    EXPECT_GE(figures.first, 216);
    EXPECT_GE(figures.amongThree, 228);
}

TEST(Transliteration, GoesFarByItsRulesAlone) {
    const Figures figures = figuresOf(false);
    EXPECT_GE(figures.first, 157);
    EXPECT_GE(figures.amongThree, 215);
}

TEST(Transliteration, FollowsTheRulesOfTheScript) {
    const auto first = [](const char* typed) {
        return companion::completion::spellingsOf(typed, 1).at(0).word;
    };
    // ந begins a word and stands before த, ன elsewhere; ண before ட, ஞ before ச, ங before க.
    EXPECT_EQ(first("naan"), "நான்");
    EXPECT_EQ(first("pandham"), "பந்தம்");
    EXPECT_EQ(first("manai"), "மனை");
    EXPECT_EQ(first("kandu"), "கண்டு");
    EXPECT_EQ(first("panju"), "பஞ்சு");
    EXPECT_EQ(first("pangu"), "பங்கு");
    // No mei begins a word, and no short எ or ஒ ends one.
    EXPECT_EQ(first("priya"), "பிரிய");
    EXPECT_EQ(first("m"), "ம");
    EXPECT_EQ(first("inge"), "இங்கே");
    EXPECT_EQ(first("vaango"), "வாங்கோ");
    // கள் makes many of one.
    EXPECT_EQ(first("kuruvigal"), "குருவிகள்");
    EXPECT_EQ(first("kudangalai"), "குடங்களை");
    EXPECT_EQ(first("pagal"), "பகல்");
    // Vowels don't meet.
    EXPECT_EQ(first("iniam"), "இனியம்");
    EXPECT_EQ(first("thuaram"), "துவரம்");
    // Capitals tell letters apart, but not the first one of a word.
    EXPECT_EQ(first("maNam"), "மணம்");
    EXPECT_EQ(first("Naan"), "நான்");
    EXPECT_EQ(first("puLi"), "புளி");
    EXPECT_EQ(first("kaRi"), "கறி");
}

TEST(Transliteration, PrefersWhatTheDocumentHas) {
    EXPECT_EQ(tamilFor("malai", {}, true, 3).at(0), "மலை");
    EXPECT_EQ(tamilFor("malai", {"மழை"}, true, 3).at(0), "மழை");
    // But not against the letters that were typed.
    EXPECT_EQ(tamilFor("pazham", {"பலம்"}, true, 3).at(0), "பழம்");
}

TEST(Transliteration, GoesThroughJoinedWords) {
    const auto first = [](const char* typed) { return tamilFor(typed, {}, true, 3).at(0); };
    EXPECT_EQ(first("mudhal_peyar"), "முதல்_பெயர்");
    EXPECT_EQ(first("enni2"), "எண்ணி2");
    EXPECT_EQ(first("vidai_"), "விடை_");
    EXPECT_EQ(tamilFor("peyar_valli", {}, true, 3).at(1), "பெயர்_வள்ளி");
    EXPECT_TRUE(tamilFor("_", {}, true, 3).empty());
    EXPECT_TRUE(tamilFor("2", {}, true, 3).empty());
    EXPECT_TRUE(tamilFor("a-b", {}, true, 3).empty());
}

TEST(Transliteration, WritesNoLetterThatNamesCannotHave) {
    for (const Row& row : kRows) {
        for (const auto& spelling : companion::completion::spellingsOf(row.typed, 10)) {
            for (const char* refused : {"ஜ", "ஷ", "ஸ", "ஹ", "ஃ", "அா", "ஆா", "இா"}) {
                EXPECT_EQ(spelling.word.find(refused), std::string::npos) << spelling.word;
            }
        }
    }
    EXPECT_TRUE(companion::completion::spellingsOf("jahaangeer", 3).at(0).word.find("ச") == 0);
}

TEST(Transliteration, TakesLettersAlone) {
    EXPECT_TRUE(companion::completion::spellingsOf("", 3).empty());
    EXPECT_TRUE(companion::completion::spellingsOf("a1", 3).empty());
    EXPECT_TRUE(companion::completion::spellingsOf("அa", 3).empty());
    EXPECT_TRUE(companion::completion::spellingsOf(std::string(1000, 'a'), 3).empty());
    for (const char* readable : {"amma", "paarkka", "thamizh", "ondru", "vaazhththu", "nanban"}) {
        EXPECT_TRUE(companion::completion::isReadable(readable)) << readable;
    }
    for (const char* unreadable : {"achdu", "enl", "prnt", "thrmb", "str"}) {
        EXPECT_FALSE(companion::completion::isReadable(unreadable)) << unreadable;
    }
}

}  // namespace
