#include "emitted/widgets/surroundings.h"

#include <stdexcept>

void PrintTo(const Calls& calls, std::ostream* out) {
    for (const std::string& call : calls) *out << "\n    " << call;
}

Surroundings::Surroundings() {
    global_vars.clear();
    g_widgetPositions.clear();
    g_currentPage = "home";
    g_scrollToId = "";
    g_alert_names.clear();
    g_overlays.clear();
    g_block_background_clicks = false;
    g_inside_overlay = false;
    g_mouseClicked = false;
    g_isHoveringH = false;
    g_nextHoveringH = false;
    g_currentClipX = g_currentClipY = g_currentClipW = g_currentClipH = -1.0F;
    g_inputValues.clear();
    g_inputErrors.clear();
    g_inputCursorPos.clear();
    g_inputSelected.clear();
    g_focusedInput = "";
    g_animationStates.clear();
    forgetTextWidths();
    application::logic = {};
    application::page = {};
    vg = stand_in::context();
    window = stand_in::window();
    winWidth = 800;
    winHeight = 600;
    mx = my = 0;
    g_mouseDown = false;
    forcedW = forcedH = maxW = maxH = -1.0F;

    browser() = {};
    // A font arrives with each frame, so that each asks for its texts anew.
    browser().answers["clearTextLayer"] = [fonts = 0](const stand_in::Arguments&) mutable {
        return ++fonts;
    };
    browser().window = {{"innerWidth", 800}, {"innerHeight", 600}};
}

Calls Surroundings::callsOf(const std::function<void()>& body) {
    browser().calls.clear();
    body();
    return browser().take();
}

Calls Surroundings::frame(const std::function<void()>& page) {
    application::page = page;
    return callsOf(render_frame);
}

const application::Block& Surroundings::blockNamed(const std::string& name) {
    const application::Block* block = application::kBlocks;
    while (block->name != nullptr && block->name != name) block++;
    if (block->name == nullptr) throw std::invalid_argument("no block " + name);
    return *block;
}

Calls Surroundings::drawnBlock(const std::string& name, float forcedWidth, float forcedHeight) {
    return drawn([&] {
        forcedW = forcedWidth;
        forcedH = forcedHeight;
        blockNamed(name).draw();
    });
}

Calls Surroundings::drawn(const std::function<void()>& block) {
    Calls calls;
    frame([&] { calls = callsOf(block); });
    return calls;
}
