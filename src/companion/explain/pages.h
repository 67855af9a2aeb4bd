// What is told of a word, a property or a code, as pages.
#pragma once

#include "companion/check/rules.h"
#include "companion/descriptions/codes.h"
#include "companion/descriptions/description.h"
#include "companion/explain/page.h"

namespace companion {

Page pageOf(const Description& word);
Page pageOf(const PropertyDescription& property);
Page pageOf(const CodeDescription& code);
Page pageOf(const Rule& rule);

}  // namespace companion
