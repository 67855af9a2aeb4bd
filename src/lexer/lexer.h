// The scanner: source text in, tokens out, one pass, before parsing begins. Indentation comes out
// as INDENT and DEDENT. Besides tokenising it checks the text as Tamil, at the hooks below.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "lexer/token.h"
#include "lexer/utf8.h"

/// Scans one source text. Every refusal ends in a report and does not return.
class Lexer {
public:
    /// `source` is UTF-8 text; `filename` is shown in reports as it stands. Both are copied.
    Lexer(const std::string& source, const std::string& filename);

    /// The whole text as tokens, ending with END_OF_FILE. Called once.
    /// Throws std::out_of_range for a text that ends in a tab at the start of a line.
    std::vector<Token> tokenize();

    /// Scans one token; passes over blanks and comments before it.
    Token getNextToken();

    /// Kind of a word, by the word tables in their order.
    TokenType lookupKeyword(const std::string& word);

    /// The byte at the cursor, 0 to 255; 0 at or past the end. So a NUL byte ends the text.
    int peek() { return byteAt(position); }

    /// Moves past one character (not one byte) and returns its first byte; at the end 0, no move.
    int advance() {
        const int byte = peek();
        if (position >= static_cast<int>(source.size())) return 0;
        position += getUTF8SequenceLength(source[static_cast<std::size_t>(position)]);
        return byte;
    }

    /// Width of the line's leading blanks and tabs; a tab goes to the next multiple of 4.
    int getCurrentIndent();

    /// Passes blanks, tabs and carriage returns, never a line end.
    void skipWhitespace() {
        while (peek() == ' ' || peek() == '\t' || peek() == '\r') advance();
    }

    /// Reports `code` at the current line and ends the process. Throws std::out_of_range for a
    /// code that the catalogue lacks.
    [[noreturn]] void பிழை(const std::string& code);

    std::string source;
    std::string filename;
    int position = 0;  ///< Byte offset of the cursor.
    int lineNumber = 1;
    std::string_view currentLine;        ///< The logical line's text in `source`, for reports.
    std::vector<int> indentStack = {0};  ///< Widths of the open blocks.
    int lineStart = 0;                   ///< Byte offset where the logical line began.
    bool atLineStart = true;
    /// Takes the byte offset behind each token, for tools that point at them; null if nobody asks.
    std::vector<int>* tokenEnds = nullptr;

private:
    std::size_t sourceLineEnd;  ///< Byte offset of the end of the file's line last begun.

    // tokenize
    void noteEnds(const std::vector<Token>& tokens);
    bool startLine(std::vector<Token>& tokens);
    void emitIndentation(int indent, std::vector<Token>& tokens);

    // getNextToken
    bool skipComment();
    Token scanLineEnd();
    Token scanString();
    Token scanCharacter();
    Token scanWesternNumber();
    Token scanTamilNumber();
    Token scanPercentage(int start);
    Token scanSymbol(TokenType kind);
    Token scanEquals();
    Token scanWord();
    std::string_view collectWord();
    void passCompoundTail();

    // Script and spelling checks; each refuses or returns.
    void checkMixedIndentation();
    void checkIndentationMatches(int indent);
    [[noreturn]] void refuseGluedToWesternNumber();
    [[noreturn]] void refuseGluedToTamilNumber();
    void checkLetter(int wordStart);
    void checkInvisibleMark();
    void checkTamilLetter(int wordStart);
    void checkKeywordSpacing(std::string_view word);
    void checkKeywordTypo(std::string_view word);
    [[noreturn]] void refuseOpenComment();

    // Looking at the text
    bool startsWith(const char* text);
    bool atTamilDigit();
    int byteAt(int offset) const {
        if (offset < 0 || offset >= static_cast<int>(source.size())) return 0;
        return static_cast<unsigned char>(source[static_cast<std::size_t>(offset)]);
    }
    std::string_view textFrom(int start) const;
    Token make(TokenType kind, std::string_view text) const;

    /// What the tables tell of a word, kept for the next time that it stands in the source.
    struct WordFacts {
        TokenType kind;
        bool beginsKeyword;  ///< With more letters it could become a word of the tables.
        bool isSpelledRight = false;
    };
    WordFacts& factsOf(std::string_view word);
    std::unordered_map<std::string_view, WordFacts> knownWords;  ///< The words stand in `source`.
};
