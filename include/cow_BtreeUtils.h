#pragma once

#include "cow_BtreeIterator.h"
#include "cow_List.h"

template <class K, class V>
struct cow_BtreeUtils {
    // Both in key order.
    static cow_List<K> cow_Keys(cow_Btree<K, V> const& tree) {
        cow_List<K> keys(cow_ListConstruct(), tree.Size());
        cow_BtreeIterator<K, V> walk(tree);
        for (bool more = walk.First(); more; more = walk.Next()) keys.Append(walk.CurrentKey());
        return keys;
    }
    static cow_List<V> cow_Values(cow_Btree<K, V> const& tree) {
        cow_List<V> values(cow_ListConstruct(), tree.Size());
        cow_BtreeIterator<K, V> walk(tree);
        for (bool more = walk.First(); more; more = walk.Next()) {
            values.Append(walk.CurrentValue());
        }
        return values;
    }
};
