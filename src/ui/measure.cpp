#include "ui/measure.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "number_text.h"
#include "static_error.h"
#include "ui/properties.h"

namespace {

using Measure = float (*)(const Statement*);

/// The number under `key`, or `fallback` where there is none. Throws as std::stof does, in every
/// locale.
float numberOr(const WidgetNode& widget, const std::string& key, float fallback) {
    const std::string* number = numberProperty(widget, key);
    return number == nullptr ? fallback : floatOf(*number);
}

bool isPercentage(const Expression* value) {
    return dynamic_cast<const PercentageLiteral*>(value) != nullptr;
}

bool isTernary(const Expression* value) {
    return dynamic_cast<const TernaryExpression*>(value) != nullptr;
}

// ---- A size that the source gives ----

/// A share of something measures 0, a number its value; any other value falls to `fallback`.
float sizeOr(const WidgetNode& widget, const std::string& key, float fallback) {
    return isPercentage(property(widget, key)) ? 0 : numberOr(widget, key, fallback);
}

/// The same under the style's key first.
float explicitSize(const WidgetNode& widget, const std::string& key, float fallback) {
    const std::string styled = "style_" + key;
    const bool isStyled =
        isPercentage(property(widget, styled)) || numberProperty(widget, styled) != nullptr;
    return sizeOr(widget, isStyled ? styled : key, fallback);
}

template <int pixels>
float fixed(const WidgetNode&) {
    return pixels;
}
template <int fallback>
float explicitWidth(const WidgetNode& widget) {
    return explicitSize(widget, "அகலம்", fallback);
}
template <int fallback>
float explicitHeight(const WidgetNode& widget) {
    return explicitSize(widget, "உயரம்", fallback);
}
/// The plain key alone.
template <int fallback>
float plainWidth(const WidgetNode& widget) {
    return sizeOr(widget, "அகலம்", fallback);
}

float gapWidth(const WidgetNode& widget) { return numberOr(widget, "அகலம்", 0); }
float gapHeight(const WidgetNode& widget) { return numberOr(widget, "உயரம்", 0); }
float spinnerSize(const WidgetNode& widget) { return numberOr(widget, "style_அளவு", 40); }

// ---- Texts ----

float codePoints(const std::string& text) {
    return static_cast<float>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

/// The first string of the properties in the order of their keys, which needn't be the text. Meant.
float textLength(const WidgetNode& widget) {
    for (const auto& [key, value] : widget.properties) {
        const auto* text = dynamic_cast<const StringLiteral*>(value.get());
        if (text != nullptr) return codePoints(text->value);
    }
    return 10;
}

float textWidth(const WidgetNode& widget) {
    const float styled = widget.textStyle.fontSize;
    const float size = styled > 0 ? styled : numberOr(widget, "style_அளவு", 16);
    return textLength(widget) * (0.65F * size);
}

float textHeight(const WidgetNode& widget) {
    return widget.textStyle.fontSize > 0 ? widget.textStyle.fontSize : 20;
}

float labelWidth(const WidgetNode& widget, float size) {
    const std::string* label = stringProperty(widget, "உரை");
    const float length = label == nullptr ? 0 : codePoints(*label);
    return std::max(80.0F, 32 + length * (0.45F * size));
}

float textButtonWidth(const WidgetNode& widget) {
    return labelWidth(widget, numberOr(widget, "style_அளவு", 16));
}

float buttonWidth(const WidgetNode& widget) {
    return explicitSize(widget, "அகலம்", labelWidth(widget, 16));
}

// ---- Around children ----

float firstWidth(const WidgetNode& widget) { return calculateWidgetWidth(firstWidget(widget)); }
float firstHeight(const WidgetNode& widget) { return calculateWidgetHeight(firstWidget(widget)); }

float largest(const WidgetNode& widget, Measure measure) {
    float size = 0;
    for (const WidgetNode* child : widgetChildren(widget)) size = std::max(size, measure(child));
    return size;
}
float largestWidth(const WidgetNode& widget) { return largest(widget, calculateWidgetWidth); }
float largestHeight(const WidgetNode& widget) { return largest(widget, calculateWidgetHeight); }

/// The children behind each other, with a gap between each two.
float sum(const WidgetNode& widget, Measure measure) {
    const std::vector<const WidgetNode*> children = widgetChildren(widget);
    float size = 0;
    for (const WidgetNode* child : children) size += measure(child);
    if (children.size() < 2) return size;
    return size + static_cast<float>(children.size() - 1) * numberOr(widget, "இடைவெளி", 0);
}
float sumOfWidths(const WidgetNode& widget) { return sum(widget, calculateWidgetWidth); }
float sumOfHeights(const WidgetNode& widget) { return sum(widget, calculateWidgetHeight); }

float paddedWidth(const WidgetNode& widget) {
    return firstWidth(widget) + 2 * dynamic_cast<const PaddingNode&>(widget).padding;
}
float paddedHeight(const WidgetNode& widget) {
    return firstHeight(widget) + 2 * dynamic_cast<const PaddingNode&>(widget).padding;
}
float namedPaddingWidth(const WidgetNode& widget) { return firstWidth(widget) + 20; }
float namedPaddingHeight(const WidgetNode& widget) { return firstHeight(widget) + 20; }

float checkBoxWidth(const WidgetNode& widget) {
    const WidgetNode* label = firstWidget(widget);
    return explicitSize(widget, "அகலம்",
                        label == nullptr ? 24 : 24 + 12 + calculateWidgetWidth(label));
}
float checkBoxHeight(const WidgetNode& widget) {
    return explicitSize(widget, "உயரம்", std::max(24.0F, firstHeight(widget)));
}

float cardWidth(const WidgetNode& widget) {
    return explicitSize(widget, "அகலம்",
                        firstWidget(widget) == nullptr ? 350 : firstWidth(widget) + 20);
}
float cardHeight(const WidgetNode& widget) {
    return explicitSize(widget, "உயரம்",
                        firstWidget(widget) == nullptr ? 200 : firstHeight(widget) + 20);
}

/// The style block of a box is a child of it, and goes before the box's own keys.
float boxWidth(const WidgetNode& widget) {
    const WidgetNode* style = childNamed(widget, "பெட்டி_பாணி");
    if (style != nullptr) {
        const Expression* width = property(*style, "அகலம்");
        if (isPercentage(width) || isTernary(width)) return 0;
        if (const std::string* number = numberProperty(*style, "அகலம்")) return floatOf(*number);
    }
    for (const char* key : {"style_அகலம்", "அகலம்"}) {
        const Expression* width = property(widget, key);
        if (isPercentage(width) || isTernary(width)) return 0;
        if (const std::string* number = numberProperty(widget, key)) return floatOf(*number);
    }
    return 100;
}
float boxHeight(const WidgetNode& widget) {
    const WidgetNode* style = childNamed(widget, "பெட்டி_பாணி");
    const float own = explicitSize(widget, "உயரம்", 100);
    return style == nullptr ? own : sizeOr(*style, "உயரம்", own);
}

float wrapHeight(const WidgetNode& widget) { return 3 * largestHeight(widget) + 20; }

float listTileWidth(const WidgetNode& widget) { return numberOr(widget, "அகலம்", 200); }
float listTileHeight(const WidgetNode& widget) {
    return sizeOr(widget, "உயரம்", property(widget, "துணைத்_தலைப்பு") == nullptr ? 56 : 72);
}

// ---- Grids ----

/// Raises 301 for none: the rows are the result of a division by it.
float gridColumns(const WidgetNode& grid, const char* first, const char* second) {
    const float columns = numberOr(grid, first, numberOr(grid, second, 3));
    if (columns == 0) throw_static_error("பொழில்-301", "");
    return columns;
}

/// What the spaces among its properties say of `side`, the last one in the order of the keys.
float gridGap(const WidgetNode& grid, const std::string& side) {
    float gap = 10;
    for (const auto& [key, value] : grid.properties) {
        const WidgetNode* space = widgetOf(value.get());
        if (space != nullptr && space->name == "இவெ") gap = numberOr(*space, side, gap);
    }
    return gap;
}

float orIfZero(float size, float fallback) { return size == 0 ? fallback : size; }

float cells(float count, float size, float gap) { return count * size + (count - 1) * gap; }

float gridWidth(const WidgetNode& grid) {
    const float all = cells(gridColumns(grid, "குறுக்கு_எண்ணிக்கை", "cols"),
                            orIfZero(largestWidth(grid), 150), gridGap(grid, "அகலம்"));
    return explicitSize(grid, "அகலம்", numberOr(grid, "width", all));
}

float gridHeight(const WidgetNode& grid) {
    const float columns = gridColumns(grid, "cols", "குறுக்கு_எண்ணிக்கை");
    const auto children = static_cast<float>(widgetChildren(grid).size());
    if (children == 0) return 0;
    return cells(std::ceil(children / columns), orIfZero(largestHeight(grid), 40),
                 numberOr(grid, "v_gap", gridGap(grid, "உயரம்")));
}

// ---- The table ----

struct MeasureRow {
    const char* name;  ///< Null for every padding by its class.
    float (*width)(const WidgetNode&);
    float (*height)(const WidgetNode&);
};

// In the order in which they are tried. A kind that is in no row measures 0. Where a size differs
// from the drawn one, a comment says so; all of these are meant.
const MeasureRow kMeasures[] = {
    {"உரைபொத்தான்", textButtonWidth, fixed<40>},
    {"பொத்தான்", buttonWidth, explicitHeight<40>},
    {"இவெ", gapWidth, gapHeight},
    {"வெற்றிடம்", fixed<0>, gapHeight},
    {nullptr, paddedWidth, paddedHeight},
    {"உள்_இவெ", namedPaddingWidth, namedPaddingHeight},  // 20 whatever the padding
    {"உள்_இவே", namedPaddingWidth, namedPaddingHeight},
    {"உரை", textWidth, textHeight},                    // a column takes the drawn width instead
    {"அளவி", explicitWidth<200>, explicitHeight<28>},  // drawn 20 high
    {"கீழ்வரி", plainWidth<200>, fixed<40>},
    {"படம்", explicitWidth<100>, explicitHeight<100>},
    {"தேர்வுபெட்டி", checkBoxWidth, checkBoxHeight},
    {"வட்டத்தேர்வு", fixed<250>, fixed<30>},
    {"மாற்றி", fixed<48>, fixed<28>},
    {"நெகிழ்வு", firstWidth, firstHeight},
    {"விரிவாக்கம்", firstWidth, firstHeight},
    {"அடுக்கி", largestWidth, largestHeight},
    {"பெட்டி", boxWidth, boxHeight},
    {"தேடுபொறி", plainWidth<350>, explicitHeight<50>},
    {"தேடல்_பட்டை", explicitWidth<350>, explicitHeight<50>},
    {"நெடுவரிசை", largestWidth, sumOfHeights},
    {"கிடைவரிசை", sumOfWidths, largestHeight},
    {"கட்டம்_காட்சி", gridWidth, gridHeight},  // three columns by default, two are drawn
    {"மடிப்பு", fixed<0>, wrapHeight},       // three lines, whatever their number and gap
    {"பிரிப்பான்", explicitWidth<300>, explicitHeight<20>},
    {"அட்டை", cardWidth, cardHeight},
    {"எச்சரிக்கை", explicitWidth<400>, explicitHeight<280>},
    {"சுழல்_காட்டி", spinnerSize, spinnerSize},
    {"முன்னேற்றவரி", explicitWidth<200>, explicitHeight<6>},
    {"தகவல்பட்டை", explicitWidth<300>, explicitHeight<40>},
    {"உரைபெட்டி", explicitWidth<320>, explicitHeight<60>},  // drawn 50 high: 10 for its error
    {"பட்டியல்_உருப்படி", listTileWidth, listTileHeight},
    {"வட்டபடம்", explicitWidth<48>, explicitHeight<48>},
    {"தத்தல்", fixed<0>, fixed<50>},
};

bool isOf(const MeasureRow& row, const WidgetNode& widget) {
    return row.name == nullptr ? dynamic_cast<const PaddingNode*>(&widget) != nullptr
                               : widget.name == row.name;
}

float measure(const Statement* statement, float (*MeasureRow::*side)(const WidgetNode&)) {
    const auto* widget = dynamic_cast<const WidgetNode*>(statement);
    if (widget == nullptr) return 0;
    for (const MeasureRow& row : kMeasures) {
        if (isOf(row, *widget)) return (row.*side)(*widget);
    }
    return 0;
}

}  // namespace

float calculateWidgetWidth(const Statement* statement) {
    return measure(statement, &MeasureRow::width);
}

float calculateWidgetHeight(const Statement* statement) {
    return measure(statement, &MeasureRow::height);
}
