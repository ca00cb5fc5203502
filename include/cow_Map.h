#pragma once

#include <utility>

#include "cow_ArrayCOW.h"
#include "mem_Memory.h"

// A node of the small map: a balanced search tree by the operator < of the keys.
template <class K, class V>
class cow_MapNode {
public:
    using Handle = cow_ArrayCOW<cow_MapNode, cow_Direct<cow_MapNode>>;

    cow_MapNode(K const& nodeKey, V const& nodeValue) : key(nodeKey), value(nodeValue) {}

    K const& Key() const noexcept { return key; }
    V const& Value() const noexcept { return value; }
    V& Value() noexcept { return value; }
    cow_MapNode const* Left() const noexcept { return left.ConstGetPtr(); }
    cow_MapNode const* Right() const noexcept { return right.ConstGetPtr(); }

private:
    template <class, class>
    friend class cow_Map;

    static int HeightOf(Handle const& handle) noexcept {
        return handle.IsNull() ? 0 : handle.ConstGet().height;
    }

    K key;
    V value;
    Handle left;
    Handle right;
    int height = 1;
};

// A small sorted map for the tables of primitives. Copies share everything; a write copies one
// path. A change that fails for want of memory leaves the map as it was, since it works on a path
// of its own.
template <class K, class V>
class cow_Map {
public:
    using Node = cow_MapNode<K, V>;
    using Handle = typename Node::Handle;

    cow_Map() = default;

    // False for a key that is there, whose value stays.
    bool Insert(K const& key, V const& value) {
        if (ConstFind(key)) return false;
        Handle changed(root);
        Insert(changed, key, value);
        root = changed;
        ++size;
        return true;
    }
    // False for a key that is not there.
    bool Remove(K const& key) {
        if (!ConstFind(key)) return false;
        Handle changed(root);
        Remove(changed, key);
        root = changed;
        --size;
        return true;
    }
    // The value of the key, or null; copies nothing.
    V const* ConstFind(K const& key) const noexcept {
        Node const* node = root.ConstGetPtr();
        while (node) {
            if (key < node->key) {
                node = node->left.ConstGetPtr();
            } else if (node->key < key) {
                node = node->right.ConstGetPtr();
            } else {
                return &node->value;
            }
        }
        return nullptr;
    }
    // The value of the key for writing, or null.
    V* Find(K const& key) {
        if (!ConstFind(key)) return nullptr;
        Node* node = &root.Get();
        for (;;) {
            if (key < node->key) {
                node = &node->left.Get();
            } else if (node->key < key) {
                node = &node->right.Get();
            } else {
                return &node->value;
            }
        }
    }
    bool IsMember(K const& key) const noexcept { return ConstFind(key) != nullptr; }
    int Size() const noexcept { return size; }
    bool IsEmpty() const noexcept { return size == 0; }
    Node const* Root() const noexcept { return root.ConstGetPtr(); }

private:
    static void Insert(Handle& place, K const& key, V const& value) {
        if (place.IsNull()) {
            place = Handle(cow_New<Node>(key, value));
            return;
        }
        Node& node = place.Get();
        Insert(key < node.key ? node.left : node.right, key, value);
        Rebalance(place);
    }
    static void Remove(Handle& place, K const& key) {
        Node& node = place.Get();
        if (key < node.key || node.key < key) {
            Remove(key < node.key ? node.left : node.right, key);
        } else if (node.left.IsNull() || node.right.IsNull()) {
            Handle const only(node.left.IsNull() ? node.right : node.left);
            place = only;
            return;
        } else {
            Node const* next = node.right.ConstGetPtr();
            while (!next->left.IsNull()) next = next->left.ConstGetPtr();
            K const nextKey(next->key);
            V const nextValue(next->value);
            Remove(node.right, nextKey);
            node.key = nextKey;
            node.value = nextValue;
        }
        Rebalance(place);
    }

    static void SetHeight(Node& node) noexcept {
        int const l = Node::HeightOf(node.left), r = Node::HeightOf(node.right);
        node.height = (l > r ? l : r) + 1;
    }
    static void Rebalance(Handle& place) {
        Node& node = place.Get();
        int const difference = Node::HeightOf(node.right) - Node::HeightOf(node.left);
        if (difference > 1) {
            Node& child = node.right.Get();
            if (Node::HeightOf(child.left) > Node::HeightOf(child.right)) {
                Rotate(node.right, &Node::left, &Node::right);
            }
            Rotate(place, &Node::right, &Node::left);
        } else if (difference < -1) {
            Node& child = node.left.Get();
            if (Node::HeightOf(child.right) > Node::HeightOf(child.left)) {
                Rotate(node.left, &Node::right, &Node::left);
            }
            Rotate(place, &Node::left, &Node::right);
        } else {
            SetHeight(node);
        }
    }
    // Lifts the child on the heavy side into the place.
    static void Rotate(Handle& place, Handle Node::*heavy, Handle Node::*light) {
        Node& node = place.Get();
        Node& child = (node.*heavy).Get();
        Handle const risen(node.*heavy);
        node.*heavy = child.*light;
        child.*light = place;
        place = risen;
        SetHeight(node);
        SetHeight(child);
    }

    Handle root;
    int size = 0;
};

// Walks a map as it was when the iterator was made, in key order. First() collects pointers to all
// nodes and ends them with a null.
template <class K, class V>
class cow_ConstMapIterator {
public:
    using Node = cow_MapNode<K, V>;

    explicit cow_ConstMapIterator(cow_Map<K, V> const& walked) : map(walked) { First(); }
    cow_ConstMapIterator(cow_ConstMapIterator const&) = delete;
    cow_ConstMapIterator& operator=(cow_ConstMapIterator const&) = delete;
    ~cow_ConstMapIterator() {
        if (nodes) mem_Free(nodes);
    }

    // Both tell whether there is a current node.
    bool First() {
        position = 0;
        if (!nodes) {
            nodes = static_cast<Node const**>(
                mem_Malloc((static_cast<std::size_t>(map.Size()) + 1) * sizeof(Node const*)));
            *Collect(map.Root(), nodes) = nullptr;
        }
        return !IsDone();
    }
    bool Next() noexcept {
        if (!IsDone()) ++position;
        return !IsDone();
    }
    bool IsDone() const noexcept { return nodes[position] == nullptr; }
    K const& CurrentKey() const noexcept { return nodes[position]->Key(); }
    V const& CurrentValue() const noexcept { return nodes[position]->Value(); }

private:
    static Node const** Collect(Node const* node, Node const** to) noexcept {
        if (!node) return to;
        to = Collect(node->Left(), to);
        *to++ = node;
        return Collect(node->Right(), to);
    }

    cow_Map<K, V> map;
    int position = 0;
    Node const** nodes = nullptr;
};
