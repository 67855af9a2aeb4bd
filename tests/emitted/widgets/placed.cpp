#include "emitted/widgets/placed.h"

namespace {

bool beginsWith(const std::string& call, const std::string& head) {
    return call.compare(0, head.size(), head) == 0;
}

/// drawText(10, 20, "அ", ...)  ->  அ at 10, 20
std::string placeOfText(const std::string& call) {
    const std::size_t begin = call.find('(') + 1;
    const std::size_t text = call.find('"') + 1;
    return call.substr(text, call.find('"', text) - text) + " at " +
           call.substr(begin, text - 3 - begin);
}

}  // namespace

/// Each text is 20 pixels wide.
PlacedTest::PlacedTest() { browser().answerWith("measureText", 20); }

Calls PlacedTest::frameOf(const std::string& block) {
    for (const application::Block* each = application::kBlocks; each->name != nullptr; each++) {
        if (each->name == block) return frame(each->draw);
    }
    ADD_FAILURE() << "no block " << block;
    return {};
}

Calls PlacedTest::placesIn(const std::string& block) {
    Calls places;
    for (const std::string& call : frameOf(block)) {
        if (beginsWith(call, "drawText(")) places.push_back(placeOfText(call));
        if (beginsWith(call, "nvgRoundedRect(")) places.push_back(call);
    }
    return places;
}

Calls PlacedTest::placesAfterWheel(const std::string& block, double x, double y, double wheel) {
    field("mouseX") = x;
    field("mouseY") = y;
    field("wheelDelta") = wheel;
    return placesIn(block);
}

int PlacedTest::framesToWidget(const std::string& block, const std::string& id) {
    g_scrollToId = id;
    int frames = 0;
    while (!g_scrollToId.empty() && frames < 300) {
        frameOf(block);
        frames++;
    }
    return frames;
}
