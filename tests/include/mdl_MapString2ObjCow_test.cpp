#include "mdl_MapString2ObjCow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <vector>

#include "atr_NaturalOrder.h"
#include "omi_Time.h"
#include "support/ChangeRecords.h"
#include "support/SpecimenRepository.h"
#include "support/StoredObject.h"

NGA_DEFINE_SPECIMENS

namespace mdl_MapString2ObjCow_test {

using nga_test::ChangeRecords;
using nga_test::StoredObject;
using nga_test::WriteLog;

specimen_Part Part(int number) {
    specimen_Part part;
    part.number = number;
    return part;
}

std::string Text(cow_List<cow_String> const& names) {
    std::string text;
    for (int i = 0; i < names.Size(); ++i) text += std::string(names.ConstGet(i).Text()) + " ";
    return text;
}

TEST(Repository, InsertOfANewKeyRecordsOneInsertion) {
    ChangeRecords records;
    specimen_PartCont repository;
    EXPECT_TRUE(repository.Insert("steel", Part(1)));
    EXPECT_EQ(records.Take(), "('Insert', 'steel', -99)\n");
    EXPECT_EQ(repository.ConstGet("steel").number, 1);
    EXPECT_EQ(repository.Size(), 1);
}

TEST(Repository, InsertOfAPresentKeyRecordsRemoveThenInsert) {
    ChangeRecords records;
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    records.Take();
    EXPECT_TRUE(repository.Insert("steel", new specimen_Part(Part(2))));
    EXPECT_EQ(records.Take(), "('Remove', 'steel')\n('Insert', 'steel', -99)\n");
    EXPECT_EQ(repository.ConstGet("steel").number, 2);
    EXPECT_EQ(repository.Size(), 1);
}

TEST(Repository, InsertOfAValueCopiesAndOfAPointerAdopts) {
    specimen_PartCont repository;
    specimen_Part const value = Part(1);
    repository.Insert("a", value);
    repository.Insert("b", value);
    EXPECT_NE(&repository.ConstGet("a"), &value);
    EXPECT_NE(&repository.ConstGet("a"), &repository.ConstGet("b"));
    EXPECT_EQ(repository.ConstGet("a").uid, value.uid);
    auto* adopted = new specimen_Part(Part(2));
    repository.Insert("c", adopted);
    EXPECT_EQ(&repository.ConstGet("c"), adopted);
}

TEST(Repository, RemoveRecordsOnlyWhatWent) {
    ChangeRecords records;
    specimen_PartCont repository;
    EXPECT_FALSE(repository.Remove("steel"));
    repository.Insert("steel", Part(1));
    records.Take();
    EXPECT_FALSE(repository.Remove("iron"));
    EXPECT_EQ(records.Take(), "");
    EXPECT_EQ(Text(repository.ChangedKeys()), "steel ");
    EXPECT_TRUE(repository.Remove("steel"));
    EXPECT_EQ(records.Take(), "('Remove', 'steel')\n");
    EXPECT_TRUE(repository.IsEmpty());
}

TEST(Repository, GetRecordsAModificationWhateverFollows) {
    ChangeRecords records;
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    records.Take();
    double const before = repository.ChangeTime();
    repository.Get("steel");
    EXPECT_EQ(records.Take(), "('Modify', 'steel')\n");
    EXPECT_GT(repository.ChangeTime(), before);
}

TEST(Repository, GetOfAMissingKeyRecordsAndTouchesAndGivesNothing) {
    ChangeRecords records;
    specimen_PartCont repository;
    EXPECT_EQ(repository.GetPtr("ghost"), nullptr);
    EXPECT_EQ(records.Take(), "('Modify', 'ghost')\n");
    EXPECT_EQ(Text(repository.ChangedKeys()), "ghost ");
    specimen_Part* const address = std::addressof(repository.Get("other"));
    EXPECT_EQ(address, nullptr);
    EXPECT_EQ(records.Take(), "('Modify', 'other')\n");
    EXPECT_FALSE(repository.IsMember("ghost"));
}

TEST(Repository, ModifyIsSentBeforeAnythingHappens) {
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    specimen_PartCont const copy(repository);
    specimen_Part const* const shared = repository.ConstGetPtr("steel");
    double const before = repository.ChangeTime();
    bool asSent = false;
    omu_ChangeHistory& history = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    int const number = history.Listen([&](omu_PrimTuple const&) {
        asSent = repository.ChangeTime() == before && repository.ConstGetPtr("steel") == shared;
    });
    repository.Get("steel");
    history.StopListening(number);
    EXPECT_TRUE(asSent);
    EXPECT_NE(repository.ConstGetPtr("steel"), shared);
    EXPECT_GT(repository.ChangeTime(), before);
}

TEST(Repository, ReadingNeitherRecordsNorDetaches) {
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    specimen_PartCont const copy(repository);
    ChangeRecords records;
    double const before = repository.ChangeTime();
    EXPECT_TRUE(repository.IsMember("steel"));
    EXPECT_FALSE(repository.IsMember("iron"));
    EXPECT_EQ(repository.ConstGetPtr("steel"), copy.ConstGetPtr("steel"));
    EXPECT_EQ(repository.ConstGetPtr("iron"), nullptr);
    EXPECT_EQ(std::addressof(repository.ConstGet("iron")), nullptr);
    EXPECT_EQ(repository.ConstGetMap().Root()->Count(), copy.ConstGetMap().Root()->Count());
    EXPECT_GT(repository.ConstGetMap().Root()->Count(), 1);
    EXPECT_EQ(records.Take(), "");
    EXPECT_EQ(repository.ChangeTime(), before);
}

TEST(Repository, NamesEachTouchedKeyOnceInTheOrderOfTheFirstTouch) {
    specimen_PartCont repository;
    repository.Insert("b", Part(1));
    repository.Insert("a", Part(1));
    repository.Get("b");
    repository.Remove("a");
    repository.Get("c");
    repository.Insert("b", Part(2));
    EXPECT_EQ(Text(repository.ChangedKeys()), "b a c ");
    repository.Clear();
    EXPECT_EQ(Text(repository.ChangedKeys()), "b a c ");
}

TEST(Repository, TheEmptyKeyIsAKeyThatNoListOfTouchedKeysNames) {
    ChangeRecords records;
    specimen_PartCont repository;
    double const before = repository.ChangeTime();
    EXPECT_TRUE(repository.Insert("", Part(1)));
    EXPECT_EQ(records.Take(), "('Insert', '', -99)\n");
    EXPECT_TRUE(repository.IsMember(""));
    EXPECT_EQ(repository.ChangedKeys().Size(), 0);
    EXPECT_GT(repository.ChangeTime(), before);
}

TEST(Repository, KeysAreInTreeOrderAndBuiltOnceForARunOfChanges) {
    specimen_PartCont repository;
    for (char const* name : {"a10", "a9", "B", "a1"}) repository.Insert(name, Part(1));
    EXPECT_EQ(Text(repository.Keys()), "B a1 a9 a10 ");
    // One cache: the elements that both calls give lie in the same place.
    EXPECT_EQ(&repository.Keys().ConstGet(0), &repository.Keys().ConstGet(0));
    cow_String const* const cached = &repository.Keys().ConstGet(0);
    repository.Get("a9");
    repository.IsMember("a9");
    EXPECT_EQ(&repository.Keys().ConstGet(0), cached);
    cow_List<cow_String> const kept = repository.Keys();
    repository.GetMap();
    EXPECT_NE(&repository.Keys().ConstGet(0), cached);
    cow_String const* const rebuilt = &repository.Keys().ConstGet(0);
    cow_List<cow_String> const again = repository.Keys();
    repository.Remove("none");
    EXPECT_NE(&repository.Keys().ConstGet(0), rebuilt);
    repository.Remove("B");
    EXPECT_EQ(Text(repository.Keys()), "a1 a9 a10 ");
    EXPECT_EQ(Text(kept), "B a1 a9 a10 ");
}

TEST(Repository, ClearEmptiesWithoutARecord) {
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    specimen_PartCont const copy(repository);
    cls_Uid const tree = repository.ConstGetMap().uid;
    repository.Keys();
    double const before = repository.ChangeTime();
    ChangeRecords records;
    repository.Clear();
    EXPECT_EQ(records.Take(), "");
    EXPECT_TRUE(repository.IsEmpty());
    EXPECT_EQ(repository.Keys().Size(), 0);
    EXPECT_GT(repository.ChangeTime(), before);
    EXPECT_EQ(repository.ConstGetMap().uid, tree);
    EXPECT_EQ(copy.Size(), 1);
    EXPECT_EQ(copy.Keys().Size(), 1);
    repository.Insert("iron", Part(2));
    EXPECT_EQ(Text(repository.Keys()), "iron ");
}

TEST(Repository, ACopySharesEverythingUntilOneIsWritten) {
    specimen_PartCont repository;
    repository.Insert("steel", Part(1));
    repository.Insert("iron", Part(2));
    specimen_PartCont copy(repository);
    EXPECT_EQ(copy.Uid(), repository.Uid());
    EXPECT_EQ(copy.ChangeTime(), repository.ChangeTime());
    EXPECT_EQ(Text(copy.ChangedKeys()), "steel iron ");
    EXPECT_EQ(copy.ConstGetPtr("steel"), repository.ConstGetPtr("steel"));
    copy.Get("steel").number = 10;
    EXPECT_EQ(repository.ConstGet("steel").number, 1);
    EXPECT_EQ(copy.ConstGet("steel").number, 10);
    EXPECT_EQ(copy.ConstGetPtr("iron"), repository.ConstGetPtr("iron"));
    repository.Remove("iron");
    EXPECT_EQ(copy.ConstGet("iron").number, 2);
}

TEST(Repository, NewUidLeavesTheTreeItsOwn) {
    specimen_PartCont repository;
    specimen_PartCont copy(repository);
    EXPECT_EQ(copy.ConstGetMap().uid, repository.ConstGetMap().uid);
    copy.NewUid();
    EXPECT_NE(copy.Uid(), repository.Uid());
    EXPECT_EQ(copy.ConstGetMap().uid, repository.ConstGetMap().uid);
}

// The key or object that is given may live in the entry that goes.
TEST(Repository, WhatItIsGivenMayBePartOfIt) {
    ChangeRecords records;
    specimen_PartCont repository;
    repository.Insert("steel", Part(7));
    repository.Insert("steel", repository.ConstGet("steel"));
    EXPECT_EQ(repository.ConstGet("steel").number, 7);
    cow_BtreeIterator<cow_String, specimen_PartCont::Handle> at(repository.ConstGetMap());
    at.First();
    records.Take();
    repository.Insert(at.CurrentKey(), Part(8));
    EXPECT_EQ(records.Take(), "('Remove', 'steel')\n('Insert', 'steel', -99)\n");
    EXPECT_EQ(repository.ConstGet("steel").number, 8);
    repository.Insert("iron", repository.ConstGet("steel"));
    EXPECT_EQ(repository.ConstGet("iron").number, 8);
    EXPECT_TRUE(repository.Remove(repository.ConstGetMap().Root()->ConstGet().Key()));
    EXPECT_EQ(repository.Size(), 1);
    EXPECT_TRUE(repository.Remove(repository.ConstGetMap().Root()->ConstGet().Key()));
    EXPECT_TRUE(repository.IsEmpty());
    EXPECT_EQ(Text(repository.ChangedKeys()), "steel iron ");
}

// ---- persistence -----------------------------------------------------------------------------

/// Reaches the persistent form, which is for metadata and derived classes.
struct Persistent : specimen_PartCont {
    using specimen_PartCont::DBWrite;
    using specimen_PartCont::specimen_PartCont;
    explicit Persistent(cls_ReadVisitor const& visitor) : specimen_PartCont(visitor) {}
};

TEST(RepositoryRecord, HoldsItsBaseAndTheTreeUnderMap) {
    Persistent repository;
    repository.Insert("b", Part(2));
    repository.Insert("a", Part(1));
    repository.GetMap().InsertUnlessMember("c", specimen_PartCont::Handle());
    WriteLog log;
    EXPECT_EQ(log.Write(repository),
              "start 0x7770011\n"
              "base 0xA0001 {\n"
              "  start 0xA0001\n"
              "  base 0xA000D {\n"
              "    start 0xA000D\n"
              "  }\n"
              "}\n"
              "field -1:map {\n"
              "  start 0x230002\n"
              "  check 2\n"
              "  map of names\n"
              "  element a {\n"
              "    start 0x7770001\n"
              "    int 0:number=1\n"
              "  }\n"
              "  element b {\n"
              "    start 0x7770001\n"
              "    int 0:number=2\n"
              "  }\n"
              "  null element c 0x7770001\n"
              "  must delete\n"
              "  writer deleted\n"
              "}\n");
    EXPECT_EQ(log.handles, std::vector<cow_HandleBase const*>{nullptr});
    EXPECT_EQ(log.Write(repository), "start 0x7770011 again\n");
    EXPECT_EQ(log.liveWriters, 0);
}

TEST(Repository, InsertOfAPresentKeyReleasesTheOldObjectBeforeTheNewOneStands) {
    // Asks the repository when it ends.
    struct Witness : specimen_Part {
        Witness(specimen_PartCont const& repository, int& seen)
            : m_repository(repository), m_seen(seen) {}
        ~Witness() override { m_seen = m_repository.IsMember("steel") ? 2 : 1; }
        specimen_PartCont const& m_repository;
        int& m_seen;
    };
    int seen = 0;
    specimen_PartCont repository;
    repository.Insert("steel", new Witness(repository, seen));
    repository.Insert("steel", new specimen_Part);
    EXPECT_EQ(seen, 1);
}

TEST(RepositoryRecord, TheEmbeddedFormIsTheTreeAlone) {
    specimen_PartCont const repository;
    WriteLog log;
    {
        cls_WriteVisitor const visitor(log.Agent());
        repository.DBWrite(visitor, true);
    }
    EXPECT_EQ(log.lines,
              "start 0x230002\n"
              "check 2\n"
              "map of names\n"
              "must delete\n"
              "writer deleted\n");
}

void Fill(StoredObject& stored) {
    auto* part = new specimen_Part(Part(5));
    stored.elements = {{"b", 0, StoredObject::Erased(part), {}}, {"a", 0, {}, {}}};
}

TEST(RepositoryRecord, ReadsTheTreeWithoutRecordsAndTakesTheTime) {
    StoredObject stored;
    Fill(stored.Field("map"));
    ChangeRecords records;
    double const before = omi_gettimecounter();
    cls_ReadVisitor const visitor(stored.Memento());
    Persistent const repository(visitor);
    EXPECT_EQ(records.Take(), "");
    EXPECT_EQ(stored.lines, "field -1:map\nuid\n");
    EXPECT_EQ(stored.Field("map").lines,
              "uid\nelement 0x7770001\nelement 0x7770001\nreader deleted\n");
    EXPECT_EQ(repository.Uid(), stored.uid);
    EXPECT_EQ(repository.ConstGetMap().uid, stored.Field("map").uid);
    EXPECT_GT(repository.ChangeTime(), before);
    EXPECT_EQ(repository.ChangedKeys().Size(), 0);
    EXPECT_EQ(Text(repository.Keys()), "a b ");
    EXPECT_EQ(repository.ConstGet("b").number, 5);
    EXPECT_TRUE(repository.IsMember("a"));
    EXPECT_EQ(repository.ConstGetPtr("a"), nullptr);
}

TEST(RepositoryRecord, TheEmbeddedFormReadsFromTheVisitorItself) {
    StoredObject stored;
    Fill(stored);
    cls_ReadVisitor const visitor(stored.Memento());
    specimen_PartCont const repository(visitor, true);
    EXPECT_EQ(repository.Size(), 2);
    EXPECT_EQ(repository.ConstGetMap().uid, stored.uid);
    EXPECT_TRUE(repository.Uid().IsNull());
}

TEST(RepositoryRecord, RegistersItsOneField) {
    cls_ClassRegistrar registrar;
    specimen_PartCont::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(specimen_PartCont::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_STREQ(metadata->Name().Text(), "specimen_PartCont");
    EXPECT_EQ(metadata->Version(), 800);
    EXPECT_EQ(metadata->ParentTypeId(), mdl_Repository::TypeId());
    ASSERT_EQ(metadata->Attributes().size(), 1u);
    cls_Attribute const& map = metadata->Attributes()[0];
    EXPECT_STREQ(map.field.Name().Text(), "map");
    EXPECT_EQ(map.field.Index(), -1);
    EXPECT_EQ(map.type, 15);
    EXPECT_EQ(map.arg, 0x230002u);
    EXPECT_EQ(map.collection, 2);
}

// ---- against a plain model -------------------------------------------------------------------

struct ByName {
    bool operator()(std::string const& a, std::string const& b) const {
        return atr_CompareNames(cow_String(a.c_str()), cow_String(b.c_str())) < 0;
    }
};

struct Model {
    std::map<std::string, int, ByName> parts;
    std::vector<std::string> touched;
    void Touch(std::string const& key) {
        if (std::find(touched.begin(), touched.end(), key) == touched.end()) touched.push_back(key);
    }
};

void ExpectEqual(specimen_PartCont const& repository, Model const& model) {
    ASSERT_EQ(repository.Size(), static_cast<int>(model.parts.size()));
    cow_List<cow_String> const keys = repository.Keys();
    int i = 0;
    for (auto const& [name, number] : model.parts) {
        ASSERT_EQ(keys.ConstGet(i++).Text(), name);
        ASSERT_EQ(repository.ConstGet(name.c_str()).number, number);
    }
    ASSERT_EQ(repository.ChangedKeys().Size(), static_cast<int>(model.touched.size()));
    for (i = 0; i < repository.ChangedKeys().Size(); ++i)
        ASSERT_EQ(repository.ChangedKeys().ConstGet(i).Text(),
                  model.touched[static_cast<std::size_t>(i)]);
}

TEST(Repository, RandomOperationsOnSharingCopiesDoWhatAPlainMapDoes) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        auto const below = [&](int n) { return static_cast<int>(random() % unsigned(n)); };
        ChangeRecords records;
        std::vector<specimen_PartCont> repositories(5);
        std::vector<Model> models(5);
        for (int step = 0; step < 1500; ++step) {
            std::size_t const at = static_cast<std::size_t>(below(5));
            specimen_PartCont& repository = repositories[at];
            Model& model = models[at];
            int const digits = below(60);
            std::string const key = (digits % 3 ? "p" : "P0") + std::to_string(digits);
            bool const present = model.parts.count(key) != 0;
            std::string const quoted = "'" + key + "'";
            std::string const replaced = present ? "('Remove', " + quoted + ")\n" : "";
            std::string const inserted = replaced + "('Insert', " + quoted + ", -99)\n";
            std::string expected;
            switch (below(9)) {
                case 0:
                    repository.Insert(key.c_str(), Part(step));
                    model.parts[key] = step;
                    model.Touch(key);
                    expected = inserted;
                    break;
                case 1:
                    repository.Insert(key.c_str(), new specimen_Part(Part(step)));
                    model.parts[key] = step;
                    model.Touch(key);
                    expected = inserted;
                    break;
                case 2:
                    ASSERT_EQ(repository.Remove(key.c_str()), present);
                    if (present) model.Touch(key);
                    model.parts.erase(key);
                    expected = replaced;
                    break;
                case 3:
                case 4:
                    if (specimen_Part* part = repository.GetPtr(key.c_str())) part->number = step;
                    if (present) model.parts[key] = step;
                    model.Touch(key);
                    expected = "('Modify', " + quoted + ")\n";
                    break;
                case 5: {
                    std::size_t const to = static_cast<std::size_t>(below(5));
                    repositories[to] = repository;
                    models[to] = Model(models[at]);
                    break;
                }
                case 6:
                    // An object of the same repository, or of one that shares it.
                    if (specimen_Part const* part =
                            repositories[(at + step) % 5].ConstGetPtr(key.c_str())) {
                        int const number = part->number;
                        repository.Insert(key.c_str(), *part);
                        model.parts[key] = number;
                        model.Touch(key);
                        expected = inserted;
                    }
                    break;
                case 7:
                    ASSERT_EQ(repository.IsMember(key.c_str()), present);
                    ASSERT_EQ(repository.Keys().Size(), static_cast<int>(model.parts.size()));
                    break;
                default:
                    if (below(20) == 0) {
                        repository.Clear();
                        model.parts.clear();
                    }
            }
            ASSERT_EQ(records.Take(), expected) << "seed " << seed << " step " << step;
            for (std::size_t i = 0; step % 50 == 0 && i < 5; ++i) {
                ASSERT_NO_FATAL_FAILURE(ExpectEqual(repositories[i], models[i]))
                    << "seed " << seed << " step " << step;
            }
        }
    }
}

// ---- under integer keys ----------------------------------------------------------------------

TEST(NumberRepository, SendsTheSameRecordsWithTheKeyAsANumber) {
    ChangeRecords records;
    specimen_NumberCont repository;
    repository.Insert(7, Part(1));
    EXPECT_EQ(records.Take(), "('Insert', 7, -99)\n");
    repository.Insert(7, new specimen_Part(Part(2)));
    EXPECT_EQ(records.Take(), "('Remove', 7)\n('Insert', 7, -99)\n");
    repository.Get(7).number = 3;
    EXPECT_EQ(records.Take(), "('Modify', 7)\n");
    EXPECT_EQ(repository.GetPtr(8), nullptr);
    EXPECT_EQ(records.Take(), "('Modify', 8)\n");
    EXPECT_EQ(repository.ConstGet(7).number, 3);
    EXPECT_EQ(repository.ConstGetPtr(8), nullptr);
    EXPECT_FALSE(repository.Remove(8));
    EXPECT_EQ(records.Take(), "");
    EXPECT_TRUE(repository.Remove(7));
    EXPECT_EQ(records.Take(), "('Remove', 7)\n");
}

TEST(NumberRepository, GivesItsKeysSortedByReference) {
    specimen_NumberCont repository;
    for (int key : {10, -3, 9, 0}) repository.Insert(key, Part(key));
    cow_List<int> const& keys = repository.Keys();
    EXPECT_EQ(&repository.Keys(), &keys);
    ASSERT_EQ(keys.Size(), 4);
    EXPECT_EQ(keys.ConstGet(0), -3);
    EXPECT_EQ(keys.ConstGet(1), 0);
    EXPECT_EQ(keys.ConstGet(2), 9);
    EXPECT_EQ(keys.ConstGet(3), 10);
    specimen_NumberCont copy(repository);
    copy.Get(9).number = 1;
    EXPECT_EQ(repository.ConstGet(9).number, 9);
    copy.Clear();
    EXPECT_EQ(copy.Keys().Size(), 0);
    EXPECT_EQ(repository.Size(), 4);
}

TEST(NumberRepository, MarksItsKeysAsTheOneOfNamesDoes) {
    specimen_NumberCont repository;
    repository.Insert(5, Part(1));
    EXPECT_EQ(repository.Keys().Size(), 1);
    repository.GetMap().InsertUnlessMember(3, specimen_NumberCont::Handle(new specimen_Part));
    ASSERT_EQ(repository.Keys().Size(), 2);
    EXPECT_EQ(repository.Keys().ConstGet(0), 3);
    EXPECT_FALSE(repository.Remove(99));
    EXPECT_TRUE(repository.Remove(5));
    EXPECT_EQ(repository.Keys().Size(), 1);
    std::unique_ptr<mdl_Extension> const copy(repository.Copy());
    repository.Clear();
    EXPECT_EQ(repository.Keys().Size(), 0);
    EXPECT_EQ(static_cast<specimen_NumberCont&>(*copy).Size(), 1);
    cls_Uid const tree = repository.ConstGetMap().uid;
    repository.NewUid();
    EXPECT_EQ(repository.ConstGetMap().uid, tree);
}

TEST(NumberRepository, RegistersItsOneField) {
    cls_ClassRegistrar registrar;
    specimen_NumberCont::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(specimen_NumberCont::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_EQ(metadata->ParentTypeId(), mdl_Repository::TypeId());
    ASSERT_EQ(metadata->Attributes().size(), 1u);
    cls_Attribute const& map = metadata->Attributes()[0];
    EXPECT_EQ(map.field.Name(), "map");
    EXPECT_EQ(map.field.Index(), -1);
    EXPECT_EQ(map.type, 15);
    EXPECT_EQ(map.arg, 0x230002u);
    EXPECT_EQ(map.collection, 3);
}

TEST(NumberRepository, IsWrittenAndReadUnderItsNumbers) {
    specimen_NumberCont repository;
    repository.Insert(2, Part(20));
    repository.Insert(-1, Part(10));
    WriteLog log;
    std::string const lines = log.Write(repository);
    EXPECT_NE(lines.find("field -1:map {\n"
                         "  start 0x230002\n"
                         "  check 3\n"
                         "  map of numbers\n"
                         "  element -1 {\n"
                         "    start 0x7770001\n"
                         "    int 0:number=10\n"
                         "  }\n"
                         "  element 2 {\n"),
              std::string::npos)
        << lines;
    StoredObject stored;
    stored.Field("map").elements = {{"", 5, StoredObject::Erased(new specimen_Part(Part(50))), {}},
                                    {"", -5, {}, {}}};
    cls_ReadVisitor const visitor(stored.Memento());
    specimen_NumberCont const read(visitor);
    EXPECT_EQ(read.ConstGet(5).number, 50);
    EXPECT_TRUE(read.IsMember(-5));
    EXPECT_EQ(read.ConstGetPtr(-5), nullptr);
    EXPECT_EQ(read.Keys().ConstGet(0), -5);
}

}  // namespace mdl_MapString2ObjCow_test
