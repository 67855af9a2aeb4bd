#include "ui/widget_writer.h"

#include <iterator>
#include <utility>

#include "ui/properties.h"
#include "ui/sizes.h"
#include "widget_templates.h"
#include "writing/marks.h"
#include "writing/texts.h"

namespace {

constexpr const char* kClipSides[] = {"X", "Y", "W", "H"};

bool names(std::string_view text, std::string_view name) {
    for (Mark mark = findMark(text, kCodeMarks); mark.at != std::string_view::npos;
         mark = findMark(text, kCodeMarks)) {
        if (mark.name == name) return true;
        text.remove_prefix(mark.at + mark.length);
    }
    return false;
}

}  // namespace

bool isOrigin(const std::string& place) {
    return place == "0.0f" || place == "0" || place == "0.0";
}

WidgetWriter::WidgetWriter(TextWriter& text, ProgramText programText)
    : text(text), programText(std::move(programText)) {}

std::string WidgetWriter::identityOf(const WidgetNode& widget) {
    const auto entry = identities.emplace(&widget, static_cast<int>(identities.size()) + 1);
    return std::to_string(entry.first->second);
}

void WidgetWriter::fill(std::string_view widget, const Site& site, Fills fills) {
    const Fill own[] = {{"X", site.x}, {"Y", site.y}, {"ID", site.id}};
    for (const Fill& each : own) {
        if (names(widget, each.name)) fills.push_back(each);
    }
    text.block(
        "[&] ", [&] { text.fill(widget, fills); }, "();\n");
}

void WidgetWriter::writeExpression(const Expression* value) { programText.visitExpression(value); }

Fill WidgetWriter::expression(std::string_view name, const Expression* value) {
    return {name, [this, value] { writeExpression(value); }};
}

void WidgetWriter::assignSize(const char* local, const Expression* value, const std::string& base) {
    if (value == nullptr) return;
    const std::string size = processPercentage(value, base);
    if (!size.empty()) text.line(std::string(local) + " = " + size + ";");
}

void WidgetWriter::writeWidth(const Site& site, Side width) {
    text.line(std::string("float ") + width.local + " = " + width.fallback + ";");
    assignSize(width.local, styledProperty(site.node, "அகலம்"), kWidthBase);
}

void WidgetWriter::writeHeight(const Site& site, Side height) {
    text.line(std::string("float ") + height.local + " = " + height.fallback + ";");
    assignHeight(site, height.local);
}

void WidgetWriter::assignHeight(const Site& site, const char* local) {
    assignSize(local, styledProperty(site.node, "உயரம்"), kHeightBase);
}

void WidgetWriter::writeSize(const Site& site, Side width, Side height, const char* margin) {
    const std::string w = width.local;
    const std::string h = height.local;
    writeWidth(site, width);
    writeHeight(site, height);
    text.line("if (forcedW > 0.0f) " + w + " = forcedW;");
    text.line("if (forcedH > 0.0f) " + h + " = forcedH;");
    text.line(w + " = responsiveW(" + w + ", winWidth, " + margin + ");");
}

void WidgetWriter::writeForced(const Forced& forced, const std::function<void()>& body) {
    text.block("", [&] {
        text.line("float oldForcedW = forcedW;");
        text.line("float oldForcedH = forcedH;");
        text.line("forcedW = " + forced.width + ";");
        text.line("forcedH = " + forced.height + ";");
        body();
        text.line("forcedW = oldForcedW;");
        text.line("forcedH = oldForcedH;");
    });
}

void WidgetWriter::writeChild(const WidgetNode& child, const std::string& x, const std::string& y,
                              const Forced& forced) {
    writeForced(forced, [&] { write(child, x, y); });
}

/// A widget as a handler is written as it stands; a trigger of a message is a function like any
/// other. The handler runs while the frame is drawn, so what it changes shows below it at once.
void WidgetWriter::writeHandler(const Site& site, const char* key) {
    const Expression* handler = property(site.node, key);
    if (handler == nullptr) {
        for (const auto& statement : site.node.onTapStatements) {
            programText.visitStatement(statement.get());
        }
        return;
    }
    const WidgetNode* widget = widgetOf(handler);
    if (widget != nullptr && dynamic_cast<const SnackBarNode*>(widget) == nullptr) {
        programText.visitExpression(handler);
        return;
    }
    text.block("",
               [&] { text.fill(widget_templates::handler, {expression("CALLBACK", handler)}); });
}

void WidgetWriter::openClip(const std::string& x, const std::string& y, const std::string& w,
                            const std::string& h) {
    for (const char* side : kClipSides) {
        text.line(std::string("float oldClip") + side + " = g_currentClip" + side + ";");
    }
    const std::string* const values[] = {&x, &y, &w, &h};
    for (std::size_t i = 0; i < std::size(kClipSides); i++) {
        text.line(std::string("g_currentClip") + kClipSides[i] + " = " + *values[i] + ";");
    }
}

void WidgetWriter::closeClip() {
    for (const char* side : kClipSides) {
        text.line(std::string("g_currentClip") + side + " = oldClip" + side + ";");
    }
}

namespace {

/// a = 1; b = 2;
std::string assignments(const ChannelNames& names, const std::array<std::string, 4>& values,
                        const char* between) {
    std::string line;
    for (std::size_t i = 0; i < names.size(); i++) {
        line += (i == 0 ? "" : between) + std::string(names[i]) + " = " + values[i];
    }
    return line + ";";
}

}  // namespace

void WidgetWriter::declareChannels(const ChannelNames& names, const ChannelBytes& fallback) {
    const auto digits = [&](std::size_t i) { return std::to_string(fallback[i]); };
    text.line("int " + assignments(names, {digits(0), digits(1), digits(2), digits(3)}, ", "));
}

void WidgetWriter::assignChannels(const ChannelNames& names,
                                  const std::optional<PozhilColor>& colour) {
    if (!colour) return;
    const auto digits = [](float channel) { return std::to_string(channelByte(channel)); };
    text.line(assignments(
        names, {digits(colour->r), digits(colour->g), digits(colour->b), digits(colour->a)}, "; "));
}

void WidgetWriter::assignParts(const ChannelNames& names,
                               const std::optional<PozhilColor>& colour) {
    if (!colour) return;
    text.line(assignments(
        names, {to_fstr(colour->r), to_fstr(colour->g), to_fstr(colour->b), to_fstr(colour->a)},
        "; "));
}

void WidgetWriter::writeChannels(const Site& site, const std::string& prefix, Rgb fallback,
                                 const char* key) {
    const auto assignments = [&](const char* type, const Rgb& colour) {
        const auto one = [&](const char* channel, int value) {
            return type + prefix + channel + " = " + std::to_string(value) + ";";
        };
        return one("R", colour.r) + " " + one("G", colour.g) + " " + one("B", colour.b);
    };
    text.line(assignments("int ", fallback));
    const auto colour = colourProperty(site.node, key);
    if (colour) text.line(assignments("", channelBytes(*colour)));
}
