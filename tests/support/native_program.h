// Sources of the language as running programs: generated in process, built by the command of the
// driver, run in a folder of their own.
#pragma once

#include <string>
#include <vector>

#include "support/case_files.h"
#include "support/subprocess.h"

enum class Build {
    AsTheDriver,
    Sanitized,  ///< The same text under the address and undefined-behaviour sanitizers.
};

/// The generated text of the source file, which is named in it by its bare name, or as `name` says.
/// Imports are looked for in the file's folder.
std::string generateFile(const std::string& sourcePath, const std::string& name = "");

/// The command that builds the generated text of the file `text` as `program`.
std::vector<std::string> buildCommand(const std::string& text, const std::string& program,
                                      Build build);

/// What a program of that text is to find in its environment.
std::vector<std::string> programEnvironment(const std::string& text);

/// One program. Its folder, below build/programs/, is emptied by the constructor and holds the
/// generated text, the executable and, as the program's working directory, a folder `run` with a
/// copy of the source.
class NativeProgram {
public:
    /// `name` is the folder's, so it is the program's alone.
    NativeProgram(const std::string& name, const std::string& sourcePath,
                  Build build = Build::AsTheDriver);

    ProcessResult compile(const std::vector<std::string>& furtherOptions = {}) const;
    /// What g++ says of the generated text, without making an executable.
    ProcessResult checkSyntax() const;
    /// With a `wrapper`, the command that starts the program, whose path is its last argument.
    ProcessResult run(const std::string& input = "",
                      const std::vector<std::string>& wrapper = {}) const;

    /// The working directory, with a slash at its end.
    std::string runDirectory() const { return folder + "run/"; }

private:
    std::string folder;
    Build build;
    std::vector<std::string> environment;
};

/// The standard input of the case: what stands beside it in a file `.in`.
std::string inputOf(const CaseFile& file);

/// Compares what the case's program did with its expectation, each report's saying masked. Beside a
/// source may stand its exit status as a shell tells it (.status, 0 if there is none, 134 for an
/// abort) and what it writes to standard error (.err).
void expectOutcome(const CaseFile& file, const ProcessResult& ran);
