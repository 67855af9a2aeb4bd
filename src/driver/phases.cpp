#include "driver/phases.h"

#include <algorithm>

#include "syntax/application.h"

bool holdsWebApp(const Program& program) {
    return std::any_of(program.statements.begin(), program.statements.end(),
                       [](const auto& node) { return nodeAs<WebAppNode>(node.get()) != nullptr; });
}
