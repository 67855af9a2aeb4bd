// What an object holds of the text that every program carries: the diagnostics object for console
// programs, one of its own for applications. A warmed header declares it, and the compiler passes
// over that text. Where the bodies follow (held_bodies.h) POZHIL_HELD stands before each function:
// in the diagnostics object it makes them inline and kept, for a program that is built without the
// warmed header brings its own, and the two must not clash. Variables have labels of the object's
// own for the same reason.
//
// Each stands here as in src/emitted, in the order of the generated file. The value of a parameter
// that may be left out is POZHIL_OR_ELSE(VALUE): bodies find it in the text.
#include "emitted/animation_state.cpp"
#include "emitted/base_structures.cpp"
#include "emitted/widget_position.cpp"

#ifdef POZHIL_HELD
#define POZHIL_OR_ELSE(VALUE)
#else
#define pozhil_runtime_is_held
#define POZHIL_HELD extern
#define POZHIL_OR_ELSE(VALUE) = VALUE
#endif

/// All variables of a program. A name that stands in its text is known by its address, and nothing
/// ever takes a variable away: so an entry is looked up by its name once, and then found here.
struct PozhilVariables : std::map<std::string, std::any> {
    using std::map<std::string, std::any>::operator[];
    template <size_t Bytes>
    std::any& operator[](const char (&name)[Bytes]) {
        Known& place = known[(size_t)name / 4 % kPlaces];
        if (place.name != name) lookUp(name, place);
        return *place.value;
    }

private:
    struct Known {
        const char* name = nullptr;
        std::any* value = nullptr;
    };
    void lookUp(const char* name, Known& place);

    static constexpr size_t kPlaces = 256;
    Known known[kPlaces];
};

#define POZHIL_VARIABLE(NAME, ...) extern __VA_ARGS__ NAME __asm__("pozhil_held_" #NAME)
POZHIL_VARIABLE(global_vars, PozhilVariables);
POZHIL_VARIABLE(g_inputErrors, std::map<std::string, std::string>);
POZHIL_VARIABLE(g_kaatchi_nilai, std::map<std::string, bool>);
POZHIL_VARIABLE(g_alert_names, std::set<std::string>);
POZHIL_VARIABLE(g_block_background_clicks, bool);
POZHIL_VARIABLE(g_inside_overlay, bool);
POZHIL_VARIABLE(fn_return_value, std::any);
POZHIL_VARIABLE(g_overlays, std::vector<std::function<void()>>);
POZHIL_VARIABLE(g_call_depth, int);
POZHIL_VARIABLE(g_current_call_line, int);
POZHIL_VARIABLE(திரை_அகலம், float);
POZHIL_VARIABLE(திரை_உயரம், float);
POZHIL_VARIABLE(g_inputValues, std::map<std::string, std::string>);
POZHIL_VARIABLE(g_inputCursorPos, std::map<std::string, int>);
POZHIL_VARIABLE(g_focusedInput, std::string);
POZHIL_VARIABLE(g_inputSelected, std::map<std::string, bool>);
POZHIL_VARIABLE(g_animationStates, std::map<unsigned long long, AnimationState>);
POZHIL_VARIABLE(g_widgetPositions, std::map<std::string, WidgetPos>);
POZHIL_VARIABLE(id_map, std::map<std::string, float>);
POZHIL_VARIABLE(g_scrollToId, std::string);
POZHIL_VARIABLE(targetScrollY, float);
POZHIL_VARIABLE(currentScrollY, float);
#undef POZHIL_VARIABLE

POZHIL_HELD void pozhil_runtime_error(std::string code, std::string file, int line);

// Dynamic values.
POZHIL_HELD std::string fn_முழுவதும்(std::tm* t);
POZHIL_HELD std::string fn_any_to_string(const std::any& val);
POZHIL_HELD std::string fn_any_to_json(const std::any& val);
POZHIL_HELD std::string என்னவகை_கண்டுபிடி(const std::any& மதிப்பு);
POZHIL_HELD long double fn_get_double(const std::any& a);
POZHIL_HELD bool pozhil_number(const std::any& value, long double& number);
POZHIL_HELD const std::string* pozhil_text(const std::any& value, std::string& room);
POZHIL_HELD int pozhil_outcome(const std::any& left, const std::any& right);
POZHIL_HELD bool pozhil_holds(const std::any& left, const std::any& right, const char* op,
                              size_t bytes);
POZHIL_HELD bool fn_compare_any(const std::any& left, const std::any& right, std::string op);
POZHIL_HELD bool fn_compare_any(const std::any& left, const std::any& right, const char* op);
POZHIL_HELD long long fn_index(long long value);
POZHIL_HELD long long fn_index(int value);
POZHIL_HELD long long fn_index(const std::any& value);
POZHIL_HELD std::any fn_div_any(const std::any& left, const std::any& right);
POZHIL_HELD std::any fn_add_any(const std::any& left, const std::any& right);
POZHIL_HELD std::string fn_resolve_module_path(const std::string& module_name);
POZHIL_HELD bool pozhil_read_number(const std::string& text, std::any& number);
POZHIL_HELD bool pozhil_is_number(const std::any& value);
POZHIL_HELD std::any fn_logic_not(const std::any& val);

// The library.
POZHIL_HELD bool pozhil_forbidden_path(const std::string& path);
POZHIL_HELD std::any fn_கோப்பு_எழுது(std::string path, std::string content, std::string file,
                                    int line);
POZHIL_HELD std::any fn_கோப்பு_படி(std::string path, std::string file, int line);
POZHIL_HELD std::any fn_கோப்பு_சேர்(std::string path, std::string content, std::string file,
                                  int line);
POZHIL_HELD std::any fn_கோப்பு_அழி(std::string path);
POZHIL_HELD std::any fn_கோப்பு_உள்ளதா(std::string path);
POZHIL_HELD std::any fn_பிளவு(std::string s, std::string delim);
POZHIL_HELD std::any fn_பதில்(std::string s, std::string find, std::string replace);
POZHIL_HELD std::any fn_பெரியஎ(std::string s);
POZHIL_HELD std::any fn_சிறியஎ(std::string s);
POZHIL_HELD std::any fn_சுத்தம்(std::string s);
POZHIL_HELD std::string fn_நேரம்_உருவாக்கு(std::tm* t, const char* format);
POZHIL_HELD std::string fn_தேதி(std::tm* t);
POZHIL_HELD std::string fn_நேரம்(std::tm* t);
POZHIL_HELD std::any fn_உள்ளீடு(std::string prompt);
POZHIL_HELD int fn_நீளம்(std::any val);
POZHIL_HELD std::any fn_எடு(const std::any& obj, const std::any& key, const char* file, int line);
POZHIL_HELD std::any fn_எடு(std::any obj, std::any key, std::string file, int line);
POZHIL_HELD std::any& fn_index_ref(std::any& obj, const std::any& key, const char* file, int line);
POZHIL_HELD std::any& fn_index_ref(std::any& obj, const std::any& key,
                                   std::string file POZHIL_OR_ELSE(""), int line POZHIL_OR_ELSE(0));
POZHIL_HELD std::any fn_index_ref(std::any&& obj, const std::any& key,
                                  std::string file POZHIL_OR_ELSE(""), int line POZHIL_OR_ELSE(0));
POZHIL_HELD const std::string& pozhil_name(const char* name);
POZHIL_HELD std::any* pozhil_find(std::map<std::string, std::any>& properties,
                                  const std::string& prop);
POZHIL_HELD std::any pozhil_property(_StructBase& obj, const std::string& prop, const char* file,
                                     int line);
POZHIL_HELD std::any fn_get_property(const std::shared_ptr<_StructBase>& obj, const char* prop,
                                     const char* file, int line);
POZHIL_HELD std::any fn_get_property(std::shared_ptr<_StructBase> obj, std::string prop,
                                     std::string file, int line);
POZHIL_HELD void pozhil_set_property(const std::shared_ptr<_StructBase>* obj,
                                     const std::string& prop, const std::any& val, const char* file,
                                     int line);
POZHIL_HELD const std::any& fn_set_property(const std::shared_ptr<_StructBase>& obj,
                                            const char* prop, const std::any& val, const char* file,
                                            int line);
POZHIL_HELD const std::any& fn_set_property(const std::any& obj, const char* prop,
                                            const std::any& val, const char* file, int line);
POZHIL_HELD std::any fn_set_property(std::any obj, std::string prop, std::any val, std::string file,
                                     int line);
POZHIL_HELD long long fn_மேல்எண்(long double val);
POZHIL_HELD long long fn_கீழ்எண்(long double val);
POZHIL_HELD std::any fn_நீக்கு(std::any& lst_any, const std::any& item, std::string file, int line);
POZHIL_HELD std::any fn_நீக்கு(std::any&& lst_any, const std::any& item, std::string file, int line);
#undef POZHIL_HELD
#undef POZHIL_OR_ELSE

// What is small stands in the header itself.
#ifdef pozhil_runtime_is_held
#include "emitted/animation.cpp"
#include "emitted/call_guard.cpp"
#include "emitted/plain_text.cpp"
#endif
