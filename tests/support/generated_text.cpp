#include "support/generated_text.h"

std::string generate(const std::string& source, const std::string& filename) {
    const Parsed parsed = parse(source, filename);
    const Parser& parser = *parsed.parser;
    return Generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                     parser.abstractStructDefinitions, source, filename)
        .generate();
}
