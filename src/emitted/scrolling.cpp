// The request itself. Its function has the form of a program's own: one that a program defines
// once more is refused, so each program compiles this one.

void நகர்த்து(std::string id) { g_scrollToId = id; }

std::any fn_நகர்த்து(std::any id_any) {
    if (const std::string* id = std::any_cast<std::string>(&id_any)) {
        g_scrollToId = *id;
        நகர்த்து(*id);
    }
    return std::any();
}

void updateUI() {}
