#include "nga_TreeDifference.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "cow_ArrayCOW.h"

namespace {

using Value = cow_ArrayCOW<int, cow_Direct<int>>;
using Tree = cow_Btree<int, Value>;
using Found = std::map<int, std::pair<int, int>>;  // -1 for a side without the key

Found Differences(Tree const& before, Tree const& after) {
    Found found;
    int last = -1;
    nga::TreeDifference<int, Value>(before, after)
        .Run([&](int key, Value const* one, Value const* other) {
            EXPECT_LT(last, key);
            last = key;
            found[key] = {one ? *one->GetPtr() : -1, other ? *other->GetPtr() : -1};
        });
    return found;
}

void Put(Tree& tree, int key, int value) {
    tree.Remove(key);
    tree.InsertUnlessMember(key, Value(cow_New<int>(value)));
}

Tree TreeOf(int size) {
    Tree tree;
    for (int i = 0; i < size; ++i) Put(tree, i, i);
    return tree;
}

TEST(TreeDifference, ACopyDiffersInNothing) {
    Tree const tree = TreeOf(100);
    Tree const copy = tree;
    EXPECT_TRUE(Differences(tree, copy).empty());
    EXPECT_TRUE(Differences(Tree(), Tree()).empty());
}

TEST(TreeDifference, AnEmptyTreeLacksEverything) {
    EXPECT_EQ(Differences(TreeOf(2), Tree()), (Found{{0, {0, -1}}, {1, {1, -1}}}));
    EXPECT_EQ(Differences(Tree(), TreeOf(2)), (Found{{0, {-1, 0}}, {1, {-1, 1}}}));
}

TEST(TreeDifference, RandomChangesAreFoundAndNothingElse) {
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        Tree before;
        std::map<int, int> model;
        for (int i = static_cast<int>(random() % 200); i > 0; --i) {
            int const key = static_cast<int>(random() % 300);
            Put(before, key, i);
            model[key] = i;
        }
        std::map<int, int> const start = model;
        Tree after = before;
        for (int i = static_cast<int>(random() % 20); i > 0; --i) {
            int const key = static_cast<int>(random() % 300);
            if (random() % 2 != 0) {
                Put(after, key, 1000 + i);
                model[key] = 1000 + i;
            } else {
                after.Remove(key);
                model.erase(key);
            }
        }
        Found expected;
        auto const in = [](std::map<int, int> const& map, int key) {
            auto const found = map.find(key);
            return found == map.end() ? -1 : found->second;
        };
        for (int key = 0; key < 300; ++key)
            if (in(start, key) != in(model, key)) expected[key] = {in(start, key), in(model, key)};
        EXPECT_EQ(Differences(before, after), expected);
    }
}

/// How many looks at nodes a difference of two trees takes that one write makes different.
std::size_t LooksAfterOneWrite(int size, int key) {
    Tree const before = TreeOf(size);
    Tree after = before;
    Put(after, key, -5);
    nga::TreeDifference<int, Value> difference(before, after);
    int found = 0;
    difference.Run([&](int, Value const*, Value const*) { ++found; });
    EXPECT_EQ(found, 1);
    return difference.Looks();
}

TEST(TreeDifference, OneWriteCostsPathsAndNotTheTree) {
    for (int const place : {0, 1, 50, 77, 99}) {
        std::size_t const small = LooksAfterOneWrite(100, place);
        std::size_t const large = LooksAfterOneWrite(100'000, place * 1000);
        EXPECT_LE(large, 3 * small) << place;
        EXPECT_LE(large, 200u) << place;
    }
}

}  // namespace
