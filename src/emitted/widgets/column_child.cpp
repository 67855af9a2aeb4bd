// One child of a column. A text is as wide as it is drawn. The height of a share is what the child
// itself never sees, since the child is drawn with no size forced on it, and what stays forced
// behind it. A child that measures no height doesn't move the next one down. Meant.

void column_child() {
    float childW = POZHIL_WIDTH;
#if POZHIL_IS_TEXT
#if POZHIL_HAS_CONTENT
    std::string _uTxt = fn_any_to_string(POZHIL_CONTENT);
#else
    std::string _uTxt = std::string("");
#endif
    float _uRespSize = responsiveTextSize(POZHIL_FONT_SIZE, winWidth);
    childW = getTextWidth(_uTxt.c_str(), _uRespSize);
#endif
#if POZHIL_HAS_SHARE
    forcedH = POZHIL_SHARE;
#endif
    float childX = colX + (containerW - childW) * (1.0f + alignX) / 2.0f;
    if (childW > containerW) childX = colX;
    POZHIL_CHILD;
#if POZHIL_MOVES_ON
    currentY += POZHIL_ADVANCE + spacing;
#endif
}
