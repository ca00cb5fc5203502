#pragma once

#include "atr_StringBase.h"

// Natural order: runs of digits compare by their number, so that a9 stands before a10; everything
// else compares bytewise. Texts that differ only in leading zeros are ordered by their first
// differing byte. It is a total order, and only equal texts give 0.
int strnatcmp(char const* a, char const* b);

// The switch is asked at every comparison of names. On at start; to be set before any tree is
// filled, since a tree keeps the order in which its keys went in.
namespace atr_detail {
extern bool naturalOrder;
int CompareNatural(atr_StringBase const& a, atr_StringBase const& b) noexcept;
int CompareBytes(atr_StringBase const& a, atr_StringBase const& b) noexcept;
}  // namespace atr_detail

inline bool atr_getNaturalOrder() noexcept { return atr_detail::naturalOrder; }
inline void atr_setNaturalOrder(bool natural) noexcept { atr_detail::naturalOrder = natural; }

// The order of names under the switch: below 0, 0 or above 0. Zeros within a text count as bytes.
inline int atr_CompareNames(atr_StringBase const& a, atr_StringBase const& b) noexcept {
    return atr_getNaturalOrder() ? atr_detail::CompareNatural(a, b)
                                 : atr_detail::CompareBytes(a, b);
}
