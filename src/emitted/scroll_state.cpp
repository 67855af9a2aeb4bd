// Where the widgets stand, and the request to scroll to one of them. id_map, targetScrollY and
// currentScrollY are never used: each container scrolls by itself. Meant.

struct WidgetPos {
    float x = 0;
    float y = 0;
};

std::map<std::string, WidgetPos> g_widgetPositions;
std::map<std::string, float> id_map;
std::string g_scrollToId = "";
float targetScrollY = 0;
float currentScrollY = 0;

void நகர்த்து(std::string id) { g_scrollToId = id; }

std::any fn_நகர்த்து(std::any id_any) {
    if (const std::string* id = std::any_cast<std::string>(&id_any)) {
        g_scrollToId = *id;
        நகர்த்து(*id);
    }
    return std::any();
}

void updateUI() {}
