// Times scanning, parsing and generating sources of growing length, on one core. Prints a table;
// time per line must not grow with the source. With `prints LINES` or `mixed LINES` it translates
// one such source once, all memory freed again, and prints the milliseconds that it took and the
// most megabytes that the process held: what front_end.sh compares.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "generator/generator.h"
#include "kept_memory.h"
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

    Parser parser(std::move(tokens), source, "bench.பொழில்");
    Program program;
    took.parse = secondsOf([&] { program = parser.parse(); });
    parser.tokens = {};

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

/// From the text of the source to the generated text, handed on as the compiler does.
std::string translate(const std::string& source) {
    Lexer lexer(source, "bench.பொழில்");
    std::vector<Token> tokens = lexer.tokenize();
    Parser parser(std::move(tokens), std::move(lexer.source), "bench.பொழில்");
    const Program program = parser.parse();
    parser.tokens = {};
    return Generator(program, parser.functionParameters, parser.structDefinitions,
                     parser.abstractStructDefinitions, std::move(parser.source), "bench.பொழில்")
        .generate();
}

int translateOnce(std::string_view kind, int lines) {
    const std::string source = kind == "mixed" ? mixedLines(lines) : printLines(lines);
    std::string text;
    const double seconds = secondsOf([&] { text = translate(source); });
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%.3f %.1f\n", seconds * 1e3, static_cast<double>(usage.ru_maxrss) / 1024);
    return text.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}

void printTable() {
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

}  // namespace

int main(int argc, char** argv) {
    keepFreedMemory();
    if (argc == 3) return translateOnce(argv[1], std::atoi(argv[2]));
    printTable();
}
