// One frame of an application. The pages are written in the placeholder's place.
// clang-format off

#ifdef __EMSCRIPTEN__
float responsiveW(float w, float winW, float margin = 40.0f) {
    return w > winW - margin ? winW - margin : w;
}

float responsiveTextSize(float baseSize, float winWidth) {
    float scale = winWidth / 1280.0f;
    if (scale < 0.65f) scale = 0.65f;
    if (scale > 1.3f) scale = 1.3f;
    return baseSize * scale;
}

void render_frame() {
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });

    g_block_background_clicks = false;
    for (const auto& name : g_alert_names) {
        auto found = global_vars.find(name);
        if (found == global_vars.end()) continue;
        const bool* shows = std::any_cast<bool>(&found->second);
        if (shows && *shows) {
            g_block_background_clicks = true;
            break;
        }
    }
    EM_ASM({
        window.modalActive = $0;
        if (window.modalActive) {
            window.savedMouseX = window.mouseX;
            window.savedMouseY = window.mouseY;
            window.savedMouseClicked = window.mouseClicked;
            window.mouseX = -9999;
            window.mouseY = -9999;
            window.mouseClicked = 0;
        }
    }, g_block_background_clicks ? 1 : 0);

    g_mouseClicked = EM_ASM_INT({
        var clicked = window.mouseClicked;
        window.mouseClicked = 0;
        return clicked;
    }) != 0;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my_raw = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool g_mouseDown = EM_ASM_INT({ return window.mouseDownState; }) != 0;
    g_isHoveringH = g_nextHoveringH;
    g_nextHoveringH = false;
    EM_ASM({ document.body.style.cursor = 'default'; });
    setupAndClearTextLayer();
    global_vars["திரை_அகலம்"] = std::any((long double)winWidth);
    global_vars["திரை_உயரம்"] = std::any((long double)winHeight);

    int fbWidth = 0;
    int fbHeight = 0;
    glfwSetWindowSize(window, (int)winWidth, (int)winHeight);
    glfwGetFramebufferSize(window, &fbWidth, &fbHeight);
    float pxRatio = 1.0f;
    pxRatio = (float)fbWidth / (float)winWidth;
    glViewport(0, 0, fbWidth, fbHeight);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    float my = my_raw;
    (void)mx;
    (void)my;
    (void)g_mouseDown;
    nvgBeginFrame(vg, winWidth, winHeight, pxRatio);
    nvgSave(vg);

    POZHIL_PAGES;

    EM_ASM({
        if (window.modalActive) {
            window.mouseX = window.savedMouseX;
            window.mouseY = window.savedMouseY;
            window.mouseClicked = window.savedMouseClicked;
            window.savedMouseClicked = 0;
        }
    });
    if (g_block_background_clicks) {
        g_mouseClicked = EM_ASM_INT({
            var clicked = window.mouseClicked;
            window.mouseClicked = 0;
            return clicked;
        }) != 0;
    }
    g_inside_overlay = true;
    for (auto& overlay : g_overlays) overlay();
    g_overlays.clear();
    g_inside_overlay = false;

    nvgRestore(vg);
    nvgEndFrame(vg);
    EM_ASM({
        var inputs = document.getElementsByClassName('pozhil-input');
        for (var i = 0; i < inputs.length; i++) {
            if (inputs[i].dataset.touched === '0') {
                inputs[i].style.display = 'none';
            } else {
                inputs[i].dataset.touched = '0';
            }
        }
    });
    g_mouseClicked = false;
}
#endif
