// The functions that gather what a widget's template needs and fill it, one a kind.
#pragma once

#include "ui/widget_writer.h"

using WriteWidget = void (*)(WidgetWriter&, const Site&);

constexpr float kFontSize = 16;  ///< Pixels, where no style gives another.

/// The size of a text as its style gives it, in pixels, before the window scales it.
float fontSizeOf(const WidgetNode& text);

/// What a text shows, as a value of the program, where the placeholder stands: whoever measures a
/// text takes it from here too.
Fill contentOf(WidgetWriter& w, std::string_view name, const WidgetNode& text);

void writeNothing(WidgetWriter& w, const Site& at);
void writeText(WidgetWriter& w, const Site& at);

// What is chosen and typed
void writeCheckBox(WidgetWriter& w, const Site& at);
void writeRadio(WidgetWriter& w, const Site& at);
void writeSwitch(WidgetWriter& w, const Site& at);
void writeSlider(WidgetWriter& w, const Site& at);
void writeDropdown(WidgetWriter& w, const Site& at);
void writeTextBox(WidgetWriter& w, const Site& at);
void writePasswordBox(WidgetWriter& w, const Site& at);
void writeSearchBar(WidgetWriter& w, const Site& at);

// What shows a state
void writeSpinner(WidgetWriter& w, const Site& at);
void writeProgressBar(WidgetWriter& w, const Site& at);
void writeMessageBar(WidgetWriter& w, const Site& at);
void writeListTile(WidgetWriter& w, const Site& at);

// Buttons and pictures
void writeButton(WidgetWriter& w, const Site& at);
void writeTextButton(WidgetWriter& w, const Site& at);
void writeImage(WidgetWriter& w, const Site& at);
void writeAvatar(WidgetWriter& w, const Site& at);

// Containers
void writeColumn(WidgetWriter& w, const Site& at);
void writeRow(WidgetWriter& w, const Site& at);
void writeStack(WidgetWriter& w, const Site& at);
void writeWrap(WidgetWriter& w, const Site& at);
void writeGrid(WidgetWriter& w, const Site& at);
void writeList(WidgetWriter& w, const Site& at);
void writeBox(WidgetWriter& w, const Site& at);
void writeCard(WidgetWriter& w, const Site& at);

// What lies between widgets, and around them
void writeFirstChild(WidgetWriter& w, const Site& at);
void writeSpacer(WidgetWriter& w, const Site& at);
void writeDivider(WidgetWriter& w, const Site& at);
void writePadding(WidgetWriter& w, const Site& at);
void writeInlinePage(WidgetWriter& w, const Site& at);

// What lies over a page and around it
void writeAlert(WidgetWriter& w, const Site& at);
void writeBottomBar(WidgetWriter& w, const Site& at);
void writeTabBar(WidgetWriter& w, const Site& at);
/// The function that shows a message, as an expression.
void writeSnackBarTrigger(WidgetWriter& w, const SnackBarNode& message);
