#include "cases_in_one.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

namespace fs = std::filesystem;

namespace {

std::string nameOf(const CaseFile& file) { return fs::u8path(file.source).filename().u8string(); }

bool namesItsSource(const CaseFile& file) {
    return readText(file.source).find(nameOf(file)) != std::string::npos;
}

}  // namespace

std::set<std::string> testsToRun() {
    std::set<std::string> names;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < all.total_test_suite_count(); suite++) {
        const testing::TestSuite& tests = *all.GetTestSuite(suite);
        for (int test = 0; test < tests.total_test_count(); test++) {
            const testing::TestInfo& info = *tests.GetTestInfo(test);
            if (info.should_run()) names.insert(info.name());
        }
    }
    return names;
}

std::vector<CaseFile> casesToRun(const std::vector<CaseFile>& cases) {
    const std::set<std::string> wanted = testsToRun();
    std::vector<CaseFile> chosen;
    std::copy_if(cases.begin(), cases.end(), std::back_inserter(chosen),
                 [&](const CaseFile& file) { return wanted.count(file.name) != 0; });
    return chosen;
}

CasesInOne::CasesInOne(const std::string& name, const std::vector<CaseFile>& cases, Build build)
    : programs(name, build) {
    for (const CaseFile& file : cases) {
        try {
            const std::string text = generateFile(file.source, kProgramName);
            if (namesItsSource(file) || programs.meetsCommonName(text)) {
                alone.emplace(file.name, NativeProgram(name + "_" + file.name, file.source, build));
                continue;
            }
            const int number = programs.add(readText(file.source), text);
            places[file.name] = {number, programEnvironment(text)};
        } catch (const std::exception&) {
            throw;
        } catch (...) {  // a thrown report
            refused += file.name + " is refused\n";
        }
    }
}

std::string CasesInOne::build(const std::vector<std::string>& furtherOptions) const {
    if (!refused.empty()) return refused;
    std::string said = places.empty() ? "" : programs.build(furtherOptions);
    for (const auto& [name, place] : places) {
        const std::string shown = ProgramsInOne::nameInMessages(place.number) + ":";
        if (said.find(shown) != std::string::npos) said += shown + " " + name + "\n";
    }
    for (const auto& [name, program] : alone) {
        const ProcessResult built = program.compile(furtherOptions);
        if (built.exitCode != 0) said += name + ": g++: " + built.err;
    }
    return said;
}

ProcessResult CasesInOne::run(const CaseFile& file, const std::string& input) const {
    const auto own = alone.find(file.name);
    if (own != alone.end()) return own->second.run(input);
    const Place& place = places.at(file.name);
    ProcessResult ran = programs.run(place.number, input, 60, place.environment);
    ran.out = withOwnName(std::move(ran.out), nameOf(file));
    return ran;
}

std::string CasesInOne::runFolder(const CaseFile& file) const {
    const auto own = alone.find(file.name);
    return own != alone.end() ? own->second.runDirectory()
                              : programs.runFolder(places.at(file.name).number);
}
