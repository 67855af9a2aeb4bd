// The web road by the command line, with an em++ that does as it is told. It serves on its own
// port, so these tests never run side by side.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "driver/live_process.h"
#include "driver/workplace.h"
#include "web/client.h"

inline constexpr int kPort = 6931;

inline const std::string kOpening =
    "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n"
    "-------------------------------------------------------\n"
    "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    ";
inline const std::string kGenerated =
    "முடிந்தது\n"
    "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... முடிந்தது\n";
inline const std::string kBuildStart =
    "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        \n"
    "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      \n";
inline const std::string kSuccess =
    "வெற்றி!\n"
    "-------------------------------------------------------\n"
    "🚀 \033[1;32mஉள்ளூர் சேவையகம் 6931-ல் கெத்தாக இயங்குகிறது...\033[0m\n"
    "👉 \033[1;36mhttp://localhost:6931/\033[0m\n"
    "👀 கோப்பு கண்காணிக்கப்படுகிறது... (நிறுத்த Ctrl+C அழுத்தவும்)\n"
    "-------------------------------------------------------\n"
    "🌍 பிரவுசர் தானாகவே திறக்கப்படுகிறது...\n";
inline const std::string kBuildFailure =
    "\n\033[1;31m🚨 (பொழில்-404): நிரலைத் தொகுப்பதில் (Compilation) சிக்கல்!\033[0m\n"
    "\033[1;33m💡 குறிப்பு: உமது பொழிலின் கட்டமைப்பை (Syntax) ஒருமுறை சரிபார்க்கவும்.\033[0m\n";
inline const std::string kFailure = "\033[1;31mதோல்வி! குறியீட்டில் உள்ள பிழைகளைச் சரிசெய்யவும்.\033[0m\n";
inline const std::string kFarewell = "\n👋 சேவையகம் நிறுத்தப்பட்டது \n";
inline const std::string kChanged = "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது...\n";
inline const std::string kRenewed = "✅ தளம் புதுப்பிக்கப்பட்டது! பிரவுசரில் பார்க்கவும்.\n";

inline const std::string kFirstPart = kOpening + kGenerated + kBuildStart;
inline constexpr auto kTwoPolls = std::chrono::milliseconds(1200);

class WebRoad : public Workplace {
protected:
    WebRoad() {
        std::filesystem::copy_file(
            std::filesystem::u8path(POZHIL_ROOT) / "உள்ளடக்கம்" / "template.html",
            home / "உள்ளடக்கம்" / "template.html");
        const std::string opened = (root / "opened").u8string();
        script("xdg-open",
               "echo \"$@\" >'" + opened + ".new'; mv '" + opened + ".new' '" + opened + "'");
        compilerBuilds("first");
        write("a.பொழில்", "அச்சிடு(1)\n");
    }

    /// An em++ whose output is the text `output`.
    void compilerBuilds(const std::string& output) const {
        script("em++", "for word; do file=$word; done\nprintf %s '" + output + "' >\"$file\"");
    }

    void compilerFails() const { script("em++", "exit 1"); }

    LiveProcess start(const std::vector<std::string>& arguments = {"--வலை", "a.பொழில்"}) const {
        std::vector<std::string> command = {compiler.u8string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return {command, work, environment(), root};
    }

    /// The loop takes the source's time once the server is started: a save before that is missed.
    static void waitForWatch() {
        Client client(kPort);
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    }

    /// Saves the source by a rename, so that the loop never reads it half written.
    void save(const std::string& text,
              std::filesystem::file_time_type::duration shift = std::chrono::hours(1)) {
        time += shift;
        write("new", text);
        std::filesystem::last_write_time(work / "new", time);
        std::filesystem::rename(work / "new", work / "a.பொழில்");
    }

    /// What the browser was asked to open; it is started in the background.
    std::string openedAddresses() const {
        for (int i = 0; i < 100 && !std::filesystem::exists(root / "opened"); i++) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return readFileText(root / "opened");
    }

    static std::string body(const std::string& path) {
        const std::string text = get(kPort, path);
        const std::size_t end = text.find("\r\n\r\n");
        return end == std::string::npos ? text : text.substr(end + 4);
    }

    static bool pageIsOf(const std::string& version) {
        return body("/").find("let currentVersion = " + version + ";") != std::string::npos;
    }

    std::filesystem::file_time_type time = std::filesystem::file_time_type::clock::now();
};
