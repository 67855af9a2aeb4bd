// Sources that scanner, parser and generator let through and g++ refuses: meant as they are. Each
// line of a .says file must appear among the errors that g++ finds in the generated text.
#include <gtest/gtest.h>

#include <sstream>

#include "support/native_program.h"

namespace {

/// The lines of g++'s output that tell errors, without its notes.
std::string errorsIn(const std::string& output) {
    std::istringstream lines(output);
    std::string errors;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t at = line.find(" error: ");
        if (at != std::string::npos) errors += line.substr(at + 1) + "\n";
    }
    return errors;
}

void expectRefusal(const CaseFile& file) {
    const NativeProgram program("refused_" + file.name, file.source);
    const ProcessResult checked = program.checkSyntax();
    EXPECT_EQ(checked.exitCode, 1) << file.source << " compiles";

    const std::string errors = errorsIn(checked.err);
    std::istringstream fragments(readText(file.expected));
    int count = 0;
    for (std::string line; std::getline(fragments, line);) {
        count++;
        EXPECT_NE(errors.find(line), std::string::npos)
            << file.source << "\nnot said: " << line << "\n"
            << errors;
    }
    EXPECT_GT(count, 0) << file.expected << " asks for nothing";
}

const bool registered = [] {
    registerCases("native_refusals", ".says", expectRefusal);
    return true;
}();

}  // namespace
