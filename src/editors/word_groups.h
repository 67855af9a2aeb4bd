// The words of the language by what an editor shows alike, out of the compiler's tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace editors {

enum class Group {
    Keyword,
    Operator,
    Truth,
    BuiltIn,   ///< Called by name.
    Member,    ///< Stands behind a dot.
    Receiver,  ///< Names that the language gives.
    Widget,
    Section,      ///< A part of an application that holds widgets or properties.
    CodeSection,  ///< A part of an application that holds statements.
    Property,
    ReservedProperty,  ///< Those of the properties that can be no name of a program.
    Value,             ///< What properties take, without quotes.
};

/// The words of a group, sorted.
const std::vector<std::string>& wordsOf(Group group);

bool isOf(Group group, std::string_view word);

}  // namespace editors
