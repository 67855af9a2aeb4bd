// What em++ puts into a published program's script in the place of its own function of that name: a
// script that fails tells the console, and the program goes on. In the development page the page
// itself does that; in a published program functions have no names by which a page finds them.
mergeInto(LibraryManager.library, {
    emscripten_run_script: function(script) {
        try {
            eval(UTF8ToString(script));
        } catch (failure) {
            console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', failure.message);
        }
    },
});
