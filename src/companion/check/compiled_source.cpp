#include "companion/check/compiled_source.h"

#include <algorithm>

#include "companion/refusal.h"
#include "generator/generator.h"
#include "lexer/characters.h"
#include "lexer/lexer.h"

namespace companion {

namespace {

bool isLayout(TokenType kind) {
    return kind == TokenType::NEWLINE || kind == TokenType::INDENT || kind == TokenType::DEDENT ||
           kind == TokenType::END_OF_FILE;
}

/// How many bytes of the source a token takes.
std::size_t widthOf(const Token& token) {
    switch (token.type) {
        case TokenType::INDENT:
        case TokenType::DEDENT:
        case TokenType::END_OF_FILE: return 0;
        case TokenType::NEWLINE: return 1;
        case TokenType::STRING:
        case TokenType::CHARACTER: return token.text.size() + 2;
        default: return token.text.size();
    }
}

}  // namespace

CompiledSource::CompiledSource(const SourceText& source, const ModuleReader& readModule)
    : source(source) {
    scan();
    if (scanned) parse(readModule);
    if (parsed) generate();
}

void CompiledSource::scan() {
    Lexer lexer(source.text, source.path);
    lexer.tokenEnds = &tokenEnds;
    const auto refuse = [&](const std::string& code, const std::string& message,
                            const std::string& fix) {
        const auto at = static_cast<std::size_t>(std::max(lexer.position, 0));
        refused = Refused{code, message, fix, rangeAround(at, lexer.lineNumber)};
    };
    try {
        tokens = lexer.tokenize();
        scanned = true;
    } catch (const CompilerRefusal& refusal) {
        refuse(refusal.code, refusal.message, refusal.fix);
    } catch (const std::exception& failure) {
        refuse("", failure.what(), "");
    }
}

void CompiledSource::parse(const ModuleReader& readModule) {
    parser = std::make_unique<Parser>(tokens, source.text, source.path);
    parser->places = &places;
    parser->readModuleText = readModule;
    const auto refuse = [&](const std::string& code, const std::string& message,
                            const std::string& fix, int line) {
        const int last = static_cast<int>(tokens.size()) - 1;
        const Range token = rangeOfToken(std::min(parser->current, last));
        refused = Refused{code, message, fix, rangeAround(token.begin, line)};
    };
    try {
        program = parser->parse();
        parsed = true;
    } catch (const CompilerRefusal& refusal) {
        refuse(refusal.code, refusal.message, refusal.fix, refusal.line);
        if (!refusal.file.empty()) return;
        refused->range = rangeOfToken(parser->current - 1);
        refused->isInModule = true;
        refused->moduleLine = refusal.line;
    } catch (const std::exception& failure) {
        refuse("", failure.what(), "", 0);
    }
}

void CompiledSource::generate() {
    Generator generator(program, parser->functionParameters, parser->structDefinitions,
                        parser->abstractStructDefinitions, source.text, source.path);
    const auto refuse = [&](const std::string& code, const std::string& message,
                            const std::string& fix, int line) {
        std::optional<Range> range;
        if (generator.visited.expression != nullptr) {
            range = rangeOf(*generator.visited.expression);
        }
        if (!range && generator.visited.statement != nullptr) {
            range = headOf(*generator.visited.statement);
        }
        const bool isThere = range && (line < 1 || source.placeOf(range->begin).line == line);
        if (!isThere && line >= 1) range = source.rangeOfWordsOn(line);
        refused = Refused{code, message, fix, range.value_or(source.rangeOfWordsOn(1))};
    };
    try {
        generator.generate();
    } catch (const CompilerRefusal& refusal) {
        refuse(refusal.code, refusal.message, refusal.fix, refusal.line);
    } catch (const std::exception& failure) {
        refuse("", failure.what(), "", 0);
    }
}

std::optional<Range> CompiledSource::rangeOf(const Expression& node) const {
    return rangeOfSpan(places.find(node));
}

std::optional<Range> CompiledSource::rangeOf(const Statement& node) const {
    return rangeOfSpan(places.find(node));
}

std::optional<Range> CompiledSource::headOf(const Statement& node) const {
    const TokenSpan* span = places.find(node);
    if (span == nullptr || span->first < 0) return std::nullopt;
    TokenSpan head{span->first, span->first};
    while (head.end < span->end &&
           tokens[static_cast<std::size_t>(head.end)].type != TokenType::NEWLINE) {
        head.end++;
    }
    return rangeOfSpan(&head);
}

std::optional<Range> CompiledSource::wordIn(const Statement& node, const std::string& word) const {
    return wordInSpan(places.find(node), word);
}

std::optional<Range> CompiledSource::wordIn(const Expression& node, const std::string& word) const {
    return wordInSpan(places.find(node), word);
}

std::optional<Range> CompiledSource::wordInSpan(const TokenSpan* span,
                                                const std::string& word) const {
    if (span == nullptr || span->first < 0) return std::nullopt;
    for (int at = span->first; at < span->end; at++) {
        if (tokens[static_cast<std::size_t>(at)].text == word) return rangeOfToken(at);
    }
    return rangeOfSpan(span);
}

/// The layout tokens at the end of a span are nothing to point at.
std::optional<Range> CompiledSource::rangeOfSpan(const TokenSpan* span) const {
    if (span == nullptr || span->first < 0) return std::nullopt;
    int last = span->end - 1;
    while (last > span->first && isLayout(tokens[static_cast<std::size_t>(last)].type)) last--;
    return Range{rangeOfToken(span->first).begin, rangeOfToken(std::max(last, span->first)).end};
}

Range CompiledSource::rangeOfToken(int index) const {
    const auto at = static_cast<std::size_t>(std::max(index, 0));
    const std::size_t end =
        std::min(static_cast<std::size_t>(std::max(tokenEnds[at], 0)), source.text.size());
    return {end - std::min(widthOf(tokens[at]), end), end};
}

/// What is shown of a refusal at `line`: the word at `offset` if it stands there, else the line.
Range CompiledSource::rangeAround(std::size_t offset, int line) const {
    const Range whole = source.rangeOfWordsOn(line);
    if (offset < whole.begin || offset > whole.end || whole.begin == whole.end) return whole;
    const auto isMark = [&](std::size_t at) {
        return isAsciiMark(static_cast<unsigned char>(source.text[at]));
    };
    Range word{offset, offset};
    while (word.begin > whole.begin && !isMark(word.begin - 1)) word.begin--;
    while (word.end < whole.end && !isMark(word.end)) word.end++;
    if (word.begin == word.end && word.end < whole.end) word.end++;
    return word.begin == word.end ? whole : word;
}

}  // namespace companion
