#pragma once

#include <cstddef>
#include <cstdint>

/// The identity of a persistent object; a copy has the identity of its source until NewUid().
/// Unique across processes and files: a random number of the process beside a running number. A
/// process that forks and writes from both halves must exec first, as both would count on.
class cls_Uid {
public:
    static constexpr int byteCount = 16;

    /// No identity yet; the read path fills it in.
    constexpr cls_Uid() = default;

    /// A few instructions: each thread counts in a block of its own.
    static cls_Uid AllocateUid() {
        if (m_block.next == m_block.end) Refill();
        return cls_Uid(m_block.prefix, m_block.next++);
    }

    void NewUid() { *this = AllocateUid(); }

    constexpr bool IsNull() const { return m_high == 0 && m_low == 0; }

    /// Little-endian, the random half last, whatever the machine.
    void ToBytes(unsigned char (&bytes)[byteCount]) const;
    static cls_Uid FromBytes(unsigned char const (&bytes)[byteCount]);

    /// Thirty-two hexadecimal digits, most significant first, and a terminating null.
    void ToText(char (&text)[2 * byteCount + 1]) const;
    /// False, and no identity, unless the text is thirty-two hexadecimal digits.
    static bool FromText(char const* text, cls_Uid& uid);

    /// Prefixes are random already but the same within a process; the running number needs
    /// spreading.
    constexpr std::size_t Hash() const {
        std::uint64_t h = m_low + 0x9e3779b97f4a7c15u * m_high;
        h = (h ^ (h >> 30)) * 0xbf58476d1ce4e5b9u;
        h = (h ^ (h >> 27)) * 0x94d049bb133111ebu;
        return static_cast<std::size_t>(h ^ (h >> 31));
    }

    friend constexpr bool operator==(cls_Uid const& a, cls_Uid const& b) {
        return a.m_low == b.m_low && a.m_high == b.m_high;
    }
    friend constexpr bool operator!=(cls_Uid const& a, cls_Uid const& b) { return !(a == b); }
    friend constexpr bool operator<(cls_Uid const& a, cls_Uid const& b) {
        return a.m_high != b.m_high ? a.m_high < b.m_high : a.m_low < b.m_low;
    }

private:
    struct Block {
        std::uint64_t prefix;
        std::uint64_t next;
        std::uint64_t end;
    };

    constexpr cls_Uid(std::uint64_t high, std::uint64_t low) : m_high(high), m_low(low) {}
    static void Refill();

    /// Starts as an empty block, so that reaching it runs no initialisation.
    static inline thread_local constinit Block m_block{0, 0, 0};

    std::uint64_t m_high = 0;
    std::uint64_t m_low = 0;
};

struct cls_UidHash {
    std::size_t operator()(cls_Uid const& uid) const { return uid.Hash(); }
};
