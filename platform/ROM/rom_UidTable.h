#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "cls_Uid.h"

/// From the identities written at one class level to their rows. Open addressing; identities that
/// were given out one after another lie side by side, so that walking them stays in the cache.
class rom_UidTable {
public:
    /// The row's place for an identity, made with \p fresh where it is new.
    int& At(cls_Uid const& uid, int fresh, bool& isNew) {
        if ((m_size + 1) * 3 > m_slots.size() * 2) Grow();
        std::size_t place = Hash(uid);
        for (;; ++place) {
            Slot& slot = m_slots[place & m_mask];
            if (slot.oid == Free) {
                slot.uid = uid;
                slot.oid = fresh;
                ++m_size;
                isNew = true;
                return slot.oid;
            }
            if (slot.uid == uid) {
                isNew = false;
                return slot.oid;
            }
        }
    }

private:
    static constexpr int Free = -1000;
    struct Slot {
        cls_Uid uid;
        int oid = Free;
    };

    static std::size_t Hash(cls_Uid const& uid) {
        unsigned char bytes[cls_Uid::byteCount];
        uid.ToBytes(bytes);
        std::uint64_t low;
        std::uint64_t high;
        std::memcpy(&low, bytes, sizeof low);
        std::memcpy(&high, bytes + sizeof low, sizeof high);
        return static_cast<std::size_t>(low + (high * 0x9E3779B97F4A7C15u >> 20));
    }
    void Grow() {
        std::vector<Slot> old(m_slots.empty() ? 64 : m_slots.size() * 2);
        old.swap(m_slots);
        m_mask = m_slots.size() - 1;
        m_size = 0;
        for (Slot const& slot : old) {
            bool isNew;
            if (slot.oid != Free) At(slot.uid, slot.oid, isNew);
        }
    }

    std::vector<Slot> m_slots;
    std::size_t m_mask = 0;
    std::size_t m_size = 0;
};
