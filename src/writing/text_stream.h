// The stream that generated text is written to: a string that grows, and the usual way to write to
// it. Texts and whole numbers go straight into the string; all else takes the way of every stream.
#pragma once

#include <charconv>
#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>

class TextStream : public std::ostream {
public:
    /// Writes numbers the same in every locale.
    TextStream() : std::ostream(nullptr) {
        rdbuf(&buffer);
        imbue(std::locale::classic());
    }

    using std::ostream::operator<<;
    TextStream& operator<<(std::string_view text) {
        buffer.text.append(text);
        return *this;
    }
    TextStream& operator<<(const std::string& text) { return *this << std::string_view(text); }
    TextStream& operator<<(const char* text) { return *this << std::string_view(text); }
    TextStream& operator<<(char byte) {
        buffer.text.push_back(byte);
        return *this;
    }
    TextStream& operator<<(int number) {
        char digits[16];
        const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        return *this << std::string_view(digits, static_cast<std::size_t>(end - digits));
    }

    /// Bytes written so far.
    std::size_t size() const { return buffer.text.size(); }
    /// Makes room for `bytes` in all.
    void reserve(std::size_t bytes) { buffer.text.reserve(bytes); }

    const std::string& str() const { return buffer.text; }
    void str(std::string text) { buffer.text = std::move(text); }
    /// The text, without a copy; nothing is left behind.
    std::string take() { return std::exchange(buffer.text, {}); }

private:
    class Buffer : public std::streambuf {
    public:
        std::string text;

    protected:
        int_type overflow(int_type byte) override {
            if (!traits_type::eq_int_type(byte, traits_type::eof())) {
                text.push_back(traits_type::to_char_type(byte));
            }
            return traits_type::not_eof(byte);
        }
        std::streamsize xsputn(const char* bytes, std::streamsize count) override {
            text.append(bytes, static_cast<std::size_t>(count));
            return count;
        }
    };
    Buffer buffer;
};
