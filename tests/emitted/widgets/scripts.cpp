// The names under which long scripts are recorded.
#include "emitted/widgets/recording.h"

namespace stand_in {

namespace {

/// What only this script holds, and its name.
const struct {
    const char* fragment;
    const char* name;
} kScripts[] = {
    // The frame
    {"window.savedMouseX = window.mouseX;", "blindPointer"},
    {"window.mouseX = window.savedMouseX;", "restorePointer"},
    {"var clicked = window.mouseClicked;", "takeClick"},
    {"dataset.touched === '0'", "sweepInputs"},
    {"ctx.font = '400 16px ", "measureSnackbar"},
    {"clearRect($0 - 10, $1 - 10, $2 + 20, $3 + 20)", "clearBehindSnackbar"},
    {"video.id = 'pozhilVideo'", "playVideo"},
    {"{type: 'image/gif'}", "showGif"},
    // The text layer and the clipboard
    {"ctx.clearRect(0, 0, layer.width, layer.height)", "clearTextLayer"},
    {"ctx.fillText(text, x, y)", "drawText"},
    {"setTimeout(function() { element.remove(); }", "drawFleetingText"},
    {"ctx.font = 'normal ' + $1", "measureText"},
    {"ctx.font = UTF8ToString($1) + ' ' + $2", "measureBoxText"},
    {"navigator.clipboard.writeText(str)", "copyToClipboard"},
    {"addEventListener('paste'", "listenForPaste"},
    // Inputs of the page
    {"document.querySelector('.pozhil-input#' + CSS.escape(id))", "placeInput"},
    {"if (clearsError) Module.ccall('clear_input_error'", "layOverFrame"},
    {"Module.placedInput.disabled = true;", "disableInput"},
    {"Module.placedInput.style.resize = 'none';", "letLinesFlow"},
    {"input.style.borderColor = '#2196F3'", "lookByItself"},
    {"$1 + $2 > window.innerHeight", "fitIntoWindow"},
    {"Module.placedInput.value = \"\"", "emptyInput"},
    {"document.createElement('canvas').getContext('2d')", "measureOnFreshCanvas"},
    {"'rgba(0,0,0,0.63)'", "dimAround"},
    // The start and the keys
    {"document.activeElement.tagName === 'INPUT' ? 1 : 0", "isInputActive"},
    {"GLFW.onKeydown = function", "letInputsHaveTheirKeys"},
    {"layer.style.width = '100%'", "makeTextLayer"},
    {"addEventListener('mousemove'", "listenToPointer"},
};

}  // namespace

std::string nameOfScript(const std::string& code) {
    std::string names;
    for (const auto& row : kScripts) {
        if (code.find(row.fragment) == std::string::npos) continue;
        if (!names.empty()) names += " or ";
        names += row.name;
    }
    return names;
}

}  // namespace stand_in
