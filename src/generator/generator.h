// The generator: tree in, the whole text of one C++17 translation unit out. Runtime text comes
// from src/emitted, in the order of the table in frame.cpp; the program's own text is written by
// the visitors, which tell nodes apart by dynamic_cast and append to one stream.
#pragma once

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "syntax/application.h"
#include "syntax/definitions.h"
#include "syntax/literals.h"
#include "syntax/node.h"
#include "syntax/statements.h"
#include "syntax/var_type.h"

class Generator {
public:
    /// Keeps a reference to `program`, which must outlive the generator; all else is copied. The
    /// tables are the parser's. `filename` is the path as the user gave it: it goes into the text.
    Generator(const Program& program,
              const std::map<std::string, std::vector<Param>>& functionParameters,
              const std::map<std::string, StructDefinitionStatement*>& structDefinitions,
              const std::map<std::string, AbstractStructDefinitionStatement*>&
                  abstractStructDefinitions,
              const std::string& sourceText, const std::string& filename);

    /// The whole translation. Called once. Throws std::runtime_error by throw_static_error, and
    /// lets the exceptions of number conversion through.
    std::string generate();

    /// Appends four blanks a level.
    void indent();
    /// Line `line` of the source, counted from 1; "" if there is none.
    std::string getLineText(int line);
    /// Reports `code` at `line`, with `detail` in brackets unless it is empty, and ends the
    /// process. A code that the catalogue lacks is told in one line on standard error.
    [[noreturn]] void பிழை(const std::string& code, int line, const std::string& detail);

    // Statements
    void visitStatement(const Statement* statement);
    void visitPrintStatement(const PrintStatement* print);
    void visitStructDefinitionStatement(const StructDefinitionStatement* definition);
    void visitFunctionDefinitionStatement(const FunctionDefinitionStatement* definition);
    void generateLogic(const Statement* statement);
    void visitLogicBlockNode(const LogicBlockNode* logic);

    // Expressions
    void visitExpression(const Expression* expression);
    void visitNumberLiteral(const NumberLiteral* literal);
    void visitDoubleLiteral(const DoubleLiteral* literal);
    void visitStringLiteral(const StringLiteral* literal);
    void visitCharLiteral(const CharLiteral* literal);
    void visitBooleanLiteral(const BooleanLiteral* literal);

    /// The page shown first: the first application's page, or the last one marked as the start.
    /// "home" if no application names a page.
    std::string initialPage() const;

    // Kept empty: a widget lays out, styles and listens where it is drawn.
    void calculateLayout(const WidgetNode*) {}
    void applyStyles(const WidgetNode*) {}
    void generateEventHandlers(const WebAppNode*) {}

    const Program& program;
    std::stringstream out;
    std::map<std::string, VarType> variableTypes;
    std::map<std::string, bool> structNames;
    std::set<std::string> constants;
    std::map<std::string, StructDefinitionStatement*> structDefinitions;
    std::map<std::string, AbstractStructDefinitionStatement*> abstractStructDefinitions;
    std::string currentStruct;
    std::map<std::string, std::vector<Param>> functionParameters;
    std::string currentFunction;
    std::string sourceText;
    std::string filename;
    std::map<std::string, bool> localVariables;
    int indentLevel = 0;

private:
    /// One section of the generated file: fixed text, or text that a function writes.
    struct Section {
        const char* title;
        std::string_view text;
        void (Generator::*write)();
    };
    static const Section kSections[];

    void writeText(std::string_view text);
    void writeStructures();
    void writeFunctions();
    void writeInitGlobals();
    void writeMain();
    void writeConsoleMain();

    bool holdsWebApp() const;
};

/// A float as text for the emitted program: three decimals and the suffix `f`, in every locale.
std::string to_fstr(float value);

/// `text` as a C++ string literal, quotes included.
std::string quoted(const std::string& text);
