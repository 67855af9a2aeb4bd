// Times the scanner alone on a source full of names. Prints milliseconds of the quickest run and
// the number of tokens.
#include <cstdio>
#include <limits>

#include "lexer/lexer.h"
#include "sources.h"

int main() {
    const std::string source = nameLines(100'000);
    double best = std::numeric_limits<double>::infinity();
    std::size_t tokens = 0;
    for (int run = 0; run < 5; run++) {
        best = std::min(
            best, secondsOf([&] { tokens = Lexer(source, "bench.பொழில்").tokenize().size(); }));
    }
    std::printf("%.2f %zu\n", best * 1e3, tokens);
}
