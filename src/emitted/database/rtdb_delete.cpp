// What stands at a path is taken away. No try stands around it: before the database is there the
// script itself fails. Meant.

void rtdb_delete() {
    std::string path_str = fn_any_to_string(POZHIL_PATH);
    std::string script = "window.db.ref('" + path_str + "').remove()";
    script += ".then(() => { console.log('✅ தரவு வெற்றிகரமாக அழிக்கப்பட்டது!'); })";
    script += ".catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); });";
    emscripten_run_script(script.c_str());
}
