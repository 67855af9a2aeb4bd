// An input whose look is the page's: the canvas draws a plate below it. It doesn't mask what is
// typed. It moves the place of what follows by its height. Meant.

void password_box() {
    float tx = std::floor(POZHIL_X);
    float ty = std::floor(POZHIL_Y);
    float tw = POZHIL_WIDTH;
    float th = POZHIL_HEIGHT;
    tw = responsiveW(tw, winWidth, 40.0f);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, tx, ty, tw, th, 12.0f);
    nvgFillColor(vg, nvgRGBAf(POZHIL_BACKGROUND));
    nvgFill(vg);
    placePasswordBox(POZHIL_NAME, POZHIL_HINT, POZHIL_BACKGROUND_TEXT, POZHIL_TEXT_COLOUR, tx, ty,
                     tw, th);
#if POZHIL_IS_DISABLED
    disableInput();
#endif
    POZHIL_Y += th;
}
