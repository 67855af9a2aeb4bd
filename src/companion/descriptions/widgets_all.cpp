#include "companion/descriptions/widgets_families.h"

namespace companion {

const std::vector<Description>& widgetDescriptions() {
    static const std::vector<Description> all = [] {
        std::vector<Description> words;
        for (const ApplicationWords* table :
             {&applicationSections(), &applicationDatabase(), &applicationStyles(),
              &contentWidgets(), &containerWidgets(), &spaceWidgets(), &choiceWidgets(),
              &inputWidgets(), &statusWidgets(), &overlayWidgets()}) {
            words.insert(words.end(), table->begin(), table->end());
        }
        return words;
    }();
    return all;
}

}  // namespace companion
