#include "driver/native_build.h"

#include <filesystem>
#include <iostream>

#include "driver/cache.h"
#include "driver/console_texts.h"
#include "driver/paths.h"
#include "driver/processes.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kNativeLockName = "தொகுப்பு_பூட்டு";

/// The diagnostics object that every program links. Never rebuilt while it exists, whatever the
/// age of its source; its status isn't looked at, since the link fails without it.
void buildReportObject(const std::string& appDirectory, const std::string& object,
                       const std::string& includeDirectory) {
    if (fileExists(object)) return;
    std::cout << "⚙️ "
                 "சிஸ்டம் ஆப்ஜெக்ட் ஃபைல் புதிதாக உருவாக்கப்படுகிறது...\n";
    run_command("g++ -c " + inQuotes(appDirectory + "/src/error_handler.cpp") + " -o " +
                inQuotes(object) + " -std=c++17 -I" + inQuotes(includeDirectory));
}

}  // namespace

bool compileProgram(const NativeBuild& build, const std::string& executable,
                    const std::string& options) {
    if (!isInstalled("g++")) {
        tellOfMissingTool("g++", "g++");
        return false;
    }
    const std::string includeDirectory = getSafeMinGWPath(build.appDirectory + "/உள்ளடக்கம்");
    const std::string objectDirectory = getSafeMinGWPath(build.appDirectory + "/திரட்டு");
    const std::string source = getSafeMinGWPath(build.generatedPath);
    const std::string object = objectDirectory + "/error_handler_native_linux.o";

    buildReportObject(build.appDirectory, object, includeDirectory);

    const int status =
        run_command("g++ " + inQuotes(source) + " " + inQuotes(object) + " -o " +
                    inQuotes(executable) + " -std=c++17 -I" + inQuotes(includeDirectory) + " -I" +
                    inQuotes(includeDirectory + "/nanovg") +
                    " -static -static-libstdc++ -static-libgcc -lm -lpthread" + options);
    if (status != 0) tellOfFullDisk({build.cacheDirectory, objectDirectory});
    return status == 0;
}

bool storeGeneratedText(const NativeBuild& build, const std::string& code) {
    const CacheTurn turn(build.cacheDirectory, kNativeLockName);
    return writeWhole(build.generatedPath, code);
}

bool buildNativeProgram(const NativeBuild& build, const std::string& code) {
    const std::string executable = build.cacheDirectory + "/பொழில்_செயலி";
    const std::string freshExecutable = build.cacheDirectory + "/pozhil_temp_app";

    CacheTurn turn(build.cacheDirectory, kNativeLockName);
    if (!writeWhole(build.generatedPath, code)) return false;
    if (!compileProgram(build, freshExecutable)) {
        std::cerr << kRed << "பிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி." << kReset
                  << std::endl;
        return false;
    }

    // Swap by rename: a failed build never gets here, so the last good executable stays.
    std::error_code ignored;
    fs::remove(fs::u8path(executable), ignored);
    fs::rename(fs::u8path(freshExecutable), fs::u8path(executable), ignored);
    runProgram(executable, [&] { turn.end(); });
    return true;
}
