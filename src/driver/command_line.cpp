#include "driver/command_line.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "driver/console_texts.h"
#include "driver/paths.h"

namespace {

bool defaultSourceOpens() { return std::ifstream(std::filesystem::u8path(kDefaultSource)).good(); }

bool isVersionArgument(const std::string& argument) {
    return std::any_of(std::begin(kVersionOptions), std::end(kVersionOptions),
                       [&](const char* option) { return argument == option; });
}

}  // namespace

std::optional<int> readCommandLine(const std::vector<std::string>& arguments, RunState& run) {
    if (arguments.empty() && !defaultSourceOpens()) {
        std::cerr << "பிழை: இயலவில்லை! \n";
        std::cerr << "பயன்பாடு: ./பொழில் <கோப்புப்பெயர்.பொழில்>\n";
        std::cerr << "அல்லது 'முதன்மை.பொழில்' என்ற கோப்பை உருவாக்கவும்.\n";
        return 1;
    }

    for (const std::string& argument : arguments) {
        if (isVersionArgument(argument)) {
            printVersionScreen();
            return 0;
        }
        if (argument == kWebOption) {
            run.webMode = true;
        } else if (argument == kWatchOption) {
            run.watchMode = true;
        } else if (hasEnding(argument, kExtension)) {
            run.sourcePath = argument;
        }
        // Anything else is passed over: a path with another extension is as good as none. Meant.
    }
    if (!run.sourcePath.empty()) return std::nullopt;

    if (!defaultSourceOpens()) {
        std::cerr << "பிழை: செல்லாத கோப்பு அல்லது கோப்பு இல்லை! ❌\n";
        return 1;
    }
    run.sourcePath = kDefaultSource;
    std::cout << "ℹ️ "
                 "கோப்புப் பெயர் தரப்படவில்லை. தானாகவே 'முதன்மை.பொழில்' எடுக்கப்படுகிறது...\n";
    return std::nullopt;
}
