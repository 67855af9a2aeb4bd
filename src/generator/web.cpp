// What the web form writes, by the names under which visitors and passes call it.
#include "generator/generator.h"
#include "ui/colours.h"
#include "ui/web_form.h"

void Generator::generateWebBoilerplate(const ScreenConfig& screen) {
    web->generateWebBoilerplate(screen);
}

void Generator::visitWebAppNode(const WebAppNode* app) { web->visitWebAppNode(*app); }

void Generator::generateUI(const Statement* statement) { web->generateUI(statement); }

void Generator::generateHeader(const Statement* statement) { web->generateHeader(statement); }

void Generator::visitWidgetNode(const WidgetNode* widget) { web->visitWidgetNode(*widget); }

void Generator::genTextWidget(const WidgetNode* widget) { web->genTextWidget(*widget); }

void Generator::genColumnWidget(const WidgetNode* widget) { web->genColumnWidget(*widget); }

void Generator::generateWidgetCode(const WidgetNode* widget, const std::string& x,
                                   const std::string& y) {
    web->widgets.write(*widget, x, y);
}

PozhilColor Generator::parsePozhilColor(std::string value, bool isHex) {
    return ::parsePozhilColor(std::move(value), isHex);
}

/// "#ff8000"  ->  nvgRGBA(255, 128, 0, 255)
void Generator::visitColorExpression(const ColorExpression* colour) {
    const PozhilColor c = colourOf(*colour);
    out << "nvgRGBA(" << channelByte(c.r) << ", " << channelByte(c.g) << ", " << channelByte(c.b)
        << ", " << channelByte(c.a) << ")";
}
