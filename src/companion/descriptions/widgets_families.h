// The words of web applications, a table a family.
#pragma once

#include <string_view>
#include <vector>

#include "companion/descriptions/description.h"

namespace companion {

using ApplicationWords = std::vector<Description>;

/// A family as a reader looks for it.
struct WidgetFamily {
    std::string_view title;
    const ApplicationWords& words;
};

/// All families; their words together are widgetDescriptions().
const std::vector<WidgetFamily>& widgetFamilies();

const ApplicationWords&
applicationSections();  ///< The application, its sections, what they are told.
const ApplicationWords& applicationDatabase();  ///< The database that other people's screens share.
const ApplicationWords& applicationStyles();    ///< Style blocks and the animation.
const ApplicationWords& contentWidgets();       ///< Texts, pictures, buttons.
const ApplicationWords& containerWidgets();     ///< What holds other widgets.
const ApplicationWords& spaceWidgets();         ///< What lies between widgets.
const ApplicationWords& choiceWidgets();        ///< What is chosen with.
const ApplicationWords& inputWidgets();         ///< What is typed into.
const ApplicationWords& statusWidgets();        ///< What shows a state, and lines of lists.
const ApplicationWords& overlayWidgets();       ///< What lies over a page and around it.

}  // namespace companion
