// The boxed report and its sayings. Compiled into the compiler, and by the compiler's own build
// into the object that every generated program links. For that object's sake it also holds what
// those programs share: template instances, and the text that all of them carry, compiled. The
// report itself needs nothing but its header.
#include "error_handler.h"

#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

namespace {

const char* const kRed = "\033[1;31m";
const char* const kBlue = "\033[1;34m";
const char* const kCyan = "\033[1;36m";
const char* const kGold = "\033[1;93m";
const char* const kGreen = "\033[1;32m";
const char* const kDim = "\033[2;37m";
const char* const kReset = "\033[0m";

const char* classTitle(பிழைவகை kind) {
    switch (kind) {
        case LEXICAL_ERROR: return "சொல் பிழை";
        case SYNTAX_ERROR: return "இலக்கணப் பிழை";
        case SEMANTIC_ERROR: return "பொருள் பிழை";
        case OPERATION_ERROR: return "செயல்பாட்டுப் பிழை";
        case RUNTIME_ERROR: return "இயக்கநேரப் பிழை";
    }
    return "பிழை";
}

void printDimRule(const std::string& rule) {
    std::cout << kDim << "  " << rule << kReset << std::endl;
}

}  // namespace

void ErrorHandler::அறிக்கை(பிழைவகை kind, std::string code, std::string message, std::string file,
                          int line, std::string lineText, std::string fix) {
    const std::string rule(60, '-');

    std::cout << "\n" << kRed << rule << kReset << std::endl;
    std::cout << "  🚨 [ " << kGold << code << kReset << " ] :: " << kRed << classTitle(kind)
              << kReset << std::endl;
    std::cout << kRed << rule << kReset << std::endl;
    std::cout << "  " << kBlue << "📂 கோப்பு  " << kReset << ": " << file << std::endl;
    std::cout << "  " << kBlue << "📍 இடம்    " << kReset << ": வரி " << line << std::endl;
    printDimRule(rule);

    std::cout << kCyan << "  🔍 பிழை கண்டறியப்பட்ட பகுதி:" << kReset << std::endl;
    // One leading zero keeps the bar in its column up to line 99; longer numbers push it right.
    std::cout << (line > 9 ? "    " : "    0") << line << " |  " << lineText << std::endl;
    // The pointer never moves: a token has a line and no column.
    std::cout << "       |  " << kGold << "        ▲" << kReset << std::endl;
    std::cout << kRed << "       ╰── மச்சி, " << message << kReset << std::endl;
    printDimRule(rule);

    std::cout << kGreen << "  💡 சரி செய்யும் முறை:" << kReset << std::endl;
    std::cout << "     " << fix << std::endl;
    printDimRule(rule);

    std::cout << "  " << kGold << "✨ \"" << பொன்மொழி_பெறு() << "\"" << kReset << std::endl;
    printDimRule(rule);
    std::cout << std::endl;

    std::exit(1);
}

std::string ErrorHandler::பொன்மொழி_பெறு() {
    // The first twenty speak of programming, the others of Tamil. Their order means nothing else.
    static const std::vector<std::string> sayings = {
        "பிழைகளைக் கண்டு அஞ்சாதே, அவை உன்னைச் சிறந்த நிரலாளனாகச் செதுக்கும்!",
        "ஒரு வரியைத் திருத்துவது, உன் சிந்தனையைச் சீரமைப்பதற்குச் சமம்.",
        "நிரலாக்கம் என்பது ஒரு கலை; விடாமுயற்சியே அதன் தூரிகை.",
        "இன்று நீ சந்திக்கும் சிக்கலே நாளை உனக்கான அனுபவ அறிவு.",
        "உலகின் மிகப்பெரிய மென்பொருளும் ஒரு சிறிய பிழைத் திருத்தத்தில் தொடங்கியது.",
        "தர்க்க ரீதியான தேடலே ஒரு சிறந்த தீர்வைத் தரும்.",
        "உன் பொழில் பிழை இல்லாமல் ஓடும்போது கிடைக்கும் மகிழ்ச்சியே அலாதியானது.",
        "பிழையைத் தேடிப்பிடிப்பதில் தான் ஒரு நிரலாளனின் திறமை ஒளிந்திருக்கிறது.",
        "சிந்தனை தெளிந்தால், சிக்கல் மறைந்து சீரான பொழில் பிறக்கும்.",
        "நிரலாக்கம் என்பது கணினியோடு நீ பேசும் ஒரு கவிதை.",
        "கடினமான பிழைகளைத் தீர்க்கும்போதுதான் உன் மூளை இன்னும் கூர்மையடைகிறது.",
        "நேற்றைய பிழை இன்றைய பாடம், இன்றைய உழைப்பு நாளைய வெற்றி!",
        "பொழில் எழுதுவது எளிது; அதைச் சரியாகச் செதுக்குவதே சவால்.",
        "தோல்வி என்பது பொழில் ஓடாதது அல்ல, முயற்சியைக் கைவிடுவதுதான்.",
        "ஒரு சிறந்த நிரலாளர் என்பவன் அதிக பிழைகளைச் சரிசெய்தவனே!",
        "கணினி உன் கட்டளைக்கு அடிபணியும் வரை ஓயாதே.",
        "தேடல் உள்ள இடத்தில்தான் புதிய கண்டுபிடிப்புகள் பிறக்கும்.",
        "சிக்கலான தர்க்கங்களைச் சிதைத்து எளிமையாக்குவதே சிறந்த நிரலாக்கம்.",
        "உன் ஒவ்வொரு 'கம்பைல்' முயற்சியும் உன்னை இலக்கை நோக்கி நகர்த்துகிறது.",
        "பிழையைச் சரிசெய்வது என்பது ஒரு புதிர் விளையாட்டை வெல்வது போன்றது.",
        "கல் தோன்றி மண் தோன்றாக் காலத்தே முன் தோன்றிய மூத்த மொழி தமிழ்!",
        "எண்சுவடி கற்ற எம் முன்னோர் கண்ட கணிதமே இன்றைய கணினிக்கு அடித்தளம்.",
        "\"யாதும் ஊரே யாவரும் கேளிர்\" - உலகப் பொதுமறையைத் தந்த மொழி நம் தமிழ்.",
        "தமிழ் இனிமை மட்டுமல்ல, அது அறிவியலின் நுணுக்கமான கட்டமைப்பு.",
        "சங்க இலக்கியம் முதல் கணினித் தமிழ் வரை நம் மொழி என்றும் இளமையானது.",
        "இலக்கணம் வகுத்த தமிழ் மொழியில், உன் நிரலுக்கும் ஒரு இலக்கணம் உண்டு.",
        "உலக மொழிகளுக்குத் தாய் மொழி, நம் செம்மொழித் தமிழ்!",
        "வள்ளுவன் தந்த வான்மறை போல், உன் நிரலும் உலகிற்குப் பயன் தரட்டும்.",
        "தமிழ் மண்ணின் வீரம் உன் உழைப்பில் மிளிரட்டும்.",
        "கணித்தமிழ் வளர்ந்தால், உலகு எங்கும் தமிழன் புகழ் ஓங்கும்.",
        "செந்தமிழே! உயிரே! நறுந்தேனே! உன்னில் விளைவது அனைத்தும் இனிமையே.",
        "அன்னைத் தமிழில் அறிவியலை விதைப்போம், அகிலத்தைப் போற்ற வைப்போம்.",
        "தமிழ் எழுத்துக்களில் உள்ள சீர்மை, உன் நிரலின் கட்டமைப்பிலும் இருக்கட்டும்.",
        "மூவாயிரம் ஆண்டு வரலாறு கொண்ட மொழியில் புதிய தொழில்நுட்பத்தைப் படைப்போம்.",
        "தமிழன் என்றோர் இனமுண்டு, தனியே அவர்க்கொரு குணமுண்டு!",
        "கீழடி முதல் விண்வெளி வரை தமிழனின் தடம் பதியட்டும்.",
        "அறம் செய விரும்பு - அவ்வை தந்த ஞானமே நம் வாழ்வின் நெறி.",
        "தமிழ் அறிவுக்கடல், அதில் மூழ்கி முத்தெடுப்பது உன் அறிவுத்திறன்.",
        "தமிழால் இணைவோம், தொழில்நுட்பத்தால் உயர்வோம்.",
        "தமிழின் தொன்மை, உன் அறிவின் மேன்மைக்கு ஒரு சான்று.",
        "ஒரு சொல்லுக்குப் பல பொருள் தரும் தமிழ் போல், உன் பொழில் பல பயன் தரட்டும்.",
        "இயல், இசை, நாடகம் தாண்டி நான்காம் தமிழாக 'கணினித் தமிழ்' வளர்ப்போம்.",
        "எத்திசை செல்லினும் அத்திசை வெல்லும் ஆற்றல் தமிழனுக்கு உண்டு.",
        "திரைகடல் ஓடியும் திரவியம் தேடிய தமிழன் போல், அறிவைத் தேடி அலைவோம்.",
        "தமிழ் என்ற சொல்லே இனிமை; அதை நிரலாக்கும் போது இன்னும் பெருமை.",
        "பாரதி கண்ட புதுமைப் பெண் போல், புதுமையான தொழில்நுட்பங்களைப் படைப்போம்.",
        "தமிழின் வீச்சு எல்லை இல்லாதது, உன் இலக்கும் அப்படியே இருக்கட்டும்.",
        "பண்பாடு காப்போம், தொழில்நுட்பத்தைப் பயனுள்ளதாக்குவோம்.",
        "\"உள்ளுவதெல்லாம் உயர்வுள்ளல்\" - எப்போதும் உயரிய இலக்கை நோக்கிப் பயணி.",
        "தமிழ் வெல்லும், தமிழன் வெல்வான்; தொழில்நுட்பத் துறையிலும் தமிழ் ஆளும்!",
    };
    static std::random_device device;
    static std::mt19937 generator(device());

    std::uniform_int_distribution<int> pick(0, static_cast<int>(sayings.size()) - 1);
    return sayings[static_cast<std::size_t>(pick(generator))];
}

int ErrorHandler::visualWidth(std::string text) {
    int width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            i += 1;
            width += 1;
        } else if (lead <= 0xDF) {
            i += 2;
            width += 1;
        } else if (lead <= 0xEF) {
            i += 3;
            width += 1;
        } else {
            i += 4;
            width += 2;
        }
    }
    return width;
}

// Who makes the object anew is told by a note beside the warmed header that programs count on what
// it holds. Without one nobody does, and they would only ask of libstdc++ what another version may
// not have: the note speaks of one version alone.
#if defined(POZHIL_WITH_INSTANCES) || defined(POZHIL_WITHOUT_INSTANCES)
// Whoever compiles this has decided.
#elif __has_include("nanovg/held_instances.h")
#include "nanovg/held_instances.h"
#if defined(__GLIBCXX__) && POZHIL_HELD_INSTANCES == __GLIBCXX__
#define POZHIL_WITH_INSTANCES
#endif
#endif

#ifdef POZHIL_WITH_INSTANCES
#define POZHIL_HELD [[gnu::used]] inline
#include "held_bodies.h"

#define POZHIL_INSTANCE template
#include "instances.h"
#undef POZHIL_INSTANCE

/// Tells scripts/warm_header.sh that this object holds them.
extern "C" int pozhil_instances;
int pozhil_instances = 1;
#endif
