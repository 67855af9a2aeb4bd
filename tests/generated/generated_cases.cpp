// Sources, and beside each the fragments that its generated text must hold.
//
// Each line of a .has file must appear, and in that order; one that starts with "! " must not
// appear at all.
#include <gtest/gtest.h>

#include <sstream>

#include "support/case_files.h"
#include "support/front_end.h"

namespace {

void expectFragments(const CaseFile& file, const std::string& text) {
    std::istringstream fragments(readText(file.expected));
    std::size_t from = 0;
    int count = 0;
    for (std::string line; std::getline(fragments, line);) {
        if (line.empty()) continue;
        count++;
        if (line.rfind("! ", 0) == 0) {
            EXPECT_EQ(text.find(line.substr(2)), std::string::npos) << "must not hold: " << line;
            continue;
        }
        const std::size_t at = text.find(line, from);
        if (at == std::string::npos) {
            ADD_FAILURE() << file.source
                          << (text.find(line) == std::string::npos
                                  ? "\nnot in the text: "
                                  : "\nin the text, but not in this order: ")
                          << line;
            return;
        }
        from = at + line.size();
    }
    EXPECT_GT(count, 0) << file.expected << " asks for nothing";
}

const bool registered = [] {
    registerCases("generated", ".has", [](const CaseFile& file) {
        expectFragments(file, generate(readText(file.source)));
    });
    return true;
}();

}  // namespace
