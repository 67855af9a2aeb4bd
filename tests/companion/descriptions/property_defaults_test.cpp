// The defaults of properties: whoever writes one out gets the same widget.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "companion/descriptions/properties_of.h"
#include "companion/descriptions/widget_probe.h"
#include "support/pattern.h"

namespace {

using companion::PropertyDescription;

// ---- A default that is written out may be assigned once more ----

using KnownNumbers = std::map<std::string, std::string>;

/// "  int r = 33, g = 150;"  ->  r: 33, g: 150. False for a line that does anything else.
bool readNumbers(const std::string& line, KnownNumbers& values) {
    static const Pattern whole(R"(\s*((float |int )?\w+ = -?[\d.]+f?[,;]\s*)+)");
    static const Pattern each(R"((\w+) = (-?[\d.]+f?)[,;])");
    if (line.find(" = ") == std::string::npos || line.find('(') != std::string::npos ||
        !whole.isWhole(line)) {
        return false;
    }
    for (const Match& match : each.all(line)) values[match[1]] = match[2];
    return true;
}

/// Without the lines that give a local the very number that it has.
std::string withoutRepetitions(const std::string& text) {
    std::istringstream lines(text);
    std::string kept;
    KnownNumbers known;
    for (std::string line; std::getline(lines, line);) {
        KnownNumbers values;
        if (!readNumbers(line, values)) {
            kept += line + "\n";
            continue;
        }
        bool isRepetition =
            line.find("float ") == std::string::npos && line.find("int ") == std::string::npos;
        for (const auto& [name, value] : values) isRepetition &= known[name] == value;
        for (const auto& [name, value] : values) known[name] = value;
        if (!isRepetition) kept += line + "\n";
    }
    return kept;
}

// ---- Which defaults are written as a source writes them ----

bool isAsWritten(std::string_view value) {
    if (value.empty()) return false;
    return value.front() == '"' || value.front() == '[' || value == "மெய்" || value == "பொய்" ||
           value == "மேல்_இடது" || (value.front() >= '0' && value.front() <= '9');
}

/// Where a default that is written out becomes another text.
struct Otherwise {
    const char* widget;
    const char* block;
    const char* word;
    const char* reason;
};
const Otherwise kOtherwise[] = {
    {"தலைமை", "", "இணைய_தலைப்பு", "the page has the default, the program sets nothing"},
    {"தலைமை", "", "பின்னணி", "the frame falls back to it in a line of its own"},
    {"தலைமை", "", "நிறம்", "the frame falls back to it in a line of its own"},
    {"தலைமை", "", "பெட்டிபின்னணி", "the frame falls back to it in a line of its own"},
    {"உரை", "உரைபாணி", "தடிமன்", "the canvas is told of it as normal"},
    {"வட்டபடம்", "", "வளைவு", "a radius is doubled where it is written"},
    {"வட்டபடம்", "", "பின்னணி", "the same colour, as fractions"},
    {"கட்டம்_காட்சி", "", "cols", "two are drawn, three are measured"},
    {"கட்டம்_காட்சி", "", "குறுக்கு_எண்ணிக்கை", "two are drawn, three are measured"},
    {"அட்டை", "அட்டை_பாணி", "அகலம்", "a card without a size is measured by its child"},
    {"அட்டை", "அட்டை_பாணி", "உயரம்", "a card without a size is measured by its child"},
    {"இவெ", "", "உயரம்", "what isn't there is no assignment"},
    {"இவெ", "", "அகலம்", "what isn't there is no assignment"},
    {"தேர்வுபெட்டி", "", "அகலம்", "without a size its label is measured too"},
    {"உரைபெட்டி", "", "உயரம்", "drawn 50 high, measured 60"},
    {"உரைபெட்டி", "தேடல்_பாணி", "உயரம்", "drawn 50 high, measured 60"},
    {"உரை", "", "உரை", "worked out when the program runs"},
    {"உரைபெட்டி", "", "குறிப்பு", "worked out when the program runs"},
    {"கடவுமறை", "", "குறிப்பு", "worked out when the program runs"},
    {"தேடல்_பட்டை", "", "குறிப்பு", "worked out when the program runs"},
    {"தேடல்_பட்டை", "", "தேடல்_குறிப்பு", "worked out when the program runs"},
    {"தேடுபொறி", "", "குறிப்பு", "worked out when the program runs"},
    {"தேடுபொறி", "", "தேடல்_குறிப்பு", "worked out when the program runs"},
    {"தகவல்பட்டை", "", "செய்தி", "worked out when the program runs"},
};

/// The shape without what its application says besides.
Shape withoutOwn(Shape shape) {
    for (const std::string said : {"\"அ\", ", "கரை_அளவு: 2, "}) {
        const std::size_t at = shape.source.find(said);
        if (at != std::string::npos) shape.source.erase(at, said.size());
    }
    return shape;
}

bool isOtherwise(const std::string& widget, const PropertyDescription& row) {
    for (const Otherwise& each : kOtherwise) {
        if (widget == each.widget && row.block == each.block && row.word == each.word) return true;
    }
    return false;
}

TEST(Defaults, WrittenOutChangeNothing) {
    int count = 0;
    for (const Shape& each : allShapes()) {
        const Shape shape = withoutOwn(each);
        const auto plain = becomes(shape, "");
        if (!plain) continue;
        const std::string expected = withoutRepetitions(*plain);
        for (const PropertyDescription* row : companion::propertiesOf(shape.widget)) {
            if (row->block != shape.block || !isAsWritten(row->defaultValue)) continue;
            const std::string item = std::string(row->word) + ": " + std::string(row->defaultValue);
            const auto text = becomes(shape, item);
            ASSERT_TRUE(text) << shape.widget << " " << item;
            EXPECT_EQ(withoutRepetitions(*text) == expected, !isOtherwise(shape.widget, *row))
                << shape.widget << " " << row->block << " " << item;
            count++;
        }
    }
    EXPECT_GT(count, 100);
}

}  // namespace
