// A place of its own for each test of the driver: a copy of the compiler with its companions, a
// working directory, a temporary directory, and a g++ that does as it is told. Its path holds a
// blank, so that every command that lacks its quotes fails.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/subprocess.h"

/// What a console build prints first.
extern const std::string kBanner;

/// The title of a build, with its colours and line end.
std::string titleOf(const std::string& source);

/// A source at which the parser throws: a share that is too large for an int.
extern const std::string kShareTooLarge;

class Workplace : public testing::Test {
protected:
    Workplace();
    ~Workplace() override;

    /// Writes a file in the working directory.
    void write(const std::string& name, const std::string& text) const;

    /// Puts a g++ before the real one. It notes its arguments and writes, as its output, a shell
    /// script whose text is `program`. With `status` other than 0 it writes nothing and fails.
    void fakeCompiler(const std::string& program, int status = 0) const;

    /// Puts a shell script of that name before all other programs.
    void script(const std::string& name, const std::string& text) const;

    /// The arguments of each call of the fake g++, each argument in square brackets.
    std::vector<std::string> compilerCalls() const;

    /// Runs the compiler to its end, with a quick title.
    ProcessResult compile(const std::vector<std::string>& arguments,
                          ProcessOptions options = {}) const;

    /// The environment that compile uses, but for what makes the title quick.
    std::vector<std::string> environment() const;

    /// In it the compiler takes a tenth of a second for its title, which else takes two.
    std::vector<std::string> withQuickTitle(std::vector<std::string> environment) const;

    /// Added to that environment: the title takes the time that it takes a user.
    static std::vector<std::string> withoutQuickTitle() { return {"LD_PRELOAD="}; }

    std::filesystem::path root;
    std::filesystem::path home;   ///< The compiler and its companions.
    std::filesystem::path work;   ///< Where it is started.
    std::filesystem::path cache;  ///< Its cache directory, not made yet.
    std::filesystem::path compiler;
    std::filesystem::path object;  ///< The diagnostics object, not made yet.
};

std::string readFileText(const std::filesystem::path& path);
void writeFileText(const std::filesystem::path& path, const std::string& text);
void makeExecutable(const std::filesystem::path& path);
