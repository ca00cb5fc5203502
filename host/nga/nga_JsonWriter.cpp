#include "nga_JsonWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "nga_Names.h"

namespace nga {

namespace {

char const hexDigits[] = "0123456789abcdef";

template <class Real, class Bits>
std::string SpecialText(Real value, Bits usual) {
    if (std::isinf(value)) return value < 0 ? "\"-Infinity\"" : "\"Infinity\"";
    Bits bits;
    std::memcpy(&bits, &value, sizeof bits);
    if (bits == usual) return "\"NaN\"";
    std::string text = "\"NaN:";
    for (int shift = static_cast<int>(8 * sizeof bits) - 4; shift >= 0; shift -= 4)
        text += hexDigits[(bits >> shift) & 15];
    return text + '"';
}

template <class Real>
std::string Shortest(Real value) {
    char letters[40];
    auto const end = std::to_chars(letters, letters + sizeof letters, value).ptr;
    std::string text(letters, end);
    if (text.find_first_of(".e") == std::string::npos) text += ".0";
    return text;
}

void Escape(std::string& to, unsigned code) {
    to += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4) to += hexDigits[(code >> shift) & 15];
}

/// Whether a character of three bytes lies in U+F780 to U+F7FF.
bool IsEscapeItself(std::string_view c) {
    return c[0] == '\xef' && (c[1] == '\x9e' || c[1] == '\x9f');
}

}  // namespace

std::string JsonWriter::DoubleText(double value) {
    if (!std::isfinite(value)) return SpecialText(value, std::uint64_t{0x7ff8000000000000});
    return Shortest(value);
}

std::string JsonWriter::FloatText(float value) {
    if (!std::isfinite(value)) return SpecialText(value, std::uint32_t{0x7fc00000});
    std::string text = Shortest(value);
    // Readers take the text for a double first; where rounding twice would miss, say it exactly.
    double read = 0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    if (static_cast<float>(read) != value) text = Shortest(static_cast<double>(value));
    return text;
}

std::string JsonWriter::StringText(std::string_view value) {
    std::string text = "\"";
    while (!value.empty()) {
        unsigned char const c = static_cast<unsigned char>(value[0]);
        int const length = Utf8Length(value);
        std::string_view const whole =
            value.substr(0, length > 0 ? static_cast<unsigned>(length) : 1);
        value.remove_prefix(whole.size());
        if (c == '"' || c == '\\') {
            text += '\\';
            text += whole;
        } else if (c == '\n') {
            text += "\\n";
        } else if (c == '\t') {
            text += "\\t";
        } else if (c == '\r') {
            text += "\\r";
        } else if (c < 0x20 || c == 0x7f) {
            Escape(text, c);
        } else if (length == 0) {
            Escape(text, 0xf700u | c);
        } else if (length == 3 && IsEscapeItself(whole)) {
            for (char const byte : whole) Escape(text, 0xf700u | static_cast<unsigned char>(byte));
        } else {
            text += whole;
        }
    }
    return text + '"';
}

std::string JsonWriter::Unescaped(std::string const& text) {
    if (text.find('\xef') == std::string::npos) return text;
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        std::string_view const rest = std::string_view(text).substr(i);
        if (rest.size() >= 3 && IsEscapeItself(rest)) {
            unsigned const low = static_cast<unsigned char>(rest[2]) & 0x3fu;
            unsigned const high = rest[1] == '\x9f' ? 0x40u : 0u;
            bytes += static_cast<char>(0x80u | high | low);
            i += 3;
        } else {
            bytes += text[i++];
        }
    }
    return bytes;
}

void JsonWriter::Separate() {
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_levels.empty()) return;
    Level& level = m_levels.back();
    if (!level.empty) m_text += level.inlined ? ", " : ",";
    level.empty = false;
    if (!level.inlined) Indent();
}

void JsonWriter::Indent() {
    m_text += '\n';
    m_text.append(2 * m_levels.size(), ' ');
}

void JsonWriter::Open(char bracket, bool inlined) {
    Separate();
    bool const inside = !m_levels.empty() && m_levels.back().inlined;
    m_text += bracket;
    m_levels.push_back({inlined || inside, true});
    m_depth = std::max(m_depth, m_levels.size());
}

void JsonWriter::Close(char bracket) {
    Level const level = m_levels.back();
    m_levels.pop_back();
    if (!level.empty && !level.inlined) Indent();
    m_text += bracket;
}

void JsonWriter::Key(std::string_view key) {
    Separate();
    m_text += StringText(key);
    m_text += ": ";
    m_afterKey = true;
}

void JsonWriter::Raw(std::string_view value) {
    Separate();
    m_text += value;
}

std::string JsonWriter::Take() {
    m_text += '\n';
    return std::move(m_text);
}

}  // namespace nga
