#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#include "atr_StringBase.h"

// Natural order: runs of digits compare by their number, so that a9 stands before a10; everything
// else compares bytewise. Texts that differ only in leading zeros are ordered by their first
// differing byte. It is a total order, and only equal texts give 0.
int strnatcmp(char const* a, char const* b);

// The switch is asked at every comparison of names. On at start; to be set before any tree is
// filled, since a tree keeps the order in which its keys went in.
namespace atr_detail {
extern bool naturalOrder;

// The full rule for texts that agree up to first and there differ or end.
int CompareFrom(char const* a, std::size_t aLength, char const* b, std::size_t bLength,
                std::size_t first) noexcept;

// Eight letters as a number in which the earlier letter is the less significant byte.
inline std::uint64_t Word(char const* text) noexcept {
    std::uint64_t word;
    std::memcpy(&word, text, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    return word;
}

// The high bit of each byte that is no decimal digit.
inline std::uint64_t NoDigits(std::uint64_t word) noexcept {
    std::uint64_t const fromZero = word ^ 0x3030303030303030u;
    return (((fromZero & 0x7f7f7f7f7f7f7f7fu) + 0x7676767676767676u) | fromZero) &
           0x8080808080808080u;
}
}  // namespace atr_detail

inline bool atr_getNaturalOrder() noexcept { return atr_detail::naturalOrder; }
inline void atr_setNaturalOrder(bool natural) noexcept { atr_detail::naturalOrder = natural; }

// The order of names under the switch: below 0, 0 or above 0. Zeros within a text count as bytes.
// It is what every step down a tree costs, so it goes by words: texts in buffers are padded with
// zeros to whole words. The first difference decides, but for numbers of different lengths.
inline int atr_CompareNames(atr_StringBase const& a, atr_StringBase const& b) noexcept {
    char const* const x = a.Text();
    char const* const y = b.Text();
    int const aLength = a.Length(), bLength = b.Length();
    int const shorter = aLength < bLength ? aLength : bLength;
    for (int i = 0; i < shorter; i += 8) {
        std::uint64_t const u = atr_detail::Word(x + i);
        std::uint64_t const v = atr_detail::Word(y + i);
        if (u == v) continue;
        int const low = std::countr_zero(u ^ v) & ~7;
        if (atr_getNaturalOrder()) {
            // Letters before the difference count as digits here: they are the same in both.
            std::uint64_t const from = ~std::uint64_t(0) << low;
            std::uint64_t const uEnd = atr_detail::NoDigits(u) & from;
            std::uint64_t const vEnd = atr_detail::NoDigits(v) & from;
            if (uEnd == 0 || ((uEnd ^ vEnd) & (uEnd ^ (uEnd - 1))) != 0) {
                return atr_detail::CompareFrom(
                    x, static_cast<std::size_t>(aLength), y, static_cast<std::size_t>(bLength),
                    static_cast<std::size_t>(i) + static_cast<std::size_t>(low) / 8);
            }
        }
        return ((u >> low) & 0xff) < ((v >> low) & 0xff) ? -1 : 1;
    }
    return (aLength > bLength) - (aLength < bLength);
}
