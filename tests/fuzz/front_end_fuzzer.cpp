// Any bytes are a source: they are translated or refused, and never crash or hang the front end.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>

#include "generator/generator.h"
#include "lexer/lexer.h"
#include "parser/parser.h"
#include "support/refusal.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string source(reinterpret_cast<const char*>(data), size);
    try {
        Program program;
        Parser parser(Lexer(source, "fuzz").tokenize(), source, "fuzz");
        program = parser.parse();
        Generator(program, parser.functionParameters, parser.structDefinitions,
                  parser.abstractStructDefinitions, source, "fuzz")
            .generate();
    } catch (const Refusal&) {
        // A report: the source is wrong, and the learner is told.
    } catch (const std::exception&) {
        // What the driver catches by phase.
    }
    return 0;
}
