// The walk passes over nothing: it knows each class of the tree, and it meets whatever the printed
// tree shows.
#include "companion/check/tree_walk.h"

#include <cxxabi.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "companion/check/compiled_source.h"
#include "support/pattern.h"
#include "support/tree_printer.h"
#include "unit/generator/walked_forms.h"

namespace {

const char* const kMark = "குறியீடு";

std::set<std::string> classNames(const std::vector<std::type_index>& classes) {
    std::set<std::string> names;
    for (const std::type_index& type : classes) {
        int status = 0;
        char* text = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
        names.insert(text == nullptr ? "" : text);
        std::free(text);
    }
    return names;
}

/// The names of all structures of the tree that derive from `base` at once.
std::set<std::string> classesOf(const std::string& base) {
    const Pattern heading("struct (\\w+)(?: final)? : " + base + " ");
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(POZHIL_ROOT "/src/syntax")) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (const auto match = heading.first(line)) names.insert((*match)[1]);
        }
    }
    return names;
}

/// `pattern` with `form` in the place of each $, its further lines indented as the $ is.
std::string withForm(const std::string& pattern, const std::string& form) {
    std::istringstream lines(pattern);
    std::string source;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t at = line.find('$');
        if (at != std::string::npos) {
            const std::string blanks =
                line.find_first_not_of(' ') == at ? line.substr(0, at) : std::string();
            std::string inserted;
            for (const char letter : form) {
                inserted += letter;
                if (letter == '\n') inserted += blanks;
            }
            line = line.substr(0, at) + inserted + line.substr(at + 1);
        }
        source += line + "\n";
    }
    return source;
}

int countOf(const std::string& part, const std::string& text) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        count++;
    }
    return count;
}

/// Holds that the walk meets each node that the printed tree shows; true if there was a tree.
bool meetsWhatIsPrinted(const std::string& text) {
    const companion::SourceText source("test.பொழில்", text);
    const companion::CompiledSource compiled(source, readFile);
    if (!compiled.isParsed()) return false;
    int marks = 0;
    companion::forEachNode(
        compiled.program, [](const Statement&) {},
        [&](const Expression& node) {
            const auto* variable = nodeAs<VariableAccess>(&node);
            marks += variable != nullptr && variable->name == kMark ? 1 : 0;
        });
    EXPECT_EQ(marks, countOf(kMark, printTree(compiled.program))) << text;
    return marks > 0;
}

TEST(TreeWalk, KnowsEachClassOfExpression) {
    EXPECT_EQ(classNames(companion::walkedExpressions()), classesOf("Expression"));
}

TEST(TreeWalk, KnowsEachClassOfStatement) {
    EXPECT_EQ(classNames(companion::walkedStatements()), classesOf("Statement"));
}

TEST(TreeWalk, MeetsWhatStandsInExpressions) {
    int trees = 0;
    for (const char* place : kPlaces) {
        for (const char* form : {"(குறியீடு)", "[குறியீடு, 1]", "நீளம்(குறியீடு)", "உரை(குறியீடு)"}) {
            trees += meetsWhatIsPrinted(kSurroundings + withForm(place, form)) ? 1 : 0;
        }
    }
    EXPECT_GT(trees, 150);
}

TEST(TreeWalk, MeetsWhatStandsInBlocks) {
    int trees = 0;
    std::vector<const char*> blocks(std::begin(kBlocks), std::end(kBlocks));
    blocks.push_back("தேர்வு 1:\n    மற்றவை:\n        $\n");
    for (const char* block : blocks) {
        for (const char* place : kPlaces) {
            const std::string form = withForm(place, "(குறியீடு)");
            trees += meetsWhatIsPrinted(withForm(block, form.substr(0, form.size() - 1))) ? 1 : 0;
        }
    }
    EXPECT_GT(trees, 500);
}

TEST(TreeWalk, MeetsWhatStandsInWidgets) {
    int trees = 0;
    for (const WalkedWidget& widget : kWidgetKeys) {
        std::istringstream keys(std::string(widget.keys) + " " + kCommonKeys);
        for (std::string key; keys >> key;) {
            const std::string page = withForm(
                widget.pattern, key.substr(key.rfind("style_", 0) == 0 ? 6 : 0) + ": குறியீடு ");
            const std::string source = "வலைதளம்(தலைமை() வரையறை() குமரி(" + page + "))\n";
            trees += meetsWhatIsPrinted(source) ? 1 : 0;
        }
    }
    EXPECT_GT(trees, 100);
}

/// The words of the nodes as they are entered and left.
class Noting final : public companion::TreeVisitor {
public:
    bool enter(const Statement& node) override {
        words += nodeAs<WhileStatement>(&node) != nullptr ? "சுற்று " : "";
        return nodeAs<IfStatement>(&node) == nullptr;
    }
    bool enter(const Expression& node) override {
        if (const auto* variable = nodeAs<VariableAccess>(&node)) words += variable->name + " ";
        return true;
    }
    void leave(const Statement& node) override {
        words += nodeAs<WhileStatement>(&node) != nullptr ? "/சுற்று "
                 : nodeAs<IfStatement>(&node) != nullptr  ? "/எனில் "
                                                          : "";
    }
    std::string words;
};

TEST(TreeWalk, GoesInTheOrderOfTheSourceAndPassesOverWhatIsRefused) {
    const companion::SourceText source("test.பொழில்",
                                       "சுற்று அ:\n    எனில் ஆ:\n        விடு\n    அச்சிடு(இ, ஈ)\n"
                                       "அச்சிடு(உ)\n");
    const companion::CompiledSource compiled(source, readFile);
    Noting noting;
    companion::walk(compiled.program, noting);
    EXPECT_EQ(noting.words, "சுற்று அ /எனில் இ ஈ /சுற்று உ ");
}

}  // namespace
