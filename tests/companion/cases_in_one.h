// Cases of a lane as one executable, in which each runs in a process and a folder of its own. There
// all sources have one name, so those that name their own are built alone, as the driver builds
// them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "programs_in_one.h"
#include "support/case_files.h"

/// The names of tests that neither a filter nor a shard leaves out. No other's program is built.
std::set<std::string> testsToRun();

/// The cases of those tests.
std::vector<CaseFile> casesToRun(const std::vector<CaseFile>& cases);

class CasesInOne {
public:
    /// `name` is that of the folder below the build directory. Imports are looked for beside each
    /// source.
    CasesInOne(const std::string& name, const std::vector<CaseFile>& cases,
               Build build = Build::AsTheDriver);

    /// What is refused, or what g++ says, with options of its own, when it builds them; empty if
    /// all are taken.
    std::string build(const std::vector<std::string>& furtherOptions = {}) const;

    /// What the case prints tells its source's name as the case has it.
    ProcessResult run(const CaseFile& file, const std::string& input) const;

    /// Where the case runs, with a slash at its end.
    std::string runFolder(const CaseFile& file) const;

private:
    struct Place {
        int number = 0;
        std::vector<std::string> environment;
    };
    ProgramsInOne programs;
    std::map<std::string, Place> places;
    std::map<std::string, NativeProgram> alone;
    std::string refused;
};
