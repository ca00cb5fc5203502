#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "atr_NaturalOrder.h"
#include "cow_COW.h"
#include "cow_String.h"

// The order of keys: the sign of Compare(searched, held) tells the way down.
template <class K>
struct cow_BtreeOrder {
    static int Compare(K const& a, K const& b) noexcept { return a < b ? -1 : b < a ? 1 : 0; }
    static void Fetch(K const&) noexcept {}
};
template <>
struct cow_BtreeOrder<cow_String> {
    static int Compare(cow_String const& a, cow_String const& b) noexcept {
        return atr_CompareNames(a, b);
    }
    static void Fetch(cow_String const& key) noexcept { __builtin_prefetch(key.Text()); }
};

template <class K, class V>
class cow_BtreeNode;

// The link to a child: a handle on the heap, so that copies of a node can share their children.
template <class K, class V>
using cow_BtreeNodeLink = cow_COW<cow_BtreeNode<K, V>, cow_Direct<cow_BtreeNode<K, V>>>;

// One key of a tree with its value. Trees are balanced by single rotations on stored heights. What
// changes a node is called on nodes that belong to one tree alone; shared children are detached on
// the way down.
template <class K, class V>
class cow_BtreeNode {
public:
    using Link = cow_BtreeNodeLink<K, V>;

    cow_BtreeNode(K const& nodeKey, V const& nodeValue) : value(nodeValue), key(nodeKey) {}
    // Shares value, key and children.
    cow_BtreeNode(cow_BtreeNode const& other)
        : value(other.value), key(other.key), height(other.height) {
        Released copies{CopyLink(other.side[0]), nullptr};
        copies.second = CopyLink(other.side[1]);
        side[0] = std::exchange(copies.first, nullptr);
        side[1] = std::exchange(copies.second, nullptr);
    }
    cow_BtreeNode& operator=(cow_BtreeNode const&) = delete;
    ~cow_BtreeNode() {
        FetchSides();
        FetchContent();
        ReleaseLink(side[0]);
        ReleaseLink(side[1]);
    }

    // The node of the key, or null; copies nothing.
    cow_BtreeNode const* ConstFind(K const& searched) const noexcept {
        cow_BtreeNode const* node = this;
        for (;;) {
            node->FetchSides();
            int const order = cow_BtreeOrder<K>::Compare(searched, node->key);
            if (order == 0) return node;
            Link const* const next = node->side[order > 0];
            if (!next) return nullptr;
            node = next->GetPtr();
        }
    }
    // The node of the key, made this tree's own with all on the way, or null.
    cow_BtreeNode* Find(K const& searched) {
        cow_BtreeNode* node = this;
        for (;;) {
            node->FetchSides();
            int const order = cow_BtreeOrder<K>::Compare(searched, node->key);
            if (order == 0) return node;
            Link* const next = node->side[order > 0];
            if (!next) return nullptr;
            node = &next->Get();
        }
    }
    // False for a key that is there, whose value stays. inserted becomes true as soon as the key is
    // in the tree, also when balancing fails afterwards for want of memory.
    bool InsertUnlessMember(K const& inKey, V const& inValue, bool& inserted) {
        FetchSides();
        int const order = cow_BtreeOrder<K>::Compare(inKey, key);
        if (order == 0) return false;
        Link*& child = side[order > 0];
        if (child) {
            cow_BtreeNode& node = child->Get();
            if (!node.InsertUnlessMember(inKey, inValue, inserted)) return false;
            if (Link* const risen = node.Balance(child)) child = risen;
        } else {
            child = NewLink(inKey, inValue);
            inserted = true;
        }
        ComputeHeight();
        return true;
    }
    // Takes the node of the key out of the subtree of this node, whose parent is given. removed
    // becomes true as soon as the key is gone.
    bool Remove(K const& outKey, cow_BtreeNode& parent, bool& removed) {
        int const order = cow_BtreeOrder<K>::Compare(outKey, key);
        if (order != 0) {
            Link*& child = side[order > 0];
            if (!child) return false;
            if (!child->Get().Remove(outKey, *this, removed)) return false;
            if (child) {
                if (Link* const risen = child->Get().Balance(child)) child = risen;
            }
            ComputeHeight();
            return true;
        }
        Link* const replacement = TakeReplacement();
        side[0] = side[1] = nullptr;
        parent.RemoveNode(this, replacement);
        removed = true;
        return true;
    }
    // Puts the replacement, which may be null, in the place of a child and ends the child.
    void RemoveNode(cow_BtreeNode const* child, Link* replacement) noexcept {
        Link*& place = side[side[1] && side[1]->GetPtr() == child];
        ReleaseLink(std::exchange(place, replacement));
        ComputeHeight();
    }
    // Rotates where one side stands two above the other by the stored heights, a missing child
    // counting 0 like a leaf. Gets the link that points here; gives the one to put in its place, or
    // null.
    Link* Balance(Link* link) {
        int const difference = HeightOf(side[1]) - HeightOf(side[0]);
        if (difference < 2 && difference >= -1) return nullptr;
        int const high = difference > 0;
        cow_BtreeNode& child = side[high]->Get();
        Link* const risen = std::exchange(side[high], child.side[1 - high]);
        child.side[1 - high] = link;
        ComputeHeight();
        child.ComputeHeight();
        return risen;
    }

    // Ask for memory early: for that of both children, of which one or both are read next, and for
    // what key and value point to.
    void FetchSides() const noexcept {
        for (Link const* link : side) {
            // The link may be null; its address is only a hint here.
            std::uintptr_t const at = reinterpret_cast<std::uintptr_t>(link);
            __builtin_prefetch(reinterpret_cast<void const*>(at));
            __builtin_prefetch(reinterpret_cast<void const*>(at + 64));
        }
    }
    void FetchContent() const noexcept {
        cow_BtreeOrder<K>::Fetch(key);
        if constexpr (std::is_base_of_v<cow_HandleBase, V>) __builtin_prefetch(value.CountCell());
    }

    K const& Key() const noexcept { return key; }
    V const& Value() const noexcept { return value; }
    V& Value() noexcept { return value; }
    Link const* Left() const noexcept { return side[0]; }
    Link const* Right() const noexcept { return side[1]; }
    int Height() const noexcept { return height; }

    // Link, node and count cell side by side, since every step down the tree needs them together.
    static Link* NewLink(K const& key, V const& value) {
        mem_Trio const trio =
            mem_OperatorNewTrioThrow(sizeof(Link), sizeof(cow_BtreeNode), sizeof(int));
        cow_OwnedBlock first(trio.first), second(trio.second), third(trio.third);
        cow_BtreeNode* const node = ::new (second.Get()) cow_BtreeNode(key, value);
        second.Release();
        return ::new (first.Release()) Link(node, static_cast<int*>(third.Release()));
    }
    static Link* CopyLink(Link const* link) {
        if (!link) return nullptr;
        return ::new (mem_OperatorNewThrow(sizeof(Link))) Link(*link);
    }
    static void ReleaseLink(Link* link) noexcept {
        if (!link) return;
        if (link->Count() == 1) {
            cow_BtreeNode* const node = link->GetPtr();
            int* const cell = link->ReleaseWords();
            node->~cow_BtreeNode();
            mem_FreeTrio(mem_Trio{link, node, cell});
            return;
        }
        link->~Link();
        mem_Free(link);
    }

private:
    template <class, class>
    friend class cow_Btree;

    struct Released {
        Link* first;
        Link* second;
        ~Released() {
            ReleaseLink(first);
            ReleaseLink(second);
        }
    };

    static int HeightOf(Link const* link) noexcept { return link ? link->GetPtr()->height : 0; }
    void ComputeHeight() noexcept {
        int const fromLeft = side[0] ? side[0]->GetPtr()->height + 1 : 0;
        int const fromRight = side[1] ? side[1]->GetPtr()->height + 1 : 0;
        height = fromLeft > fromRight ? fromLeft : fromRight;
    }
    // The link to stand in this node's place: its one child, or the smallest node of its right
    // side, already joined to both sides. All detaching comes before the first change.
    Link* TakeReplacement() {
        if (!side[1]) return side[0];
        if (!side[0]) return side[1];
        Link* smallest = side[1];
        cow_BtreeNode* node = &smallest->Get();
        cow_BtreeNode* parent = nullptr;
        while (node->side[0]) {
            parent = node;
            smallest = node->side[0];
            node = &smallest->Get();
        }
        if (parent) {
            parent->side[0] = node->side[1];
            node->side[1] = side[1];
            parent->ComputeHeight();
        }
        node->side[0] = side[0];
        node->ComputeHeight();
        return smallest;
    }

    V value;
    K key;
    // Left and right.
    Link* side[2] = {nullptr, nullptr};
    int height = 0;
};
