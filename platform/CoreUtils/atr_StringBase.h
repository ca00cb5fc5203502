#pragma once

#include <cstddef>
#include <string_view>

// The shared text behind cow_String and atr_String: one buffer, counted by every string that shows
// it. Counts are plain integers, so a string and its copies belong to one thread. The empty string
// has no buffer.
class atr_StringBase {
public:
    // Count first, then length, then the text. The text ends with a zero and is filled with zeros
    // up to a multiple of eight bytes, so that comparisons can read whole words.
    struct Buffer {
        int count;
        int length;
    };

    atr_StringBase() noexcept : text(nullptr), buffer(nullptr) {}
    atr_StringBase(atr_StringBase const& other) noexcept : text(other.text), buffer(other.buffer) {
        if (buffer) ++buffer->count;
    }
    ~atr_StringBase() {
        if (buffer && --buffer->count == 0) Release(buffer);
    }
    atr_StringBase& operator=(atr_StringBase const& other) noexcept {
        if (other.buffer) ++other.buffer->count;
        Buffer* const former = buffer;
        text = other.text;
        buffer = other.buffer;
        if (former && --former->count == 0) Release(former);
        return *this;
    }

    // Never null.
    char const* Text() const noexcept { return buffer ? text : emptyText; }
    int Length() const noexcept { return buffer ? buffer->length : 0; }
    bool IsEmpty() const noexcept { return Length() == 0; }
    std::string_view View() const noexcept {
        return std::string_view(Text(), static_cast<std::size_t>(Length()));
    }

protected:
    atr_StringBase(char const* first, int firstLength, char const* second = nullptr,
                   int secondLength = 0);

    // Throws std::bad_alloc for a text longer than a string can be.
    static int LengthOf(char const* letters);
    static int LengthOf(std::string_view letters);
    static bool SameText(atr_StringBase const& a, atr_StringBase const& b) noexcept {
        return a.buffer == b.buffer || a.View() == b.View();
    }

private:
    static void Release(Buffer* buffer) noexcept;
    alignas(8) static char const emptyText[8];

    char const* text;
    Buffer* buffer;
};
