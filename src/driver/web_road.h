// The web road, from the generated text on: build, serve, watch.
#pragma once

#include <string>

#include "driver/web_build.h"
#include "syntax/node.h"

/// Where the development server answers.
constexpr int kServerPort = 6931;

/// The web road's handler of SIGINT: ends em++ if it runs, says goodbye and ends the process with
/// status 0. Whichever thread it interrupts, it waits for none and takes nothing down that another
/// may be using.
void signal_handler(int signal);

/// Prints the opening of the road; from here on Ctrl+C says goodbye.
void openWebRoad();

/// Builds the application, opens the browser if that succeeded, and serves and watches in either
/// case. Ends only with the process; throws std::filesystem::filesystem_error if the source
/// vanishes.
[[noreturn]] void takeWebRoad(const Program& program, const std::string& code,
                              const std::string& sourcePath, const WebBuild& build);
