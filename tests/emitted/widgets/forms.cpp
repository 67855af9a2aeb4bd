// Calls as a widget makes them elsewhere.
#include "emitted/widgets/forms.h"

#include <sstream>

namespace {

// Calls whose first two numbers are a place; the last ones stand within another's arguments.
const char* const kPlaced[] = {"nvgRoundedRect(", "nvgRect(",   "nvgCircle(",
                               "nvgMoveTo(",      "nvgLineTo(", "nvgTranslate(",
                               "drawText(",       "(box(",      "(image("};

/// "nvgCircle(10, 20, 5)" with the place 1, 2 further: "nvgCircle(11, 22, 5)".
std::string movedCall(const std::string& call, std::size_t place, float x, float y) {
    std::istringstream numbers(call.substr(place));
    float left = 0;
    float top = 0;
    char comma = 0;
    numbers >> left >> comma >> top;
    std::ostringstream text;
    text << call.substr(0, place) << left + x << ", " << top + y
         << call.substr(place + static_cast<std::size_t>(numbers.tellg()));
    return text.str();
}

}  // namespace

Calls FormTest::moved(const Calls& calls, float x, float y) {
    Calls all;
    for (std::string call : calls) {
        for (const std::string name : kPlaced) {
            const std::size_t begin = call.find(name);
            if (begin == std::string::npos) continue;
            call = movedCall(call, begin + name.size(), x, y);
            break;
        }
        all.push_back(call);
    }
    return all;
}
