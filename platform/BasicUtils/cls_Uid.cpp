#include "cls_Uid.h"

#include <atomic>
#include <chrono>
#include <random>

namespace {

// Large enough that the shared counter is hardly ever touched, small enough that threads that come
// and go do not use the numbers up.
constexpr std::uint64_t uidBlockSize = 1u << 16;

std::uint64_t uidMix(std::uint64_t h) {
    h = (h ^ (h >> 30)) * 0xbf58476d1ce4e5b9u;
    h = (h ^ (h >> 27)) * 0x94d049bb133111ebu;
    return h ^ (h >> 31);
}

// The clocks and an address are mixed in because a random device may repeat itself.
std::uint64_t uidDrawPrefix() {
    std::random_device device;
    std::uint64_t seed = (std::uint64_t{device()} << 32) | device();
    int const local = 0;
    auto const wall = std::chrono::system_clock::now().time_since_epoch().count();
    auto const steady = std::chrono::steady_clock::now().time_since_epoch().count();
    seed ^= uidMix(static_cast<std::uint64_t>(wall));
    seed ^= uidMix(static_cast<std::uint64_t>(steady) + 0x9e3779b97f4a7c15u);
    seed ^= uidMix(reinterpret_cast<std::uintptr_t>(&local));
    std::uint64_t const prefix = uidMix(seed);
    return prefix != 0 ? prefix : 1;
}

void uidPutWord(unsigned char* bytes, std::uint64_t word) {
    for (int i = 0; i < 8; ++i) bytes[i] = static_cast<unsigned char>(word >> (8 * i));
}

std::uint64_t uidGetWord(unsigned char const* bytes) {
    std::uint64_t word = 0;
    for (int i = 0; i < 8; ++i) word |= std::uint64_t{bytes[i]} << (8 * i);
    return word;
}

// -1 for a character that is no digit. Independent of the locale.
int uidDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

void cls_Uid::Refill() {
    static std::uint64_t const prefix = uidDrawPrefix();
    static std::atomic<std::uint64_t> counter{1};
    m_block.prefix = prefix;
    m_block.next = counter.fetch_add(uidBlockSize, std::memory_order_relaxed);
    m_block.end = m_block.next + uidBlockSize;
}

void cls_Uid::ToBytes(unsigned char (&bytes)[byteCount]) const {
    uidPutWord(bytes, m_low);
    uidPutWord(bytes + 8, m_high);
}

cls_Uid cls_Uid::FromBytes(unsigned char const (&bytes)[byteCount]) {
    return cls_Uid(uidGetWord(bytes + 8), uidGetWord(bytes));
}

void cls_Uid::ToText(char (&text)[2 * byteCount + 1]) const {
    char const* const digits = "0123456789abcdef";
    for (int i = 0; i < byteCount; ++i) {
        int const shift = 60 - 4 * i;
        text[i] = digits[(m_high >> shift) & 15];
        text[byteCount + i] = digits[(m_low >> shift) & 15];
    }
    text[2 * byteCount] = '\0';
}

bool cls_Uid::FromText(char const* text, cls_Uid& uid) {
    uid = cls_Uid();
    cls_Uid read;
    for (int i = 0; i < 2 * byteCount; ++i) {
        int const digit = uidDigit(text[i]);
        if (digit < 0) return false;
        std::uint64_t& word = i < byteCount ? read.m_high : read.m_low;
        word = (word << 4) | static_cast<std::uint64_t>(digit);
    }
    if (text[2 * byteCount] != '\0') return false;
    uid = read;
    return true;
}
