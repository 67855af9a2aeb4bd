// Reading a widget's properties: each function takes one form of value, and what has another form
// counts as absent.
#pragma once

#include <string>
#include <vector>

#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/widgets.h"

/// The value under `key`; null if there is none.
const Expression* property(const WidgetNode& widget, const std::string& key);

/// False for a widget with the disabling property, whatever its value.
bool isEnabled(const WidgetNode& widget);

/// The value under the first of `key` behind "style_" and `key` alone that the widget has.
const Expression* styledProperty(const WidgetNode& widget, const std::string& key);

/// The text of a string literal; null for anything else.
const std::string* stringProperty(const WidgetNode& widget, const std::string& key);

/// A number literal as the source writes it; null for anything else.
const std::string* numberProperty(const WidgetNode& widget, const std::string& key);

/// A widget that stands as a value; null for any other expression.
const WidgetNode* widgetOf(const Expression* value);

/// True for the truth literal `மெய்`.
bool isTrueLiteral(const WidgetNode& widget, const std::string& key);

/// The children that are widgets, in their order.
std::vector<const WidgetNode*> widgetChildren(const WidgetNode& widget);

/// The first child that is a widget; null without one.
const WidgetNode* firstWidget(const WidgetNode& widget);

/// The first child that is a widget of that name; null without one.
const WidgetNode* childNamed(const WidgetNode& widget, const std::string& name);

/// The first child of that name whose `key` is a string literal; null without one.
const WidgetNode* childWithString(const WidgetNode& widget, const std::string& name,
                                  const std::string& key);
