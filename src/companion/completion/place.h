// What is being written where: read from the pieces ahead of the place alone, since the source is
// broken there as a rule.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "companion/check/source_text.h"

namespace companion::completion {

enum class PlaceKind {
    Nothing,        ///< Where nothing is offered: in a number, between a word and its dot.
    Statement,      ///< The first word of a statement.
    Operand,        ///< Where a value has to stand.
    AfterValue,     ///< Where an operator may stand.
    LoopWord,       ///< Behind the name of a loop over a list.
    NewName,        ///< A name that is being made up.
    Member,         ///< Behind a dot.
    Section,        ///< Directly in an application.
    WidgetItem,     ///< In a widget, a section, a style block: a property, a block, a widget.
    PropertyValue,  ///< Behind a property's colon.
    ValueText,      ///< The same within quotes.
    ImportPath,     ///< Behind நூஇறக்கி, within quotes or before them.
    Text,           ///< In any other text.
    Comment,
};

struct Place {
    PlaceKind kind = PlaceKind::Nothing;
    Range typed = {0, 0};       ///< What was written of the word, up to the place.
    bool isQuoted = false;      ///< Within quotes.
    std::string_view receiver;  ///< What stands before the dot.
    std::string_view before;    ///< The word that a new name, a value or a text follows.
    std::string_view holder;    ///< The widget, section or block whose parentheses are open.
    std::string_view widget;    ///< The widget to which a block belongs; the holder itself else.
    std::string_view property;  ///< Whose value is written.
    bool isSecond = false;      ///< In the second parentheses of the holder.
    bool followsValue = false;  ///< A value was written just before, in the same line.
    char next = '\0';           ///< What stands directly behind the place.
};

/// The place `offset` of `text`, both in bytes. The views point into `text`.
Place placeAt(std::string_view text, std::size_t offset);

}  // namespace companion::completion
