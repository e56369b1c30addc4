// JSON text written piece by piece, so that an outcome of a hundred thousand zones needs no memory
// for its JSON. The form is that of the JSON library's dump with an indent.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace console {

class JsonStream {
public:
    /// `out` is borrowed. Whether it took everything, its own state tells.
    explicit JsonStream(std::ostream& out, std::size_t indentWidth = 2)
        : out_(out), indentWidth_(indentWidth) {}
    JsonStream(const JsonStream&) = delete;
    JsonStream& operator=(const JsonStream&) = delete;

    /// Members stand in an object, each with its key ahead of it; other values in a list. What is
    /// begun must be ended, the last begun first.
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginList() { begin('['); }
    void endList() { end(']'); }
    /// The key of the next value. Keys are not compared: each may come once in its object.
    void key(std::string_view name);

    /// Bytes that are no UTF-8 become U+FFFD.
    void value(std::string_view text);
    void value(const char* text) { value(std::string_view(text)); }
    void value(const std::string& text) { value(std::string_view(text)); }
    void value(bool truth) { literal(truth ? "true" : "false"); }
    /// As jsonNumber() has it.
    void value(double number);
    template <std::integral Number>
    requires(!std::same_as<Number, bool>) void value(Number number) {
        integer(static_cast<std::int64_t>(number));
    }
    void null() { literal("null"); }

    /// A key with its value; null stands for nothing.
    template <typename Value>
    void member(std::string_view name, const Value& told) {
        key(name);
        value(told);
    }
    template <typename Value>
    void member(std::string_view name, const std::optional<Value>& told) {
        key(name);
        if (told)
            value(*told);
        else
            null();
    }

    /// Ends the text with a line end and hands over what is left. Nothing is written before that
    /// but whole blocks.
    void finish();

private:
    void begin(char bracket);
    void end(char bracket);
    void integer(std::int64_t number);
    void literal(std::string_view text);
    void startValue();
    void startLine();
    void putText(std::string_view text);
    void flushIfLarge();

    std::ostream& out_;
    std::size_t indentWidth_; // blanks
    std::string text_;        // not handed over yet
    std::size_t depth_ = 0;
    bool isFirst_ = true; // nothing stands in the innermost object or list yet
    bool hasKey_ = false; // the next value stands behind its key
};

} // namespace console
