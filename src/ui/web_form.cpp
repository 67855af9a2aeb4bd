#include "ui/web_form.h"

#include <filesystem>
#include <fstream>
#include <utility>

#include "emitted_text.h"
#include "ui/colours.h"
#include "ui/properties.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

constexpr std::string_view kPages = "    POZHIL_PAGES;\n";

/// The frame's text up to its pages, and behind them.
std::string_view textBeforePages() {
    const std::string_view frame = emitted::web_frame;
    return frame.substr(0, frame.find(kPages));
}
std::string_view textBehindPages() {
    const std::string_view frame = emitted::web_frame;
    return frame.substr(frame.find(kPages) + kPages.size());
}

const Expression* propertyOf(const WidgetNode* widget, const std::string& key) {
    return widget == nullptr ? nullptr : property(*widget, key);
}

}  // namespace

WebForm::WebForm(const Program& program, TextWriter& text, ProgramText programText)
    : widgets(text, programText),
      program(program),
      text(text),
      programText(std::move(programText)) {}

const ApplicationHead& WebForm::head() {
    if (!applicationHead) applicationHead = readApplicationHead(program);
    return *applicationHead;
}

void WebForm::write() {
    generateWebBoilerplate({});
    text.level++;
    for (const char* name : {"forcedW", "forcedH", "maxW", "maxH"}) {
        text.line("float " + std::string(name) + " = -1.0f;");
    }
    for (const auto& statement : program.statements) {
        if (const auto* app = dynamic_cast<const WebAppNode*>(statement.get())) {
            visitWebAppNode(*app);
        }
    }
    text.level--;
    text.out << textBehindPages() << "\n";
    text.fill(emitted::web_main, {{"WINDOW_WIDTH", numberText(head().width)},
                                  {"WINDOW_HEIGHT", numberText(head().height)},
                                  {"WINDOW_TITLE", quoted(head().title)}});
    text.out << "\n";
}

void WebForm::generateWebBoilerplate(const ScreenConfig&) { text.out << textBeforePages() << "\n"; }

/// One page: if (g_currentPage == "...") { background; title; widgets }
void WebForm::visitWebAppNode(const WebAppNode& app) {
    const auto* header = dynamic_cast<const WidgetNode*>(app.header.get());
    const std::string* page = header == nullptr ? nullptr : stringProperty(*header, "பக்கம்");
    const auto* colour = dynamic_cast<const ColorExpression*>(propertyOf(header, "பின்னணி"));
    const Expression* image = propertyOf(header, "பின்னணிபடம்");
    const Expression* video = propertyOf(header, "பின்னணிகாணொளி");
    const Expression* title = propertyOf(header, "இணைய_தலைப்பு");

    // As the source writes it, escapes included: so it equals the name of the first page.
    const Fills fills = {
        {"HAS_COLOUR", colour != nullptr},
        {"COLOUR", colour == nullptr ? "" : channelTexts(colourOf(*colour))},
        {"HAS_IMAGE", image != nullptr},
        widgets.expression("IMAGE", image),
        {"HAS_VIDEO", video != nullptr},
        {"VIDEO",
         [&] {
             checkMediaFile(video, "ஊடகப் பிழை: காணொளியின் முகவரி சரியாக இல்லை (");
             programText.visitExpression(video);
         }},
        {"HAS_TITLE", title != nullptr},
        widgets.expression("TITLE", title),
        {"WIDGETS", [&] { generateUI(app.body.get()); }},
    };
    text.block("if (g_currentPage == " + asWritten(page == nullptr ? "home" : *page) + ") ",
               [&] { text.fill(widget_templates::page, fills); });
}

/// Raises 254 for a literal path that doesn't open; any other value is left to the run.
void WebForm::checkMediaFile(const Expression* value, const std::string& detail) {
    const auto* path = dynamic_cast<const StringLiteral*>(value);
    if (path == nullptr || std::ifstream(std::filesystem::u8path(path->value)).is_open()) return;
    programText.refuse("பொழில்-254", path->line, detail + path->value);
}

void WebForm::generateHeader(const Statement* statement) {
    const auto* header = dynamic_cast<const WidgetNode*>(statement);
    if (header == nullptr) return;
    const std::string* title = stringProperty(*header, "இணைய_தலைப்பு");
    text.line("emscripten::val::global(\"document\").set(\"title\", std::string(u8\"" +
              (title == nullptr ? "பொழில் தளம்" : *title) + "\"));");
    const auto* colour = dynamic_cast<const ColorExpression*>(property(*header, "பின்னணி"));
    if (colour != nullptr) text.line("glClearColor(" + channelTexts(colourOf(*colour)) + ");");
    for (const char* key : {"சின்னம்", "பின்னணிபடம்", "பின்னணிகாணொளி"}) {
        checkMediaFile(property(*header, key), "ஊடகப் பிழை: முகவரி சரியாக இல்லை (");
    }
}

void WebForm::generateUI(const Statement* statement) {
    if (const auto* widget = dynamic_cast<const WidgetNode*>(statement)) {
        widgets.write(*widget, "0.0f", "0.0f");
    }
}
