// The label of one tab.

void tab_item() {
    bool isChosen = curTabIdx_POZHIL_ID == POZHIL_PLACE;
    float tabSize = isChosen ? 15.0f : 14.0f;
    std::string tabTxt = fn_any_to_string(POZHIL_LABEL);
    drawFixedText(tbX + POZHIL_PLACE * tabW + tabW / 2, tbY + tbH / 2 - tabSize / 2, tabTxt.c_str(),
                  isChosen ? "#FFFFFF" : "#E0E0E0", tabSize, "center");
}
