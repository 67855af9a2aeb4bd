// The web road, from the generated text on: build, serve, watch.
#pragma once

#include <string>

#include "driver/web_build.h"
#include "syntax/node.h"

/// Builds the application, opens the browser if that succeeded, and serves and watches in either
/// case. Ends only with the process; throws std::filesystem::filesystem_error if the source
/// vanishes.
[[noreturn]] void takeWebRoad(const Program& program, const std::string& code,
                              const std::string& sourcePath, const WebBuild& build);
