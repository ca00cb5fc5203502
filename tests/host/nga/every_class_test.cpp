#include <gtest/gtest.h>

#include <map>

#include "DDB_NonGeometricAttributes.h"
#include "host/cli/tool_runner.h"
#include "nga_ConnectorSection.h"
#include "nga_Document.h"
#include "nga_Error.h"
#include "nga_FieldLiterals.h"
#include "nga_Json.h"
#include "nga_Path.h"
#include "nga_Start.h"
#include "nga_TextForm.h"
#include "nga_Tree.h"
#include "support/FieldMutator.h"

// Every class that a document can hold, with every field changed, through what a person uses: a
// class that joins is tested without a new line here.

namespace {

using nga::Document;

/// The classes of a kind's objects.
std::vector<mdl_Description const*> NamedClasses(nga::Collection const& collection) {
    if (!collection.Held().IsAbstract()) return {&collection.Held()};
    std::vector<mdl_Description const*> classes;
    for (nga::NamedClass const& known : nga::ClassesBelow(collection.Held()))
        classes.push_back(known.description);
    return classes;
}

/// The kind whose objects can be of that class, or null.
nga::Collection const* CollectionOf(mdl_Description const& description) {
    for (nga::Collection const* collection : nga::Collection::All())
        for (mdl_Description const* named : NamedClasses(*collection))
            if (named == &description) return collection;
    return nullptr;
}

std::vector<mdl_Description const*> HeldClasses() {
    nga::Start();
    std::vector<mdl_Description const*> classes;
    for (mdl_Description const* base :
         {&kmaC_MaterialOption::Description(), &kbeC_ConnectorBehaviorOption::Description()})
        for (nga::NamedClass const& known : nga::ClassesBelow(*base))
            classes.push_back(known.description);
    for (mdl_Description const* part :
         {&kbeC_ConnectorOptions::Description(), &kbeC_TangentialBehavior::Description(),
          &kbeC_ConnectorPotential::Description(), &kbeC_DerivedComponent::Description(),
          &kbeC_CDCTerm::Description()})
        classes.push_back(part);
    for (nga::Collection const* collection : nga::Collection::All())
        for (mdl_Description const* named : NamedClasses(*collection)) classes.push_back(named);
    return classes;
}

nga::DescribedObject Changed(mdl_Description const& description) {
    nga::DescribedObject object(description.Create(), nga::DescribedDeleter{&description});
    nga_test::MutateAll(description, object.get());
    return object;
}

std::string TextOf(mdl_Description const& description, void const* object) {
    nga::JsonWriter writer;
    nga::Defaults defaults;
    nga::WriteObject(writer, defaults, description, description, object, defaults.Of(description));
    return writer.Take();
}

nga::DescribedObject Read(mdl_Description const& description, std::string const& text) {
    return nga::ReadObject(nga::ParseJson(text), nga::JsonPlace(), description);
}

/// Puts an object into the first field of another that holds its class; says whether there is one.
bool Adopted(mdl_Description const& owner, void* into, mdl_Description const& description,
             nga::DescribedObject& object) {
    for (mdl_Field const* field : owner.AllFields()) {
        if (field->Type().Held() != &description) continue;
        field->Type().Adopt(field->At(into), object.release());
        return true;
    }
    return false;
}

/// A behaviour that holds a part of behaviours, in itself or in its derived component.
nga::DescribedObject BehaviourWith(mdl_Description const& description,
                                   nga::DescribedObject object) {
    mdl_Description const& outer = kbeC_ConnectorFriction::Description();
    nga::DescribedObject friction(outer.Create(), nga::DescribedDeleter{&outer});
    if (Adopted(outer, friction.get(), description, object)) return friction;
    mdl_Description const& inner = kbeC_DerivedComponent::Description();
    nga::DescribedObject derived(inner.Create(), nga::DescribedDeleter{&inner});
    EXPECT_TRUE(Adopted(inner, derived.get(), description, object)) << description.Name();
    EXPECT_TRUE(Adopted(outer, friction.get(), inner, derived));
    return friction;
}

/// A document with one changed object of every class: material options stand alone in a list, where
/// any may stand, since no field of a material holds the sub-options.
Document WithEveryClass() {
    Document document = Document::New("every");
    for (mdl_Description const* description : HeldClasses()) {
        nga::DescribedObject object = Changed(*description);
        cow_String const name(description->Name());
        if (nga::Collection const* collection = CollectionOf(*description)) {
            collection->Insert(document.Model(), name, object.release());
        } else if (std::string(description->Name()).rfind("kbeC_", 0) == 0) {
            if (!description->Base()) object = BehaviourWith(*description, std::move(object));
            auto* section = new nga_ConnectorSection;
            mdl_Field const& list = *section->Description().FindField("options");
            list.Type().Adopt(list.At(static_cast<void*>(section)), object.release());
            CollectionOf(section->Description())->Insert(document.Model(), name, section);
        } else {
            auto* mullins = new kmaC_MullinsEffect;
            mdl_Field const& list = *mullins->Description().FindField("planarTests");
            list.Type().Adopt(list.At(static_cast<void*>(mullins)), object.release());
            auto* material = new kmaC_Material;
            material->mullinsEffect = mullins;
            document.Materials().Insert(name, material);
        }
    }
    return document;
}

void ExpectSame(Document const& a, Document const& b) {
    for (nga::Collection const* collection : nga::Collection::All()) {
        EXPECT_EQ(collection->Size(a.Model()), collection->Size(b.Model()));
        collection->Each(a.Model(), [&](cow_String const& key, void const* object) {
            void const* other = collection->Find(b.Model(), key);
            ASSERT_NE(other, nullptr) << key.View();
            unsigned const typeId = collection->DynTypeIdOf(object);
            ASSERT_EQ(collection->DynTypeIdOf(other), typeId) << key.View();
            EXPECT_TRUE(mdl_Description::Find(typeId)->Same(object, other)) << key.View();
        });
    }
}

void EveryPathLeadsBack(Document const& document, nga::TreeNode const& node,
                        std::string const& owner) {
    std::string const path = owner + node.step;
    EXPECT_EQ(nga::Resolve(document, path).path, path);
    for (nga::TreeNode const& child : node.children) EveryPathLeadsBack(document, child, path);
}

}  // namespace

TEST(EveryClass, ComesBackTheSameFromItsTextWithEveryFieldChanged) {
    std::vector<mdl_Description const*> const classes = HeldClasses();
    EXPECT_GE(classes.size(), 159u);
    for (mdl_Description const* description : classes) {
        nga::DescribedObject const object = Changed(*description);
        std::string const text = TextOf(*description, object.get());
        nga::DescribedObject const read = Read(*description, text);
        EXPECT_TRUE(description->Same(object.get(), read.get())) << text;
        EXPECT_EQ(TextOf(*description, read.get()), text);
        for (mdl_Field const* field : description->AllFields()) {
            nga::Defaults defaults;
            bool const usual =
                field->Type().Same(field->At(object.get()), field->At(defaults.Of(*description)));
            bool const told =
                text.find("\n  \"" + std::string(field->Script()) + "\": ") != std::string::npos;
            EXPECT_NE(told, usual) << description->Name() << ' ' << field->Script();
        }
    }
}

TEST(EveryClass, ComesBackTheSameFromItsTextWithNoNumberSet) {
    for (mdl_Description const* description : HeldClasses()) {
        nga::DescribedObject const object(description->Create(),
                                          nga::DescribedDeleter{description});
        for (mdl_Field const* field : description->AllFields())
            nga::SetNotSet(*field, field->At(object.get()));
        std::string const text = TextOf(*description, object.get());
        EXPECT_EQ(text.find("2147483647"), std::string::npos) << text;
        EXPECT_EQ(text.find("e+308"), std::string::npos) << text;
        EXPECT_TRUE(description->Same(object.get(), Read(*description, text).get())) << text;
    }
}

TEST(EveryClass, ComesBackTheSameFromADocumentsText) {
    Document const document = WithEveryClass();
    std::string const text = nga::ExportJson(document);
    Document again = Document::New("every");
    nga::ImportJson(again, text);
    ExpectSame(document, again);
    EXPECT_EQ(nga::ExportJson(again), text);
}

TEST(EveryClass, ComesBackTheSameFromAFile) {
    TemporaryFolder const folder;
    Document document = WithEveryClass();
    std::string const text = nga::ExportJson(document);
    document.SaveAs(folder.Path("every.nga"));
    Document const opened = Document::Open(folder.Path("every.nga"));
    ExpectSame(document, opened);
    EXPECT_EQ(nga::ExportJson(opened), text);
}

TEST(EveryClass, KeepsItsIdentitiesThroughFiles) {
    TemporaryFolder const folder;
    auto const identities = [](Document const& document) {
        std::map<std::string, std::vector<cls_Uid>> found;
        for (nga::Collection const* collection : nga::Collection::All())
            collection->Each(document.Model(), [&](cow_String const& key, void const* object) {
                auto const& description = *mdl_Description::Find(collection->DynTypeIdOf(object));
                std::vector<cls_Uid>& uids = found[std::string(key.View())];
                for (auto const* level = &description; level; level = level->Base())
                    uids.push_back(level->Uid(const_cast<void*>(object)));
                // The base of a material option has a new identity with each reading.
                if (&description != &kmaC_Material::Description())
                    nga_test::CollectUids(description, object, uids);
            });
        return found;
    };
    Document document = WithEveryClass();
    document.SaveAs(folder.Path("one.nga"));
    Document opened = Document::Open(folder.Path("one.nga"));
    auto const first = identities(opened);
    EXPECT_GE(first.size(), 140u);
    opened.SaveAs(folder.Path("two.nga"));
    EXPECT_EQ(identities(opened), first);
    EXPECT_EQ(identities(Document::Open(folder.Path("two.nga"))), first);
    for (auto const& [key, uids] : identities(document))
        EXPECT_EQ(uids.front(), first.at(key).front()) << key;
}

TEST(EveryClass, IsShownUnderAPathThatLeadsBackToIt) {
    Document const document = WithEveryClass();
    EveryPathLeadsBack(document, nga::BuildTree(document, nga::Resolve(document, "")), "");
}
