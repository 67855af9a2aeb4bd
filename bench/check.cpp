// Times the companion's check of 10,000 lines beside the compiler's own front end over the same
// source, on one core, the best of several runs. Prints how much of what it may take it takes.
#include "companion/check/check.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "generator/generator.h"
#include "kept_memory.h"
#include "lexer/lexer.h"
#include "sources.h"

namespace {

constexpr int kRuns = 5;
constexpr int kLines = 10'000;
constexpr double kMostSeconds = 0.1;

double quickest(const std::string& source, void (*action)(const std::string&)) {
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < kRuns; run++) {
        best = std::min(best, secondsOf([&] { action(source); }));
    }
    return best;
}

void translate(const std::string& source) {
    Parser parser(Lexer(source, "bench.பொழில்").tokenize(), source, "bench.பொழில்");
    const Program program = parser.parse();
    Generator(program, parser.functionParameters, parser.structDefinitions,
              parser.abstractStructDefinitions, source, "bench.பொழில்")
        .generate();
}

void check(const std::string& source) {
    companion::checkSource(companion::SourceText("bench.பொழில்", source),
                           [](const std::string&, std::string&) { return false; });
}

}  // namespace

int main() {
    keepFreedMemory();
    const std::string source = mixedLines(kLines);
    const double translating = quickest(source, translate);
    const double checking = quickest(source, check);
    const double part = checking / kMostSeconds;
    std::printf("%d mixed lines: front end %.1f ms, check %.1f ms (%.1f times as long)\n", kLines,
                translating * 1e3, checking * 1e3, checking / translating);
    std::printf("%-58s %6.2fx  aim %.2fx  %s\n", "check of 10000 lines, of a tenth of a second",
                part, 1.0, part <= 1 ? "✔" : "✗");
    return part <= 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}
