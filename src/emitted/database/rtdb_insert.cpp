// What stands at a path is replaced by the data. Every value is stored as a text, whatever its
// kind. Meant.

void rtdb_insert() {
    std::string path_str = fn_any_to_string(POZHIL_PATH);
    std::string json_data = "{";
    POZHIL_PAIRS;
    json_data += "}";
    std::string script = "try { ";
    script +=
        "  if (typeof window.db === 'undefined') { throw new Error('Firebase Database இணைக்கப்படவில்லை!'); } ";
    script += "  var data = JSON.parse('" + json_data + "'); ";
    script += "  window.db.ref('" + path_str + "').set(data)";
    script += "  .then(() => { console.log('✅ தரவு வெற்றிகரமாக சேமிக்கப்பட்டது!'); })";
    script += "  .catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); });";
    script += "} catch(e) { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', e.message); }";
    emscripten_run_script(script.c_str());
}
