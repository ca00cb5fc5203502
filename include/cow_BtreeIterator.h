#pragma once

#include <utility>

#include "cow_Btree.h"

// Walks a tree in key order, either way. It holds no share of the tree: a write to the tree ends
// its use.
template <class K, class V>
class cow_BtreeIterator {
public:
    using Node = cow_BtreeNode<K, V>;
    using Link = cow_BtreeNodeLink<K, V>;

    explicit cow_BtreeIterator(cow_Btree<K, V> const& walked) : tree(&walked) {}
    cow_BtreeIterator(cow_BtreeIterator const&) = delete;
    cow_BtreeIterator& operator=(cow_BtreeIterator const&) = delete;
    ~cow_BtreeIterator() {
        Clear();
        while (spare) mem_Free(std::exchange(spare, spare->next));
    }

    // All four tell whether there is a current node afterwards.
    bool First() {
        Clear();
        Descend(tree->Root(), &Node::Left);
        return top != nullptr;
    }
    bool Last() {
        Clear();
        Descend(tree->Root(), &Node::Right);
        return top != nullptr;
    }
    bool Next() { return Step(&Node::Right, &Node::Left); }
    bool Previous() { return Step(&Node::Left, &Node::Right); }

    bool IsDone() const noexcept { return top == nullptr; }
    Link const* CurrentLink() const noexcept { return top ? top->link : nullptr; }
    // Only while there is a current node.
    Node const& CurrentNode() const noexcept { return top->link->ConstGet(); }
    K const& CurrentKey() const noexcept { return CurrentNode().Key(); }
    V const& CurrentValue() const noexcept { return CurrentNode().Value(); }

private:
    using Side = Link const* (Node::*)() const noexcept;

    struct Cell {
        Link const* link;
        Cell* next;
    };

    void Push(Link const* link) {
        Cell* cell = spare;
        if (cell) {
            spare = cell->next;
        } else {
            cell = static_cast<Cell*>(mem_OperatorNewThrow(sizeof(Cell)));
        }
        top = ::new (cell) Cell{link, top};
    }
    Link const* Pop() noexcept {
        Cell* const cell = top;
        Link const* const link = cell->link;
        top = cell->next;
        cell->next = spare;
        spare = cell;
        return link;
    }
    void Clear() noexcept {
        while (top) Pop();
    }
    void Descend(Link const* link, Side side) {
        while (link) {
            Node const& node = link->ConstGet();
            node.FetchSides();
            node.FetchContent();
            Push(link);
            link = (node.*side)();
        }
    }
    bool Step(Side ahead, Side back) {
        if (!top) return false;
        if (Link const* const further = (CurrentNode().*ahead)()) {
            Descend(further, back);
        } else {
            Link const* done;
            do {
                done = Pop();
            } while (top && (CurrentNode().*ahead)() == done);
            if (!top) return false;
        }
        // The step after this one goes down there.
        if (Link const* const further = (CurrentNode().*ahead)()) further->ConstGet().FetchSides();
        return true;
    }

    cow_Btree<K, V> const* tree;
    Cell* top = nullptr;
    // Cells to use again.
    Cell* spare = nullptr;
};
