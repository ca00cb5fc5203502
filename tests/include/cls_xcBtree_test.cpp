#include "cls_xcBtree.h"

#include <gtest/gtest.h>

#include "cls_xc1DArrayList.h"
#include "cls_xo1DArrayList.h"
#include "cls_xp.h"
#include "support/Specimen.h"
#include "support/StoredObject.h"

namespace cls_xcBtree_test {

using Handle = cow_ArrayCOW<specimen_Part, cow_Virtual<specimen_Part>>;
using Tree = cls_xcBtree<cow_String, Handle, specimen_Part>;
using List = cls_xc1DArrayList<Handle, specimen_Part>;

TEST(PersistentTree, FromAPlainOneIsARecordOfItsOwn) {
    cow_Btree<cow_String, Handle> plain;
    plain.InsertUnlessMember("a", Handle(new specimen_Part));
    Tree const first = cls_xcBtreeFromCow<cow_String, Handle, specimen_Part>(plain);
    Tree const second = cls_xcBtreeFromCow<cow_String, Handle, specimen_Part>(plain);
    EXPECT_FALSE(first.uid.IsNull());
    EXPECT_NE(first.uid, second.uid);
    EXPECT_EQ(first.ConstFind("a")->Value().GetPtr(), plain.ConstFind("a")->Value().GetPtr());
    Tree const copy(first);
    EXPECT_EQ(copy.uid, first.uid);
}

TEST(PersistentTree, IsWrittenWhetherOrNotItWasBefore) {
    Tree tree;
    tree.InsertUnlessMember("a", Handle());
    nga_test::WriteLog log;
    log.Write(tree);
    EXPECT_EQ(log.Write(tree),
              "start 0x230002 again\n"
              "check 2\n"
              "map of names\n"
              "null element a 0x7770001\n"
              "must delete\n"
              "writer deleted\n");
}

TEST(PersistentTree, AFailingElementLeavesNoWriterBehind) {
    class Unwritable : public specimen_Part {
    public:
        void DBWrite(cls_WriteVisitor const&) const override { throw 1; }
    };
    Tree tree;
    tree.InsertUnlessMember("a", Handle(new Unwritable));
    List list;
    list.Append(Handle(new Unwritable));
    nga_test::WriteLog log;
    EXPECT_THROW(log.Write(tree), int);
    EXPECT_THROW(log.Write(list), int);
    EXPECT_EQ(log.liveWriters, 0);
    EXPECT_EQ(log.liveAgents, 0);
}

TEST(PersistentList, ReadsOneStoredElementAsOneSharedObject) {
    nga_test::StoredObject stored;
    auto const part = nga_test::StoredObject::Erased(new specimen_Part);
    stored.elements = {{"", 0, part, {}}, {"", 0, {}, {}}, {"", 0, part, {}}};
    cls_ReadVisitor const visitor(stored.Memento());
    List const list(visitor);
    ASSERT_EQ(list.Size(), 3);
    EXPECT_EQ(list.ConstGet(0).GetPtr(), list.ConstGet(2).GetPtr());
    EXPECT_EQ(list.ConstGet(0).Count(), 3);
    EXPECT_EQ(list.ConstGet(1).GetPtr(), nullptr);
    EXPECT_EQ(list.uid, stored.uid);
}

TEST(ListByValue, KeepsTheWordOfItsOwner) {
    int owner = 0;
    cls_xo1DArrayList<specimen_Part> list(&owner);
    EXPECT_EQ(list.context, &owner);
    nga_test::StoredObject stored;
    cls_ReadVisitor const visitor(stored.Memento());
    cls_xo1DArrayList<specimen_Part> const read(visitor, &owner);
    EXPECT_EQ(read.context, &owner);
    EXPECT_EQ(read.uid, stored.uid);
}

TEST(Proxies, AreRecordsOfTheirOwnThatKeepTheirIdentityWhenAssigned) {
    nga_test::WriteLog log;
    cls_xp1DArrayListDouble reals;
    cls_Uid const identity = reals.uid;
    cow_List<double> plain;
    plain.Append(0.5);
    reals = plain;
    EXPECT_EQ(reals.uid, identity);
    EXPECT_EQ(log.Write(reals), "start 0x230001\ncheck 52\ndoubles 0.5\n");
    EXPECT_EQ(log.Write(reals), "start 0x230001 again\n");

    cls_xp1DArrayListInt ints;
    ints.Append(-7);
    EXPECT_EQ(log.Write(ints), "start 0x230001\ncheck 54\nints -7\n");

    cls_xpMapString2Float factors;
    factors.Insert("b", 2.0f);
    factors.Insert("a", 1.5f);
    EXPECT_EQ(log.Write(factors), "start 0x230002\ncheck 63\nfloats a=1.5 b=2\n");

    cow_2DArray<double> cells(1, 2);
    cells.Get().Cell(0, 1) = 3.0;
    cls_xp2DArrayDouble const array = cls_xp2DArrayDoubleFromCow(cells);
    EXPECT_NE(array.uid, cls_xp2DArrayDoubleFromCow(cells).uid);
    EXPECT_TRUE(array.SharesWith(cells));
    EXPECT_EQ(log.Write(array), "start 0x230001\ncheck 82\narray 1x2 0 3\n");
}

TEST(Proxies, ReadTheirContentAndIdentity) {
    nga_test::StoredObject stored;
    stored.doubleList.Append(0.25);
    stored.intList.Append(4);
    stored.floats.Insert("a", 1.0f);
    stored.array = cow_2DArray<double>(2, 3);
    cls_ReadVisitor const visitor(stored.Memento());
    EXPECT_EQ(cls_xp1DArrayListDouble(visitor).ConstGet(0), 0.25);
    EXPECT_EQ(cls_xp1DArrayListInt(visitor).ConstGet(0), 4);
    EXPECT_EQ(*cls_xpMapString2Float(visitor).ConstFind("a"), 1.0f);
    EXPECT_EQ(cls_xp2DArrayDouble(visitor).Columns(), 3);
    EXPECT_EQ(cls_xp2DArrayDouble(visitor).uid, stored.uid);
}

}  // namespace cls_xcBtree_test
