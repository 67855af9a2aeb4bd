// Every key that drawing reads, written directly in its widget: most are stored under their own
// text; those whose word has a kind that no item takes are refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

struct KeysRow {
    const char* widget;
    const char* keys;  ///< With a blank between.
};

/// Keys that a generic widget stores.
const KeysRow kStored[] = {
    {"உரை", "உரை அடையாளம் காட்சி_பெயர்"},
    {"பொத்தான்",
     "உரை style_அகலம் அகலம் style_உயரம் உயரம் வளைவு style_வளைவு பின்னணி பெட்டிபின்னணி "
     "style_பின்னணி style_மேம்படுத்தப்பட்ட_நிறம் style_நிழல் style_எழுத்து_நிறம் style_கரை_நிறம் "
     "style_கரை_அளவு அழுத்தினால்"},
    {"படம்", "பாதை style_அகலம் அகலம் style_உயரம் உயரம் வளைவு"},
    {"வட்டபடம்",
     "பாதை உரை style_அகலம் அகலம் style_உயரம் உயரம் வளைவு பின்னணி நிறம் style_பின்னணி style_நிறம் "
     "கரை_அளவு style_கரை_அளவு கரை_நிறம் style_கரை_நிறம்"},
    {"தேர்வுபெட்டி", "உரை அடையாளம் அகலம் உயரம் தேர்வுபெட்டிநிலை தேர்வு_நிறம் தேர்வற்ற_நிறம்"},
    {"வட்டத்தேர்வு", "உரை மதிப்பு குழு_மதிப்பு செயலிழப்பு மாறியதால் தேர்வு_நிறம் தேர்வற்ற_நிறம்"},
    {"மாற்றி", "ஆரம்ப_நிலை இயங்கும்_நிறம் முடங்கிய_நிறம் செயலிழப்பு மாறியதால்"},
    {"அளவி", "குறைந்தபட்சம் அதிகபட்சம் அகலம் மதிப்பு செயலிழப்பு மாறியதால்"},
    {"கீழ்வரி", "பட்டியல் அகலம் உயரம் செயலிழப்பு மாறியதால்"},
    {"உரைபெட்டி",
     "அகலம் உயரம் வளைவு style_வளைவு பின்னணி style_களப்பின்னணி கரை_நிறம் style_கரை_நிறம் கரை_அளவு "
     "style_கரை_அளவு அடையாளம் எழுத்து_நிறம் style_எழுத்து_நிறம் முன்னணி குறிப்பு பலவரி"},
    {"கடவுமறை", "குறிப்பு அகலம் உயரம் பின்னணி நிறம் எழுத்து_நிறம்"},
    {"தேடல்_பட்டை",
     "அகலம் உயரம் style_வளைவு style_எழுத்தளவு style_களப்பின்னணி தேடல்_படம் தேடல்_குறிப்பு "
     "குறிப்பு அழி_படம்"},
    {"தேடுபொறி", "தேடல்_படம் தேடல்_குறிப்பு குறிப்பு அழி_படம்"},
    {"அடிப்பகுதி", "அடிப்பகுதிதேர்வு style_பின்னணி"},
    {"அடி_உருப்படி", "அழுத்தினால் பாதை உரை"},
    {"தத்தல்", "தத்தல்_தேர்வு style_பின்னணி"},
    {"தத்தல்_உருப்படி", "அழுத்தினால் உரை"},
    {"பிரிப்பான்", "அகலம் உயரம் style_தடிமன் நிறம் style_நிறம்"},
    {"சுழல்_காட்டி", "style_அளவு style_தடிமன் style_நிறம்"},
    {"முன்னேற்றவரி", "அகலம் உயரம் நிறம் style_நிறம் மதிப்பு style_மதிப்பு"},
    {"தகவல்பட்டை", "அகலம் உயரம் செய்தி பின்னணி style_பின்னணி"},
    {"இவெ", "உயரம் அகலம்"},
};

struct RefusedRow {
    const char* widget;
    const char* key;
    const char* code;
};
const RefusedRow kRefused[] = {
    {"பொத்தான்", "பொபின்னணி", "பொழில்-201"}, {"பொத்தான்", "விரிவு", "பொழில்-201"},
    {"பொத்தான்", "கி_நகர்வு", "பொழில்-201"}, {"பொத்தான்", "நெ_நகர்வு", "பொழில்-201"},
    {"பொத்தான்", "உரைபாணி", "பொழில்-203"},  {"வட்டபடம்", "படம்", "பொழில்-203"},
    {"அடி_உருப்படி", "படம்", "பொழில்-203"}, {"பிரிப்பான்", "தடிமன்", "பொழில்-203"},
    {"படம்", "மூலம்", "பொழில்-201"},        {"அட்டை", "எலிவேஷன்", "பொழில்-115"},
};

/// A widget whose only item is this key, as the child of a column.
std::string childWith(const std::string& widget, const std::string& key) {
    return "நெடுவரிசை(" + widget + "(" + key + ": 5))\n";
}

/// The keys that the child of a column holds.
std::string storedKeys(const std::string& source) {
    const WidgetSource parsed(source);
    std::string text;
    for (const auto& property : parsed.child().properties) text += property.first;
    return text;
}

TEST(PropertyKey, OfAGenericWidgetIsStoredUnderItsOwnText) {
    int count = 0;
    for (const KeysRow& row : kStored) {
        std::istringstream keys(row.keys);
        for (std::string key; keys >> key; count++) {
            EXPECT_EQ(storedKeys(childWith(row.widget, key)), key) << row.widget << " " << key;
        }
    }
    EXPECT_EQ(count, 135);
}

/// One word for each kind that may be a key; அழுத்தினால் is a step of its own.
TEST(PropertyKey, MayBeAWordOfTwentyFiveKinds) {
    std::istringstream keys(
        "மொழி தலைப்பு அழுத்தினால் உரை உயரம் அகலம் குறிப்பு தத்தல்_தேர்வு அடிப்பகுதிதேர்வு பின்னணி "
        "பெட்டிபின்னணி தேர்வு_நிறம் தேர்வற்ற_நிறம் வளைவு நிழல் விகிதம் கரை_அளவு கரை_நிறம் பக்கம் "
        "எழுத்து_நிறம் தேடல்_குறிப்பு தேடல்_படம் அழி_படம் களப்பின்னணி எழுத்தளவு");
    int count = 0;
    for (std::string key; keys >> key; count++) {
        EXPECT_EQ(WidgetSource("உரை(\n" + key + ": 5\n, \"அ\")").keys(), key == "உரை" ? "உரை"
                                                                         : key < "உரை"
                                                                             ? key + " உரை"
                                                                             : "உரை " + key)
            << key;
    }
    EXPECT_EQ(count, 25);
}

TEST(PropertyKey, OfAnyOtherKindIsNotStored) {
    const TokenType kinds[] = {TokenType::IDENTIFIER,
                               TokenType::TITLE,
                               TokenType::TEXT,
                               TokenType::HEIGHT,
                               TokenType::WIDTH,
                               TokenType::HINT,
                               TokenType::TAB_SELECTION,
                               TokenType::BACKGROUND,
                               TokenType::BOTTOM_SELECTION,
                               TokenType::BOX_BACKGROUND,
                               TokenType::CORNER_CURVE,
                               TokenType::SELECTED_COLOUR,
                               TokenType::UNSELECTED_COLOUR,
                               TokenType::SHADOW,
                               TokenType::ASPECT_RATIO,
                               TokenType::BORDER_SIZE,
                               TokenType::BORDER_COLOUR,
                               TokenType::PAGE,
                               TokenType::TEXT_COLOUR,
                               TokenType::SEARCH_HINT,
                               TokenType::SEARCH_IMAGE,
                               TokenType::CLEAR_IMAGE,
                               TokenType::FONT_SIZE,
                               TokenType::FIELD_BACKGROUND};
    for (int kind = 0; kind < 144; kind++) {
        const auto type = static_cast<TokenType>(kind);
        const bool isKey = std::find(std::begin(kinds), std::end(kinds), type) != std::end(kinds);
        Parser parser = parserOver(scanAs(type, {"abc"}, "மாற்றி(abc: 5)"));
        bool isStored = false;
        try {
            const auto widget = parser.parseWidget();
            isStored = dynamic_cast<const WidgetNode&>(*widget).properties.count("abc") == 1;
        } catch (const Refusal&) {
            isStored = false;
        }
        EXPECT_EQ(isStored, isKey) << kind;
    }
}

TEST(PropertyKey, WhoseKindNoItemTakesIsRefused) {
    for (const RefusedRow& row : kRefused) {
        EXPECT_EQ(refusalOf(childWith(row.widget, row.key)), row.code)
            << row.widget << " " << row.key;
    }
}

TEST(PropertyKey, OfAListItemMayBeAnyWord) {
    std::istringstream keys("தலைப்பு துணைத்_தலைப்பு முன்னணி அகலம் உயரம் வளைவு பின்னணி அழுத்தினால்");
    for (std::string key; keys >> key;) {
        EXPECT_EQ(storedKeys(childWith("பட்டியல்_உருப்படி", key)), key);
    }
    EXPECT_EQ(refusalOf(childWith("பட்டியல்_உருப்படி", "பின்னணி_விட்ஜெட்")), "பொழில்-115");
}

TEST(PropertyKey, OfACardIsAPlainWord) {
    for (const char* key : {"style_அகலம்", "style_உயரம்", "style_வளைவு", "style_பின்னணி", "style_நிறம்",
                            "அடையாளம்", "காட்சி_பெயர்"}) {
        EXPECT_EQ(storedKeys(childWith("அட்டை", key)), key);
    }
    for (const char* key : {"அகலம்", "உயரம்", "வளைவு", "பின்னணி"}) {
        EXPECT_EQ(storedKeys(childWith("அட்டை", key)), "") << key;
    }
}

TEST(PropertyKey, OfAnAlertIsAPlainWord) {
    for (const char* key : {"style_அகலம்", "style_வளைவு", "style_நிழல்", "செய்தி"}) {
        EXPECT_EQ(storedKeys(childWith("எச்சரிக்கை", key)), key);
    }
    for (const char* key : {"அகலம்", "உயரம்", "பின்னணி"}) {
        EXPECT_EQ(storedKeys(childWith("எச்சரிக்கை", key)), "") << key;
    }
}

struct LayoutKeyRow {
    const char* widget;
    const char* key;
    const char* stored;  ///< "" if the key is passed over.
};
const LayoutKeyRow kLayoutKeys[] = {
    {"நெடுவரிசை", "இடைவெளி", "இடைவெளி"},
    {"நெடுவரிசை", "style_அகலம்", "style_அகலம்"},
    {"நெடுவரிசை", "அகலம்", "அகலம்"},
    {"நெடுவரிசை", "உயரம்", "உயரம்"},
    {"நெடுவரிசை", "உருளும்பட்டை", "உருளும்பட்டை"},
    {"கிடைவரிசை", "இடைவெளி", "இடைவெளி"},
    {"கிடைவரிசை", "style_உயரம்", "style_உயரம்"},
    {"கிடைவரிசை", "அகலம்", "அகலம்"},
    {"கிடைவரிசை", "உருளும்பட்டை", "உருளும்பட்டை"},
    {"மடிப்பு", "இடைவெளி", "இடைவெளி"},
    {"பட்டியல்_காட்சி", "அடையாளம்", "அடையாளம்"},
    {"பெட்டி", "style_அகலம்", "style_அகலம்"},
    {"பெட்டி", "அகலம்", "அகலம்"},
    {"பெட்டி", "உயரம்", "உயரம்"},
    {"பெட்டி", "வளைவு", ""},
    {"பெட்டி", "நிழல்", ""},
    {"பெட்டி", "பின்னணி", ""},
    {"பெட்டி", "நிறம்", ""},
    {"பெட்டி", "பெட்டிபின்னணி", ""},
    {"பெட்டி", "மேம்படுத்தப்பட்ட_நிறம்", "மேம்படுத்தப்பட்ட_நிறம்"},
    {"பெட்டி", "பின்னணிபடம்", ""},
    {"பெட்டி", "விரிவு", ""},
    {"பெட்டி", "கி_நகர்வு", ""},
    {"பெட்டி", "நெ_நகர்வு", ""},
    {"பெட்டி", "அழுத்தினால்", "அழுத்தினால்"},
    {"பெட்டி", "விகிதம்", "ratio"},
    {"பெட்டி", "ratio", "ratio"},
    {"விரிவாக்கம்", "பங்கு", "flex"},
    {"விரிவாக்கம்", "flex", "flex"},
    {"விரிவாக்கம்", "அகலம்", ""},
    {"விரிவாக்கம்", "விகிதம்", ""},
    {"நெகிழ்வு", "flex", ""},
    {"வெற்றிடம்", "பங்கு", "flex"},
    {"வெற்றிடம்", "உயரம்", "உயரம்"},
    {"வெற்றிடம்", "அளவு", "உயரம்"},
    {"வெற்றிடம்", "அகலம்", "அகலம்"},
    {"வெற்றிடம்", "flex", "flex"},
    {"உரைபொத்தான்", "உரை", ""},
    {"உரைபொத்தான்", "style_நிறம்", "style_நிறம்"},
    {"உரைபொத்தான்", "அழுத்தினால்", "அழுத்தினால்"},
    {"உரைபொத்தான்", "அகலம்", ""},
    {"அறிவிப்பு_பட்டை", "செய்தி", "செய்தி"},
    {"அறிவிப்பு_பட்டை", "பின்னணி", "பின்னணி"},
    {"அறிவிப்பு_பட்டை", "நிறம்", "நிறம்"},
    {"அறிவிப்பு_பட்டை", "உரை", "உரை"},
    {"அறிவிப்பு_பட்டை", "அகலம்", ""},
    {"அறிவிப்பு_பட்டை", "காலம்", ""},
};

TEST(PropertyKey, OfALayoutWidgetIsItsOwnMatter) {
    for (const LayoutKeyRow& row : kLayoutKeys) {
        EXPECT_EQ(storedKeys(childWith(row.widget, row.key)), row.stored)
            << row.widget << " " << row.key;
    }
}

TEST(PropertyKey, OfAGridIsItsOwnMatter) {
    const LayoutKeyRow rows[] = {
        {"", "cols", "cols"},     {"", "குறுக்கு_எண்ணிக்கை", "cols"}, {"", "அகலம்", "width"},
        {"", "உயரம்", "height"},   {"", "அளவு", "height"},          {"", "கி_இவெ", "கி_இவெ"},
        {"", "நெ_இவெ", "நெ_இவெ"}, {"", "h_gap", "h_gap"},          {"", "width", "width"},
        {"", "நிறம்", ""},
    };
    for (const LayoutKeyRow& row : rows) {
        const std::string source = "கட்டம்_காட்சி(" + std::string(row.key) + ": 5)()\n";
        EXPECT_EQ(WidgetSource(source).keys(), row.stored) << row.key;
    }
}

}  // namespace
