#include <algorithm>
#include <stdexcept>

#include "companion/descriptions/properties_families.h"
#include "companion/descriptions/properties_of.h"

namespace companion {

namespace {

/// What is written for a value of `kind`.
std::string_view valueTextOf(ValueKind kind) {
    switch (kind) {
        case ValueKind::Any: return "எந்த மதிப்பும்: உரை, எண், மாறி, கணக்கு";
        case ValueKind::Number: return "நேராக எழுதிய முழு எண்";
        case ValueKind::Decimal: return "நேராக எழுதிய எண்";
        case ValueKind::Size: return "முழு எண், சதவீதம் (50%), மாறி, அல்லது (நிபந்தனை ? ஒன்று : மற்றொன்று)";
        case ValueKind::Text: return "மேற்கோளுக்குள் உரை";
        case ValueKind::Colour: return "மேற்கோளுக்குள் நிறம்: \"#2A9D8F\" அல்லது \"சிவப்பு\"";
        case ValueKind::NamedColour:
            return "நிறம்: \"#2A9D8F\", \"சிவப்பு\", அல்லது மேற்கோள் இல்லாத சிவப்பு";
        case ValueKind::PageColour: return "மேற்கோளுக்குள் நிறம்: \"#FFF8E7\"";
        case ValueKind::Truth: return "மெய் அல்லது பொய்";
        case ValueKind::Flag: return "மெய் (எழுதியிருந்தாலே போதும்)";
        case ValueKind::Texts: return "மேற்கோளில் எழுதிய உரைகளின் பட்டியல்: [\"அ\", \"ஆ\"]";
        case ValueKind::Widget: return "ஓர் உறுப்பு: உரை(\"...\"), படம்(...)";
        case ValueKind::Alignment: return "மேற்கோள் இல்லாத சொல்: மையம், மேல்_இடது, கீழ்_வலது";
        case ValueKind::Weight: return "முழு எண் (400, 700), \"தடிமனான\" அல்லது \"bold\"";
        case ValueKind::Word: return "மேற்கோளுக்குள் ஒரு சொல்";
    }
    throw std::logic_error("a kind of value without words");
}

}  // namespace

const std::vector<PropertyDescription>& propertyDescriptions() {
    static const std::vector<PropertyDescription> all = [] {
        PropertyTable rows;
        for (const PropertyTable* table :
             {&commonProperties(), &sectionProperties(), &contentProperties(),
              &containerProperties(), &choiceProperties(), &inputProperties(), &statusProperties(),
              &overlayProperties(), &motionProperties()}) {
            rows.insert(rows.end(), table->begin(), table->end());
        }
        for (PropertyDescription& row : rows) {
            if (row.value.empty()) row.value = valueTextOf(row.kind);
        }
        return rows;
    }();
    return all;
}

std::vector<std::string_view> listedWords(std::string_view list) {
    constexpr std::string_view kBetween = ", ";
    std::vector<std::string_view> words;
    for (std::size_t end = list.find(kBetween); end != std::string_view::npos;
         end = list.find(kBetween)) {
        words.push_back(list.substr(0, end));
        list.remove_prefix(end + kBetween.size());
    }
    if (!list.empty()) words.push_back(list);
    return words;
}

std::vector<const PropertyDescription*> propertiesOf(std::string_view widget) {
    std::vector<const PropertyDescription*> properties;
    for (const PropertyDescription& row : propertyDescriptions()) {
        const auto widgets = listedWords(row.widgets);
        if (std::find(widgets.begin(), widgets.end(), widget) != widgets.end()) {
            properties.push_back(&row);
        }
    }
    return properties;
}

}  // namespace companion
