// The start of an application: window, fonts, listeners, and the loop, which never ends.
// clang-format off

int main() {
    init_globals();
#ifdef __EMSCRIPTEN__
    if (!glfwInit()) return -1;
    window = glfwCreateWindow((int)POZHIL_WINDOW_WIDTH, (int)POZHIL_WINDOW_HEIGHT, POZHIL_WINDOW_TITLE, NULL, NULL);
    if (!window) {
        glfwTerminate();
        return -1;
    }
    glfwMakeContextCurrent(window);
    glewInit();

    // What the user types into an HTML input would otherwise be swallowed.
    EM_ASM({
        if (typeof GLFW !== 'undefined' && GLFW.onKeydown) {
            var original = GLFW.onKeydown;
            window.removeEventListener('keydown', original, true);
            GLFW.onKeydown = function(e) {
                var active = document.activeElement;
                if (active && (active.tagName === 'INPUT' || active.tagName === 'TEXTAREA')) return;
                original(e);
            };
            window.addEventListener('keydown', GLFW.onKeydown, true);
        }
    });

    vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);
    if (nvgCreateFont(vg, "tamil_font", "assets/font/Coiny-Regular.ttf") == -1) {
        printf("எச்சரிக்கை: 'tamil_font' எழுத்துருவை இணைக்க முடியவில்லை.\n");
    }
    if (nvgCreateFont(vg, "sans", "assets/font/Tamil-Regular.ttf") == -1) {
        printf("எச்சரிக்கை: 'sans' எழுத்துருவை இணைக்க முடியவில்லை.\n");
    }
    nvgFontFace(vg, "tamil-font");
    nvgFontSize(vg, 32.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));

    emscripten_run_script(
        "var style = document.createElement('style');"
        "style.innerHTML = \"@import url('https://fonts.googleapis.com/css2?family=Noto+Sans+Tamil:wght@400;700&display=swap');"
        " canvas { font-variant-ligatures: common-ligatures;"
        " font-feature-settings: 'liga' 1, 'clig' 1, 'kern' 1;"
        " text-rendering: optimizeLegibility; -webkit-font-smoothing: antialiased; }\";"
        "document.head.appendChild(style);"
        "document.body.style.margin = '0';"
        "document.body.style.padding = '0';"
        "document.body.style.overflow = 'hidden';"
        "document.getElementsByTagName('canvas')[0].style.display = 'block';"
        "window.dispatchEvent(new Event('resize'));");

    EM_ASM({
        if (document.getElementById('textCanvas')) return;
        var layer = document.createElement('canvas');
        layer.id = 'textCanvas';
        layer.style.position = 'absolute';
        layer.style.left = '0';
        layer.style.top = '0';
        layer.style.width = '100%';
        layer.style.height = '100%';
        layer.style.pointerEvents = 'none';
        layer.style.zIndex = "1000";
        document.body.appendChild(layer);
        var resize = function() {
            layer.width = window.innerWidth;
            layer.height = window.innerHeight;
        };
        resize();
        window.addEventListener('resize', resize);
    });

    EM_ASM({
        window.mouseX = 0;
        window.mouseY = 0;
        window.mouseClicked = 0;
        window.mouseDownState = 0;
        window.wheelDelta = 0;
        window.wheelDeltaX = 0;
        window.addEventListener('mousemove', function(e) {
            var rect = document.getElementById('canvas').getBoundingClientRect();
            window.mouseX = e.clientX - rect.left;
            window.mouseY = e.clientY - rect.top;
        });
        window.addEventListener('mousedown', function(e) {
            window.mouseClicked = 1;
            window.mouseDownState = 1;
        });
        window.addEventListener('mouseup', function(e) { window.mouseDownState = 0; });
        window.addEventListener('wheel', function(e) {
            window.wheelDelta += e.deltaY;
            window.wheelDeltaX += e.deltaX;
            e.preventDefault();
        }, {passive: false});
    });

    setupClipboardListener();
    emscripten_set_keydown_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, NULL, 1, key_callback);
    emscripten_set_keypress_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, NULL, 1, key_callback);
    emscripten_set_main_loop(render_frame, 0, 1);
#else
    std::cout << "\033[1;31m🚨 பிழை: இந்த பொழில் வலைத்தள (WebAssembly) தொகுப்புக்கு மட்டுமே அனுமதிக்கப்படும்!\033[0m" << std::endl;
#endif
    return 0;
}
