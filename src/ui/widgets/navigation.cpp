// Bars that lead from page to page.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

constexpr const char* kOnPress = "அழுத்தினால்";

using Items = std::vector<const WidgetNode*>;

Items itemsOf(const WidgetNode& bar, const char* name) {
    Items items;
    for (const WidgetNode* child : widgetChildren(bar)) {
        if (child->name == name) items.push_back(child);
    }
    return items;
}

/// The digits of a number literal; "0" for anything else.
std::string chosen(const WidgetNode& bar, const char* key) {
    const std::string* number = numberProperty(bar, key);
    return number == nullptr ? "0" : *number;
}

bool answersPress(const WidgetNode& item) {
    return property(item, kOnPress) != nullptr || !item.onTapStatements.empty();
}

/// Who is told of a click: the bar, then the item at the place that `clicked` holds.
///     if (clickedIdx == 1) { ... }
void writeHandlers(WidgetWriter& w, const Site& bar, const Items& items,
                   const std::string& clicked) {
    w.writeHandler(bar, kOnPress);
    for (std::size_t i = 0; i < items.size(); i++) {
        if (!answersPress(*items[i])) continue;
        w.text.block("if (" + clicked + " == " + std::to_string(i) + ") ", [&] {
            w.writeHandler({*items[i], bar.x, bar.y, bar.id}, kOnPress);
        });
    }
}

/// The path of an item's picture; null without one.
const std::string* iconOf(const WidgetNode& item) {
    const WidgetNode* picture = childNamed(item, "படம்");
    const std::string* path = picture == nullptr ? nullptr : stringProperty(*picture, "பாதை");
    return path != nullptr ? path : stringProperty(item, "பாதை");
}

void writeBottomItem(WidgetWriter& w, const Site& at, const WidgetNode& item, std::size_t place) {
    const std::string* icon = iconOf(item);
    const Expression* label = property(item, "உரை");
    w.fill(widget_templates::bottom_item, at,
           {{"PLACE", std::to_string(place)},
            {"HAS_ICON", icon != nullptr},
            {"ICON", asWritten(icon == nullptr ? "" : *icon)},
            {"HAS_LABEL", label != nullptr},
            w.expression("LABEL", label)});
}

}  // namespace

void writeBottomBar(WidgetWriter& w, const Site& at) {
    const auto items = itemsOf(at.node, "அடி_உருப்படி");
    w.fill(widget_templates::bottom_bar, at,
           {{"CHOSEN", chosen(at.node, "அடிப்பகுதிதேர்வு")},
            {"COUNT", std::to_string(items.size())},
            {"COLOUR",
             [&] {
                 w.declareChannels(kShortChannels, {255, 255, 255, 255});
                 w.assignChannels(kShortChannels, colourProperty(at.node, "style_பின்னணி"));
             }},
            {"HANDLER", [&] { writeHandlers(w, at, items, "clickedIdx"); }},
            {"ITEMS", [&] {
                 for (std::size_t i = 0; i < items.size(); i++) {
                     writeBottomItem(w, at, *items[i], i);
                 }
             }}});
}

void writeTabBar(WidgetWriter& w, const Site& at) {
    const auto items = itemsOf(at.node, "தத்தல்_உருப்படி");
    w.fill(widget_templates::tab_bar, at,
           {{"CHOSEN", chosen(at.node, "தத்தல்_தேர்வு")},
            {"COUNT", std::to_string(items.size())},
            {"COLOUR",
             [&] {
                 w.declareChannels(kShortChannels, {33, 150, 243, 255});
                 w.assignChannels(kShortChannels, colourProperty(at.node, "style_பின்னணி"));
             }},
            {"HANDLER", [&] { writeHandlers(w, at, items, "clickedTab"); }},
            {"ITEMS", [&] {
                 for (std::size_t i = 0; i < items.size(); i++) {
                     const Expression* label = property(*items[i], "உரை");
                     if (label == nullptr) continue;
                     w.fill(widget_templates::tab_item, at,
                            {{"PLACE", std::to_string(i)}, w.expression("LABEL", label)});
                 }
             }}});
}
