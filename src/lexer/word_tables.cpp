#include "lexer/word_tables.h"

#include <algorithm>
#include <vector>

// A later row with a key that stands already is passed over: the first wins.

const std::unordered_map<std::string, TokenType> IF_KEYWORDS = {
    {"எனில்", TokenType::KEYWORD},
    {"இல்லைஎனில்", TokenType::KEYWORD},
    {"இல்லை", TokenType::KEYWORD},
};

const std::unordered_map<std::string, TokenType> WEB_KEYWORDS = {
    {"வலைதளம்", TokenType::WEB_APP},
    {"தரவுத்தளமேலாண்மை", TokenType::DATABASE_MANAGER},
    {"பயர்பேசு_அமைப்பு", TokenType::FIREBASE_CONFIG},
    {"தலைமை", TokenType::HEADER},
    {"குமரி", TokenType::BODY},
    {"வரையறை", TokenType::DEFINITIONS},
    {"நெடுவரிசை", TokenType::COLUMN},
    {"கிடைவரிசை", TokenType::ROW},
    {"அடுக்கி", TokenType::STACK},
    {"பட்டியல்_காட்சி", TokenType::LIST_VIEW},
    {"கட்டம்_காட்சி", TokenType::GRID_VIEW},
    {"குறுக்கு_எண்ணிக்கை", TokenType::CROSS_AXIS_COUNT},
    {"பெட்டி", TokenType::BOX},
    {"உள்_இவெ", TokenType::PADDING},
    {"உள்_இவே", TokenType::PADDING},
    {"இவெ", TokenType::SPACING},
    {"உயரம்", TokenType::HEIGHT},
    {"அளவு", TokenType::HEIGHT},
    {"அகலம்", TokenType::WIDTH},
    {"உரை", TokenType::TEXT},
    {"பொத்தான்", TokenType::BUTTON},
    {"பாணி", TokenType::STYLE},
    {"உரைபாணி", TokenType::STYLE},
    {"தடிமன்", TokenType::STYLE},
    {"உரைசீரமைப்பு", TokenType::STYLE},
    {"அடிக்குறிப்பு", TokenType::STYLE},
    {"பொ_பாணி", TokenType::BUTTON_STYLE},
    {"பொபின்னணி", TokenType::BUTTON_BACKGROUND},
    {"எழுத்து_நிறம்", TokenType::TEXT_COLOUR},
    {"வளைவு", TokenType::CORNER_CURVE},
    {"நிழல்", TokenType::SHADOW},
    {"அழுத்தினால்", TokenType::ON_PRESS},
    {"உரைபொத்தான்", TokenType::TEXT_BUTTON},
    {"உரைபொ_பாணி", TokenType::TEXT_BUTTON_STYLE},
    {"தேர்வுபெட்டி", TokenType::CHECK_BOX},
    {"மாற்றி", TokenType::TOGGLE},
    {"வட்டத்தேர்வு", TokenType::RADIO},
    {"அளவி", TokenType::SLIDER},
    {"கீழ்வரி", TokenType::UNDERLINE},
    {"படம்", TokenType::IMAGE},
    {"மூலம்", TokenType::SOURCE},
    {"எழுத்துரு", TokenType::SOURCE},
    {"பெட்டி_பாணி", TokenType::BOX_STYLE},
    {"பெட்டிபின்னணி", TokenType::BOX_BACKGROUND},
    {"பின்னணி", TokenType::BACKGROUND},
    {"நிறம்", TokenType::BACKGROUND},
    {"விகிதம்", TokenType::ASPECT_RATIO},
    {"விரிவாக்கம்", TokenType::EXPANDED},
    {"நெகிழ்வு", TokenType::FLEXIBLE},
    {"வெற்றிடம்", TokenType::EMPTY_SPACE},
    {"பங்கு", TokenType::SHARE},
    {"வட்டபடம்", TokenType::ROUND_IMAGE},
    {"கரை_நிறம்", TokenType::BORDER_COLOUR},
    {"கரை_அளவு", TokenType::BORDER_SIZE},
    {"எச்சரிக்கை", TokenType::ALERT},
    {"அடிப்பகுதி", TokenType::BOTTOM_BAR},
    {"அடி_உருப்படி", TokenType::BOTTOM_ITEM},
    {"அடிப்பகுதிதேர்வு", TokenType::BOTTOM_SELECTION},
    {"தேர்வு_நிறம்", TokenType::SELECTED_COLOUR},
    {"தேர்வற்ற_நிறம்", TokenType::UNSELECTED_COLOUR},
    {"தத்தல்", TokenType::TAB_BAR},
    {"தத்தல்_உருப்படி", TokenType::TAB_ITEM},
    {"தத்தல்_தேர்வு", TokenType::TAB_SELECTION},
    {"பக்கம்", TokenType::PAGE},
    {"செல்க", TokenType::NAVIGATE},
    {"தலைப்பு", TokenType::TITLE},
    {"உரைபெட்டி", TokenType::TEXT_FIELD},
    {"தேடுபொறி", TokenType::TEXT_FIELD},
    {"குறிப்பு", TokenType::HINT},
    {"புதுப்பி", TokenType::REFRESH},
    {"பின்னணிபடம்", TokenType::BACKGROUND_IMAGE},
    {"பின்னணிகாணொளி", TokenType::BACKGROUND_VIDEO},
    {"அறிவிப்பு_பட்டை", TokenType::NOTICE_BAR},
    {"அட்டை", TokenType::CARD},
    {"அட்டை_பாணி", TokenType::CARD_STYLE},
    {"பட்டியல்_உருப்படி", TokenType::LIST_ITEM},
    {"எலிவேஷன்", TokenType::ELEVATION},
    {"தேடல்_பட்டை", TokenType::SEARCH_BAR},
    {"தேடல்_குறிப்பு", TokenType::SEARCH_HINT},
    {"தேடல்_படம்", TokenType::SEARCH_IMAGE},
    {"அழி_படம்", TokenType::CLEAR_IMAGE},
    {"தேடல்_பாணி", TokenType::SEARCH_STYLE},
    {"எச்சரிக்கை_பாணி", TokenType::ALERT_STYLE},
    {"களப்பின்னணி", TokenType::FIELD_BACKGROUND},
    {"எழுத்தளவு", TokenType::FONT_SIZE},
    {"நிகழ்நேர.தரவுசேர்", TokenType::RTDB_INSERT},
    {"நிகழ்நேர.தரவுமாற்று", TokenType::RTDB_UPDATE},
    {"நிகழ்நேர.தரவுஅழி", TokenType::RTDB_DELETE},
    {"நிகழ்நேர.தரவுபடி", TokenType::RTDB_READ},
    // Plain words to the grammar, which reads them by text.
    {"அடையாளம்", TokenType::IDENTIFIER},
    {"உருளும்பட்டை", TokenType::IDENTIFIER},
    {"கிஉருளும்பட்டை", TokenType::IDENTIFIER},
    {"கடவுமறை", TokenType::IDENTIFIER},
};

const std::unordered_map<std::string, TokenType> ANIMATION_KEYWORDS = {
    {"அசைவூட்டம்", TokenType::ANIMATION},
    {"காலம்", TokenType::DURATION},
    {"வகை", TokenType::ANIMATION_CURVE},
    {"இலக்கு", TokenType::TARGET},
    {"நிலைமை", TokenType::TRIGGER},
    {"சுட்டி_மேல்", TokenType::TRIGGER},
    {"தெளிவு", TokenType::FADE_IN},
    {"மறைவு", TokenType::FADE_OUT},
    {"விரிவு", TokenType::GROW},
    {"சுருக்கம்", TokenType::SHRINK},
    {"இடது_நழுவு", TokenType::SLIDE_LEFT},
    {"வலது_நழுவு", TokenType::SLIDE_RIGHT},
    {"மேல்_நழுவு", TokenType::SLIDE_UP},
    {"கீழ்_நழுவு", TokenType::SLIDE_DOWN},
    {"வலஞ்சுழி", TokenType::ROTATE_CLOCKWISE},
    {"இடஞ்சுழி", TokenType::ROTATE_ANTICLOCKWISE},
    {"கி_நகர்வு", TokenType::MOVE_HORIZONTAL},
    {"நெ_நகர்வு", TokenType::MOVE_VERTICAL},
    {"நிறம்", TokenType::ANIMATE_COLOUR},
    {"அகலம்", TokenType::ANIMATE_WIDTH},
    {"உயரம்", TokenType::ANIMATE_HEIGHT},
    {"வளைவு", TokenType::ANIMATE_CURVE},
    {"துள்ளல்", TokenType::BOUNCE},
    {"மீட்சி", TokenType::ELASTIC},
    {"மங்குநழுவு", TokenType::FADE_SLIDE},
    {"பறக்கும்", TokenType::FLY},
    {"மெல்ல_மாறு", TokenType::SOFT_SWITCH},
    {"தள்ளி_மாறு", TokenType::PUSH_SWITCH},
    {"விரிந்து_மாறு", TokenType::GROW_SWITCH},
};

const std::unordered_map<std::string, TokenType> OPERATOR_KEYWORDS = {
    {"கூட்டு", TokenType::OPERATOR},
    {"கழி", TokenType::OPERATOR},
    {"பெருக்கு", TokenType::OPERATOR},
    {"வகு", TokenType::OPERATOR},
    {"மீதி", TokenType::OPERATOR},
    {"சமம்", TokenType::OPERATOR},
    {"சமமில்லை", TokenType::OPERATOR},
    {"பெரிது", TokenType::OPERATOR},
    {"சிறிது", TokenType::OPERATOR},
    {"பெரிதுசமம்", TokenType::OPERATOR},
    {"சிறிதுசமம்", TokenType::OPERATOR},
    {"மற்றும்", TokenType::OPERATOR},
    {"அல்லது", TokenType::OPERATOR},
    {"இணை", TokenType::OPERATOR},
    {"பெருக்குஇருமை", TokenType::OPERATOR},
    {"கூட்டுஇருமை", TokenType::OPERATOR},
    {"வேறுஇருமை", TokenType::OPERATOR},
    {"இடதுஇருமை", TokenType::OPERATOR},
    {"வலதுஇருமை", TokenType::OPERATOR},
    {"ஒன்றுசேர்", TokenType::ASSIGN_OPERATOR},
    {"ஒன்றுகழி", TokenType::ASSIGN_OPERATOR},
};

const std::unordered_map<std::string, TokenType> ASSIGN_KEYWORDS = {
    {"கூட்டிசேர்", TokenType::ASSIGN_OPERATOR},   {"கழிசேர்", TokenType::ASSIGN_OPERATOR},
    {"பெருக்குசேர்", TokenType::ASSIGN_OPERATOR}, {"வகுசேர்", TokenType::ASSIGN_OPERATOR},
    {"மீதிசேர்", TokenType::ASSIGN_OPERATOR},     {"பெஇசேர்", TokenType::ASSIGN_OPERATOR},
    {"கூட்டுஇசேர்", TokenType::ASSIGN_OPERATOR},  {"வேஇசேர்", TokenType::ASSIGN_OPERATOR},
    {"இடதுஇசேர்", TokenType::ASSIGN_OPERATOR},   {"வலதுஇசேர்", TokenType::ASSIGN_OPERATOR},
};

// Shadowed by OPERATOR_KEYWORDS, so these two kinds never reach the parser. Meant.
const std::unordered_map<std::string, TokenType> INC_DEC_KEYWORDS = {
    {"ஒன்றுசேர்", TokenType::INCREMENT},
    {"ஒன்றுகழி", TokenType::DECREMENT},
};

const std::unordered_map<std::string, TokenType> kFirstWords = {
    {"அச்சிடு", TokenType::KEYWORD},
    {"சுற்று", TokenType::KEYWORD},
    {"காத்திரு", TokenType::KEYWORD},
    {"இப்போதுநேரம்", TokenType::KEYWORD},
    {"தேர்வு", TokenType::KEYWORD},
    {"நிலை", TokenType::KEYWORD},
    {"மற்றவை", TokenType::KEYWORD},
    {"ஒவ்வொன்றாக", TokenType::KEYWORD},
    {"இல்", TokenType::KEYWORD},
    {"வரம்பு", TokenType::KEYWORD},
    {"நிறுத்து", TokenType::KEYWORD},
    {"தொடர்", TokenType::KEYWORD},
    {"வகை", TokenType::KEYWORD},
    {"விடு", TokenType::KEYWORD},

    {"ரகசிய", TokenType::PRIVATE},
    {"ரகசியம்", TokenType::PRIVATE},

    {"பொது", TokenType::KEYWORD},
    {"முயற்சி", TokenType::KEYWORD},
    {"பிடி", TokenType::KEYWORD},
    {"வடிவமைப்பு", TokenType::KEYWORD},
    {"கட்டமைப்பு", TokenType::KEYWORD},
    {"செயல்", TokenType::KEYWORD},
    {"மாற்று", TokenType::KEYWORD},
    {"திரும்பு", TokenType::KEYWORD},
    {"வினை", TokenType::KEYWORD},
    {"நூஇறக்கி", TokenType::KEYWORD},

    {"புதுப்பி", TokenType::REFRESH},
    {"சுட்டி_மேல்", TokenType::TRIGGER},
    {"மூலம்", TokenType::KEYWORD},
    {"எதிர்இருமை", TokenType::BIT_NOT},
    {"மெய்", TokenType::BOOLEAN},
    {"பொய்", TokenType::BOOLEAN},
    {"உரைசீரமைப்பு", TokenType::IDENTIFIER},
    {"அடையாளம்", TokenType::IDENTIFIER},
    {"மிகை", TokenType::UNARY_PLUS},
    {"குறை", TokenType::UNARY_MINUS},
};

namespace {

using Words = std::unordered_map<std::string_view, TokenType>;

/// All tables in one. The order in which they are entered is part of the language: a word keeps
/// its first kind, which makes some rows of the later tables unreachable.
Words mergeTables() {
    Words words;
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &WEB_KEYWORDS, &ANIMATION_KEYWORDS,
                              &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS, &INC_DEC_KEYWORDS}) {
        words.insert(table->begin(), table->end());
    }
    return words;
}

const Words& allWords() {
    static const Words words = mergeTables();
    return words;
}

/// The words that have a kind of their own, sorted: those that begin alike stand together.
const std::vector<std::string_view>& wordsOfAKind() {
    static const std::vector<std::string_view> sorted = [] {
        std::vector<std::string_view> words;
        words.reserve(allWords().size());
        for (const auto& [word, kind] : allWords()) {
            if (kind != TokenType::IDENTIFIER) words.push_back(word);
        }
        std::sort(words.begin(), words.end());
        return words;
    }();
    return sorted;
}

}  // namespace

TokenType lookUpWord(std::string_view word) {
    const auto found = allWords().find(word);
    return found == allWords().end() ? TokenType::IDENTIFIER : found->second;
}

bool beginsLongerWord(std::string_view word) {
    const std::vector<std::string_view>& words = wordsOfAKind();
    const auto longer = std::upper_bound(words.begin(), words.end(), word);
    return longer != words.end() && longer->substr(0, word.size()) == word;
}
