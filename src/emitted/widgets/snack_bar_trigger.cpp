// What the trigger of a message stores. The frame then shows the message.

void snack_bar_trigger() {
    global_vars["active_sb"] = std::any(true);
    global_vars["sb_start_time"] = std::any(emscripten_get_now());
    global_vars["sb_y_pos"] = std::any(-100.0f);
    global_vars["sb_msg"] = std::any(fn_any_to_string(POZHIL_MESSAGE));
    global_vars["sb_bg_r"] = std::any(POZHIL_RED);
    global_vars["sb_bg_g"] = std::any(POZHIL_GREEN);
    global_vars["sb_bg_b"] = std::any(POZHIL_BLUE);
}
