// The elements of the page that take what is typed, one a widget, over the canvas. Each is made
// once, and shown, placed and touched in every frame in which its widget is drawn; the end of the
// frame hides those that weren't touched. What they hold survives that.
// clang-format off

#ifdef __EMSCRIPTEN__
void placeTextBox(const char* id, const char* hint, bool isMultiline, const char* color, float x, float y, float w, float h, float fontSize) {
    EM_ASM({
        var id = UTF8ToString($0);
        var isMultiline = $2 !== 0;
        var input = document.getElementById(id);
        if (!input) {
            input = document.createElement(isMultiline ? 'textarea' : 'input');
            if (!isMultiline) input.type = 'text';
            input.id = id;
            input.className = 'pozhil-input';
            input.placeholder = UTF8ToString($1);
            input.style.position = 'absolute';
            input.style.background = 'transparent';
            input.style.border = 'none';
            input.style.outline = 'none';
            input.style.zIndex = '100';
            input.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
            if (isMultiline) {
                input.style.resize = 'none';
                input.style.paddingTop = '10px';
            }
            input.addEventListener('input', function(e) {
                Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
                Module.ccall('clear_input_error', null, ['string'], [id]);
            });
            document.body.appendChild(input);
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        input.style.color = UTF8ToString($3);
        input.style.display = 'block';
        input.style.left = (rect.left + window.scrollX + $4) + 'px';
        input.style.top = (rect.top + window.scrollY + $5) + 'px';
        input.style.width = $6 + 'px';
        input.style.height = (isMultiline ? $7 - 20 : $7) + 'px';
        input.style.fontSize = $8 + 'px';
        input.dataset.touched = '1';
    }, id, hint, isMultiline ? 1 : 0, color, x, y, w, h, fontSize);
}

void placePasswordBox(const char* id, const char* hint, const char* background, const char* color, float x, float y, float w, float h) {
    EM_ASM({
        var id = UTF8ToString($0);
        var input = document.getElementById(id);
        if (!input) {
            if (!Module.set_input_value) {
                Module.set_input_value = function(name, value) {
                    Module.ccall('set_input_value', null, ['string', 'string'], [name, value]);
                };
            }
            input = document.createElement('input');
            input.type = 'text';
            input.id = id;
            input.className = 'pozhil-input';
            input.placeholder = UTF8ToString($1);
            input.style.position = 'absolute';
            input.style.zIndex = '2000';
            input.style.pointerEvents = 'auto';
            input.style.border = '2px solid #E0E0E0';
            input.style.borderRadius = '12px';
            input.style.padding = '0 15px';
            input.style.fontSize = '17px';
            input.style.fontFamily = '"Noto Sans Tamil", sans-serif';
            input.style.boxSizing = 'border-box';
            input.style.outline = 'none';
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
                Module.set_input_value(id, e.target.value);
            };
            document.body.appendChild(input);
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        var isOutside = $5 < 0 || $5 + $7 > window.innerHeight;
        input.style.backgroundColor = UTF8ToString($2);
        input.style.color = UTF8ToString($3);
        input.style.display = 'block';
        input.style.left = (rect.left + window.scrollX + $4) + 'px';
        input.style.top = (rect.top + window.scrollY + $5) + 'px';
        input.style.width = $6 + 'px';
        input.style.height = $7 + 'px';
        input.style.opacity = isOutside ? '0' : '1';
        input.style.pointerEvents = isOutside ? 'none' : 'auto';
        input.dataset.touched = '1';
    }, id, hint, background, color, x, y, w, h);
}

void placeSearchBar(const char* id, const char* hint, float x, float y, float w, float h, float fontSize) {
    EM_ASM({
        var id = UTF8ToString($0);
        var input = document.getElementById(id);
        if (!input) {
            input = document.createElement('input');
            input.type = 'text';
            input.id = id;
            input.className = 'pozhil-input';
            input.placeholder = UTF8ToString($1);
            input.style.position = 'absolute';
            input.style.background = 'transparent';
            input.style.border = 'none';
            input.style.outline = 'none';
            input.style.color = '#333';
            input.style.zIndex = '100';
            input.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
            input.addEventListener('input', function(e) {
                Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
            });
            document.body.appendChild(input);
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        input.style.display = 'block';
        input.style.left = (rect.left + window.scrollX + $2) + 'px';
        input.style.top = (rect.top + window.scrollY + $3) + 'px';
        input.style.width = $4 + 'px';
        input.style.height = $5 + 'px';
        input.style.fontSize = $6 + 'px';
        input.dataset.touched = '1';
    }, id, hint, x, y, w, h, fontSize);
}

void emptyInput(const char* id) {
    EM_ASM({
        var input = document.getElementById(UTF8ToString($0));
        if (input) input.value = "";
    }, id);
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
