#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nga {

/// How deep a text may nest, read or written.
inline constexpr int jsonMaxDepth = 64;

/// Writes JSON text. Reals are the shortest text that reads back as the same number, and always
/// look like reals; NaN and the infinities are strings, a NaN other than the usual one with its
/// bits ("NaN:fff8000000000000"). Texts that are no UTF-8 are escaped reversibly: a byte that
/// belongs to no character becomes one of U+F780 to U+F7FF, the byte being the low half; so a
/// character of that range is written as its three bytes, each escaped.
class JsonWriter {
public:
    void BeginObject() { Open('{', false); }
    void EndObject() { Close('}'); }
    /// \p inlined puts the elements on one line; it holds for everything inside too.
    void BeginArray(bool inlined = false) { Open('[', inlined); }
    void EndArray() { Close(']'); }
    void Key(std::string_view key);

    void Null() { Raw("null"); }
    void Bool(bool value) { Raw(value ? "true" : "false"); }
    void Int(long long value) { Raw(std::to_string(value)); }
    void Double(double value) { Raw(DoubleText(value)); }
    void Float(float value) { Raw(FloatText(value)); }
    void String(std::string_view value) { Raw(StringText(value)); }

    /// The deepest nesting so far.
    std::size_t Depth() const { return m_depth; }
    /// Notes that what is being written has no text that could be read again, and why. Who only
    /// shows it goes on; who promises to read it asks Unreadable().
    void SetUnreadable(std::string const& reason) {
        if (m_unreadable.empty()) m_unreadable = reason;
    }
    /// The first such reason; empty if there is none.
    std::string const& Unreadable() const { return m_unreadable; }

    /// The text so far, with a line end.
    std::string Take();
    /// The same without the line end, for a value inside a line.
    std::string TakeValue() { return std::move(m_text); }

    static std::string DoubleText(double value);
    static std::string FloatText(float value);
    static std::string StringText(std::string_view value);
    /// The bytes that StringText meant: undoes the escape of bytes.
    static std::string Unescaped(std::string const& text);

private:
    struct Level {
        bool inlined;
        bool empty;
    };

    void Open(char bracket, bool inlined);
    void Close(char bracket);
    void Raw(std::string_view value);
    void Separate();
    void Indent();

    std::string m_text;
    std::vector<Level> m_levels;
    std::size_t m_depth = 0;
    std::string m_unreadable;
    bool m_afterKey = false;
};

}  // namespace nga
