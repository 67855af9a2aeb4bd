#include "support/generated_text.h"

std::string generate(const std::string& source, const std::string& filename) {
    const Parsed parsed = parse(source, filename);
    const Parser& parser = *parsed.parser;
    return Generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                     parser.abstractStructDefinitions, source, filename)
        .generate();
}

int countOf(const std::string& part, const std::string& text) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + part.size())) {
        count++;
    }
    return count;
}
