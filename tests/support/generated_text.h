// The generator as tests call it, behind the phases before it.
#pragma once

#include <string>

#include "generator/generator.h"
#include "support/front_end.h"

/// The whole generated text of `source`.
std::string generate(const std::string& source, const std::string& filename = "test.பொழில்");

/// How often `part` stands in `text`, without overlaps.
int countOf(const std::string& part, const std::string& text);
