// A child of a box, where the alignment puts it. A text's width is taken as the browser draws it.
// Whether the child is a text is tested when the program runs, though only a text's block has it.
// Meant. The text is measured in the size of its style, also where the window scales the drawn one.
// Meant.

void box_child() {
    float childW = POZHIL_WIDTH;
    float childH = POZHIL_HEIGHT;
#if POZHIL_IS_TEXT
    if (std::string(u8"உரை") == POZHIL_KIND) {
        std::string _boxTxt = fn_any_to_string(POZHIL_TEXT);
        childW = getBoxTextWidth(_boxTxt.c_str(), POZHIL_FONT_WEIGHT, POZHIL_FONT_SIZE);
    }
#endif
    float childX = boxX + (boxW - childW) * (1.0f + POZHIL_ALIGN_X) / 2.0f;
    float childY = boxY + (boxH - childH) * (1.0f + POZHIL_ALIGN_Y) / 2.0f;
#if POZHIL_IS_TEXT
    childY += 2.0f;
#endif
    POZHIL_CHILD;
}
