// What really comes of a source: by the compiler's library, by g++, by running it.
#pragma once

#include <string>
#include <vector>

#include "mistakes/mistake.h"

/// What the compiler says of the source, whose imports are looked for in its folder: "refused",
/// "hidden" or, if nothing, "taken" with the generated text.
struct FrontEndOutcome {
    Truth truth;
    std::string text;
};
FrontEndOutcome compileMistake(const Mistake& mistake);

/// True if g++ takes the generated text; an application's behind stand-ins for the browser's
/// headers. `name` is that of a file that is the caller's alone.
bool nativeCompilerTakes(const Mistake& mistake, const std::string& text, const std::string& name);

/// Programs that g++ takes, built as one executable: each stands in a namespace behind the text
/// that all of them carry.
class ProgramsInOne {
public:
    /// `name` is that of its folder below the build directory, which is emptied.
    explicit ProgramsInOne(const std::string& name);

    /// Adds a program; its number is how it is asked for.
    int add(const Mistake& mistake, const std::string& text);
    /// What g++ says; empty if it takes them all.
    std::string build() const;
    /// Runs a program for at most `seconds`; "runs" if nothing ends it before its end.
    Truth run(int number, const std::string& input, double seconds) const;
    /// What the program wrote when it ran last.
    const std::string& lastOutput() const { return output; }

private:
    std::string folder;
    std::string common;
    std::string programs;
    int count = 0;
    mutable std::string output;
};
