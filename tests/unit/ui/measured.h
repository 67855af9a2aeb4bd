// The size that a widget of a source measures.
#pragma once

#include <ostream>
#include <string>

#include "support/front_end.h"
#include "ui/measure.h"

struct Size {
    float width;
    float height;
};
inline bool operator==(const Size& a, const Size& b) {
    return a.width == b.width && a.height == b.height;
}
inline std::ostream& operator<<(std::ostream& out, const Size& size) {
    return out << size.width << " x " << size.height;
}

inline Size measured(const Statement* widget) {
    return {calculateWidgetWidth(widget), calculateWidgetHeight(widget)};
}

/// Of the first statement of `source`.
inline Size measured(const std::string& source) {
    const Parsed parsed = parse(source + "\n");
    return measured(parsed.program.statements.at(0).get());
}
