// Holds the check against g++ and the running program, over programs made up at random:
//   companion_compare [COUNT [FIRST_SEED]]   what they disagree about, each with its seed
//   companion_compare show SEED              that program
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "companion/check/check.h"
#include "mistakes/outcome.h"
#include "programs_in_one.h"
#include "random_programs.h"

namespace {

using companion::Finding;
using companion::Severity;

constexpr unsigned kProgramsAtOnce = 40;
constexpr double kSecondsToRun = 20;

struct Compared {
    std::uint32_t seed;
    std::string source;
    std::vector<Finding> findings;

    const Finding* worst(Severity atLeast) const {
        for (const Finding& finding : findings) {
            if (finding.severity <= atLeast) return &finding;
        }
        return nullptr;
    }
};

/// The text without what it quotes, for counting those that are alike.
std::string withoutQuotes(const std::string& text) {
    std::string shape;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t open = std::min(text.find("‘", at), text.size());
        shape += text.substr(at, open - at);
        const std::size_t close = text.find("’", open);
        if (close == std::string::npos) break;
        shape += "‘…’";
        at = close + std::string_view("’").size();
    }
    return shape.substr(0, shape.find('\n'));
}

std::string describe(const Finding& finding) {
    return std::to_string(finding.line) + ": " + finding.code + " " + finding.message;
}

/// What was seen, and where the check said otherwise.
class Comparison {
public:
    void compareRange(std::uint32_t first, std::uint32_t count) {
        for (std::uint32_t done = 0; done < count; done += kProgramsAtOnce) {
            compareBatch(first + done, std::min(kProgramsAtOnce, count - done));
        }
    }

    void print() const {
        std::cout << "\n";
        for (const auto& [what, number] : numbers) std::cout << what << ": " << number << "\n";
        std::cout << "\n";
        for (const auto& [what, number] : shapes) std::cout << number << " times " << what << "\n";
    }

    bool hasDisagreements() const { return numbers.count(kMiss) + numbers.count(kFalseAlarm) > 0; }

private:
    static constexpr const char* kMiss = "g++ refuses, the check has no error";
    static constexpr const char* kFalseAlarm = "runs to its end, the check has an error";
    static constexpr const char* kMissedStop = "stops, the check says nothing";

    void compareBatch(std::uint32_t first, std::uint32_t count) {
        ProgramsInOne programs("compared");
        std::map<int, Compared> taken;
        for (std::uint32_t seed = first; seed < first + count; seed++) {
            const std::string source = makeRandomProgram(seed);
            const FrontEndOutcome compiled = compileSource(source);
            numbers["made"]++;
            if (compiled.truth.kind != "taken") {
                numbers["refused by the compiler"]++;
                continue;
            }
            taken[programs.add(source, compiled.text)] = {seed, source, check(source)};
        }
        const auto refused = programs.leaveOutRefused();
        const std::string failure = programs.build();
        if (!failure.empty()) throw std::logic_error(failure);
        for (const auto& [number, compared] : taken) {
            const auto error = refused.find(number);
            if (error != refused.end()) {
                holdAgainstRefusal(compared, error->second);
            } else {
                holdAgainstRun(compared, programs.run(number, "", kSecondsToRun));
            }
        }
    }

    static std::vector<Finding> check(const std::string& source) {
        const companion::SourceText text(kProgramName, source);
        return companion::checkSource(text, [](const auto&, auto&) { return false; });
    }

    void holdAgainstRefusal(const Compared& compared, const std::string& error) {
        numbers["refused by g++"]++;
        if (compared.worst(Severity::Error) == nullptr) tell(kMiss, compared.seed, error);
    }

    void holdAgainstRun(const Compared& compared, const ProcessResult& ran) {
        const Truth outcome = outcomeOf(ran);
        numbers["taken by g++: " + outcome.kind]++;
        if (outcome.kind == "runs") {
            const Finding* error = compared.worst(Severity::Error);
            if (error != nullptr) tell(kFalseAlarm, compared.seed, describe(*error));
        }
        if (outcome.kind == "stops" && compared.worst(Severity::Warning) == nullptr) {
            const std::string signal = "signal " + std::to_string(ran.signal);
            tell(kMissedStop, compared.seed, ran.err.empty() ? signal : ran.err);
        }
    }

    void tell(const char* what, std::uint32_t seed, const std::string& detail) {
        numbers[what]++;
        shapes[std::string(what) + ": " + withoutQuotes(detail)]++;
        std::cout << what << ", seed " << seed << "\n    " << detail << "\n";
    }

    std::map<std::string, int> numbers;
    std::map<std::string, int> shapes;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "show") {
        std::cout << makeRandomProgram(static_cast<std::uint32_t>(std::atoi(argv[2])));
        return 0;
    }
    const int count = argc > 1 ? std::atoi(argv[1]) : 200;
    const int first = argc > 2 ? std::atoi(argv[2]) : 1;
    Comparison comparison;
    comparison.compareRange(static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(count));
    comparison.print();
    return comparison.hasDisagreements() ? 1 : 0;
}
