// The families in their order, and all of their words in one.
#include "companion/descriptions/widgets_families.h"

namespace companion {

const std::vector<WidgetFamily>& widgetFamilies() {
    static const std::vector<WidgetFamily> families = {
        {"வலைதளமும் அதன் பகுதிகளும்", applicationSections()},
        {"தரவுத்தளம்", applicationDatabase()},
        {"பாணிகளும் அசைவும்", applicationStyles()},
        {"உரைகளும் படங்களும் பொத்தான்களும்", contentWidgets()},
        {"மற்ற உறுப்புகளை அடுக்குபவை", containerWidgets()},
        {"நடுவே நிற்பவை", spaceWidgets()},
        {"தேர்ந்தெடுக்க", choiceWidgets()},
        {"தட்டச்சு செய்ய", inputWidgets()},
        {"நிலையைக் காட்டுபவை", statusWidgets()},
        {"பக்கத்தின் மேலும் ஓரத்திலும் நிற்பவை", overlayWidgets()},
    };
    return families;
}

const std::vector<Description>& widgetDescriptions() {
    static const std::vector<Description> all = [] {
        std::vector<Description> words;
        for (const WidgetFamily& family : widgetFamilies()) {
            words.insert(words.end(), family.words.begin(), family.words.end());
        }
        return words;
    }();
    return all;
}

}  // namespace companion
