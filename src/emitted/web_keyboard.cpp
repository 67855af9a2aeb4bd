// Keys for inputs that the canvas draws itself. The caret counts bytes.
// clang-format off

#ifdef __EMSCRIPTEN__
EM_BOOL key_callback(int eventType, const EmscriptenKeyboardEvent* e, void* userData) {
    (void)userData;
    int inHtmlInput = EM_ASM_INT({
        return document.activeElement && document.activeElement.tagName === 'INPUT' ? 1 : 0;
    });
    if (inHtmlInput) return EM_FALSE;
    if (g_focusedInput.empty()) return EM_FALSE;

    std::string key = e->key;
    std::string& value = g_inputValues[g_focusedInput];
    int& caret = g_inputCursorPos[g_focusedInput];
    bool isKeyDown = eventType == EMSCRIPTEN_EVENT_KEYDOWN;

    if (isKeyDown && (key == "Backspace" || key == "Delete")) {
        if (g_inputSelected[g_focusedInput]) {
            value.clear();
            caret = 0;
            g_inputSelected[g_focusedInput] = false;
        } else if (key == "Backspace") {
            if (caret > 0 && !value.empty()) {
                value.erase(caret - 1, 1);
                caret--;
            }
        } else if (caret < (int)value.length()) {
            value.erase(caret, 1);
        }
        return EM_TRUE;
    }
    if (isKeyDown && e->ctrlKey && key == "c") {
        copyToClipboard(value.c_str());
        return EM_TRUE;
    }
    if (isKeyDown && e->ctrlKey && key == "x") {
        copyToClipboard(value.c_str());
        value.clear();
        caret = 0;
        return EM_TRUE;
    }
    if (isKeyDown && e->ctrlKey && key == "a") {
        g_inputSelected[g_focusedInput] = true;
        return EM_TRUE;
    }
    if (isKeyDown && key == "ArrowLeft") {
        if (caret > 0) caret--;
        return EM_TRUE;
    }
    if (isKeyDown && key == "ArrowRight") {
        if (caret < (int)value.length()) caret++;
        return EM_TRUE;
    }
    if (eventType == EMSCRIPTEN_EVENT_KEYPRESS && !e->ctrlKey) {
        g_inputErrors[g_focusedInput] = "";
        if (key == "Enter") {
            g_focusedInput = "";
            g_inputSelected.clear();
            return EM_TRUE;
        }
        if (g_inputSelected[g_focusedInput]) {
            value.clear();
            caret = 0;
            g_inputSelected[g_focusedInput] = false;
        }
        if (caret > (int)value.length()) caret = (int)value.length();
        value.insert(caret, e->key);
        caret += (int)strlen(e->key);
        return EM_TRUE;
    }
    return EM_FALSE;
}
#endif
