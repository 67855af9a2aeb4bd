// The words of web applications, a table a family.
#pragma once

#include <vector>

#include "companion/descriptions/description.h"

namespace companion {

using WordTable = std::vector<Description>;

const WordTable& sectionWords();      ///< The application, its sections, what they are told.
const WordTable& databaseWords();     ///< The database that other people's screens share.
const WordTable& styleWords();        ///< Style blocks and the animation.
const WordTable& contentWidgets();    ///< Texts, pictures, buttons.
const WordTable& containerWidgets();  ///< What holds other widgets.
const WordTable& spaceWidgets();      ///< What lies between widgets.
const WordTable& choiceWidgets();     ///< What is chosen with.
const WordTable& inputWidgets();      ///< What is typed into.
const WordTable& statusWidgets();     ///< What shows a state, and lines of lists.
const WordTable& overlayWidgets();    ///< What lies over a page and around it.

}  // namespace companion
