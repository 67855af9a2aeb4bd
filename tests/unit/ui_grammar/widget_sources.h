// Widgets parsed from a source or from hand-made tokens, and looked at by a test.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/front_end.h"
#include "syntax/widgets.h"

/// A source whose first statement is a widget.
class WidgetSource {
public:
    explicit WidgetSource(const std::string& source);
    const WidgetNode& node() const;
    const WidgetNode& child(std::size_t index = 0) const;
    /// The property's tree; "none" if there is no such key.
    std::string property(const std::string& key) const;
    /// All keys with a blank between, in the map's order.
    std::string keys() const;

private:
    Parsed parsed;
};

/// The code of the source's refusal; "none" if it is parsed.
std::string refusalOf(const std::string& source);

/// The tokens of a scanned text without its END_OF_FILE, with `kind` given to each of `words`.
std::vector<Token> scanAs(TokenType kind, const std::vector<std::string>& words,
                          const std::string& text);
