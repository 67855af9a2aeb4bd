// The pages of widgets and of what applications are made of besides.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "companion/reference/markdown.h"

namespace companion::reference {

/// All widgets by family, with their pictures.
MarkdownPage widgetsPage(const std::set<std::string>& pictures);
/// A page for each widget.
std::vector<MarkdownPage> widgetPages(const std::set<std::string>& pictures);
/// Sections, style blocks, database.
MarkdownPage applicationPage();
/// Properties by their word, and who reads them.
MarkdownPage propertiesPage();

}  // namespace companion::reference
