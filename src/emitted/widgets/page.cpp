// One page: its background, its title, its widgets. An image is tried once: a failure leaves 0 and
// not -1. A video is started once: one whose page is left and comes back isn't started again.

void page() {
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, winWidth, winHeight);
    bool bgSet = false;
#if POZHIL_HAS_COLOUR
    nvgFillColor(vg, nvgRGBAf(POZHIL_COLOUR));
    nvgFill(vg);
    bgSet = true;
#endif
#if POZHIL_HAS_IMAGE
    {
        static int bgImgHandle = -1;
        if (bgImgHandle == -1) {
            std::string bgPath = fn_any_to_string(POZHIL_IMAGE);
            bgImgHandle = nvgCreateImage(vg, bgPath.c_str(), 0);
        }
        if (bgImgHandle > 0) {
            nvgFillPaint(vg, nvgImagePattern(vg, 0, 0, winWidth, winHeight, 0, bgImgHandle, 1.0f));
            nvgFill(vg);
            bgSet = true;
        }
    }
#endif
#if POZHIL_HAS_VIDEO
    {
        static bool bgVideoStarted = false;
        if (!bgVideoStarted) {
            bgVideoStarted = true;
            std::string videoPath = fn_any_to_string(POZHIL_VIDEO);
            startBackgroundVideo(videoPath.c_str());
        }
    }
    nvgFillColor(vg, nvgRGBA(0, 0, 0, 0));
    bgSet = true;
#endif
    if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));
    nvgFill(vg);
#if POZHIL_HAS_TITLE
    emscripten::val::global("document").set("title", fn_any_to_string(POZHIL_TITLE));
#endif
    POZHIL_WIDGETS;
}
