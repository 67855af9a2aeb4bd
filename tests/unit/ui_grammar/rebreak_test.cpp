// A screen's tree doesn't depend on where its lines break.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>

#include "support/case_files.h"
#include "support/repeated.h"
#include "support/tree_printer.h"
#include "unit/ui_grammar/rebreaker.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

constexpr unsigned kSeeds = rounds(80);

// The gallery holds every widget, some with groups of properties that the rebreaker doesn't know.
constexpr const char* kGallery = "காட்சியகம்";

std::vector<std::string> examples() {
    namespace fs = std::filesystem;
    std::vector<std::string> sources;
    for (const auto& entry : fs::directory_iterator(fs::u8path(POZHIL_ROOT "/examples/web"))) {
        const fs::path& path = entry.path();
        if (path.extension() != fs::u8path(".பொழில்") || path.stem() == fs::u8path(kGallery))
            continue;
        sources.push_back(readText(path.u8string()));
    }
    return sources;
}

/// The tree without its line numbers: each " @" and the digits behind it are left out. By hand,
/// since the library's expressions take half of the time of all units.
std::string shapeOf(const std::string& source) {
    const std::string tree = printTree(parse(source).program);
    constexpr std::string_view kDigits = "0123456789";
    std::string shape;
    std::size_t at = 0;
    for (std::size_t mark; (mark = tree.find(" @", at)) != std::string::npos;) {
        const std::size_t digits = mark + 2;
        const std::size_t end = std::min(tree.find_first_not_of(kDigits, digits), tree.size());
        shape.append(tree, at, (end == digits ? digits : mark) - at);
        at = end;
    }
    return shape.append(tree, at);
}

TEST(Rebreaking, KeepsTheTree) {
    const std::vector<std::string> sources = examples();
    ASSERT_GE(sources.size(), 4U);
    for (const std::string& source : sources) {
        const std::string shape = shapeOf(source);
        const std::vector<Token> tokens = scan(source);
        std::set<std::string> layouts;
        for (unsigned seed = 1; seed <= kSeeds; seed++) {
            const std::string broken = Rebreaker(tokens, seed).text();
            layouts.insert(broken);
            try {
                ASSERT_EQ(shapeOf(broken), shape) << broken;
            } catch (const Refusal& refusal) {
                FAIL() << refusal.code << " at line " << refusal.line << "\n" << broken;
            }
        }
        EXPECT_EQ(layouts.size(), kSeeds);
    }
}

}  // namespace
