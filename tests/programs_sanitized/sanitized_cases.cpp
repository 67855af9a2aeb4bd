// The programs of tests/programs once more, built with the address and undefined-behaviour
// sanitizers: each must print what it prints without them, and nothing on standard error. One
// executable holds them all but those that name their own source; each runs in a process of its
// own.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "companion/programs_in_one.h"
#include "support/native_program.h"

namespace fs = std::filesystem;

namespace {

std::string nameOf(const CaseFile& file) { return fs::u8path(file.source).filename().u8string(); }

/// In the executable of all a source is called otherwise.
bool standsAlone(const CaseFile& file) {
    return readText(file.source).find(nameOf(file)) != std::string::npos;
}

/// Built when the first of them is asked for.
class SanitizedPrograms {
public:
    SanitizedPrograms() : programs("sanitized_programs", Build::Sanitized) {
        for (const CaseFile& file : findCases("programs", ".out")) {
            if (standsAlone(file)) continue;
            const std::string text = generateFile(file.source, kProgramName);
            const int number = programs.add(readText(file.source), text);
            places[file.name] = {number, programEnvironment(text)};
        }
        complaint = programs.build();
    }

    /// What the native compiler says of all of them; empty if it takes them.
    std::string complaint;

    /// What it prints tells the program's name as its source has it.
    ProcessResult run(const CaseFile& file) const {
        const Place& place = places.at(file.name);
        ProcessResult ran = programs.run(place.number, inputOf(file), 60, place.environment);
        const std::string name = nameOf(file);
        for (std::size_t at = 0; (at = ran.out.find(kProgramName, at)) != std::string::npos;) {
            ran.out.replace(at, std::string(kProgramName).size(), name);
            at += name.size();
        }
        return ran;
    }

private:
    struct Place {
        int number = 0;
        std::vector<std::string> environment;
    };
    ProgramsInOne programs;
    std::map<std::string, Place> places;
};

void expectSanitized(const CaseFile& file) {
    if (standsAlone(file)) return expectProgram(file, Build::Sanitized);
    static const SanitizedPrograms all;
    ASSERT_EQ(all.complaint, "");
    expectOutcome(file, all.run(file));
}

const bool registered = [] {
    registerCases("programs", ".out", expectSanitized);
    return true;
}();

}  // namespace
