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
    for (size_t i = 0; i < g_overlays.size(); i++) {
        auto overlay = g_overlays[i];
        overlay();
    }
    g_overlays.clear();
    g_inside_overlay = false;

    const bool* snackbarShows = std::any_cast<bool>(&global_vars["active_sb"]);
    if (snackbarShows && *snackbarShows) {
        const double* startTime = std::any_cast<double>(&global_vars["sb_start_time"]);
        const float* storedY = std::any_cast<float>(&global_vars["sb_y_pos"]);
        const std::string* message = std::any_cast<std::string>(&global_vars["sb_msg"]);
        double elapsed = emscripten_get_now() - (startTime ? *startTime : 0.0);
        nvgSave(vg);
        nvgResetScissor(vg);
        float targetY = elapsed > 2500.0 ? -100.0f : 40.0f;
        float currentY = storedY ? *storedY : -100.0f;
        currentY += (targetY - currentY) * 0.25f;
        global_vars["sb_y_pos"] = currentY;
        if (elapsed > 2500.0 && currentY < -90.0f) {
            global_vars["active_sb"] = false;
        } else {
            const char* shownText = message ? message->c_str() : "";
            float txtW = (float)EM_ASM_DOUBLE({
                var layer = document.getElementById('textCanvas');
                if (!layer) return 400;
                var ctx = layer.getContext('2d');
                ctx.font = '400 16px "Noto Sans Tamil", Arial, sans-serif';
                return ctx.measureText(UTF8ToString($0)).width;
            }, shownText);
            float barW = txtW + 80.0f;
            if (barW < 300.0f) barW = 300.0f;
            if (barW > winWidth - 40.0f) barW = winWidth - 40.0f;
            float barH = 55.0f;
            float barX = (winWidth - barW) / 2.0f;

            nvgBeginPath(vg);
            nvgRect(vg, barX - 20, currentY - 20, barW + 40, barH + 40);
            nvgFillPaint(vg, nvgBoxGradient(vg, barX, currentY + 5, barW, barH, 12, 15,
                                            nvgRGBA(0, 0, 0, 100), nvgRGBA(0, 0, 0, 0)));
            nvgFill(vg);
            int channels[3] = {50, 50, 50};
            const char* channelNames[3] = {"sb_bg_r", "sb_bg_g", "sb_bg_b"};
            for (int i = 0; i < 3; i++) {
                const int* channel = std::any_cast<int>(&global_vars[channelNames[i]]);
                if (channel) channels[i] = *channel;
            }
            nvgBeginPath(vg);
            nvgRoundedRect(vg, barX, currentY, barW, barH, 12.0f);
            nvgFillColor(vg, nvgRGBA(channels[0], channels[1], channels[2], 255));
            nvgFill(vg);
            EM_ASM({
                var layer = document.getElementById('textCanvas');
                if (layer) layer.getContext('2d').clearRect($0 - 10, $1 - 10, $2 + 20, $3 + 20);
            }, barX, currentY, barW, barH);
            drawFixedText(barX + barW / 2.0f, currentY + 18.0f, shownText, "#FFFFFF", 16.0f,
                          "center");
        }
        nvgRestore(vg);
    }

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
