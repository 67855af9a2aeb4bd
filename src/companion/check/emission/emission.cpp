// The check of what is written: walks until nothing more becomes known, and once more to tell.
#include "companion/check/check.h"
#include "companion/check/emission/walk.h"
#include "driver/phases.h"

namespace companion {

namespace {

/// Each walk can only add kinds; a program needs a few. One that needs more is left alone.
constexpr int kMaxWalks = 60;

}  // namespace

void checkEmission(const CompiledSource& compiled, Findings& findings) {
    Knowledge knowledge;
    knowledge.isApplication = holdsWebApp(compiled.program);
    int walks = 0;
    for (const bool isComplete : {false, true}) {
        knowledge.isComplete = isComplete;
        do {
            if (++walks > kMaxWalks) return;
            EmissionWalk(compiled, knowledge, nullptr).walkProgram();
        } while (knowledge.takeGrowth());
    }
    EmissionWalk(compiled, knowledge, &findings).walkProgram();
}

}  // namespace companion
