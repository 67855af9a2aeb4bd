// Where all widgets stand, and the request to scroll to one of them. id_map, targetScrollY and
// currentScrollY are never used: each container scrolls by itself. Meant.

std::map<std::string, WidgetPos> g_widgetPositions;
std::map<std::string, float> id_map;
std::string g_scrollToId = "";
float targetScrollY = 0;
float currentScrollY = 0;
