// A text: one line that shrinks to fit. Only the two words for the middle align it, and around
// itself at that: it stays where it is to the left. Fading takes the progress as it is, whatever
// the curve. Meant.

void text() {
    std::string textContent = fn_any_to_string(POZHIL_CONTENT);
    float animAlpha = 1.0f;
    float animOffsetY = 0.0f;
#if POZHIL_IS_ANIMATED
#ifdef __EMSCRIPTEN__
    {
        float p =
            updateProgress(POZHIL_KEY, POZHIL_TRIGGER, false, POZHIL_Y, winHeight, POZHIL_DURATION);
        float t = getCurveValue(POZHIL_CURVE, p);
#if POZHIL_FADES
        animAlpha = p;
        animOffsetY = 30.0f * (1.0f - p);
#endif
#if POZHIL_COUNTS
        int currentNum = (int)(0.0f + (POZHIL_TARGET * t));
        TextParts parts = splitText(textContent);
        textContent = parts.prefix + std::to_string(currentNum) + parts.suffix;
#endif
    }
#endif
#endif
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
#ifdef __EMSCRIPTEN__
    drawFixedText(drawX, textY, textContent.c_str(), POZHIL_COLOUR, responsiveSize,
                  webAlign.c_str(), POZHIL_WEIGHT, POZHIL_UNDERLINE, POZHIL_FONT, animAlpha,
                  animOffsetY);
#else
    nvgFontSize(vg, responsiveSize);
    nvgFontFace(vg, POZHIL_FACE);
    nvgFillColor(vg, nvgTransRGBAf(nvgRGBAf(POZHIL_CHANNELS), animAlpha));
    nvgTextAlign(vg, (webAlign == "center" ? NVG_ALIGN_CENTER : NVG_ALIGN_LEFT) | NVG_ALIGN_TOP);
    nvgText(vg, drawX, textY + animOffsetY, textContent.c_str(), NULL);
#endif
}
