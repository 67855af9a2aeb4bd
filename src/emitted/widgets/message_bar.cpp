// A pill with a message. It stays: nothing times it.

void message_bar() {
    float sbX = std::floor(POZHIL_X);
    float sbY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float radius = sbHeight / 2;
    float br = 50.0f / 255.0f, bg = 50.0f / 255.0f, bb = 50.0f / 255.0f, ba = 230.0f / 255.0f;
    POZHIL_COLOUR;
#if POZHIL_HAS_MESSAGE
    std::string sbMsg = fn_any_to_string(POZHIL_MESSAGE);
#else
    std::string sbMsg = "தகவல்";
#endif
    nvgBeginPath(vg);
    nvgRect(vg, sbX - 10.0f, sbY - 10.0f, sbWidth + 20.0f, sbHeight + 24.0f);
    nvgRoundedRect(vg, sbX, sbY, sbWidth, sbHeight, radius);
    nvgPathWinding(vg, NVG_HOLE);
    nvgFillPaint(vg, nvgBoxGradient(vg, sbX, sbY + 4.0f, sbWidth, sbHeight, radius, 10.0f,
                                    nvgRGBA(0, 0, 0, 80), nvgRGBA(0, 0, 0, 0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, sbX, sbY, sbWidth, sbHeight, radius);
    nvgFillColor(vg, nvgRGBAf(br, bg, bb, ba));
    nvgFill(vg);
    drawFixedText(sbX + sbWidth / 2, sbY + sbHeight / 2 - 8.0f, sbMsg.c_str(), "#FFFFFF", 16.0f,
                  "center");
}
