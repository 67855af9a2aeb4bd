// Writes widgets into the frame of an application: what all of them share, each idiom once. What
// one kind draws stands in its template (src/emitted/widgets) and its function (src/ui/widgets).
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "syntax/widgets.h"
#include "ui/colours.h"
#include "ui/program_text.h"
#include "writing/text_writer.h"

/// Where a widget stands: the C++ texts of its place, in pixels, and what its statics are named by.
struct Site {
    const WidgetNode& node;
    std::string x;
    std::string y;
    std::string id;
};

/// True for the place of a page's own corner, which is no variable: nothing can be assigned to it.
bool isOrigin(const std::string& place);

/// One side of a widget: the local that holds it, and the C++ text of its default.
struct Side {
    const char* local;
    const char* fallback;
};

using ChannelNames = std::array<const char*, 4>;
inline constexpr ChannelNames kShortChannels = {"r", "g", "b", "a"};
using ChannelBytes = std::array<int, 4>;

/// The size that a parent forces on a child, as C++ texts: by default none.
struct Forced {
    std::string width = "-1.0f";
    std::string height = "-1.0f";
};

class WidgetWriter {
public:
    /// Keeps a reference to `text`, which must outlive it.
    WidgetWriter(TextWriter& text, ProgramText programText);

    /// Writes a widget and all below it: its identity, its visibility, its own block.
    void write(const WidgetNode& widget, const std::string& x, const std::string& y);
    /// Writes a widget that stands as a value. The trigger of a message is an expression; any other
    /// is drawn at the page's origin.
    void writeValue(const WidgetNode& widget);

    /// The template of a widget as a block, with X, Y and ID of the site where it names them. The
    /// block is a function that is called where it stands: a browser refuses a function of more
    /// than 50,000 locals, and em++ takes long over large ones.
    void fill(std::string_view widget, const Site& site, Fills fills);
    /// An expression of the program in place.
    void writeExpression(const Expression* value);
    /// The same where the placeholder stands.
    Fill expression(std::string_view name, const Expression* value);

    /// Declares both sides, lets the properties for width and height set them, then the size that
    /// a parent forces, and keeps the width within the window less `margin`, a C++ text.
    void writeSize(const Site& site, Side width, Side height, const char* margin);
    /// Declares one side and lets the properties for it set it.
    void writeWidth(const Site& site, Side width);
    void writeHeight(const Site& site, Side height);
    /// Lets the property for the height set a local that is declared already.
    void assignHeight(const Site& site, const char* local);
    /// A child in a brace block of its own, at a place named by two locals, with the size that
    /// `forced` names.
    void writeChild(const WidgetNode& child, const std::string& x, const std::string& y,
                    const Forced& forced = {});
    /// What `body` writes, in a brace block and with the size that `forced` names.
    void writeForced(const Forced& forced, const std::function<void()>& body);
    /// What the handler under `key` does, or the statements of the press block without one.
    void writeHandler(const Site& site, const char* key);
    /// Keeps the clip rectangle in locals and sets it; closeClip restores it. Four C++ texts.
    void openClip(const std::string& x, const std::string& y, const std::string& w,
                  const std::string& h);
    void closeClip();
    /// Ints of those names, a colour's channels as bytes: red, green, blue, alpha.
    void declareChannels(const ChannelNames& names, const ChannelBytes& fallback);
    /// Sets them, unless there is no colour.
    void assignChannels(const ChannelNames& names, const std::optional<PozhilColor>& colour);
    /// The same for floats from 0 to 1.
    void assignParts(const ChannelNames& names, const std::optional<PozhilColor>& colour);
    /// Three ints named `prefix` and R, G, B: `fallback`, then what the property `key` says.
    void writeChannels(const Site& site, const std::string& prefix, Rgb fallback, const char* key);

    TextWriter& text;

private:
    void registerPlace(const Site& site);
    void writeVisible(const Site& site);
    void dispatch(const Site& site);
    void assignSize(const char* local, const Expression* value, const std::string& base);
    /// A number of the node's own, in the order in which nodes are first written.
    std::string identityOf(const WidgetNode& widget);

    ProgramText programText;
    std::map<const WidgetNode*, int> identities;
};
