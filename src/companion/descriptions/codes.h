// What each code of the compiler's catalogue means in plain words, with a program that meets it and
// the same program put right.
#pragma once

#include <string_view>
#include <vector>

namespace companion {

/// When a code is met.
enum class CodeMoment {
    Never,    ///< Nothing raises it.
    Reading,  ///< The compiler refuses the program.
    Unshown,  ///< It refuses, and prints a line in the place of the report.
    Running,  ///< The program stops.
};

struct CodeText {
    std::string_view digits;  ///< "101"
    CodeMoment moment;
    std::string_view text;  ///< What leads to it, and what to write, without markup.
};

struct CodeDescription {
    std::string_view digits;
    CodeMoment moment;
    std::string_view text;
    std::string_view wrong;  ///< A whole program; empty for a code that nothing raises.
    std::string_view right;
    std::string_view report;  ///< What the wrong one meets, without colours and saying.
};

/// All codes, in their order.
const std::vector<CodeDescription>& codeDescriptions();

const std::vector<CodeText>& codesOfWriting();  ///< 1.. and 2..: scanner and grammar.
const std::vector<CodeText>& codesOfMeaning();  ///< 3.. and 4..: the rest.

}  // namespace companion
