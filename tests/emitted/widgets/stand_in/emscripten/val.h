// A value of JavaScript, known by its path: document, document.title.
#pragma once

#include <string>
#include <utility>

#include "emitted/widgets/recording.h"

namespace emscripten {

class val {
public:
    static val global(const char* name) { return val(name); }

    val operator[](const std::string& key) const { return val(path + "." + key); }

    template <typename Value>
    void set(const char* key, const Value& value) const {
        stand_in::note(path + "." + key + " = " + stand_in::describe(value));
    }

    template <typename Result, typename... Values>
    Result call(const char* method, const Values&... values) const {
        return static_cast<Result>(stand_in::call(path + "." + method, values...));
    }

    template <typename Result>
    Result as() const {
        return static_cast<Result>(stand_in::answer(path));
    }

private:
    explicit val(std::string path) : path(std::move(path)) {}
    std::string path;
};

}  // namespace emscripten
