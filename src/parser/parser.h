// The parser: tokens in, tree out, by recursive descent. The first problem ends the run with a
// report, so no parsing function resumes after an error. One file a grammar: the frame in
// parser.cpp, then expressions, statements, definitions, modules.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "lexer/token.h"
#include "parser/nesting.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"

class Parser {
public:
    /// `source` and `filename` are for reports only. All three are copied.
    Parser(const std::vector<Token>& tokens, const std::string& source,
           const std::string& filename);

    /// The whole tree. Called once.
    Program parse();

    // Cursor
    const Token& peek();
    /// Takes one token and returns it; at the end the one before END_OF_FILE, again and again.
    const Token& advance();
    bool is_at_end();
    /// False at the end, so check(END_OF_FILE) is never true.
    bool check(TokenType kind);
    bool checkKeyword(const std::string& word);
    /// Takes an OPERATOR token whose text is one of `words`.
    bool match(const std::vector<std::string>& words);
    /// Takes a token of `kind`; raises `code` at `line`, or at the current line if that is -1.
    Token consume(TokenType kind, const std::string& code, int line = -1);
    /// Counts INDENT and DEDENT away inside brackets, where line structure means nothing.
    bool handleIndentation(int& depth);
    void skipNewlines();

    /// Line `line` of the source, counted from 1; "" if there are fewer.
    std::string getLineText(int line);
    /// Reports `code` at `line` and ends the process. Throws std::out_of_range for a code that
    /// the catalogue lacks.
    [[noreturn]] void பிழை(const std::string& code, int line);

    // Statements. Null means that a line yielded no node.
    std::unique_ptr<Statement> parseStatement(bool inStruct);
    std::unique_ptr<Statement> parsePrintStatement();

    // Expressions
    std::unique_ptr<Expression> parseExpression();
    std::unique_ptr<Expression> parsePrimary();

    // Read by the generator; the pointers are owned by the tree.
    std::map<std::string, std::vector<Param>> functionParameters;
    std::map<std::string, StructDefinitionStatement*> structDefinitions;
    std::map<std::string, AbstractStructDefinitionStatement*> abstractStructDefinitions;

    std::set<std::string> importedFiles;
    /// Imported statements: they go ahead of the program.
    std::vector<std::unique_ptr<Statement>> hoistedStatements;
    std::vector<Token> tokens;
    std::string source;
    std::string filename;
    int current = 0;
    std::map<std::string, std::map<std::string, int>> enumerations;
    int functionDepth = 0;  ///< Function bodies around the cursor.
};
