#include "nga_SeparateIdentities.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "../cli/tool_runner.h"
#include "DDB_DeepCopy.h"
#include "nga_Collection.h"
#include "nga_Document.h"
#include "nga_Journal.h"
#include "samples.h"

namespace {

using nga::Document;

/// Every identity with the places that bear it, found by a plain walk.
class Census {
public:
    explicit Census(Document const& document) {
        for (nga::Collection const* collection : nga::Collection::All()) {
            if (cls_Uid const* map = collection->MapUid(document.Model())) Add(*map);
            collection->Each(document.Model(), [&](cow_String const&, void const* object) {
                Object(collection->DynTypeIdOf(object), object);
            });
        }
    }
    explicit Census(std::vector<nga::TypedObject> const& objects) {
        for (nga::TypedObject const& object : objects) Object(object.typeId, object.object);
    }
    /// How many identities more than one place bears.
    int Doubled() const {
        int doubled = 0;
        for (auto const& [uid, places] : m_places) doubled += places.size() > 1;
        return doubled;
    }
    std::size_t Identities() const { return m_places.size(); }
    bool Has(cls_Uid const& uid) const { return m_places.count(uid) != 0; }

private:
    void Add(cls_Uid const& uid) { m_places[uid].insert(&uid); }
    void Object(unsigned typeId, void const* object) {
        mdl_Description const* description = mdl_Description::Find(typeId);
        ASSERT_NE(description, nullptr);
        for (mdl_Description const* level = description; level; level = level->Base())
            Add(level->Uid(const_cast<void*>(object)));
        for (mdl_Field const* field : description->AllFields()) {
            void const* const at = field->At(object);
            if (cls_Uid const* uid = field->Type().Uid(at)) Add(*uid);
            for (int i = 0; i < field->Type().Count(at); ++i)
                if (void const* held = field->Type().ConstObject(at, i))
                    Object(field->Type().DynTypeIdOf(held), held);
        }
    }
    std::map<cls_Uid, std::set<cls_Uid const*>> m_places;
};

kmaC_Material Steel() {
    kmaC_Material steel;
    auto* density = new kmaC_Density;
    density->table = kmaC_MaterialTable(1, 1);
    density->table.MutableCell(0, 0) = 7850;
    steel.density = density;
    auto* elastic = new kmaC_Elastic;
    elastic->table = kmaC_MaterialTable(1, 2);
    elastic->table.MutableCell(0, 0) = 2.1e11;
    elastic->failStress = new kmaC_FailStress;
    steel.elastic = elastic;
    return steel;
}

/// Each way in which a second name can come by a copy.
struct Way {
    char const* name;
    void (*copy)(kmaC_MaterialContainer& materials);
    /// Whether the copy still shares its options with the source.
    bool shares;
};
Way const ways[] = {
    {"InsertByValue", [](kmaC_MaterialContainer& m) { m.Insert("b", m.ConstGet("a")); }, true},
    {"InsertOfACopy", [](kmaC_MaterialContainer& m) { m.Insert("b", m.ConstGet("a").Copy()); },
     true},
    {"AssignmentOverAnother",
     [](kmaC_MaterialContainer& m) {
         m.Insert("b", new kmaC_Material);
         m.Get("b") = m.ConstGet("a");
     },
     true},
    {"CopyOfOneOption",
     [](kmaC_MaterialContainer& m) {
         m.Insert("b", new kmaC_Material);
         m.Get("b").elastic = static_cast<kmaC_Elastic*>(m.ConstGet("a").elastic.ConstGet().Copy());
     },
     false},
    {"CopyOfTheTree",
     [](kmaC_MaterialContainer& m) {
         kmaC_MaterialContainer const kept = m;
         m.Insert("b", kept.ConstGet("a"));
     },
     true},
    {"DeepCopy",
     [](kmaC_MaterialContainer& m) {
         m.Insert("b", DDB_DeepCopyPtr(&m.ConstGet("a"), kmaC_Material::TypeId()));
     },
     false},
};

}  // namespace

class EachWay : public testing::TestWithParam<Way> {};

TEST_P(EachWay, CopiesChangedApartGetIdentitiesOfTheirOwn) {
    Document document = Document::New("document");
    document.Materials().Insert("a", Steel());
    GetParam().copy(document.Materials());
    document.Materials().Get("b").elastic.Get().table.MutableCell(0, 0) = 1.0e11;

    nga::SeparateIdentities(document.Model());
    EXPECT_EQ(Census(document).Doubled(), 0);

    kmaC_Elastic const& a = document.Materials().ConstGet("a").elastic.ConstGet();
    kmaC_Elastic const& b = document.Materials().ConstGet("b").elastic.ConstGet();
    EXPECT_NE(a.uid, b.uid);
    EXPECT_NE(a.kmaC_MaterialOption::uid, b.kmaC_MaterialOption::uid);
    EXPECT_NE(a.table.uid, b.table.uid);
    EXPECT_NE(a.table.table.uid, b.table.table.uid);
    EXPECT_EQ(a.table.Cell(0, 0), 2.1e11);
    EXPECT_EQ(b.table.Cell(0, 0), 1.0e11);
}

TEST_P(EachWay, WhatIsSharedStaysOneAndNothingIsDetachedOrRecorded) {
    Document document = Document::New("document");
    document.Materials().Insert("a", Steel());
    GetParam().copy(document.Materials());
    kmaC_Material const& a = document.Materials().ConstGet("a");
    kmaC_Material const& b = document.Materials().ConstGet("b");
    kmaC_Elastic const* const elasticOfA = a.elastic.GetPtr();
    kmaC_Elastic const* const elasticOfB = b.elastic.GetPtr();
    int const count = a.elastic.Count();
    double const changed = document.Materials().ChangeTime();

    nga::Journal const journal;
    nga::SeparateIdentities(document.Model());

    EXPECT_TRUE(journal.Records().empty());
    EXPECT_EQ(document.Materials().ChangeTime(), changed);
    EXPECT_EQ(&document.Materials().ConstGet("a"), &a);
    EXPECT_EQ(a.elastic.GetPtr(), elasticOfA);
    EXPECT_EQ(b.elastic.GetPtr(), elasticOfB);
    EXPECT_EQ(a.elastic.Count(), count);
    EXPECT_EQ(elasticOfA == elasticOfB, GetParam().shares);
    EXPECT_EQ(elasticOfA->uid == elasticOfB->uid, GetParam().shares);
    EXPECT_NE(a.uid, b.uid);
    EXPECT_EQ(Census(document).Doubled(), 0);
}

TEST_P(EachWay, CopiesChangedApartComeBackApartFromAFile) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("document.nga");
    {
        Document document = Document::New("document");
        document.Materials().Insert("a", Steel());
        GetParam().copy(document.Materials());
        document.Materials().Get("b").elastic.Get().table.MutableCell(0, 0) = 1.0e11;
        document.Materials().Get("b").elastic.Get().failStress.Get().dependencies = 2;
        document.SaveAs(file);
    }
    Document const document = Document::Open(file);
    kmaC_Elastic const& a = document.Materials().ConstGet("a").elastic.ConstGet();
    kmaC_Elastic const& b = document.Materials().ConstGet("b").elastic.ConstGet();
    EXPECT_EQ(a.table.Cell(0, 0), 2.1e11);
    EXPECT_EQ(b.table.Cell(0, 0), 1.0e11);
    EXPECT_EQ(a.table.Cell(0, 1), 0.0);
    EXPECT_EQ(a.failStress.ConstGet().dependencies, 0);
    EXPECT_EQ(b.failStress.ConstGet().dependencies, 2);
}

INSTANTIATE_TEST_SUITE_P(SeparateIdentities, EachWay, testing::ValuesIn(ways),
                         [](auto const& info) { return std::string(info.param.name); });

TEST(SeparateIdentities, TheFirstInTheOrderOfNamesKeepsItsIdentity) {
    Document document = Document::New("document");
    document.Materials().Insert("a", Steel());
    cls_Uid const before = document.Materials().ConstGet("a").uid;
    document.Materials().Insert("b", document.Materials().ConstGet("a"));
    EXPECT_EQ(document.Materials().ConstGet("b").uid, before);
    nga::SeparateIdentities(document.Model());
    EXPECT_EQ(document.Materials().ConstGet("a").uid, before);
}

TEST(SeparateIdentities, ASecondPassFindsNothing) {
    Document document = Document::New("document");
    document.Materials().Insert("a", Steel());
    for (char const* name : {"b", "c", "d"}) {
        document.Materials().Insert(name, document.Materials().ConstGet("a"));
        document.Materials().Get(name).elastic.Get().dependencies = 1;
    }
    EXPECT_GT(nga::SeparateIdentities(document.Model()), 0);
    EXPECT_EQ(nga::SeparateIdentities(document.Model()), 0);
}

kamC_AmplitudeContainer& AmplitudesOf(Document& document) {
    return static_cast<kamC_AmplitudeContainer&>(
        document.Model().GetExtension(cow_String(ddr_Model::amplitudeCmd())).GetValue());
}

TEST(SeparateIdentities, AnObjectThatWasReadKeepsTheOneIdentityOfItsLevels) {
    TemporaryFolder const folder;
    {
        Document document = Document::New("bridge");
        kamC_Decay decay;
        decay.initial = 1.0;
        AmplitudesOf(document).Insert("a", decay);
        document.SaveAs(folder.Path("bridge.nga"));
    }
    Document document = Document::Open(folder.Path("bridge.nga"));
    EXPECT_EQ(nga::SeparateIdentities(document.Model()), 0);
    kamC_AmplitudeContainer& amplitudes = AmplitudesOf(document);
    cls_Uid const uid = static_cast<kamC_Decay const&>(amplitudes.ConstGet("a")).uid;
    EXPECT_EQ(amplitudes.ConstGet("a").uid, uid);

    // A copy that is changed is another object at both levels, in whichever order they stand.
    for (char const* name : {"0", "b"}) {
        amplitudes.Insert(name, amplitudes.ConstGet("a"));
        static_cast<kamC_Decay&>(amplitudes.Get(name)).initial = name[0];
    }
    nga::SeparateIdentities(document.Model());
    std::set<cls_Uid> concrete, base;
    for (char const* name : {"0", "a", "b"}) {
        concrete.insert(static_cast<kamC_Decay const&>(amplitudes.ConstGet(name)).uid);
        base.insert(amplitudes.ConstGet(name).uid);
    }
    EXPECT_EQ(concrete.size(), 3u);
    EXPECT_EQ(base.size(), 3u);
    document.Save();
    Document again = Document::Open(folder.Path("bridge.nga"));
    auto const initial = [&](char const* name) {
        return static_cast<kamC_Decay const&>(AmplitudesOf(again).ConstGet(name)).initial;
    };
    EXPECT_EQ(initial("0"), '0');
    EXPECT_EQ(initial("a"), 1.0);
    EXPECT_EQ(initial("b"), 'b');
}

TEST(SeparateIdentities, LoadCasesThatShareMapsAreSeparatedWithTheirMaps) {
    Document document = Document::New("document");
    auto* wind = new klcC_LoadCase;
    wind->loads.Insert("pressure", 1.5f);
    document.LoadCases().Insert("wind", wind);
    document.LoadCases().Insert("gust", document.LoadCases().ConstGet("wind"));
    *document.LoadCases().Get("gust").loads.Find("pressure") = 2.0f;
    nga::SeparateIdentities(document.Model());
    EXPECT_EQ(Census(document).Doubled(), 0);
    EXPECT_NE(document.LoadCases().ConstGet("wind").loads.uid,
              document.LoadCases().ConstGet("gust").loads.uid);
}

TEST(SeparateIdentities, AnObjectWithoutAnIdentityGetsOne) {
    Document document = Document::New("document");
    auto* bare = new kmaC_Material;
    bare->uid = cls_Uid();
    document.Materials().Insert("bare", bare);
    EXPECT_EQ(nga::SeparateIdentities(document.Model()), 1);
    EXPECT_FALSE(document.Materials().ConstGet("bare").uid.IsNull());
}

TEST(SeparateIdentities, RandomEditsLeaveEachIdentityWithOnePlace) {
    std::mt19937 random(20260101);
    auto const pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    auto const name = [](int i) { return cow_String(("m" + std::to_string(i)).c_str()); };
    for (int round = 0; round < 50; ++round) {
        Document document = Document::New("document");
        kmaC_MaterialContainer& m = document.Materials();
        for (int i = 0; i < 4; ++i) m.Insert(name(i), Steel());
        for (int step = 0; step < 60; ++step) {
            cow_String const from = name(pick(12)), to = name(pick(12));
            if (!m.IsMember(from)) continue;
            switch (pick(5)) {
                case 0:
                    m.Insert(to, m.ConstGet(from));
                    break;
                case 1:
                    if (kmaC_Elastic* e =
                            m.Get(from).elastic.GetPtr() ? &m.Get(from).elastic.Get() : nullptr)
                        e->table.table = cls_xp2DArrayDouble(pick(3), 2);
                    break;
                case 2:
                    if (m.IsMember(to)) m.Get(to).elastic = m.ConstGet(from).elastic;
                    break;
                case 3:
                    if (m.ConstGet(from).density.GetPtr())
                        m.Get(from).density.Get().table = kmaC_MaterialTable(1, 1);
                    break;
                case 4:
                    if (m.IsMember(to) && m.ConstGet(from).elastic.GetPtr())
                        m.Get(to).elastic.Get().table = m.ConstGet(from).elastic.ConstGet().table;
                    break;
            }
        }
        nga::SeparateIdentities(document.Model());
        ASSERT_EQ(Census(document).Doubled(), 0) << "round " << round;
    }
}

TEST(SeparateIdentities, ListsMapsArraysAndTheirElementsAreSeparatedToo) {
    StartSamples();
    SampleAll a;
    a.leaf = new SampleLeaf;
    a.any = SampleAll::BaseHandle(new SampleLeaf);
    a.parts.Append(SampleAll::BaseHandle(new SampleLeaf));
    a.parts.Append(SampleAll::BaseHandle(new SampleAll));
    a.parts.Append(SampleAll::BaseHandle());
    a.pieces.Append(SamplePart());
    SampleAll b = a;
    b.pieces.Get(0).size = 4;
    b.parts.Get(1).Get().rank = 9;
    std::vector<nga::TypedObject> const both = {{SampleAll::TypeId(), &a},
                                                {SampleAll::TypeId(), &b}};
    // Own, base, the part, the table with its array, and the six containers are doubled, and the
    // piece and the list's second object (of the same levels) that were changed apart.
    ASSERT_GT(Census(both).Doubled(), 20);
    nga::SeparateIdentities(both);
    EXPECT_EQ(Census(both).Doubled(), 0);
    EXPECT_NE(a.parts.list.uid, b.parts.list.uid);
    EXPECT_NE(a.pieces.uid, b.pieces.uid);
    EXPECT_NE(a.ints.uid, b.ints.uid);
    EXPECT_NE(a.doubles.uid, b.doubles.uid);
    EXPECT_NE(a.floats.uid, b.floats.uid);
    EXPECT_NE(a.cells.uid, b.cells.uid);
    EXPECT_NE(a.pieces.ConstGet(0).uid, b.pieces.ConstGet(0).uid);
    EXPECT_NE(a.parts.ConstGet(1).ConstGet().uid, b.parts.ConstGet(1).ConstGet().uid);
    EXPECT_EQ(a.parts.ConstGet(0).GetPtr(), b.parts.ConstGet(0).GetPtr());
    EXPECT_EQ(a.leaf.GetPtr(), b.leaf.GetPtr());
}

TEST(SeparateIdentities, SharingThatFansOutAtEveryLevelIsWalkedOnceALevel) {
    StartSamples();
    // Forty levels, each holding the next one four times: walked by references it would not end.
    SampleAll::BaseHandle below(new SampleLeaf);
    for (int level = 0; level < 40; ++level) {
        auto* next = new SampleAll;
        for (int i = 0; i < 4; ++i) next->parts.Append(below);
        below = SampleAll::BaseHandle(next);
    }
    SampleAll top;
    top.parts.Append(below);
    SampleAll const twin = top;
    std::vector<nga::TypedObject> const both = {{SampleAll::TypeId(), &top},
                                                {SampleAll::TypeId(), &twin}};
    EXPECT_GT(nga::SeparateIdentities(both), 0);
    EXPECT_NE(top.uid, twin.uid);
    EXPECT_EQ(top.parts.ConstGet(0).GetPtr(), twin.parts.ConstGet(0).GetPtr());
}
