// A text box: the canvas draws its frame and its error, an element of the page over it takes what
// is typed. The error lies below the box, in the 10 pixels that the box measures more.

void text_box() {
    float tbX = std::floor(POZHIL_X);
    float tbY = std::floor(POZHIL_Y);
    float tbW = POZHIL_WIDTH;
    float tbH = POZHIL_HEIGHT;
    float radius = POZHIL_RADIUS;
    tbW = responsiveW(tbW, winWidth, 40.0f);
    if (forcedW > 0.0f) tbW = forcedW;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, tbX, tbY, tbW, tbH, radius);
    nvgFillColor(vg, nvgRGBAf(POZHIL_BACKGROUND));
    nvgFill(vg);
    nvgStrokeColor(vg, nvgRGBAf(POZHIL_BORDER_COLOUR));
    nvgStrokeWidth(vg, POZHIL_BORDER_WIDTH);
    nvgStroke(vg);
    std::string actual_id = POZHIL_NAME;
    auto tbError = g_inputErrors.find(actual_id);
    if (tbError != g_inputErrors.end() && !tbError->second.empty()) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, tbX, tbY, tbW, tbH, radius);
        nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));
        nvgStrokeWidth(vg, 2.0f);
        nvgStroke(vg);
        drawFixedText(tbX, tbY + tbH + 4.0f, tbError->second.c_str(), "#F44336", 12.0f, "left");
    }
    float prefixOffset = 0.0f;
#if POZHIL_HAS_LEADING
    {
        float leadW = POZHIL_LEADING_WIDTH;
        float leadH = POZHIL_LEADING_HEIGHT;
        float leadY = tbY + std::floor((tbH - leadH) / 2.0f);
        float leadX = tbX + 12.0f;
        prefixOffset = leadW + 12.0f;
        POZHIL_LEADING;
    }
#endif
    if (actual_id == "default_id") actual_id = POZHIL_OWN_NAME;
    placeTextBox(actual_id.c_str(), POZHIL_HINT, POZHIL_IS_MULTILINE, POZHIL_TEXT_COLOUR,
                 tbX + 15.0f + prefixOffset, tbY, tbW - 30.0f - prefixOffset, tbH, 16.0f);
#if POZHIL_IS_DISABLED
    disableInput();
#endif
}
