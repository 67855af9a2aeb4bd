// Comparison of dynamic values. What can't be compared is simply false, also for !=. Meant.

// An operator's text. Its bytes are counted when this is compiled, not at every comparison.
struct pozhil_operator {
    const char* text;
    size_t bytes;
    constexpr pozhil_operator(const char* text)
        : text(text), bytes(std::char_traits<char>::length(text)) {}
};

// Each operator and its word, and for which outcomes it holds: numbers are less, equal, greater or
// unordered; texts and truth values are the same or different.
constexpr struct {
    pozhil_operator op;
    bool holds[6];
} pozhil_comparisons[] = {
    {"==", {false, true, false, false, true, false}},
    {"சமம்", {false, true, false, false, true, false}},
    {"!=", {true, false, true, true, false, true}},
    {"சமமில்லை", {true, false, true, true, false, true}},
    {">", {false, false, true, false, false, false}},
    {"பெரிது", {false, false, true, false, false, false}},
    {"<", {true, false, false, false, false, false}},
    {"சிறிது", {true, false, false, false, false, false}},
    {">=", {false, true, true, false, false, false}},
    {"பெரிதுசமம்", {false, true, true, false, false, false}},
    {"<=", {true, true, false, false, false, false}},
    {"சிறிதுசமம்", {true, true, false, false, false, false}},
};

bool pozhil_number(const std::any& value, long double& number) {
    const std::type_info* kind = &value.type();
    if (kind == &typeid(long long)) {
        number = *std::any_cast<long long>(&value);
    } else if (kind == &typeid(long double)) {
        number = *std::any_cast<long double>(&value);
    } else if (kind == &typeid(int)) {
        number = *std::any_cast<int>(&value);
    } else {
        return false;
    }
    return true;
}

// The text that `value` holds, or nullptr. `room` is where a single byte becomes a text.
const std::string* pozhil_text(const std::any& value, std::string& room) {
    const std::type_info* kind = &value.type();
    if (kind == &typeid(std::string)) return std::any_cast<std::string>(&value);
    if (kind == &typeid(_PozhilChar)) return &std::any_cast<_PozhilChar>(&value)->val;
    if (kind != &typeid(char)) return nullptr;
    room = *std::any_cast<char>(&value);
    return &room;
}

// The column of the outcome in the table above, or -1 if the two can't be compared.
int pozhil_outcome(const std::any& left, const std::any& right) {
    const long long* i = std::any_cast<long long>(&left);
    const long long* j = std::any_cast<long long>(&right);
    if (i != nullptr && j != nullptr) return *i < *j ? 0 : *i == *j ? 1 : 2;
    long double a, b;
    if (pozhil_number(left, a)) {
        if (!pozhil_number(right, b)) return -1;
        return a < b ? 0 : a == b ? 1 : a > b ? 2 : 3;
    }
    const bool* c = std::any_cast<bool>(&left);
    const bool* d = std::any_cast<bool>(&right);
    if (c != nullptr && d != nullptr) return *c == *d ? 4 : 5;
    std::string room, otherRoom;
    const std::string* s = pozhil_text(left, room);
    const std::string* t = pozhil_text(right, otherRoom);
    if (s == nullptr || t == nullptr) return -1;
    return *s == *t ? 4 : 5;
}

bool pozhil_holds(const std::any& left, const std::any& right, const char* op, size_t bytes) {
    const int outcome = pozhil_outcome(left, right);
    if (outcome < 0) return false;
    for (const auto& comparison : pozhil_comparisons) {
        if (comparison.op.bytes != bytes) continue;
        if (std::char_traits<char>::compare(op, comparison.op.text, bytes) == 0) {
            return comparison.holds[outcome];
        }
    }
    return false;
}

bool fn_compare_any(const std::any& left, const std::any& right, std::string op) {
    return pozhil_holds(left, right, op.data(), op.size());
}

// The same for an operator that stands in the generated text: no text is made of it first.
bool fn_compare_any(const std::any& left, const std::any& right, const char* op) {
    return pozhil_holds(left, right, op, std::char_traits<char>::length(op));
}
