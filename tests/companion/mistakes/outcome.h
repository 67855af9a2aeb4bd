// What really comes of a source: by the compiler's library, by g++, by running it.
#pragma once

#include <string>

#include "mistakes/mistake.h"
#include "support/subprocess.h"

/// What the compiler says of the source: "refused", "hidden" or, if nothing, "taken" with the
/// generated text. Imports are looked for in the working directory.
struct FrontEndOutcome {
    Truth truth;
    std::string text;
};
FrontEndOutcome compileSource(const std::string& source);

/// True if g++ takes the generated text; an application's behind stand-ins for the browser's
/// headers.
bool nativeCompilerTakes(const Mistake& mistake, const std::string& text);

/// What came of a program that ran; "runs" if nothing ended it before its end.
Truth outcomeOf(const ProcessResult& ran);
