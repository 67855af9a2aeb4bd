// A text: one line that shrinks to fit. Only the two words for the middle align it.

void text() {
#if POZHIL_HAS_CONTENT
    std::string textContent = fn_any_to_string(POZHIL_CONTENT);
#else
    std::string textContent = std::string("");
#endif
    float animAlpha = 1.0f;
    float animOffsetY = 0.0f;
    float textX = POZHIL_X;
    float textY = POZHIL_Y;
    float drawX = textX;
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float responsiveSize = responsiveTextSize(POZHIL_FONT_SIZE, winWidth);
    float _actualW = getTextWidth(textContent.c_str(), responsiveSize);
    float _maxW = forcedW > 0.0f ? forcedW : winWidth;
    if (_actualW > _maxW - 20.0f) responsiveSize *= (_maxW - 20.0f) / _actualW;
    std::string webAlign = "left";
#if POZHIL_IS_CENTRED
    webAlign = "center";
    drawX = textX + getTextWidth(textContent.c_str(), responsiveSize) / 2.0f;
#endif
    drawFixedText(drawX, textY, textContent.c_str(), POZHIL_COLOUR, responsiveSize,
                  webAlign.c_str(), POZHIL_WEIGHT, POZHIL_UNDERLINE, POZHIL_FONT, animAlpha,
                  animOffsetY);
}
