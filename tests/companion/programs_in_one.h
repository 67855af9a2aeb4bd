// Programs of the language, as many as one likes, as one executable: each stands in a namespace
// behind the text that all of them carry. One run of g++ for all takes a fraction of one for each.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/native_program.h"
#include "support/subprocess.h"

/// The name under which the sources must be compiled, so that all texts begin alike.
extern const char* const kProgramName;

/// What such a program printed, with the name that its source really has.
std::string withOwnName(std::string printed, const std::string& name);

/// g++ with the options of every program, and messages in English with Tamil names as they are.
ProcessResult runNativeCompiler(const std::vector<std::string>& arguments);

class ProgramsInOne {
public:
    /// `name` is that of its folder below the build directory, which is emptied.
    explicit ProgramsInOne(const std::string& name, Build build = Build::AsTheDriver);

    /// Whether the text defines a name that the common text has too: g++ refuses it as a program of
    /// its own, and takes it in a namespace.
    bool meetsCommonName(const std::string& text) const;

    /// Adds the program of `source` with the text that was generated of it; its number is how it is
    /// asked for.
    int add(const std::string& source, const std::string& text);

    /// Those that g++ refuses, each with what it says first. They are left out from then on.
    std::map<int, std::string> leaveOutRefused();

    /// What g++ says when it builds what is not left out; empty if it takes all.
    std::string build(const std::vector<std::string>& furtherOptions = {}) const;

    /// What g++ calls the text of a program.
    static std::string nameInMessages(int number);

    /// A program in a folder of its own that holds its source, with `environment` added to ours.
    ProcessResult run(int number, const std::string& input, double seconds,
                      const std::vector<std::string>& environment = {}) const;

    /// That folder, with a slash at its end.
    std::string runFolder(int number) const;

private:
    std::string wholeText() const;

    std::string folder;
    Build kind;
    std::string common;
    std::set<std::string> commonNames;
    std::map<int, std::string> programs;
    int count = 0;
};
