// The properties of widgets, a table a family. A row without a value tells it by its kind.
#pragma once

#include <vector>

#include "companion/descriptions/description.h"

namespace companion {

using PropertyTable = std::vector<PropertyDescription>;

const PropertyTable& commonProperties();     ///< Of every widget.
const PropertyTable& sectionProperties();    ///< Of head and database.
const PropertyTable& contentProperties();    ///< Of texts, pictures, buttons.
const PropertyTable& containerProperties();  ///< Of what holds widgets or lies between them.
const PropertyTable& choiceProperties();     ///< Of what is chosen with.
const PropertyTable& inputProperties();      ///< Of what is typed into.
const PropertyTable& statusProperties();     ///< Of what shows a state, and of lines of lists.
const PropertyTable& overlayProperties();    ///< Of what lies over a page and around it.
const PropertyTable& motionProperties();     ///< Of animations.

}  // namespace companion
