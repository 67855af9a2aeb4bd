// The data's keys are changed at a path. A value that isn't written as a text stands bare: a number
// stays one, and a text held in a variable makes the data invalid. Meant.

void rtdb_update() {
    std::string path_str = fn_any_to_string(POZHIL_PATH);
    std::string json_data = "{";
    POZHIL_PAIRS;
    json_data += "}";
    std::string script = "try { var data = JSON.parse('" + json_data + "'); ";
    script += "window.db.ref('" + path_str + "').update(data)";
    script += ".then(() => { console.log('✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!'); })";
    script += "  .catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); });";
    script += "} catch(e) { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', e.message); }";
    emscripten_run_script(script.c_str());
}
