#include "companion/reference/measured_size.h"

#include <cmath>
#include <memory>

#include "syntax/literals.h"
#include "syntax/widgets.h"
#include "ui/measure.h"

namespace companion::reference {

namespace {

using Measure = float (*)(const Statement*);

WidgetNode bare(std::string_view name) {
    return WidgetNode(std::string(name), {}, {}, சீரமைப்பு_வகை::மேல்_இடது);
}

WidgetNode withText(std::string_view name, std::size_t letters) {
    WidgetNode widget = bare(name);
    widget.properties["உரை"] = std::make_unique<StringLiteral>(std::string(letters, 'a'));
    return widget;
}

WidgetNode withWidget(std::string_view name) {
    constexpr const char* kLarge = "3000";
    auto inner = std::make_unique<WidgetNode>(bare("படம்"));
    for (const char* side : {"அகலம்", "உயரம்"}) {
        inner->properties[side] = std::make_unique<NumberLiteral>(kLarge);
    }
    WidgetNode widget = withText(name, 1);
    widget.children.push_back(std::move(inner));
    return widget;
}

MeasuredSide measured(std::string_view name, Measure measure) {
    constexpr std::size_t kManyLetters = 400;
    const WidgetNode empty = withText(name, 1);
    const WidgetNode longer = withText(name, kManyLetters);
    const WidgetNode fuller = withWidget(name);
    const float size = measure(&empty);
    return {std::to_string(std::lround(size)), measure(&longer) > size, measure(&fuller) > size};
}

}  // namespace

MeasuredSize measuredSizeOf(std::string_view widget) {
    return {measured(widget, calculateWidgetWidth), measured(widget, calculateWidgetHeight)};
}

}  // namespace companion::reference
