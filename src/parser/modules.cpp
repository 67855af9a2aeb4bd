// Modules: an import parses another source and merges what it defines into this parse. It leaves
// no node.
#include "files.h"
#include "lexer/lexer.h"
#include "parser/module_files.h"
#include "parser/parser.h"

namespace {

/// The second place where a module is looked for; set by the build. One that begins with "./" lies
/// beside the executable, so an installation can be moved.
std::string libraryDirectory() {
    const std::string directory = POZHIL_LIBRARY_DIR;
    return directory.rfind("./", 0) == 0 ? executableDirectory() + directory.substr(1) : directory;
}

/// The file that an import's text names.
std::string moduleFile(std::string path) {
    if (path == "வலைதளம்") path = "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்";
    if (!hasEnding(path, ".pozhil") && !hasEnding(path, ".பொழில்")) path += ".பொழில்";
    return path;
}

/// The first element of each table wins: what the importer has stays.
template <typename Table>
void mergeAbsent(Table& into, const Table& from) {
    into.insert(from.begin(), from.end());
}

}  // namespace

std::vector<std::string> moduleFilesOf(const std::string& path) {
    const std::string file = moduleFile(path);
    return {file, libraryDirectory() + file};
}

/// import = "நூஇறக்கி" string
/// A file that was imported before is passed over, so circular imports end. Raises 281 for an
/// operand that is no string and for a file that is nowhere.
std::unique_ptr<Statement> Parser::parseImportStatement() {
    advance();
    if (!check(TokenType::STRING)) பிழை("பொழில்-281", peek().line);
    const Token operand = advance();
    const std::string path = moduleFile(operand.text);
    if (!importedFiles.insert(path).second) return nullptr;

    // Without a name and a text a report from inside can't quote the module's line. Meant.
    Parser module(Lexer(readModule(path, operand.line), "").tokenize(), "", "");
    module.importedFiles = importedFiles;
    module.nesting = nesting;
    module.places = places;
    module.readModuleText = readModuleText;
    module.isModule = true;
    Program program = module.parse();
    mergeModule(module, std::move(program));
    return nullptr;
}

/// The text of the first candidate that opens: as it stands, then in the library. The importing
/// file's own directory isn't consulted. Meant.
std::string Parser::readModule(const std::string& path, int line) {
    std::string text;
    for (const std::string& candidate : {path, libraryDirectory() + path}) {
        if (readModuleText(candidate, text)) return text;
    }
    பிழை("பொழில்-281", line);
}

/// The module's statements run before the importer's, wherever the import stood.
void Parser::mergeModule(Parser& module, Program program) {
    mergeAbsent(functionParameters, module.functionParameters);
    mergeAbsent(structDefinitions, module.structDefinitions);
    mergeAbsent(abstractStructDefinitions, module.abstractStructDefinitions);
    mergeAbsent(enumerations, module.enumerations);
    for (auto& statement : program.statements) hoistedStatements.push_back(std::move(statement));
    for (auto& statement : module.dropped) drop(std::move(statement));
    importedFiles = std::move(module.importedFiles);
}
