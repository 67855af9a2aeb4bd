// The whole text of a widget in tests/widgets, by the name of its case: "box_sized".
#pragma once

#include <stdexcept>
#include <string>

#include "emitted/widgets/program.h"

namespace application {

inline void (*blockNamed(const std::string& name))() {
    for (const Block* each = kBlocks; each->name != nullptr; each++) {
        if (name == each->name) return each->draw;
    }
    throw std::invalid_argument("no block " + name);
}

}  // namespace application
