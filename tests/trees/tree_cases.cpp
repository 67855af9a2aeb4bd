// Sources that parse: each with its tree, and what the tables hold, beside it.
#include <filesystem>

#include "support/case_files.h"
#include "support/front_end.h"
#include "support/tree_printer.h"

namespace {

void runTreeCase(const CaseFile& file) {
    // Imports are looked for from the working directory: a case's modules lie beside it.
    const std::filesystem::path source = std::filesystem::u8path(file.source);
    std::filesystem::current_path(source.parent_path());
    const std::string text = readText(file.source);
    try {
        const Parsed parsed = parse(text, source.filename().u8string());
        const std::string tables = printTables(*parsed.parser);
        expectGolden(file,
                     printTree(parsed.program) + (tables.empty() ? "" : "-- tables\n" + tables));
    } catch (const Refusal& refusal) {
        ADD_FAILURE() << file.source << " is refused with " << refusal.code << " at line "
                      << refusal.line;
    }
}

const int kRegistered = (registerCases("trees", ".tree", runTreeCase), 0);

}  // namespace
