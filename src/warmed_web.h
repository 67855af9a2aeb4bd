// What scripts/warm_web.sh precompiles for em++: the headers of a web application's text, and what
// such texts do with them, time and again. Nothing of it runs: what is used here is instantiated in
// the precompiled header and compiled once, in the object beside it, and no more in each program.
// A use that is missing here only costs a program its time. Of the text that every program carries
// it has what held_runtime.h declares.
#include <emscripten.h>
#include <emscripten/bind.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>

#include <cstring>

#include "emitted/includes.cpp"
#include "error_codes.h"
#include "error_handler.h"
#include "held_runtime.h"
#include "nanovg.h"

// The tables of these headers are made in every program that sees them, and so in the object too.
#pragma clang attribute push(__attribute__((weak)), apply_to = variable(is_global))
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"
#pragma clang attribute pop

// clang-format off: GLEW wants to be the first
#include <GL/glew.h>
#include <GLFW/glfw3.h>
// clang-format on
#define NANOVG_GLES2_IMPLEMENTATION
#import "nanovg_gl.h"  // its second part has no guard: once imported it isn't included again

namespace pozhil_warmed {

using List = std::vector<std::any>;
using Dictionary = std::map<std::string, std::any>;

template <class Value>
void copy(Value& value) {
    Value other(value);
    other = value;
    Value moved(std::move(other));
    other = std::move(moved);
    std::swap(value, other);
}

template <class Values>
void walk(Values& values) {
    const Values& same = values;
    for (auto& value : values) (void)value;
    for (auto value : values) (void)value;
    for (const auto& value : same) (void)value;
}

/// A kind of value: how it gets into a std::any and out again.
template <class Value>
void hold(Value value) {
    std::any held = value;
    held = value;
    held = std::move(value);
    const std::any& same = held;
    (void)(held.type() == typeid(Value));
    (void)std::any_cast<Value>(held);
    (void)std::any_cast<Value>(same);
    (void)std::any_cast<Value>(std::any(held));
    (void)std::any_cast<Value>(&held);
    (void)std::any_cast<Value>(&same);
    (void)std::any_cast<Value&>(held);
    (void)std::any_cast<const Value&>(same);
}

template <class Value>
void list() {
    std::vector<Value> values;
    std::vector<Value> several(3);
    const std::vector<Value>& same = values;
    values.push_back(several[0]);
    values.push_back(Value());
    values.emplace_back();
    values.insert(values.begin(), several.at(0));
    values.erase(values.begin());
    values.back() = values.front();
    values.pop_back();
    values.resize(several.size());
    values.reserve(2);
    (void)values.empty();
    (void)values.data();
    (void)same[0];
    values.clear();
    walk(values);
    copy(values);
}

template <class Key, class Value>
void dictionary(const Key& key) {
    std::map<Key, Value> entries;
    const std::map<Key, Value>& same = entries;
    entries[key] = Value();
    entries[Key()] = entries.at(key);  // by a key that may be moved from
    entries.insert({key, same.at(key)});
    entries.erase(entries.find(key));
    entries.erase(key);
    (void)(entries.find(key) != entries.end());
    (void)(same.find(key) == same.end());
    (void)entries.count(key);
    (void)same.count(key);
    (void)entries.empty();
    (void)entries.size();
    entries.clear();
    walk(entries);
    copy(entries);
}

template <class Result, class... Arguments>
void call(Arguments... arguments) {
    std::function<Result(Arguments...)> function;
    function = static_cast<Result (*)(Arguments...)>(nullptr);
    if (function) function(arguments...);
    function = nullptr;
    (void)(function == nullptr);
    copy(function);
}

inline void values(std::any any, std::string text) {
    copy(any);
    hold<long long>(0);
    hold<int>(0);
    hold<char>(0);
    hold<bool>(false);
    hold<float>(0);
    hold<double>(0);
    hold<long double>(0);
    hold<std::tm*>(nullptr);
    hold<const char*>("");
    hold<std::string>(text);
    hold<List>({});
    hold<Dictionary>({});
    hold<std::function<std::any()>>({});
    hold<std::function<std::any(std::any)>>({});
    hold<std::function<std::any(std::any, std::any)>>({});
    hold<std::function<std::any(std::any, std::any, std::any)>>({});
    call<void>();
    call<std::any>();
    call<std::any>(any);
    call<std::any>(any, any);
    call<std::any>(any, any, any);
    call<float>(0.0F);
}

inline void containers(std::string text, List any) {
    list<std::any>();
    list<std::string>();
    list<std::function<void()>>();
    list<unsigned char>();
    list<int>();
    list<float>();
    dictionary<std::string, std::any>(text);
    dictionary<std::string, std::string>(text);
    dictionary<std::string, bool>(text);
    dictionary<std::string, int>(text);
    dictionary<std::string, float>(text);
    dictionary<std::string, std::function<void()>>(text);
    dictionary<int, std::function<void()>>(0);
    dictionary<unsigned long long, AnimationState>(0);
    dictionary<std::string, WidgetPos>(text);

    std::set<std::string> names = {text};
    names.insert(text);
    names.erase(text);
    (void)names.count(text);
    names.clear();
    walk(names);
    copy(names);

    std::unordered_map<std::string, float (*)(float)> curves;
    curves = {{"", nullptr}};
    curves[text] = curves[std::string(text)];
    (void)curves.empty();
    (void)(curves.find(text) == curves.end());
    (void)curves.count(text);
    (void)பிழை_அகராதி.at(text);
    (void)பிழை_அகராதி.count(text);
    (void)(பிழை_அகராதி.find(text) == பிழை_அகராதி.end());

    std::reverse(any.begin(), any.end());
    std::sort(any.begin(), any.end(), [](const std::any&, const std::any&) { return false; });
}

inline void texts(std::string text, const char* literal) {
    const std::string& same = text;
    std::string copied(same, 1, 2);
    std::string filled(3, 'c');
    std::string taken(text.begin(), text.end());
    text = same + literal + same + 'c';
    text = literal + same;
    text = std::string(literal) + same + std::string(literal);
    text = 'c' + same;
    text += same;
    text += literal;
    text += 'c';
    text.append(literal);
    text.push_back('c');
    text.pop_back();
    text.insert(0, same);
    text.replace(0, 1, same);
    text.erase(0, 1);
    text.resize(3);
    text = same.substr(1, 2);
    text.back() = text.front();
    text.at(0) = text[1];
    (void)text.find(literal);
    (void)text.find(same);
    (void)text.find('c');
    (void)text.rfind(literal);
    (void)text.find_first_of(literal);
    (void)text.find_last_of(literal);
    (void)text.find_first_not_of(literal);
    (void)text.find_last_not_of(literal);
    (void)(text == literal);
    (void)(text != literal);
    (void)(text == same);
    (void)(text != same);
    (void)(text < same);
    (void)(text > same);
    (void)text.compare(same);
    (void)text.empty();
    (void)text.c_str();
    std::reverse(text.begin(), text.end());
    std::transform(text.begin(), text.end(), text.begin(), ::tolower);
    walk(text);
    copy(text);
}

inline void numbers(std::string text) {
    text = std::to_string(1) + std::to_string(1LL) + std::to_string(1.0L) + std::to_string(1.0F);
    (void)std::stoi(text);
    (void)std::stoll(text);
    (void)std::stof(text);
    (void)std::stod(text);
    (void)std::stold(text);
    (void)std::min(1, 2);
    (void)std::max(1, 2);
    (void)std::min(1.0F, 2.0F);
    (void)std::max(1.0F, 2.0F);
    (void)std::abs(1.0L);
    const auto start = std::chrono::steady_clock::now();
    (void)(std::chrono::steady_clock::now() - start);
    (void)std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::system_clock::now().time_since_epoch())
        .count();
}

inline void streams(std::string text, std::ostream& out) {
    std::stringstream stream(text);
    stream << std::fixed << std::setprecision(2) << text << "" << 'c' << 1 << 1LL << 1.0L << 1.0F;
    stream >> text;
    std::getline(stream, text);
    std::getline(stream, text, ',');
    std::ostringstream written;
    std::ofstream file(text);
    file << text;
    (void)file.is_open();
    file.close();
    std::ifstream read(text);
    (void)read.is_open();
    std::getline(read, text);
    written << read.rdbuf();
    text = written.str() + stream.str();
    text.assign(std::istreambuf_iterator<char>(read), std::istreambuf_iterator<char>());
    read.close();
    out << text << "" << 'c' << 1 << 1LL << 1.0L << std::setw(2) << std::setfill('0') << std::endl;
}

}  // namespace pozhil_warmed
