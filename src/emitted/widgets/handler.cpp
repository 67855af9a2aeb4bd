// What a press or a change does: a function of the program, if the value is one. What it throws is
// swallowed, so that the frame goes on.

void handler() {
    std::any callback = POZHIL_CALLBACK;
    try {
        if (callback.type() == typeid(std::function<std::any()>)) {
            std::any_cast<std::function<std::any()>>(callback)();
        }
    } catch (...) {
    }
}
