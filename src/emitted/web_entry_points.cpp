// What JavaScript calls: input values, scrolling, paste, keys.

#ifdef __EMSCRIPTEN__
void நகர்த்து(std::string id);

extern "C" {
EMSCRIPTEN_KEEPALIVE void set_input_value(const char* id, const char* val) {
    g_inputValues[id] = val;
}

EMSCRIPTEN_KEEPALIVE void clear_input_error(const char* id) { g_inputErrors[id] = ""; }
}
#endif

#ifdef __EMSCRIPTEN__
EMSCRIPTEN_BINDINGS(scroll_logic) { emscripten::function("நகர்த்து", &நகர்த்து); }
#endif

#ifdef __EMSCRIPTEN__
extern "C" {
EMSCRIPTEN_KEEPALIVE void on_paste_text(const char* text) {
    if (!g_focusedInput.empty()) g_inputValues[g_focusedInput] += text;
}
}
#endif
