#include "driver/web_road.h"

#include <unistd.h>

#include <csignal>
#include <iostream>
#include <string_view>
#include <thread>

#include "driver/console_texts.h"
#include "driver/local_server.h"
#include "driver/processes.h"
#include "driver/watch.h"

namespace {

void openBrowser(const std::string& address) {
    std::cout << "🌍 பிரவுசர் தானாகவே திறக்கப்படுகிறது..." << std::endl;
    run_command("xdg-open " + address + " > /dev/null 2>&1 &");
}

}  // namespace

void signal_handler(int) {
    constexpr std::string_view kFarewell = "\n👋 சேவையகம் நிறுத்தப்பட்டது \n";
    if (!startEnding()) return;
    if (write(STDOUT_FILENO, kFarewell.data(), kFarewell.size()) < 0) {
        // Nobody hears it: the end comes all the same.
    }
    endCommands();
    _exit(0);
}

void openWebRoad() {
    std::signal(SIGINT, signal_handler);
    printWebOpening();
}

void takeWebRoad(const Program& program, const std::string& code, const std::string& sourcePath,
                 const WebBuild& build) {
    printWebBuildStart();
    if (buildWebApplication(program, code, build)) {
        const std::string address = "http://localhost:" + std::to_string(kServerPort) + "/";
        printWebSuccess(address);
        // Before the server listens: the browser's first request may come a moment early. Meant.
        openBrowser(address);
    } else {
        printWebFailure();
    }
    std::thread(startLocalServer, kServerPort).detach();
    watchWebApplication(sourcePath, build);
}
