// A text that is printed or joined as it stands.

// The same for a text that isn't held in a std::any: it needn't be put into one first.
template <class Text, std::enable_if_t<std::is_same_v<Text, std::string>, int> = 0>
std::string fn_any_to_string(Text&& text) {
    return std::move(text);
}
