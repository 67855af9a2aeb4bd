// An image. One that doesn't load draws nothing; a vector image is then tried again in each frame,
// and keeps the size of the first frame in which it loads. Meant.

void image() {
    float imgX = std::floor(POZHIL_X);
    float imgY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float r = POZHIL_RADIUS;
    std::string path = POZHIL_PATH;
    static int img_POZHIL_ID = -1;
    if (img_POZHIL_ID == -1) {
#if POZHIL_IS_VECTOR
        img_POZHIL_ID = loadSVGImage(vg, path.c_str(), tw, th);
#else
        img_POZHIL_ID =
            nvgCreateImage(vg, path.c_str(), NVG_IMAGE_GENERATE_MIPMAPS | NVG_IMAGE_NEAREST);
#endif
    }
    if (img_POZHIL_ID > 0) {
        nvgBeginPath(vg);
        if (r > 0.1f) {
            nvgRoundedRect(vg, imgX, imgY, tw, th, r);
        } else {
            nvgRect(vg, imgX, imgY, tw, th);
        }
        nvgFillPaint(vg, nvgImagePattern(vg, imgX, imgY, tw, th, 0.0f, img_POZHIL_ID, 1.0f));
        nvgFill(vg);
    }
}
