// The console road's build: g++ over the generated text, and the run of what comes out.
#pragma once

#include <string>

struct NativeBuild {
    std::string appDirectory;
    std::string generatedPath;
    std::string cacheDirectory;
};

/// Makes `code` the generated text. False, behind a line on standard error, if it can't be.
bool storeGeneratedText(const NativeBuild& build, const std::string& code);

/// Makes `executable` of the generated text in `build` by g++, with `options` besides the usual
/// ones, each behind a blank. What g++ prints goes to the terminal. False, behind a line on
/// standard error where g++ is missing or a disk is full, if there is no executable.
bool compileProgram(const NativeBuild& build, const std::string& executable,
                    const std::string& options = "");

/// Builds the program of the text `code`, which it stores again, with g++ and runs it to its end in
/// the same terminal; its status is dropped. A failed build leaves the last good executable in
/// place and returns false. A Ctrl+C while g++ runs ends this process too; one while the program
/// runs is left waiting, for releaseInterrupts.
bool buildNativeProgram(const NativeBuild& build, const std::string& code);
