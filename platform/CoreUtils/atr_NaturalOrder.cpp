#include "atr_NaturalOrder.h"

#include <cstring>
#include <string_view>

namespace atr_detail {
bool naturalOrder = true;
}

namespace {

inline bool IsDigit(unsigned char letter) { return static_cast<unsigned>(letter) - '0' < 10u; }

inline int ByteOrder(unsigned char a, unsigned char b) { return a < b ? -1 : 1; }

// The full rule, for the few pairs that the first difference does not decide. The texts differ, and
// first is where.
[[gnu::noinline]] int CompareSlowly(std::string_view a, std::string_view b, std::size_t first) {
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        unsigned char const x = static_cast<unsigned char>(a[i]);
        unsigned char const y = static_cast<unsigned char>(b[j]);
        if (!IsDigit(x) || !IsDigit(y)) {
            if (x != y) return ByteOrder(x, y);
            ++i, ++j;
            continue;
        }
        while (i < a.size() && a[i] == '0') ++i;
        while (j < b.size() && b[j] == '0') ++j;
        std::size_t iEnd = i, jEnd = j;
        while (iEnd < a.size() && IsDigit(static_cast<unsigned char>(a[iEnd]))) ++iEnd;
        while (jEnd < b.size() && IsDigit(static_cast<unsigned char>(b[jEnd]))) ++jEnd;
        if (iEnd - i != jEnd - j) return iEnd - i < jEnd - j ? -1 : 1;
        if (int const order = a.substr(i, iEnd - i).compare(b.substr(j, jEnd - j))) {
            return order < 0 ? -1 : 1;
        }
        i = iEnd, j = jEnd;
    }
    if (i < a.size() || j < b.size()) return i < a.size() ? 1 : -1;
    if (first < a.size() && first < b.size()) {
        return ByteOrder(static_cast<unsigned char>(a[first]),
                         static_cast<unsigned char>(b[first]));
    }
    return a.size() < b.size() ? -1 : 1;
}

}  // namespace

int atr_detail::CompareFrom(char const* a, std::size_t aLength, char const* b, std::size_t bLength,
                            std::size_t first) noexcept {
    auto const at = [](char const* text, std::size_t length, std::size_t i) {
        return i < length ? static_cast<unsigned char>(text[i]) : static_cast<unsigned char>(0);
    };
    unsigned char const x = at(a, aLength, first);
    unsigned char const y = at(b, bLength, first);
    bool const xDigit = first < aLength && IsDigit(x);
    bool const yDigit = first < bLength && IsDigit(y);
    bool const inNumber = first > 0 && IsDigit(static_cast<unsigned char>(a[first - 1]));
    if (xDigit && yDigit) {
        std::size_t end = first + 1;
        while (end < aLength && end < bLength && IsDigit(static_cast<unsigned char>(a[end])) &&
               IsDigit(static_cast<unsigned char>(b[end]))) {
            ++end;
        }
        bool const aLonger = end < aLength && IsDigit(static_cast<unsigned char>(a[end]));
        bool const bLonger = end < bLength && IsDigit(static_cast<unsigned char>(b[end]));
        if (!aLonger && !bLonger) return ByteOrder(x, y);
    } else if (!inNumber || (!xDigit && !yDigit)) {
        if (first == aLength) return -1;
        if (first == bLength) return 1;
        return ByteOrder(x, y);
    }
    return CompareSlowly(std::string_view(a, aLength), std::string_view(b, bLength), first);
}

int strnatcmp(char const* a, char const* b) {
    std::size_t first = 0;
    if (!a) a = "";
    if (!b) b = "";
    while (a[first] && a[first] == b[first]) ++first;
    if (a[first] == b[first]) return 0;
    return atr_detail::CompareFrom(a, first + std::strlen(a + first), b,
                                   first + std::strlen(b + first), first);
}
