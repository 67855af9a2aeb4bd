// A child of a stack: where the stack's alignment puts it, moved by the child's own shift.

void stack_child() {
    float childX = sStartX + (stackW - POZHIL_WIDTH) * (1.0f + POZHIL_AX) / 2.0f + POZHIL_DX;
    float childY = sStartY + (stackH - POZHIL_HEIGHT) * (1.0f + POZHIL_AY) / 2.0f + POZHIL_DY;
    POZHIL_CHILD;
}
