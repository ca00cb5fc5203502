#pragma once

#include "cow_BtreeNode.h"

// A sorted tree of keys that copies share whole: copying costs one count, and a write copies the
// nodes of one path. K is cow_String, in the order of names, or int. Not for concurrent use.
template <class K, class V>
class cow_Btree {
public:
    using Node = cow_BtreeNode<K, V>;
    using Link = cow_BtreeNodeLink<K, V>;

    cow_Btree() = default;
    cow_Btree(cow_Btree const& other) : size(other.size), nullValue(other.nullValue) {
        if (other.root) SetRoot(*other.root);
    }
    ~cow_Btree() { ClearRoot(); }
    // The source may lie inside an object that this tree holds.
    cow_Btree& operator=(cow_Btree const& other) noexcept {
        if (this == &other) return *this;
        cow_Btree const taken(other);
        ClearRoot();
        if (taken.root) SetRoot(*taken.root);
        size = taken.size;
        nullValue = taken.nullValue;
        return *this;
    }

    Node const* ConstFind(K const& key) const noexcept {
        return root ? root->ConstGet().ConstFind(key) : nullptr;
    }
    Node* Find(K const& key) { return root ? root->Get().Find(key) : nullptr; }
    bool IsMember(K const& key) const noexcept { return ConstFind(key) != nullptr; }

    // False for a key that is there, whose value stays.
    bool InsertUnlessMember(K const& key, V const& value) {
        if (!root) {
            Link const fresh(cow_New<Node>(key, value));
            SetRoot(fresh);
            size = 1;
            return true;
        }
        Counted counted{size, 1};
        if (!root->Get().InsertUnlessMember(key, value, counted.done)) return false;
        BalanceRoot();
        return true;
    }
    // False for a key that is no member; the tree then stays as it is, and nothing is copied.
    bool Remove(K const& key) {
        if (!IsMember(key)) return false;
        {
            Counted counted{size, -1};
            Head head(*this);
            head.node.side[0]->Get().Remove(key, head.node, counted.done);
        }
        if (root) BalanceRoot();
        return true;
    }

    int Size() const noexcept { return size; }
    bool IsEmpty() const noexcept { return size == 0; }
    Link const* Root() const noexcept { return root; }
    // What stands for the value of a missing key.
    V const& NullValue() const noexcept { return nullValue; }

private:
    // Keeps the number of keys true on every way out.
    struct Counted {
        int& size;
        int change;
        bool done = false;
        ~Counted() {
            if (done) size += change;
        }
    };
    // Stands above the root while a node is taken out, so that the root is a child like any other.
    // What is left below it becomes the root again, on every way out.
    struct Head {
        explicit Head(cow_Btree& headed) : tree(headed), node(K(), headed.nullValue) {
            node.side[0] = Node::CopyLink(tree.root);
            tree.ClearRoot();
        }
        ~Head() {
            if (node.side[0]) tree.SetRoot(*node.side[0]);
        }
        cow_Btree& tree;
        Node node;
    };
    // Room for the link to the root within the tree, so that copying a tree allocates nothing.
    union RootRoom {
        RootRoom() noexcept {}
        ~RootRoom() {}
        Link link;
    };

    // Only on a tree without a root.
    void SetRoot(Link const& link) noexcept { root = ::new (&room.link) Link(link); }
    void ClearRoot() noexcept {
        if (Link* const former = std::exchange(root, nullptr)) former->~Link();
    }
    void BalanceRoot() {
        Link* const risen = root->Get().Balance(root);
        if (!risen) return;
        // The former root now hangs below the new one by the room in this tree; the two links
        // change places.
        root->Swap(*risen);
        Node& node = root->Get();
        node.side[node.side[1] == root] = risen;
    }

    RootRoom room;
    Link* root = nullptr;
    int size = 0;
    V nullValue{};
};
