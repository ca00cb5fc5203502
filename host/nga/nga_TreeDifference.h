#pragma once

#include <cstddef>
#include <vector>

#include "cow_Btree.h"

namespace nga {

/// Walks two trees side by side and tells the keys whose values are not shared. A subtree that both
/// trees share is passed over whole, so that two copies that differ by one write cost two paths.
template <class K, class V>
class TreeDifference {
    using Node = cow_BtreeNode<K, V>;

public:
    TreeDifference(cow_Btree<K, V> const& before, cow_Btree<K, V> const& after) {
        PushTree(m_before, before.Root());
        PushTree(m_after, after.Root());
    }

    /// Calls visit(key, before, after) in key order, with null for a side that lacks the key.
    template <class Visit>
    void Run(Visit const& visit) {
        while (!m_before.empty() || !m_after.empty()) {
            ++m_looks;
            if (Skip() || Expand()) continue;
            Report(visit);
        }
    }

    /// How often the walk looked at a node of either tree: what it costs.
    std::size_t Looks() const { return m_looks; }

private:
    /// What of a tree is still to come: a node alone, or with all below it.
    struct Rest {
        Node const* node;
        bool whole;
    };
    using Rests = std::vector<Rest>;

    static void PushTree(Rests& rests, cow_BtreeNodeLink<K, V> const* link) {
        if (link) rests.push_back({link->GetPtr(), true});
    }
    static bool IsWhole(Rests const& rests) { return !rests.empty() && rests.back().whole; }
    static void Open(Rests& rests) {
        Node const* const node = rests.back().node;
        rests.pop_back();
        PushTree(rests, node->Right());
        rests.push_back({node, false});
        PushTree(rests, node->Left());
    }

    bool Skip() {
        if (!IsWhole(m_before) || !IsWhole(m_after) || m_before.back().node != m_after.back().node)
            return false;
        m_before.pop_back();
        m_after.pop_back();
        return true;
    }
    /// Opens the higher of the two, so that subtrees of one height come to face each other.
    bool Expand() {
        bool const one = IsWhole(m_before), other = IsWhole(m_after);
        if (!one && !other) return false;
        bool const first =
            one && (!other || m_before.back().node->Height() >= m_after.back().node->Height());
        Open(first ? m_before : m_after);
        return true;
    }
    template <class Visit>
    void Report(Visit const& visit) {
        Node const* const one = m_before.empty() ? nullptr : m_before.back().node;
        Node const* const other = m_after.empty() ? nullptr : m_after.back().node;
        int const order = !one     ? 1
                          : !other ? -1
                                   : cow_BtreeOrder<K>::Compare(one->Key(), other->Key());
        if (order <= 0) m_before.pop_back();
        if (order >= 0) m_after.pop_back();
        if (order == 0 && one->Value().SharesWith(other->Value())) return;
        visit(order <= 0 ? one->Key() : other->Key(), order <= 0 ? &one->Value() : nullptr,
              order >= 0 ? &other->Value() : nullptr);
    }

    std::size_t m_looks = 0;
    Rests m_before;
    Rests m_after;
};

}  // namespace nga
