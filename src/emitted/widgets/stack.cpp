// A stack: its children on top of each other, the last in front.

void stack() {
    float stackW = (forcedW > 0.0f) ? forcedW : POZHIL_WIDTH;
    float stackH = (forcedH > 0.0f) ? forcedH : POZHIL_HEIGHT;
    float sStartX = POZHIL_X;
    float sStartY = POZHIL_Y;
    POZHIL_CHILDREN;
}
