// The web form of a program: the frame of its render loop, its pages, and its start.
#pragma once

#include <optional>
#include <string>

#include "syntax/application.h"
#include "syntax/node.h"
#include "ui/application_head.h"
#include "ui/program_text.h"
#include "ui/widget_writer.h"
#include "writing/text_writer.h"

class WebForm {
public:
    /// Keeps references to `program` and `text`, which must outlive it.
    WebForm(const Program& program, TextWriter& text, ProgramText programText);

    /// What the heads say of window and first page: found at the first call, then kept.
    const ApplicationHead& head();

    /// The render loop with all pages, and main. Other top-level statements aren't written. Meant.
    void write();

    /// Helpers and the head of render_frame. The size isn't read: main opens the window.
    void generateWebBoilerplate(const ScreenConfig& screen);
    void visitWebAppNode(const WebAppNode& app);
    void generateUI(const Statement* statement);
    /// Title, clear colour and a check of the files that a head names. No pass calls it: each page
    /// writes its own head.
    void generateHeader(const Statement* statement);

    // Widgets that stand as ordinary statements, outside the widget tree.
    void visitWidgetNode(const WidgetNode& widget);
    void genTextWidget(const WidgetNode& widget);
    void genColumnWidget(const WidgetNode& widget);

    WidgetWriter widgets;

private:
    void checkMediaFile(const Expression* value, const std::string& detail);

    const Program& program;
    TextWriter& text;
    ProgramText programText;
    std::optional<ApplicationHead> applicationHead;
};
