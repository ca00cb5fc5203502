#include "nga_Names.h"

#include <algorithm>

#include "nga_Error.h"

namespace nga {

bool IsUsableName(std::string_view name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), [](char letter) {
        unsigned char const c = static_cast<unsigned char>(letter);
        return c < 0x20 || c == 0x7f || c == '\'' || c == '"' || c == '\\';
    });
}

void RequireName(std::string_view name, std::string const& owner, int line) {
    if (name.empty()) throw Error("a name cannot be empty", owner, line);
    if (!IsUsableName(name))
        throw Error("the name " + Quoted(name) + " cannot be used", owner, line,
                    "a name without quotes, backslashes and control characters");
}

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// How many letters to add, take, change or swap with their neighbour; capitals do not count.
int Distance(std::string_view a, std::string_view b) {
    std::size_t const columns = b.size() + 1;
    std::vector<int> before(columns), last(columns), now(columns);
    for (std::size_t j = 0; j < columns; ++j) last[j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        now[0] = static_cast<int>(i);
        for (std::size_t j = 1; j < columns; ++j) {
            bool const same = Lower(a[i - 1]) == Lower(b[j - 1]);
            now[j] = std::min({last[j] + 1, now[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && Lower(a[i - 1]) == Lower(b[j - 2]) &&
                Lower(a[i - 2]) == Lower(b[j - 1]))
                now[j] = std::min(now[j], before[j - 2] + 1);
        }
        before.swap(last);
        last.swap(now);
    }
    return last[columns - 1];
}

}  // namespace

std::vector<std::string> NearNames(std::string_view given, std::vector<std::string> const& known) {
    // A name that long is no slip of the finger, and the measure is quadratic.
    if (given.size() > 100) return {};
    std::vector<std::pair<int, std::string>> found;
    for (std::string const& name : known) {
        if (name.size() > 100) continue;
        int const distance = Distance(given, name);
        int const length = static_cast<int>(std::max(given.size(), name.size()));
        if (distance <= std::max(1, length / 3)) found.emplace_back(distance, name);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });
    std::vector<std::string> names;
    for (auto const& [distance, name] : found)
        if (names.size() < 3) names.push_back(name);
    return names;
}

std::string DidYouMean(std::string_view given, std::vector<std::string> const& known) {
    std::vector<std::string> const near = NearNames(given, known);
    if (near.empty()) return std::string();
    std::string text = " (did you mean ";
    for (std::size_t i = 0; i < near.size(); ++i) {
        if (i > 0) text += i + 1 == near.size() ? " or " : ", ";
        text += Quoted(near[i]);
    }
    return text + "?)";
}

namespace {

void AddHex(std::string& to, unsigned char c) {
    static char const hex[] = "0123456789abcdef";
    to += "\\x";
    to += hex[c >> 4];
    to += hex[c & 15];
}

}  // namespace

std::string Choice(std::vector<std::string> const& known) {
    std::string text;
    for (std::size_t i = 0; i < known.size(); ++i) {
        if (i > 0) text += i + 1 == known.size() ? " or " : ", ";
        text += '"' + known[i] + '"';
    }
    return text;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    while (!text.empty()) {
        int const length = Utf8Length(text);
        unsigned char const c = static_cast<unsigned char>(text[0]);
        if (c == '\'' || c == '\\') {
            quoted += '\\';
            quoted += text[0];
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (c == '\r') {
            quoted += "\\r";
        } else if (c == '\t') {
            quoted += "\\t";
        } else if (c < 0x20 || c == 0x7f || length == 0) {
            AddHex(quoted, c);
        } else {
            quoted += text.substr(0, static_cast<std::size_t>(length));
        }
        text.remove_prefix(static_cast<std::size_t>(std::max(length, 1)));
    }
    return quoted + "'";
}

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        int const length = Utf8Length(text);
        unsigned char const c = static_cast<unsigned char>(text[0]);
        if (c == '\n')
            printable += "\n    ";
        else if (c < 0x20 || c == 0x7f || length == 0)
            AddHex(printable, c);
        else
            printable += text.substr(0, static_cast<std::size_t>(length));
        text.remove_prefix(static_cast<std::size_t>(std::max(length, 1)));
    }
    return printable;
}

int Utf8Length(std::string_view text) {
    if (text.empty()) return 0;
    auto const byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned>(static_cast<unsigned char>(text[i])) : 0u;
    };
    auto const follows = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xbf) {
        return byte(i) >= low && byte(i) <= high;
    };
    unsigned const first = byte(0);
    if (first < 0x80) return 1;
    if (first >= 0xc2 && first <= 0xdf) return follows(1) ? 2 : 0;
    if (first >= 0xe0 && first <= 0xef) {
        // Neither longer than needed nor half of a pair.
        unsigned const low = first == 0xe0 ? 0xa0 : 0x80;
        unsigned const high = first == 0xed ? 0x9f : 0xbf;
        return follows(1, low, high) && follows(2) ? 3 : 0;
    }
    if (first >= 0xf0 && first <= 0xf4) {
        unsigned const low = first == 0xf0 ? 0x90 : 0x80;
        unsigned const high = first == 0xf4 ? 0x8f : 0xbf;
        return follows(1, low, high) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

std::string Counted(long long count, char const* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace nga
