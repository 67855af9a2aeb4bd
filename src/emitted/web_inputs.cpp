// The elements of the page that take what is typed, one a widget, over the canvas. Each is made
// once, and shown, placed and touched in every frame in which its widget is drawn; the end of the
// frame hides those that weren't touched. What they hold survives that.
// clang-format off

#ifdef __EMSCRIPTEN__
// Finds the input of that id, or makes it, and lays it over the canvas. True where it was made just
// now, and its kind has yet to say how it looks and what it tells. The page has elements of its own
// whose ids a program may use too, so the class counts as well. The scripts behind find the input on
// Module.
bool placeInput(const char* id, const char* tag, const char* hint, const char* color, float fontSize, float x, float y, float w, float h) {
    return EM_ASM_INT({
        var id = UTF8ToString($0);
        var input = document.querySelector('.pozhil-input#' + CSS.escape(id));
        var isNew = !input;
        if (isNew) {
            input = document.createElement(UTF8ToString($1));
            if (input.tagName === 'INPUT') input.type = 'text';
            input.id = id;
            input.className = 'pozhil-input';
            input.placeholder = UTF8ToString($2);
            input.style.position = 'absolute';
            input.style.outline = 'none';
            document.body.appendChild(input);
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        input.style.color = UTF8ToString($3);
        input.style.fontSize = $4 + 'px';
        input.style.display = 'block';
        input.style.left = (rect.left + window.scrollX + $5) + 'px';
        input.style.top = (rect.top + window.scrollY + $6) + 'px';
        input.style.width = $7 + 'px';
        input.style.height = $8 + 'px';
        input.style.pointerEvents = 'auto';
        input.disabled = false;
        input.dataset.touched = '1';
        Module.placedInput = input;
        return isNew ? 1 : 0;
    }, id, tag, hint, color, fontSize, x, y, w, h) != 0;
}

// A new input that shows the frame below it, and tells the program what is typed.
void layOverFrame(bool clearsError) {
    EM_ASM({
        var input = Module.placedInput;
        var clearsError = $0 !== 0;
        input.style.background = 'transparent';
        input.style.border = 'none';
        input.style.zIndex = '100';
        input.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
        input.addEventListener('input', function(e) {
            Module.ccall('set_input_value', null, ['string', 'string'], [input.id, e.target.value]);
            if (clearsError) Module.ccall('clear_input_error', null, ['string'], [input.id]);
        });
    }, clearsError ? 1 : 0);
}

// The input that was placed last takes nothing until it is placed again. What is pressed reaches
// the page all the same: browsers keep what is pressed on a disabled element to themselves.
void disableInput() {
    EM_ASM({
        Module.placedInput.disabled = true;
        Module.placedInput.style.pointerEvents = 'none';
    });
}

void placeTextBox(const char* id, const char* hint, bool isMultiline, const char* color, float x, float y, float w, float h, float fontSize) {
    const char* tag = isMultiline ? "textarea" : "input";
    if (!placeInput(id, tag, hint, color, fontSize, x, y, w, isMultiline ? h - 20.0f : h)) return;
    layOverFrame(true);
    if (!isMultiline) return;
    EM_ASM({
        Module.placedInput.style.resize = 'none';
        Module.placedInput.style.paddingTop = '10px';
    });
}

void placeSearchBar(const char* id, const char* hint, float x, float y, float w, float h, float fontSize) {
    if (placeInput(id, "input", hint, "#333", fontSize, x, y, w, h)) layOverFrame(false);
}

// It has a look of its own, and goes unseen where it doesn't fit into the window.
void placePasswordBox(const char* id, const char* hint, const char* background, const char* color, float x, float y, float w, float h) {
    if (placeInput(id, "input", hint, color, 17.0f, x, y, w, h)) {
        EM_ASM({
            var input = Module.placedInput;
            if (!Module.set_input_value) {
                Module.set_input_value = function(name, value) {
                    Module.ccall('set_input_value', null, ['string', 'string'], [name, value]);
                };
            }
            input.style.zIndex = '2000';
            input.style.border = '2px solid #E0E0E0';
            input.style.borderRadius = '12px';
            input.style.padding = '0 15px';
            input.style.fontFamily = '"Noto Sans Tamil", sans-serif';
            input.style.boxSizing = 'border-box';
            input.style.transition = 'opacity 0.2s ease, border-color 0.2s ease';
            input.onfocus = function() {
                input.style.borderColor = '#2196F3';
                input.style.boxShadow = '0 0 8px rgba(33,150,243,0.2)';
            };
            input.onblur = function() {
                input.style.borderColor = '#E0E0E0';
                input.style.boxShadow = 'none';
            };
            input.oninput = function(e) {
                Module.set_input_value(input.id, e.target.value);
            };
        });
    }
    EM_ASM({
        var input = Module.placedInput;
        var isOutside = $1 < 0 || $1 + $2 > window.innerHeight;
        input.style.backgroundColor = UTF8ToString($0);
        input.style.opacity = isOutside ? '0' : '1';
        input.style.pointerEvents = isOutside ? 'none' : 'auto';
    }, background, y, h);
}

// What the input that was placed last holds goes.
void emptyInput() {
    EM_ASM(Module.placedInput.value = "");
}

// A small, faint image in a search bar, around its middle.
void drawBarImage(int image, float x, float y) {
    if (image <= 0) return;
    nvgBeginPath(vg);
    nvgRect(vg, x - 10.0f, y - 10.0f, 20.0f, 20.0f);
    nvgFillPaint(vg, nvgImagePattern(vg, x - 10.0f, y - 10.0f, 20.0f, 20.0f, 0, image, 0.5f));
    nvgFill(vg);
}

// The width of a text on a canvas of its own, in CSS pixels.
float measureOnFreshCanvas(const char* text, float fontSize) {
    return (float)EM_ASM_DOUBLE({
        var ctx = document.createElement('canvas').getContext('2d');
        ctx.font = $1 + 'px "Noto Sans Tamil", Arial, sans-serif';
        return ctx.measureText(UTF8ToString($0)).width;
    }, text, fontSize);
}

// Dims all texts but those in a rounded rectangle: the text layer lies over the canvas.
void dimAround(float x, float y, float w, float h, float radius, float winW, float winH) {
    EM_ASM({
        var layer = document.getElementById('textCanvas');
        if (!layer) return;
        var ctx = layer.getContext('2d');
        var right = $0 + $2;
        var bottom = $1 + $3;
        ctx.save();
        ctx.fillStyle = 'rgba(0,0,0,0.63)';
        ctx.fillRect(-100, -100, $5 + 200, $6 + 200);
        ctx.globalCompositeOperation = 'destination-out';
        ctx.fillStyle = '#000000';
        ctx.beginPath();
        ctx.moveTo($0 + $4, $1);
        ctx.lineTo(right - $4, $1);
        ctx.quadraticCurveTo(right, $1, right, $1 + $4);
        ctx.lineTo(right, bottom - $4);
        ctx.quadraticCurveTo(right, bottom, right - $4, bottom);
        ctx.lineTo($0 + $4, bottom);
        ctx.quadraticCurveTo($0, bottom, $0, bottom - $4);
        ctx.lineTo($0, $1 + $4);
        ctx.quadraticCurveTo($0, $1, $0 + $4, $1);
        ctx.closePath();
        ctx.fill();
        ctx.restore();
    }, x, y, w, h, radius, winW, winH);
}
#endif
