#include "companion/check/check.h"

#include "companion/check/corrections.h"
#include "companion/check/rules.h"

namespace companion {

namespace {

/// A refusal in the compiler's own words; a module's is told at its import.
void addReport(const CompiledSource& compiled, Findings& findings) {
    const Refused& refused = *compiled.refused;
    std::string message = refused.message + " " + refused.fix;
    if (refused.isInModule) {
        message = "இந்த நூலின் " + std::to_string(refused.moduleLine) + "-ஆம் வரியில்: " + message;
    }
    findings.add(Severity::Error, refused.code, refused.range, message, correctionOf(compiled));
}

/// The compiler prints one fixed line for it. Left out where a rule of our own told it better.
void addHiddenRefusal(const Refused& refused, Findings& findings) {
    if (findings.hasErrors()) return;
    findings.add("துணை-200", refused.range, {refused.message});
}

}  // namespace

std::vector<Finding> checkSource(const SourceText& source, const ModuleReader& readModule) {
    return checkSource(CompiledSource(source, readModule));
}

std::vector<Finding> checkSource(const CompiledSource& compiled) {
    Findings findings(compiled.source);
    checkMarks(compiled.source, findings);
    if (compiled.isScanned()) checkWords(compiled, findings);
    if (compiled.isParsed()) {
        checkCalls(compiled, findings);
        checkEmission(compiled, findings);
        checkHabits(compiled, findings);
    }
    if (compiled.refused) {
        if (compiled.refused->code.empty()) {
            addHiddenRefusal(*compiled.refused, findings);
        } else {
            addReport(compiled, findings);
        }
    }
    return findings.inOrder();
}

}  // namespace companion
