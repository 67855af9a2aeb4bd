// Where a widget stands.

struct WidgetPos {
    float x = 0;
    float y = 0;
};
