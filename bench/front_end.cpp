// Times scanning, parsing and generating sources of growing length, on one core. Prints a table;
// time per line must not grow with the source.
#include <cstdio>
#include <limits>

#include "generator/generator.h"
#include "lexer/lexer.h"
#include "parser/parser.h"
#include "sources.h"

namespace {

constexpr int kRuns = 5;

struct Seconds {
    double scan = std::numeric_limits<double>::infinity();
    double parse = scan;
    double generate = scan;
    double total() const { return scan + parse + generate; }
};

Seconds runPhases(const std::string& source) {
    Seconds took;
    std::vector<Token> tokens;
    took.scan = secondsOf([&] { tokens = Lexer(source, "bench.பொழில்").tokenize(); });

    Parser parser(tokens, source, "bench.பொழில்");
    Program program;
    took.parse = secondsOf([&] { program = parser.parse(); });

    std::string code;
    took.generate = secondsOf([&] {
        code = Generator(program, parser.functionParameters, parser.structDefinitions,
                         parser.abstractStructDefinitions, source, "bench.பொழில்")
                   .generate();
    });
    return took;
}

Seconds quickestOf(const std::string& source) {
    Seconds best;
    for (int run = 0; run < kRuns; run++) {
        const Seconds took = runPhases(source);
        if (took.total() < best.total()) best = took;
    }
    return best;
}

}  // namespace

int main() {
    std::printf("%9s  %9s  %9s  %9s  %9s  %8s  %8s\n", "lines", "scan ms", "parse ms", "gen ms",
                "all ms", "us/line", "growth");
    double firstPerLine = 0;
    for (const int lines : {1'000, 10'000, 100'000}) {
        const Seconds took = quickestOf(printLines(lines));
        const double perLine = took.total() / lines;
        if (firstPerLine == 0) firstPerLine = perLine;
        std::printf("%9d  %9.2f  %9.2f  %9.2f  %9.2f  %8.3f  %7.2fx\n", lines, took.scan * 1e3,
                    took.parse * 1e3, took.generate * 1e3, took.total() * 1e3, perLine * 1e6,
                    perLine / firstPerLine);
    }
}
