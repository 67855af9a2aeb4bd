#include "driver/console_texts.h"

#include <chrono>
#include <iostream>
#include <thread>

const char* const kScanFailure =
    "\033[1;31m🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!\033[0m\n";
const char* const kParseFailure =
    "\033[1;31m🚨 (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!\033[0m\n";
const char* const kGenerateFailure =
    "\033[1;31m🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!\033[0m\n";

namespace {

constexpr auto kLetterPause = std::chrono::milliseconds(20);

const char* const kRule = "-------------------------------------------------------";

std::string repeated(const std::string& text, int times) {
    std::string row;
    for (int i = 0; i < times; i++) row += text;
    return row;
}

void printLabel(const std::string& label, const std::string& value) {
    std::cout << "    " << kWhite << label << kReset << ": " << value << "\n";
}

}  // namespace

void printVersionScreen() {
    std::string platform = "தெரியாத தளம்";
    platform = "Linux";

    const std::string edge = repeated("─", 46);
    std::cout << "\n" << kCyan << "  ┌" << edge << "┐\n";
    std::cout << "  │                  பொழில்                   │\n";
    std::cout << "  └" << edge << "┘" << kReset << "\n";
    std::cout << "        " << kYellow << "\"எளிய தமிழில், வலிய தொழில்நுட்பம்!\"" << kReset << "\n\n";

    printLabel("பதிப்பு      ", "மு-பதிப்பு - 0.2");
    printLabel("உருவாக்கம்    ", "Velanar (வேளாணர்)");
    printLabel("தளம்         ", platform + "\n");

    std::cout << kGreen;
    std::cout << "     முச்சங்கம் கண்டு அகிலம் ஆண்ட தாய்மொழி, இன்று நம்  மௌனத்தால் மறையக்கூடாது!  \n";
    std::cout << "     மொழியை இழந்தால் நம் முகவரியே அழிந்துவிடும்... விழித்தெழு! \n";
    std::cout << "     இனி தொழில்நுட்ப உலகையும் நம் தமிழால் ஆள்வோம்!" << kReset << "\n\n";
    std::cout.flush();
}

void printWebOpening() {
    std::cout << "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n";
    std::cout << kRule << std::endl;
    std::cout << "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    " << std::flush;
}

void printWebBuildStart() {
    std::cout << "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        " << std::endl;
    std::cout << "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      " << std::endl;
}

void printWebSuccess(const std::string& address) {
    std::cout << "வெற்றி!" << std::endl;
    std::cout << kRule << std::endl;
    std::cout << "🚀 " << kGreen << "உள்ளூர் சேவையகம் 6931-ல் கெத்தாக இயங்குகிறது..." << kReset << "\n";
    std::cout << "👉 " << kCyan << address << kReset << "\n";
    std::cout << "👀 கோப்பு கண்காணிக்கப்படுகிறது... (நிறுத்த Ctrl+C அழுத்தவும்)\n";
    std::cout << kRule << std::endl;
}

void printWebFailure() {
    std::cout << kRed << "தோல்வி! குறியீட்டில் உள்ள பிழைகளைச் சரிசெய்யவும்." << kReset << std::endl;
}

void printCompileBanner() {
    const std::string edge = repeated("─", 58);
    const std::string emptyLine = " │" + std::string(58, ' ') + "│";
    std::cout << kBlue;
    std::cout << " ┌" << edge << "┐" << std::endl;
    std::cout << emptyLine << std::endl;
    // Cyan runs on: the frame below the title takes it too.
    std::cout << " │" << std::string(20, ' ') << kCyan << "பொ ழி ல்" << std::string(23, ' ') << "│"
              << std::endl;
    std::cout << emptyLine << std::endl;
    std::cout << " └" << edge << "┘" << std::endl;
    std::cout << kGreen << "    [ பதிப்பு: 0.2-முதல்_பதிப்பு | படைப்பாளி: Velanar ]" << kReset << "\n"
              << std::endl;
}

void animateCompilation(std::string filename) {
    const std::string title = "✨ பொழில் -> " + filename + " தொகுக்கப்படுகிறது...";
    std::cout << kCyan;
    for (const char byte : title) {
        std::cout << byte << std::flush;
        std::this_thread::sleep_for(kLetterPause);
    }
    std::cout << kReset << std::endl;
}

void tellOfMissingTool(const std::string& program, const std::string& package) {
    std::cerr << "பிழை: நிரலைத் தொகுக்கத் தேவையான " << program
              << " இந்தக் கணினியில் கிடைக்கவில்லை! நிறுவ: sudo apt install " << package << std::endl;
}
