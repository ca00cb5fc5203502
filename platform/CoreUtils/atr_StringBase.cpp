#include "atr_StringBase.h"

#include <climits>
#include <cstring>
#include <new>

#include "mem_Memory.h"

alignas(8) char const atr_StringBase::emptyText[8] = {};

atr_StringBase::atr_StringBase(char const* first, int firstLength, char const* second,
                               int secondLength)
    : text(nullptr), buffer(nullptr) {
    if (firstLength < 0) firstLength = 0;
    if (secondLength < 0) secondLength = 0;
    if (firstLength == 0 && secondLength == 0) return;
    if (firstLength > INT_MAX - 16 - secondLength) throw std::bad_alloc();
    std::size_t const length =
        static_cast<std::size_t>(firstLength) + static_cast<std::size_t>(secondLength);
    std::size_t const padded = (length + 8) & ~std::size_t(7);
    void* const block = mem_OperatorNewThrow(sizeof(Buffer) + padded);
    buffer = new (block) Buffer{1, static_cast<int>(length)};
    char* const letters = static_cast<char*>(block) + sizeof(Buffer);
    std::memset(letters + padded - 8, 0, 8);
    if (firstLength) std::memcpy(letters, first, static_cast<std::size_t>(firstLength));
    if (secondLength) {
        std::memcpy(letters + firstLength, second, static_cast<std::size_t>(secondLength));
    }
    text = letters;
}

int atr_StringBase::LengthOf(char const* letters) {
    return letters ? LengthOf(std::string_view(letters)) : 0;
}

int atr_StringBase::LengthOf(std::string_view letters) {
    if (letters.size() > INT_MAX - 16) throw std::bad_alloc();
    return static_cast<int>(letters.size());
}

void atr_StringBase::Release(Buffer* buffer) noexcept { mem_Free(buffer); }
