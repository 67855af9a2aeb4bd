// Keys of the browser.
#pragma once

using EM_BOOL = int;
constexpr EM_BOOL EM_TRUE = 1;
constexpr EM_BOOL EM_FALSE = 0;

constexpr int EMSCRIPTEN_EVENT_KEYPRESS = 1;
constexpr int EMSCRIPTEN_EVENT_KEYDOWN = 2;
constexpr int EMSCRIPTEN_EVENT_KEYUP = 3;
constexpr const char* EMSCRIPTEN_EVENT_TARGET_WINDOW = "window";

struct EmscriptenKeyboardEvent {
    EM_BOOL ctrlKey;
    EM_BOOL shiftKey;
    char key[32];
};

using em_key_callback_func = EM_BOOL (*)(int eventType, const EmscriptenKeyboardEvent*,
                                         void* userData);

void emscripten_set_keydown_callback(const char* target, void* userData, EM_BOOL useCapture,
                                     em_key_callback_func);
void emscripten_set_keypress_callback(const char* target, void* userData, EM_BOOL useCapture,
                                      em_key_callback_func);
