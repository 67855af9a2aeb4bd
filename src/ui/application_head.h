// What a program's heads say of the window and the first page.
#pragma once

#include <string>

#include "syntax/application.h"
#include "syntax/node.h"

struct ApplicationHead {
    bool isApplication = false;  ///< False for a console program.
    std::string initialPage = "home";
    std::string title = "Pozhil App";
    float width = 1280.0F;  ///< Pixels.
    float height = 720.0F;  ///< Pixels.
};

/// Walks the top level once. Window and title are the first application's. The first page is the
/// first application's that names one, or the last one marked as the start.
ApplicationHead readApplicationHead(const Program& program);
