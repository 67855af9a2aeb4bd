// A page as a widget: it covers the window while its name is the current page's.

void inline_page() {
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, winWidth, winHeight);
    nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));
    nvgFill(vg);
    POZHIL_CHILDREN;
}
