// What JavaScript calls: input values, results of the database, scrolling, paste.

#ifdef __EMSCRIPTEN__
void நகர்த்து(std::string id);

std::map<int, std::function<void()>> g_rtdb_callbacks;
int g_rtdb_cb_counter = 0;

std::map<std::string, std::any>& rtdb_temp() {
    std::any& temp = global_vars["_temp_rtdb"];
    if (temp.type() != typeid(std::map<std::string, std::any>)) {
        temp = std::any(std::map<std::string, std::any>());
    }
    return std::any_cast<std::map<std::string, std::any>&>(temp);
}

extern "C" {
EMSCRIPTEN_KEEPALIVE void set_input_value(const char* id, const char* val) {
    g_inputValues[id] = val;
}

EMSCRIPTEN_KEEPALIVE void clear_input_error(const char* id) { g_inputErrors[id] = ""; }

// A result of the database, built key by key.
EMSCRIPTEN_KEEPALIVE void rtdb_clear_temp() {
    global_vars["_temp_rtdb"] = std::any(std::map<std::string, std::any>());
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_str(const char* key, const char* val) {
    rtdb_temp()[key] = std::any(std::string(val));
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_num(const char* key, double val) {
    rtdb_temp()[key] = std::any((long double)val);
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_bool(const char* key, int val) {
    rtdb_temp()[key] = std::any((bool)(val != 0));
}

// What the program waits with runs once, and sees the result as தரவு.
EMSCRIPTEN_KEEPALIVE void rtdb_execute_callback(int id) {
    auto found = g_rtdb_callbacks.find(id);
    if (found == g_rtdb_callbacks.end()) return;
    global_vars["தரவு"] = global_vars["_temp_rtdb"];
    std::function<void()> callback = found->second;
    callback();
    g_rtdb_callbacks.erase(id);
}
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
