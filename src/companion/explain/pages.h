// What is told of a word, a property or a code, as pages.
#pragma once

#include "companion/check/rules.h"
#include "companion/descriptions/codes.h"
#include "companion/descriptions/description.h"
#include "companion/explain/page.h"

namespace companion {

Page pageOf(const Description& word);
/// All that is told of one property: a section for each family of widgets that reads it.
Page pageOf(const std::vector<PropertyDescription>& meanings);
Page pageOf(const ValueDescription& value);
Page pageOf(const CodeDescription& code);
Page pageOf(const Rule& rule);

}  // namespace companion
