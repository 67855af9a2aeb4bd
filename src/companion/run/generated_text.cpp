#include "companion/run/generated_text.h"

#include <algorithm>
#include <streambuf>

#include "generator/generator.h"

namespace companion {

namespace {

using Visited = Generator::Visited;

/// From `offset` on the text is that of `visited`.
struct Origin {
    std::size_t offset;
    Visited visited;
};

/// Passes the generator's text on, and notes for which nodes it was written.
class NotingBuffer : public std::streambuf {
public:
    explicit NotingBuffer(Generator& generator)
        : generator(generator), inner(generator.out.std::ostream::rdbuf(this)) {}
    ~NotingBuffer() override { generator.out.std::ostream::rdbuf(inner); }
    NotingBuffer(const NotingBuffer&) = delete;
    NotingBuffer& operator=(const NotingBuffer&) = delete;

    std::vector<Origin> origins;

protected:
    int_type overflow(int_type byte) override {
        note(1);
        return inner->sputc(traits_type::to_char_type(byte));
    }
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        note(size);
        return inner->sputn(text, size);
    }
    pos_type seekoff(off_type by, std::ios_base::seekdir from,
                     std::ios_base::openmode which) override {
        return inner->pubseekoff(by, from, which);
    }

private:
    void note(std::streamsize size) {
        const Visited& now = generator.visited;
        if (now.statement != last.statement || now.expression != last.expression) {
            origins.push_back({written, now});
            last = now;
        }
        written += static_cast<std::size_t>(size);
    }

    Generator& generator;
    std::streambuf* inner;
    std::size_t written = 0;
    Visited last;
};

/// Where the node stands that the text was written for: a line of the source, or 0.
int lineOfOrigin(const CompiledSource& compiled, const Visited& visited) {
    std::optional<Range> range;
    if (visited.expression != nullptr) range = compiled.rangeOf(*visited.expression);
    if (!range && visited.statement != nullptr) range = compiled.headOf(*visited.statement);
    return range ? compiled.source.placeOf(range->begin).line : 0;
}

/// A line of the text belongs to the node that is first visited in it, or to the last one before.
std::vector<int> findSourceLines(const CompiledSource& compiled, const std::string& text,
                                 const std::vector<Origin>& origins) {
    std::vector<int> lines;
    auto next = origins.begin();
    int current = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        int line = 0;
        for (; next != origins.end() && next->offset < end; ++next) {
            current = lineOfOrigin(compiled, next->visited);
            if (line == 0) line = current;
        }
        lines.push_back(line == 0 ? current : line);
        begin = end;
    }
    return lines;
}

}  // namespace

int GeneratedText::sourceLineOf(int line) const {
    const bool isThere = line >= 1 && line <= static_cast<int>(sourceLines.size());
    return isThere ? sourceLines[static_cast<std::size_t>(line) - 1] : 0;
}

GeneratedText generateText(const CompiledSource& compiled) {
    const Parser& parser = *compiled.parser;
    Generator generator(compiled.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, compiled.source.text,
                        compiled.source.path);
    NotingBuffer notes(generator);
    std::string text = generator.generate();
    std::vector<int> lines = findSourceLines(compiled, text, notes.origins);
    return {std::move(text), std::move(lines)};
}

}  // namespace companion
