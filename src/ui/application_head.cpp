#include "ui/application_head.h"

#include "ui/properties.h"

namespace {

void readWindow(const WebAppNode& app, ApplicationHead& head) {
    head.isApplication = true;
    head.title = app.name;
    const auto* header = dynamic_cast<const HeaderNode*>(app.header.get());
    if (header == nullptr || header->screen.useDefault) return;
    head.width = header->screen.width;
    head.height = header->screen.height;
}

}  // namespace

ApplicationHead readApplicationHead(const Program& program) {
    ApplicationHead head;
    std::string page;
    for (const auto& statement : program.statements) {
        const auto* app = dynamic_cast<const WebAppNode*>(statement.get());
        if (app == nullptr) continue;
        if (!head.isApplication) readWindow(*app, head);
        const auto* header = dynamic_cast<const WidgetNode*>(app->header.get());
        if (header == nullptr) continue;
        const std::string* name = stringProperty(*header, "பக்கம்");
        if (name == nullptr) continue;
        if (page.empty() || isTrueLiteral(*header, "ஆரம்ப_பக்கம்")) page = *name;
    }
    if (!page.empty()) head.initialPage = page;
    return head;
}
