#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>

#include "DDB_NonGeometricAttributes.h"
#include "support/FieldMutator.h"

// What holds for every class that is registered, found by walking the registry: a class that is
// added is tested without a line of its own.

namespace registered_classes_test {

class RegisteredClasses : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

struct Destroying {
    mdl_Description const* description;
    void operator()(void* object) const { description->Destroy(object); }
};
using Owned = std::unique_ptr<void, Destroying>;

Owned Make(mdl_Description const* description) {
    return {description->Create(), Destroying{description}};
}
Owned CopyOf(mdl_Description const* description, void const* object) {
    return {description->Copy(object), Destroying{description}};
}
Owned DeepCopyOf(mdl_Description const* description, void const* object) {
    return {DDB_DeepCopyErased(object, description->TypeId()), Destroying{description}};
}

/// The one class whose records are for others to read.
char const* const writtenOnly = "kbeC_ContactForce";

/// The concrete classes that are read back.
std::vector<mdl_Description const*> ReadClasses() {
    std::vector<mdl_Description const*> result;
    for (mdl_Description const* description : nga_test::ConcreteClasses())
        if (description->Name() != std::string(writtenOnly)) result.push_back(description);
    return result;
}

std::vector<cls_Uid> UidsOf(mdl_Description const* description, void const* object) {
    std::vector<cls_Uid> uids;
    nga_test::CollectUids(*description, object, uids);
    return uids;
}

TEST_F(RegisteredClasses, AreFound) {
    auto const classes = nga_test::ConcreteClasses();
    for (mdl_Description const* expected :
         {&kmaC_Material::Description(), &kmaC_Elastic::Description(),
          &klcC_LoadCase::Description(), &mdl_PropertyTable::Description()})
        EXPECT_NE(std::find(classes.begin(), classes.end(), expected), classes.end())
            << expected->Name();
}

TEST_F(RegisteredClasses, AreNamedAsTheirRowsAndStandUnderTheirParents) {
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        SCOPED_TRACE(description->Name());
        // The one row whose letters differ from its class's; and a component whose numbers left
        // their rows.
        bool const apart =
            description->TypeId() == 0x2380063 ||
            (description->TypeId() >= 0x2A80021 && description->TypeId() >> 16 == 0x2A8);
        if (!apart) {
            EXPECT_STREQ(typ_ArchCompTable::GetName(description->TypeId()), description->Name());
            EXPECT_TRUE(
                typ_ArchCompTable::IsParent(description->TypeId(), description->ParentTypeId()));
        }
        EXPECT_EQ(description->ParentTypeId(),
                  description->Base() ? description->Base()->TypeId() : cls_RootTypeId);
        EXPECT_GE(description->Version(), 203);
    }
}

TEST_F(RegisteredClasses, AreRegisteredAsTheyAreDescribed) {
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        SCOPED_TRACE(description->Name());
        cls_ClassMetadata const* metadata = registrar.Find(description->TypeId());
        ASSERT_NE(metadata, nullptr);
        EXPECT_STREQ(metadata->Name().Text(), description->Name());
        EXPECT_EQ(metadata->Version(), description->Version());
        EXPECT_EQ(metadata->ParentTypeId(), description->ParentTypeId());
        EXPECT_EQ(metadata->HasCtor(), description->Name() != std::string(writtenOnly));
        ASSERT_EQ(metadata->Attributes().size(), description->Fields().size());
        std::set<std::string> names;
        for (mdl_Field const* field : description->AllFields()) {
            EXPECT_TRUE(names.insert(field->Name()).second) << field->Name();
            EXPECT_EQ(description->FindField(field->Name()), field);
            EXPECT_EQ(description->FindScript(field->Script()), field);
        }
    }
}

TEST_F(RegisteredClasses, HaveARuleFunctionThatTheirDefaultsReach) {
    class Ignoring final : public mdl_RuleVisitor {
        void Failed(int) override {}
        void Object(void const*, int, void const*, mdl_Asked) override {}
    };
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        SCOPED_TRACE(description->Name());
        ASSERT_TRUE(description->HasRules());
        ASSERT_NE(description->Module(), nullptr);
        Owned const object = Make(description);
        Ignoring visitor;
        description->RunRules(object.get(), visitor);
    }
}

TEST_F(RegisteredClasses, ADefaultObjectSharesNoIdentityWithAnother) {
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        SCOPED_TRACE(description->Name());
        Owned const a = Make(description);
        Owned const b = Make(description);
        std::vector<cls_Uid> uids = UidsOf(description, a.get());
        for (cls_Uid const& uid : UidsOf(description, b.get())) uids.push_back(uid);
        std::set<cls_Uid> const distinct(uids.begin(), uids.end());
        EXPECT_EQ(distinct.size(), uids.size());
        EXPECT_EQ(distinct.count(cls_Uid()), 0u);
        EXPECT_TRUE(description->Same(a.get(), b.get()));
    }
}

TEST_F(RegisteredClasses, EveryFieldSurvivesBeingWrittenAndRead) {
    int changed = 0;
    for (mdl_Description const* description : ReadClasses()) {
        for (mdl_Field const* field : description->AllFields()) {
            SCOPED_TRACE(std::string(description->Name()) + "." + field->Name());
            Owned const before = Make(description);
            Owned const after = Make(description);
            if (!nga_test::MutateField(*field, after.get())) continue;
            ++changed;
            EXPECT_FALSE(description->Same(before.get(), after.get()));
            Owned const read = DeepCopyOf(description, after.get());
            EXPECT_TRUE(description->Same(after.get(), read.get()));
            EXPECT_FALSE(description->Same(before.get(), read.get()));
            for (cls_Uid const& uid : UidsOf(description, read.get())) EXPECT_FALSE(uid.IsNull());
        }
    }
    EXPECT_GE(changed, 40);
}

TEST_F(RegisteredClasses, ACopyKeepsTheIdentityAndSharesWhatItHolds) {
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        SCOPED_TRACE(description->Name());
        Owned const object = Make(description);
        nga_test::MutateAll(*description, object.get());
        Owned const copy = CopyOf(description, object.get());
        EXPECT_EQ(UidsOf(description, copy.get()), UidsOf(description, object.get()));
        EXPECT_TRUE(description->Same(object.get(), copy.get()));
        for (mdl_Field const* field : description->AllFields()) {
            mdl_FieldType const& type = field->Type();
            if (type.Kind() != mdl_FieldKind::Option && type.Kind() != mdl_FieldKind::OptionList)
                continue;
            for (int i = 0; i < type.Count(field->At(object.get())); ++i)
                EXPECT_EQ(type.ConstObject(field->At(copy.get()), i),
                          type.ConstObject(field->At(object.get()), i))
                    << field->Name();
        }
    }
}

TEST_F(RegisteredClasses, WritingACopyLeavesItsSourceAlone) {
    for (mdl_Description const* description : ReadClasses()) {
        SCOPED_TRACE(description->Name());
        Owned const object = Make(description);
        nga_test::MutateAll(*description, object.get());
        Owned const copy = CopyOf(description, object.get());
        Owned const kept = DeepCopyOf(description, object.get());
        for (mdl_Field const* field : description->AllFields()) {
            mdl_FieldType const& type = field->Type();
            // Writes through what the copy shares, and then to the copy itself.
            for (int i = 0; type.Held() && i < type.Count(field->At(copy.get())); ++i) {
                void* const held = type.MutableObject(field->At(copy.get()), i);
                if (held) nga_test::MutateAll(*mdl_Description::Find(type.DynTypeIdOf(held)), held);
            }
            nga_test::MutateField(*field, copy.get());
        }
        EXPECT_TRUE(description->Same(object.get(), kept.get()));
    }
}

TEST_F(RegisteredClasses, ADeepCopyIsTheSameUnderNewIdentities) {
    for (mdl_Description const* description : ReadClasses()) {
        SCOPED_TRACE(description->Name());
        Owned const object = Make(description);
        nga_test::MutateAll(*description, object.get());
        nga_test::MutateAll(*description, object.get());
        Owned const copy = DeepCopyOf(description, object.get());
        EXPECT_TRUE(description->Same(object.get(), copy.get()));
        std::vector<cls_Uid> const ours = UidsOf(description, object.get());
        std::vector<cls_Uid> const theirs = UidsOf(description, copy.get());
        EXPECT_EQ(ours.size(), theirs.size());
        std::set<cls_Uid> distinct(ours.begin(), ours.end());
        distinct.insert(theirs.begin(), theirs.end());
        EXPECT_EQ(distinct.size(), ours.size() + theirs.size());
        for (mdl_Field const* field : description->AllFields()) {
            if (!field->Type().Held()) continue;
            for (int i = 0; i < field->Type().Count(field->At(object.get())); ++i) {
                void const* mine = field->Type().ConstObject(field->At(object.get()), i);
                if (!mine) continue;
                EXPECT_NE(mine, field->Type().ConstObject(field->At(copy.get()), i));
            }
        }
    }
}

// Holds also for the first who asks in a process, before any domain was opened.
TEST_F(RegisteredClasses, TwoObjectsAreComparedWhateverWasAskedBefore) {
    kmaC_Material a;
    kmaC_Material b;
    a.density = new kmaC_Density;
    b.density = new kmaC_Density;
    EXPECT_TRUE(kmaC_Material::Description().Same(&a, &b));
    b.density.Get().dependencies = 1;
    EXPECT_FALSE(kmaC_Material::Description().Same(&a, &b));
    EXPECT_EQ(mdl_Description::FindByConstructor("Density"), &kmaC_Density::Description());
    EXPECT_EQ(mdl_Description::FindByConstructor("density"), nullptr);
    EXPECT_EQ(mdl_Description::Find(0x238FFFF), nullptr);
}

TEST_F(RegisteredClasses, OneIsWrittenAndNotRead) {
    EXPECT_EQ(ReadClasses().size() + 1, nga_test::ConcreteClasses().size());
    EXPECT_STREQ(kbeC_ContactForce::Description().Name(), writtenOnly);
    kbeC_ContactForce const force;
    EXPECT_THROW(DDB_DeepCopyErased(&force, force.DynTypeId()), nex_TextException);
}

// ---- domains ---------------------------------------------------------------------------------

TEST_F(RegisteredClasses, StandInTheDomainsOfTheirKind) {
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    std::map<unsigned, unsigned> masks;
    std::map<unsigned, cls_ClassMetadata const*> metadata;
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase})
        for (cls_ClassMetadata const* found : registrar.Domain(domain).Classes()) {
            masks[found->TypeId()] |= domain;
            auto const [before, fresh] = metadata.insert({found->TypeId(), found});
            EXPECT_TRUE(fresh || *before->second == *found) << found->Name().Text();
        }
    for (auto const& [typeId, mask] : masks) {
        SCOPED_TRACE(metadata[typeId]->Name().Text());
        unsigned const parent = metadata[typeId]->ParentTypeId();
        if (parent == mdl_ExtensionTypeId && typeId != mdl_RepositoryTypeId) {
            EXPECT_EQ(mask, 4u);
        } else if (mdl_Description::Find(typeId)) {
            EXPECT_EQ(mask, 7u);
        }
    }
    EXPECT_EQ(masks.at(kmaC_MaterialContainer::TypeId()), 3u);
    EXPECT_EQ(masks.at(klcC_LoadCaseCont::TypeId()), 3u);
    EXPECT_EQ(masks.at(kmaC_MCWrapper::TypeId()), 4u);
    EXPECT_EQ(masks.at(cls_ListTypeId), 7u);
    EXPECT_EQ(masks.at(cls_MapTypeId), 7u);
    EXPECT_EQ(masks.at(mdl_RepositoryTypeId), 7u);
    EXPECT_EQ(masks.at(mdl_ExtensionTypeId), 7u);
    EXPECT_EQ(masks.at(mdl_PropertyTableTypeId), 7u);
}

TEST_F(RegisteredClasses, ComingUpAgainReplacesThemByEqualOnes) {
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    std::size_t const before = registrar.Domain(cls_DomainDatabase).Classes().size();
    int const registered = registrar.RegisteredWith(7);
    int count = 0;
    DDB_NonGeometricAttributes_finalize(count);
    DDB_NonGeometricAttributes_initialize(count);
    EXPECT_EQ(registrar.Domain(cls_DomainDatabase).Classes().size(), before);
    EXPECT_EQ(registrar.RegisteredWith(7), registered);
}

TEST_F(RegisteredClasses, ADeepCopyOfARepositoryIsASetOfRecordsOfItsOwn) {
    kmaC_MaterialContainer repository;
    kmaC_Material material;
    material.density = new kmaC_Density;
    repository.Insert("steel", material);
    repository.Insert("iron", material);
    repository.GetMap().InsertUnlessMember("none", kmaC_MaterialContainer::Handle());
    std::unique_ptr<kmaC_MaterialContainer> const copy(
        DDB_DeepCopyPtr(&repository, repository.DynTypeId()));
    EXPECT_NE(copy->Uid(), repository.Uid());
    EXPECT_NE(copy->ConstGetMap().uid, repository.ConstGetMap().uid);
    ASSERT_EQ(copy->Size(), 3);
    EXPECT_EQ(copy->ConstGetPtr("none"), nullptr);
    EXPECT_NE(copy->ConstGet("steel").uid, copy->ConstGet("iron").uid);
    EXPECT_NE(copy->ConstGet("steel").density.GetPtr(), copy->ConstGet("iron").density.GetPtr());
    EXPECT_TRUE(kmaC_Material::Description().Same(copy->ConstGetPtr("steel"), &material));
}

TEST_F(RegisteredClasses, OneOutsideTheDomainOfCopiesIsRefusedADeepCopy) {
    kmaC_MCWrapper const wrapper{kmaC_MaterialContainer()};
    EXPECT_THROW(DDB_DeepCopyErased(&wrapper, wrapper.DynTypeId()), nex_TextException);
    EXPECT_THROW(DDB_DeepCopyErased(&wrapper, kmaC_MaterialOption::TypeId()), nex_TextException);
}

// ---- the ledger of stored layouts ------------------------------------------------------------

// Files hold what these layouts say for ever. The ledger keeps every layout that ever stood under a
// version: entries are added, and never changed or taken out.

using Ledger = std::map<std::pair<unsigned, int>, std::string>;

std::string Hex(unsigned number) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%07X", number);
    return text;
}

Ledger RegisteredLayouts() {
    Ledger ledger;
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase})
        for (cls_ClassMetadata const* metadata : registrar.Domain(domain).Classes()) {
            std::string entry =
                std::string(metadata->Name().Text()) + " " + Hex(metadata->TypeId()) + " " +
                std::to_string(metadata->Version()) + " " + Hex(metadata->ParentTypeId()) + "\n";
            for (cls_Attribute const& attribute : metadata->Attributes())
                entry += std::string("    ") + attribute.field.Name().Text() + " " +
                         std::to_string(attribute.type) + " " +
                         (attribute.arg == 1 ? "1" : Hex(attribute.arg)) + " " +
                         std::to_string(attribute.collection) + "\n";
            ledger[{metadata->TypeId(), metadata->Version()}] = entry;
        }
    return ledger;
}

Ledger Parse(std::istream& in) {
    Ledger ledger;
    std::string* entry = nullptr;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        if (line[0] != ' ') {
            std::istringstream words(line);
            std::string name, typeId;
            int version = 0;
            words >> name >> typeId >> version;
            entry = &ledger[{static_cast<unsigned>(std::stoul(typeId, nullptr, 16)), version}];
            EXPECT_TRUE(entry->empty()) << "twice in the ledger: " << line;
        }
        if (entry) *entry += line + "\n";
    }
    return ledger;
}

char const* const ledgerPath = NGA_TESTS_DIR "/module/layouts.ledger";
char const* const howToAdd =
    "To enter new classes and new versions, run this test with NGA_ADD_LAYOUTS=1 in the "
    "environment and commit tests/module/layouts.ledger. That changes no entry: a class whose "
    "fields changed needs a new version number, and an old class version that describes what it "
    "was.";

TEST_F(RegisteredClasses, AreStoredAsTheLedgerSays) {
    Ledger ledger;
    {
        std::ifstream in(ledgerPath);
        ledger = Parse(in);
    }
    Ledger const registered = RegisteredLayouts();
    std::string missing;
    bool const adding = std::getenv("NGA_ADD_LAYOUTS") != nullptr;
    for (auto const& [key, layout] : registered) {
        auto const found = ledger.find(key);
        if (found != ledger.end())
            EXPECT_EQ(layout, found->second) << "The fields changed under one version number.\n"
                                             << howToAdd;
        else if (adding)
            ledger[key] = layout;
        else
            missing += layout;
    }
    EXPECT_EQ(missing, "") << "Not in the ledger.\n" << howToAdd;
    // A version once given out stays, so a class never goes back behind one.
    for (auto const& [key, layout] : ledger) {
        auto const newest = registered.upper_bound({key.first, 1 << 30});
        bool const known =
            newest != registered.begin() && std::prev(newest)->first.first == key.first;
        EXPECT_TRUE(known) << "A stored class is registered no more:\n" << layout;
        if (known) {
            EXPECT_GE(std::prev(newest)->first.second, key.second) << layout;
        }
    }
    if (!adding) return;
    std::ofstream out(ledgerPath);
    out << "# Every stored layout: class, TypeId, version and parent; then its fields with code,\n"
           "# argument and collection. Entries are added, never changed or taken out.\n";
    for (auto const& [key, layout] : ledger) out << "\n" << layout;
    EXPECT_TRUE(out.good());
}

}  // namespace registered_classes_test
