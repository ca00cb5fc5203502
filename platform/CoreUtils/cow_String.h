#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "atr_StringBase.h"
#include "omn_FixedString.h"

// A shared, unchanging text: copying counts up, nothing ever writes into a shared buffer. Ordering
// is bytewise; the order of names in trees is that of atr_NaturalOrder.h.
class cow_String : public atr_StringBase {
public:
    cow_String() noexcept = default;
    // Null is the empty string.
    cow_String(char const* letters) : atr_StringBase(letters, LengthOf(letters)) {}
    cow_String(char const* letters, int length) : atr_StringBase(letters, length) {}
    cow_String(omn_FixedString const& fixed) : atr_StringBase(fixed.Text(), fixed.Length()) {}
    explicit cow_String(std::string_view letters)
        : atr_StringBase(letters.data(), LengthOf(letters)) {}
    explicit cow_String(atr_StringBase const& other) noexcept : atr_StringBase(other) {}
    // The decimal text of the value.
    explicit cow_String(int value);

    friend cow_String operator+(cow_String const& a, cow_String const& b) {
        return cow_String(a.Text(), a.Length(), b.Text(), b.Length());
    }
    friend bool operator==(cow_String const& a, cow_String const& b) noexcept {
        return SameText(a, b);
    }
    friend bool operator==(cow_String const& a, char const* b) noexcept {
        return a.View() == std::string_view(b ? b : "");
    }
    friend bool operator==(cow_String const& a, omn_FixedString const& b) noexcept {
        return a.View() == b.View();
    }
    friend bool operator<(cow_String const& a, cow_String const& b) noexcept {
        return a.View() < b.View();
    }

private:
    cow_String(char const* first, int firstLength, char const* second, int secondLength)
        : atr_StringBase(first, firstLength, second, secondLength) {}
};

struct cow_StringHash {
    std::size_t operator()(cow_String const& text) const noexcept {
        return std::hash<std::string_view>()(text.View());
    }
};
