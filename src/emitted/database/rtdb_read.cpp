// What stands at a path is read once: the first level of it comes back through the bridge, and the
// program's statements run when it has come. No try stands around the first line. Meant.

void rtdb_read() {
    std::string path_str = fn_any_to_string(POZHIL_PATH);
    int cb_id = ++g_rtdb_cb_counter;
    g_rtdb_callbacks[cb_id] = [=]() mutable {
        // What the program does with the result.
        POZHIL_BODY;
    };
    std::string script = "window.db.ref('" + path_str + "').once('value').then((snapshot) => {\n";
    script += "  var data = snapshot.val();\n";
    script += "  Module.ccall('rtdb_clear_temp', null, [], []);\n";
    script += "  if (data) {\n";
    script += "    for (var k in data) {\n";
    script += "      var v = data[k]; var t = typeof v;\n";
    script +=
        "      if (t === 'string') Module.ccall('rtdb_add_temp_str', null, ['string', 'string'], [k, v]);\n";
    script +=
        "      if (t === 'number') Module.ccall('rtdb_add_temp_num', null, ['string', 'number'], [k, v]);\n";
    script +=
        "      if (t === 'boolean') Module.ccall('rtdb_add_temp_bool', null, ['string', 'number'], [k, v ? 1 : 0]);\n";
    script += "    }\n";
    script += "  }\n";
    script += "  Module.ccall('rtdb_execute_callback', null, ['number'], [" +
              std::to_string(cb_id) + "]);\n";
    script += "}).catch((e) => console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', e.message));";
    emscripten_run_script(script.c_str());
}
