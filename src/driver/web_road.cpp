#include "driver/web_road.h"

#include <csignal>
#include <iostream>
#include <thread>

#include "driver/console_texts.h"
#include "driver/local_server.h"
#include "driver/paths.h"
#include "driver/watch.h"

namespace {

constexpr int kPort = 6931;

void openBrowser(const std::string& address) {
    std::cout << "🌍 பிரவுசர் தானாகவே திறக்கப்படுகிறது..." << std::endl;
    run_command("xdg-open " + address + " > /dev/null 2>&1 &");
}

void serve() {
    std::signal(SIGINT, signal_handler);
    startLocalServer(kPort);
}

}  // namespace

void takeWebRoad(const Program& program, const std::string& code, const std::string& sourcePath,
                 const WebBuild& build) {
    printWebBuildStart();
    if (buildWebApplication(program, code, build)) {
        const std::string address = "http://localhost:" + std::to_string(kPort) + "/";
        printWebSuccess(address);
        // Before the server listens: the browser's first request may come a moment early. Meant.
        openBrowser(address);
    } else {
        printWebFailure();
    }
    std::thread(serve).detach();
    watchWebApplication(sourcePath, build);
}
