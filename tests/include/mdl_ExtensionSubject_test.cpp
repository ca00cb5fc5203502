#include "mdl_ExtensionSubject.h"

#include <gtest/gtest.h>

#include <memory>

#include "nex_TextException.h"
#include "support/SpecimenRepository.h"
#include "support/StoredObject.h"

namespace mdl_ExtensionSubject_test {

/// Something that has extensions, as a model has.
class Owner : public mdl_ExtensionSubject<Owner, mdl_OdbExtensionTable<mdl_Extension>> {};

/// Registers the parts while it lives.
class Registered {
public:
    Registered() {
        specimen_PartCont const repository;
        specimen_Wrapper const wrapper(repository);
        Owner::RegisterExtension("parts", wrapper);
    }
    ~Registered() { Owner::UnRegisterExtension("parts"); }
};

specimen_PartCont& Parts(Owner& owner) {
    return dynamic_cast<specimen_PartCont&>(owner.GetExtension("parts").GetValue());
}

TEST(ExtensionSubject, EachObjectHasInstancesOfItsOwn) {
    Registered const registered;
    Owner a;
    Owner b;
    EXPECT_FALSE(a.HasInstance("parts"));
    Parts(a).Insert("x", specimen_Part());
    EXPECT_TRUE(a.HasInstance("parts"));
    EXPECT_EQ(Parts(a).Size(), 1);
    EXPECT_EQ(Parts(b).Size(), 0);
    EXPECT_EQ(&a.GetExtension("parts"), &a.ConstGetExtension("parts"));
    auto const& wrapperA = dynamic_cast<specimen_Wrapper const&>(a.ConstGetExtension("parts"));
    auto const& wrapperB = dynamic_cast<specimen_Wrapper const&>(b.ConstGetExtension("parts"));
    EXPECT_NE(wrapperA.Uid(), wrapperB.Uid());
    Owner const c;
    EXPECT_EQ(
        dynamic_cast<specimen_PartCont const&>(c.ConstGetExtension("parts").ConstGetValue()).Size(),
        0);
}

TEST(ExtensionSubject, ThePrototypeIsACopyAndRegistersAgainUnderItsName) {
    {
        Registered const registered;
        EXPECT_EQ(Owner::RegisteredExtensions().Size(), 1);
        Registered const again;
        EXPECT_EQ(Owner::RegisteredExtensions().Size(), 1);
    }
    EXPECT_EQ(Owner::RegisteredExtensions().Size(), 0);
    Registered const anew;
    Owner owner;
    EXPECT_EQ(Parts(owner).Size(), 0);
}

TEST(ExtensionSubject, AnUnregisteredNameFailsButInstancesStay) {
    Owner owner;
    {
        Registered const registered;
        Parts(owner).Insert("x", specimen_Part());
    }
    EXPECT_EQ(Parts(owner).Size(), 1);
    Owner fresh;
    EXPECT_THROW(fresh.GetExtension("parts"), nex_TextException);
    EXPECT_THROW(fresh.ConstGetExtension("other"), nex_TextException);
}

TEST(ExtensionSubject, TakesWhatAReaderPutsIn) {
    Registered const registered;
    Owner owner;
    specimen_PartCont repository;
    repository.Insert("read", specimen_Part());
    owner.SetExtension("parts", new specimen_Wrapper(repository));
    EXPECT_TRUE(Parts(owner).IsMember("read"));
}

TEST(ExtensionWrapper, GivesTheRepositoryAsItsPayload) {
    specimen_PartCont repository;
    repository.Insert("x", specimen_Part());
    specimen_Wrapper wrapper(repository);
    EXPECT_EQ(wrapper.DynTypeId(), specimen_Wrapper::TypeId());
    EXPECT_EQ(wrapper.GetValue().DynTypeId(), specimen_PartCont::TypeId());
    EXPECT_EQ(&wrapper.GetValue(), &wrapper.ConstGetValue());
    EXPECT_EQ(repository.GetValue().DynTypeId(), specimen_PartCont::TypeId());
    auto& held = dynamic_cast<specimen_PartCont&>(wrapper.GetValue());
    EXPECT_EQ(held.ConstGetPtr("x"), repository.ConstGetPtr("x"));
    held.Get("x").number = 40;
    EXPECT_EQ(repository.ConstGet("x").number, 4);
}

TEST(ExtensionWrapper, CopyKeepsTheIdentityAndNewUidGivesAnother) {
    specimen_Wrapper const wrapper{specimen_PartCont()};
    std::unique_ptr<mdl_Extension> const copy(wrapper.Copy());
    auto& own = dynamic_cast<specimen_Wrapper&>(*copy);
    EXPECT_EQ(own.Uid(), wrapper.Uid());
    cls_Uid const repository = dynamic_cast<specimen_PartCont&>(own.GetValue()).Uid();
    own.NewUid();
    EXPECT_NE(own.Uid(), wrapper.Uid());
    EXPECT_EQ(dynamic_cast<specimen_PartCont&>(own.GetValue()).Uid(), repository);
    EXPECT_NE(specimen_Wrapper(specimen_PartCont()).Uid(), wrapper.Uid());
}

TEST(ExtensionWrapper, ItsRecordHoldsTheEmbeddedRepository) {
    specimen_PartCont repository;
    repository.Insert("x", specimen_Part());
    specimen_Wrapper const wrapper(repository);
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(wrapper),
              "start 0x7770012\n"
              "base 0xA000D {\n"
              "  start 0xA000D\n"
              "}\n"
              "field 0:extension {\n"
              "  start 0x230002\n"
              "  check 2\n"
              "  map of names\n"
              "  element x {\n"
              "    start 0x7770001\n"
              "    int 0:number=4\n"
              "  }\n"
              "  must delete\n"
              "  writer deleted\n"
              "}\n");
    EXPECT_EQ(log.Write(wrapper), "start 0x7770012 again\n");
}

TEST(ExtensionWrapper, ReadsTheEmbeddedRepository) {
    nga_test::StoredObject stored;
    stored.Field("extension").elements = {
        {"x", 0, nga_test::StoredObject::Erased(new specimen_Part), {}}};
    cls_ReadVisitor const visitor(stored.Memento());
    specimen_Wrapper const wrapper(visitor);
    EXPECT_EQ(wrapper.Uid(), stored.uid);
    EXPECT_EQ(stored.lines, "field 0:extension\nuid\n");
    EXPECT_EQ(stored.Field("extension").liveMementos, 0);
    EXPECT_TRUE(dynamic_cast<specimen_PartCont const&>(wrapper.ConstGetValue()).IsMember("x"));
}

TEST(ExtensionWrapper, RegistersItsOneField) {
    cls_ClassRegistrar registrar;
    specimen_Wrapper::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(specimen_Wrapper::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_STREQ(metadata->Name().Text(), "specimen_Wrapper");
    EXPECT_EQ(metadata->Version(), 401);
    EXPECT_EQ(metadata->ParentTypeId(), mdl_Extension::TypeId());
    ASSERT_EQ(metadata->Attributes().size(), 1u);
    cls_Attribute const& extension = metadata->Attributes()[0];
    EXPECT_STREQ(extension.field.Name().Text(), "extension");
    EXPECT_EQ(extension.field.Index(), 0);
    EXPECT_EQ(extension.type, 15);
    EXPECT_EQ(extension.arg, 0x230002u);
    EXPECT_EQ(extension.collection, 2);
}

}  // namespace mdl_ExtensionSubject_test
