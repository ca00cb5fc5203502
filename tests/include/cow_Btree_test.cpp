#include "cow_Btree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "cow_BtreeUtils.h"
#include "cow_TestSupport.h"

namespace {

using IntTree = cow_Btree<int, TrackedHandle>;
using NameTree = cow_Btree<cow_String, TrackedHandle>;
using IntNode = cow_BtreeNode<int, TrackedHandle>;

TrackedHandle Value(int value) { return TrackedHandle(new Tracked(value)); }

IntTree Ascending(int n) {
    IntTree tree;
    for (int key = 1; key <= n; ++key) tree.InsertUnlessMember(key, Value(key));
    return tree;
}

// A shape as text: key:height with both sides in brackets.
std::string Shape(cow_BtreeNodeLink<int, TrackedHandle> const* link) {
    if (!link) return "-";
    IntNode const& node = link->ConstGet();
    std::string const here = std::to_string(node.Key()) + ":" + std::to_string(node.Height());
    if (!node.Left() && !node.Right()) return here;
    return here + "(" + Shape(node.Left()) + "," + Shape(node.Right()) + ")";
}
std::string Shape(IntTree const& tree) { return Shape(tree.Root()); }

// The tree by its plain rules, without sharing: what shapes are checked against.
struct Plain {
    struct Node {
        int key;
        Node* left = nullptr;
        Node* right = nullptr;
        int height = 0;
    };
    Node* root = nullptr;

    static int Height(Node* node) { return node ? node->height : 0; }
    static void Compute(Node* node) {
        node->height = std::max(node->left ? node->left->height + 1 : 0,
                                node->right ? node->right->height + 1 : 0);
    }
    static Node* Balance(Node* node) {
        int const d = Height(node->right) - Height(node->left);
        if (d >= 2) {
            Node* const child = node->right;
            node->right = child->left;
            child->left = node;
            Compute(node);
            Compute(child);
            return child;
        }
        if (d < -1) {
            Node* const child = node->left;
            node->left = child->right;
            child->right = node;
            Compute(node);
            Compute(child);
            return child;
        }
        return node;
    }
    static bool Insert(Node* node, int key) {
        if (key == node->key) return false;
        Node*& side = key < node->key ? node->left : node->right;
        if (side) {
            if (!Insert(side, key)) return false;
            side = Balance(side);
        } else {
            side = new Node{key};
        }
        Compute(node);
        return true;
    }
    bool Insert(int key) {
        if (!root) {
            root = new Node{key};
            return true;
        }
        if (!Insert(root, key)) return false;
        root = Balance(root);
        return true;
    }
    static bool Remove(Node* node, int key, Node* parent) {
        if (key != node->key) {
            Node*& side = key < node->key ? node->left : node->right;
            if (!side || !Remove(side, key, node)) return false;
            if (side) side = Balance(side);
            Compute(node);
            return true;
        }
        Node* replacement = node->right;
        if (!replacement) {
            replacement = node->left;
        } else if (node->left) {
            Node* before = nullptr;
            while (replacement->left) {
                before = replacement;
                replacement = replacement->left;
            }
            if (before) {
                before->left = replacement->right;
                replacement->right = node->right;
                Compute(before);
            }
            replacement->left = node->left;
            Compute(replacement);
        }
        (parent->right == node ? parent->right : parent->left) = replacement;
        delete node;
        Compute(parent);
        return true;
    }
    bool Remove(int key) {
        if (!root) return false;
        Node head{0, root};
        bool const removed = Remove(root, key, &head);
        root = head.left;
        if (removed && root) root = Balance(root);
        return removed;
    }
    static std::string Shape(Node const* node) {
        if (!node) return "-";
        std::string const here = std::to_string(node->key) + ":" + std::to_string(node->height);
        if (!node->left && !node->right) return here;
        return here + "(" + Shape(node->left) + "," + Shape(node->right) + ")";
    }
    static void Clear(Node* node) {
        if (!node) return;
        Clear(node->left);
        Clear(node->right);
        delete node;
    }
    Plain() = default;
    Plain(Plain const&) = delete;
    ~Plain() { Clear(root); }
};

class CowBtree : public ::testing::Test {
protected:
    void TearDown() override {
        EXPECT_EQ(Tracked::alive, before);
        atr_setNaturalOrder(true);
    }
    long before = Tracked::alive;
};

}  // namespace

TEST_F(CowBtree, ANewTreeIsEmpty) {
    IntTree tree;
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_EQ(tree.Size(), 0);
    EXPECT_TRUE(tree.NullValue().IsNull());
    EXPECT_EQ(tree.ConstFind(1), nullptr);
    EXPECT_EQ(tree.Find(1), nullptr);
    EXPECT_FALSE(tree.Remove(1));
}

TEST_F(CowBtree, ThreeAscendingKeysNeedNoRotation) {
    EXPECT_EQ(Shape(Ascending(3)), "1:2(-,2:1(-,3:0))");
}

TEST_F(CowBtree, SevenAscendingKeysHaveThreeAtTheRoot) {
    IntTree const tree = Ascending(7);
    EXPECT_EQ(tree.Root()->ConstGet().Key(), 3);
    EXPECT_EQ(tree.Root()->ConstGet().Height(), 3);
    EXPECT_EQ(Shape(tree), "3:3(2:1(1:0,-),5:2(4:0,6:1(-,7:0)))");
}

TEST_F(CowBtree, AThousandAndTwentyFourAscendingKeysStandTenHigh) {
    IntTree const tree = Ascending(1024);
    EXPECT_EQ(tree.Root()->ConstGet().Key(), 384);
    EXPECT_EQ(tree.Root()->ConstGet().Height(), 10);
    EXPECT_EQ(tree.Size(), 1024);
}

TEST_F(CowBtree, InsertOfAPresentKeyReturnsFalseAndKeepsTheValue) {
    IntTree tree = Ascending(10);
    EXPECT_FALSE(tree.InsertUnlessMember(4, Value(99)));
    EXPECT_EQ(tree.ConstFind(4)->Value().ConstGet().Value(), 4);
    EXPECT_EQ(tree.Size(), 10);
}

TEST_F(CowBtree, RemovingANodeWithTwoChildrenPutsItsSuccessorInItsPlace) {
    IntTree tree = Ascending(7);
    ASSERT_EQ(tree.Root()->ConstGet().Key(), 3);
    EXPECT_TRUE(tree.Remove(3));
    EXPECT_EQ(tree.Root()->ConstGet().Key(), 4);
    EXPECT_EQ(tree.Size(), 6);
    EXPECT_EQ(Shape(tree), "4:3(2:1(1:0,-),5:2(-,6:1(-,7:0)))");
}

TEST_F(CowBtree, RemovingAnAbsentKeyReturnsFalseAndCopiesNothing) {
    IntTree tree = Ascending(20);
    IntTree const copy(tree);
    std::string const shape = Shape(tree);
    AllocationWatch const watch;
    EXPECT_FALSE(tree.Remove(21));
    EXPECT_EQ(watch.Seen(), 0);
    EXPECT_EQ(Shape(tree), shape);
    EXPECT_EQ(&tree.Root()->ConstGet(), &copy.Root()->ConstGet());
}

TEST_F(CowBtree, TheLastKeyLeavesAnEmptyTree) {
    IntTree tree = Ascending(1);
    IntTree const copy(tree);
    EXPECT_TRUE(tree.Remove(1));
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_TRUE(tree.IsEmpty());
    EXPECT_EQ(copy.Size(), 1);
    EXPECT_TRUE(tree.InsertUnlessMember(5, Value(5)));
    EXPECT_EQ(Shape(tree), "5:0");
}

TEST_F(CowBtree, TheKeyToRemoveMayBeThatOfTheNode) {
    NameTree tree;
    for (char const* name : {"b", "a", "c"}) tree.InsertUnlessMember(name, Value(1));
    EXPECT_TRUE(tree.Remove(tree.ConstFind("b")->Key()));
    EXPECT_EQ(tree.Size(), 2);
}

TEST_F(CowBtree, ShapesAreThoseOfThePlainRules) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        std::mt19937 random(seed);
        IntTree tree;
        Plain plain;
        std::vector<IntTree> kept;
        for (int step = 0; step < 600; ++step) {
            int const key = static_cast<int>(random() % 150);
            if (random() % 5 < 3) {
                ASSERT_EQ(tree.InsertUnlessMember(key, Value(key)), plain.Insert(key));
            } else {
                ASSERT_EQ(tree.Remove(key), plain.Remove(key));
            }
            if (step % 10 == 0) kept.assign(1, tree);
            ASSERT_EQ(Shape(tree), Plain::Shape(plain.root)) << "seed " << seed << " step " << step;
        }
    }
}

TEST_F(CowBtree, CopyingAllocatesNothingAndCopiesNoElement) {
    for (int size : {0, 10, 1000}) {
        IntTree const tree = Ascending(size);
        long const copies = Tracked::copies;
        AllocationWatch const watch;
        {
            IntTree const copy(tree);
            IntTree another(copy);
            another = tree;
        }
        EXPECT_EQ(watch.Seen(), 0);
        EXPECT_EQ(Tracked::copies, copies);
    }
}

TEST_F(CowBtree, AWriteCopiesOnePath) {
    IntTree const tree = Ascending(1000);
    IntTree copy(tree);
    long const copies = Tracked::copies;
    IntNode* const node = copy.Find(1000);
    node->Value().Get().Set(-1);
    EXPECT_EQ(Tracked::copies, copies + 1);
    EXPECT_EQ(tree.ConstFind(1000)->Value().ConstGet().Value(), 1000);
    EXPECT_EQ(copy.ConstFind(1000)->Value().ConstGet().Value(), -1);
    EXPECT_EQ(tree.ConstFind(1), copy.ConstFind(1));
    EXPECT_NE(tree.ConstFind(1000), copy.ConstFind(1000));
    AllocationWatch const watch;
    EXPECT_EQ(copy.Find(1000), node);
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowBtree, ConstFindCopiesNothing) {
    IntTree const tree = Ascending(100);
    IntTree const copy(tree);
    AllocationWatch const watch;
    EXPECT_EQ(tree.ConstFind(57), copy.ConstFind(57));
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowBtree, NaturalOrderSortsNineBeforeTenAndPlainOrderAfter) {
    for (bool natural : {true, false}) {
        atr_setNaturalOrder(natural);
        NameTree tree;
        for (char const* name : {"a10", "a9"}) tree.InsertUnlessMember(name, Value(0));
        cow_List<cow_String> const keys = cow_BtreeUtils<cow_String, TrackedHandle>::cow_Keys(tree);
        EXPECT_EQ(keys.ConstGet(0), natural ? "a9" : "a10");
        EXPECT_EQ(keys.ConstGet(1), natural ? "a10" : "a9");
    }
}

TEST_F(CowBtree, TheEmptyTextIsAKeyLikeAnyOther) {
    NameTree tree;
    tree.InsertUnlessMember("a", Value(1));
    EXPECT_TRUE(tree.InsertUnlessMember(cow_String(), Value(2)));
    EXPECT_FALSE(tree.InsertUnlessMember("", Value(3)));
    EXPECT_EQ(tree.ConstFind("")->Value().ConstGet().Value(), 2);
}

TEST_F(CowBtree, KeysAndValuesComeInKeyOrder) {
    IntTree tree;
    for (int key : {5, 3, 9, 1}) tree.InsertUnlessMember(key, Value(key * 10));
    auto const keys = cow_BtreeUtils<int, TrackedHandle>::cow_Keys(tree);
    auto const values = cow_BtreeUtils<int, TrackedHandle>::cow_Values(tree);
    int const expected[] = {1, 3, 5, 9};
    ASSERT_EQ(keys.Size(), 4);
    ASSERT_EQ(values.Size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(keys.ConstGet(i), expected[i]);
        EXPECT_EQ(values.ConstGet(i).ConstGet().Value(), expected[i] * 10);
    }
}

TEST_F(CowBtree, AnIteratorWalksBothWays) {
    IntTree const tree = Ascending(200);
    cow_BtreeIterator<int, TrackedHandle> walk(tree);
    int key = 0;
    for (bool more = walk.First(); more; more = walk.Next()) EXPECT_EQ(walk.CurrentKey(), ++key);
    EXPECT_EQ(key, 200);
    EXPECT_TRUE(walk.IsDone());
    EXPECT_EQ(walk.CurrentLink(), nullptr);
    for (bool more = walk.Last(); more; more = walk.Previous()) {
        EXPECT_EQ(walk.CurrentKey(), key--);
    }
    EXPECT_EQ(key, 0);
    walk.First();
    for (int i = 0; i < 120; ++i) walk.Next();
    for (int i = 0; i < 40; ++i) walk.Previous();
    EXPECT_EQ(walk.CurrentKey(), 81);
    IntTree const empty;
    EXPECT_FALSE((cow_BtreeIterator<int, TrackedHandle>(empty).First()));
}

TEST_F(CowBtree, BehavesAsAModelOverSharingCopies) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        std::mt19937 random(seed);
        std::vector<NameTree> trees(4);
        std::vector<std::map<std::string, int>> models(4);
        atr_setNaturalOrder(false);
        for (int step = 0; step < 4000; ++step) {
            std::size_t const at = random() % 4;
            std::string const key = "k" + std::to_string(random() % 120);
            cow_String const name(key.c_str());
            int const value = static_cast<int>(random() % 1000);
            switch (random() % 10) {
                case 0: {
                    std::size_t const from = random() % 4;
                    trees[at] = trees[from];
                    models[at] = models[from];
                    break;
                }
                case 1:
                case 2:
                case 3:
                    ASSERT_EQ(trees[at].Remove(name), models[at].erase(key) == 1);
                    break;
                case 4:
                case 5: {
                    auto* const node = trees[at].Find(name);
                    ASSERT_EQ(node != nullptr, models[at].count(key) == 1);
                    if (!node) break;
                    node->Value().Get().Set(value);
                    models[at][key] = value;
                    break;
                }
                default:
                    ASSERT_EQ(trees[at].InsertUnlessMember(name, Value(value)),
                              models[at].emplace(key, value).second);
            }
            std::size_t const checked = random() % 4;
            ASSERT_EQ(trees[checked].Size(), static_cast<int>(models[checked].size()));
            cow_BtreeIterator<cow_String, TrackedHandle> walk(trees[checked]);
            auto expected = models[checked].begin();
            for (bool more = walk.First(); more; more = walk.Next(), ++expected) {
                ASSERT_NE(expected, models[checked].end());
                ASSERT_EQ(walk.CurrentKey().View(), expected->first);
                ASSERT_EQ(walk.CurrentValue().ConstGet().Value(), expected->second);
            }
            ASSERT_EQ(expected, models[checked].end());
        }
    }
}

TEST_F(CowBtree, ATreeInsideAnObjectOfTheAssignedTreeIsSafe) {
    struct Nest {
        cow_Btree<int, cow_ArrayCOW<Nest, cow_Direct<Nest>>> inner;
    };
    using Handle = cow_ArrayCOW<Nest, cow_Direct<Nest>>;
    cow_Btree<int, Handle> outer;
    outer.InsertUnlessMember(1, Handle(cow_New<Nest>()));
    outer.Find(1)->Value().Get().inner.InsertUnlessMember(7, Handle());
    outer = outer.ConstFind(1)->Value().ConstGet().inner;
    EXPECT_EQ(outer.Size(), 1);
    EXPECT_NE(outer.ConstFind(7), nullptr);
}

TEST_F(CowBtree, ADeepOrderOfInsertionStaysShallow) {
    IntTree tree;
    int const n = 20000;
    for (int i = 0; i < n; ++i) tree.InsertUnlessMember(i % 2 ? n - i : i, TrackedHandle());
    EXPECT_EQ(tree.Size(), n);
    EXPECT_LT(tree.Root()->ConstGet().Height(), 40);
}

TEST_F(CowBtree, StaysWholeWhenAnyAllocationFails) {
    using Pair = std::pair<IntTree, IntTree>;
    auto const walked = [](IntTree const& tree) {
        cow_BtreeIterator<int, TrackedHandle> walk(tree);
        int count = 0, last = -1;
        for (bool more = walk.First(); more; more = walk.Next(), ++count) {
            EXPECT_LT(last, walk.CurrentKey());
            last = walk.CurrentKey();
        }
        return count;
    };
    for (int key = 1; key <= 64; ++key) {
        bool const insert = key % 2 == 0;
        int const failures = FailEachAllocation(
            [] {
                IntTree tree;
                for (int k = 1; k <= 64; k += 2) tree.InsertUnlessMember(k, Value(k));
                return Pair(tree, tree);
            },
            [&](Pair& trees) {
                if (insert) {
                    trees.first.InsertUnlessMember(key, Value(key));
                } else {
                    trees.first.Remove(key);
                }
            },
            [&](Pair& trees, bool thrown) {
                EXPECT_EQ(trees.second.Size(), 32);
                EXPECT_EQ(walked(trees.second), 32);
                EXPECT_EQ(walked(trees.first), trees.first.Size());
                if (!thrown) {
                    EXPECT_EQ(trees.first.Size(), insert ? 33 : 31);
                }
                trees.first.InsertUnlessMember(1000, Value(1));
                EXPECT_TRUE(trees.first.Remove(1000));
            });
        EXPECT_GT(failures, 3);
        EXPECT_EQ(Tracked::alive, before);
    }
}
