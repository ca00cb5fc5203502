#include "kmaC_Material.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "support/FieldMutator.h"
#include "support/Owned.h"
#include "support/StoredObject.h"
#include "support/Tables.h"

namespace kmaC_Material_test {

struct Member {
    int place;
    char const* field;
    char const* held;
    char const* script;
    int walk;
};

Member const members[] = {
#define KMA_MEMBER(place, field, held, script, walk) {place, field, held, script, walk},
#include "kmaC_Material_members.inc"
#undef KMA_MEMBER
};

class Material : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    std::vector<mdl_Field> const& Fields() const { return kmaC_Material::Description().Fields(); }

private:
    int m_count = 0;
};

TEST_F(Material, HasItsMembersInOrderUnderTheirNames) {
    ASSERT_EQ(std::size(members), 68u);
    ASSERT_EQ(Fields().size(), 68u);
    for (std::size_t i = 0; i < 68; ++i) {
        mdl_Field const& field = Fields()[i];
        EXPECT_EQ(members[i].place, static_cast<int>(i) + 1);
        EXPECT_STREQ(field.Name(), members[i].field);
        EXPECT_STREQ(field.Script(), members[i].script) << members[i].field;
        EXPECT_EQ(field.Handle().Index(), static_cast<int>(i));
    }
}

TEST_F(Material, RegistersEachMemberWithItsClass) {
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    cls_ClassMetadata const* metadata = registrar.Find(0x2380001);
    ASSERT_NE(metadata, nullptr);
    EXPECT_STREQ(metadata->Name().Text(), "kmaC_Material");
    EXPECT_EQ(metadata->Version(), 1106);
    EXPECT_EQ(metadata->ParentTypeId(), 1u);
    ASSERT_EQ(metadata->Attributes().size(), 68u);
    for (std::size_t i = 0; i < 68; ++i) {
        cls_Attribute const& attribute = metadata->Attributes()[i];
        EXPECT_STREQ(attribute.field.Name().Text(), members[i].field);
        EXPECT_EQ(attribute.collection, 0);
        if (members[i].held) {
            EXPECT_EQ(attribute.type, 15) << members[i].field;
            EXPECT_STREQ(typ_ArchCompTable::GetName(attribute.arg), members[i].held)
                << members[i].field;
        } else {
            EXPECT_EQ(attribute.type, 11) << members[i].field;
            EXPECT_EQ(attribute.arg, 1u) << members[i].field;
        }
    }
}

/// The names of the members that a material asks, in order.
class Asked final : public mdl_RuleVisitor {
public:
    explicit Asked(kmaC_Material const& material) : m_material(material) { material.Rules(*this); }
    std::vector<std::string> names;

protected:
    void Failed(int code) override { names.push_back("code " + std::to_string(code)); }
    void Object(void const* member, int, void const*, mdl_Asked) override {
        for (mdl_Field const& field : kmaC_Material::Description().Fields())
            if (field.At(&m_material) == member) names.push_back(field.Name());
    }

private:
    kmaC_Material const& m_material;
};

/// A material with every option that there is a class for.
nga_test::Owned<kmaC_Material> WithEveryOption() {
    nga_test::Owned<kmaC_Material> material(new kmaC_Material);
    for (mdl_Field const& field : kmaC_Material::Description().Fields())
        if (field.Type().Kind() == mdl_FieldKind::Option)
            field.Type().Adopt(field.At(material.get()), field.Type().Held()->Create());
    return material;
}

TEST_F(Material, AsksItsOptionsInAnOrderOfItsOwnAndSomeNever) {
    std::vector<std::string> expected;
    for (int walk = 1; walk <= 51; ++walk) {
        int found = 0;
        for (Member const& member : members) {
            if (member.walk != walk) continue;
            ++found;
            mdl_Field const* field = kmaC_Material::Description().FindField(member.field);
            if (field->Type().Kind() == mdl_FieldKind::Option) expected.push_back(member.field);
        }
        EXPECT_EQ(found, 1) << walk;
    }
    EXPECT_GE(expected.size(), 4u);
    EXPECT_EQ(Asked(*WithEveryOption()).names, expected);
    EXPECT_TRUE(Asked(kmaC_Material()).names.empty());
}

TEST_F(Material, TheFirstFailureOfTheWalkIsTheOneRaised) {
    kmaC_Material material;
    auto* elastic = new kmaC_Elastic;
    elastic->noCompression = elastic->noTension = true;
    material.elastic = elastic;
    auto* specificHeat = new kmaC_SpecificHeat;
    specificHeat->dependencies = -1;
    material.specificHeat = specificHeat;
    auto* density = new kmaC_Density;
    density->table = kmaC_MaterialTable(2, 1);
    material.density = density;
    auto message = [&] {
        try {
            material.AssertValid();
            return std::string();
        } catch (nex_TextException const& failure) {
            return std::string(failure.UserReport().Text());
        }
    };
    auto text = [](int code) { return std::string(kmaC_ErrorText(kmaC_ErrorEnm(code)).Text()); };
    // density stands before elastic in the walk, and specificHeat behind it.
    EXPECT_EQ(message(), text(21));
    material.density = static_cast<kmaC_Density*>(nullptr);
    EXPECT_EQ(message(), text(34));
    elastic->noTension = false;
    EXPECT_EQ(message(), text(0));
    specificHeat->dependencies = 0;
    EXPECT_EQ(message(), "");
}

TEST_F(Material, WithoutOptionsIsValidAndWritesNullsAndTwoTexts) {
    kmaC_Material const material;
    EXPECT_NO_THROW(material.AssertValid());
    std::string expected = "start 0x2380001\n";
    for (Member const& member : members) {
        std::string const name = std::to_string(member.place - 1) + ":" + member.field;
        expected += member.held ? "null " + name + "\n" : "text " + name + "=\n";
    }
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(material), expected);
    EXPECT_EQ(log.Write(material), "start 0x2380001 again\n");
    nga_test::Owned<kmaC_Material> const read(DDB_DeepCopyPtr(&material, material.DynTypeId()));
    EXPECT_TRUE(kmaC_Material::Description().Same(&material, read.get()));
}

TEST_F(Material, WritesAnOptionWithItsHandle) {
    kmaC_Material material;
    material.density = new kmaC_Density;
    nga_test::WriteLog log;
    std::string const lines = log.Write(material);
    EXPECT_NE(lines.find("field 24:density with handle {\n"
                         "  start 0x2380017\n"
                         "  base 0x2380002 {\n"
                         "    start 0x2380002\n"
                         "  }\n"
                         "  bool 0:temperatureDependency=false\n"
                         "  int 1:dependencies=0\n"
                         "  field 2:table {\n"
                         "    start 0x2380058\n"
                         "    field 0:table {\n"
                         "      start 0x230001\n"
                         "      check 82\n"
                         "      array 0x0\n"
                         "    }\n"
                         "    bool 1:allowEmptyFirstRow=true\n"
                         "  }\n"
                         "}\n"
                         "null 25:depvar\n"),
              std::string::npos)
        << lines;
    ASSERT_FALSE(log.handles.empty());
    EXPECT_EQ(log.handles[0], static_cast<cow_HandleBase const*>(&material.density));
}

TEST_F(Material, ReadsItsOptionsAsTheReaderSharesThem) {
    nga_test::StoredObject stored;
    auto* elastic = new kmaC_Elastic;
    stored.Refer("elastic", elastic);
    stored.texts["description"] = "structural steel";
    cls_ReadVisitor const visitor(stored.Memento());
    kmaC_Material const material(visitor);
    EXPECT_EQ(material.elastic.GetPtr(), elastic);
    EXPECT_EQ(material.elastic.Count(), 2);
    EXPECT_EQ(material.density.GetPtr(), nullptr);
    EXPECT_STREQ(material.description.Text(), "structural steel");
    EXPECT_STREQ(material.materialIdentifier.Text(), "");
    EXPECT_EQ(material.uid, stored.uid);
    EXPECT_NE(stored.lines.find("object 29:elastic 0x238001E\n"), std::string::npos);
    std::string const end =
        "text 66:description or ''\n"
        "text 67:materialIdentifier or ''\n"
        "uid\n";
    EXPECT_EQ(stored.lines.substr(stored.lines.size() - end.size()), end);
}

TEST_F(Material, ACopySharesEveryOptionAndText) {
    nga_test::Owned<kmaC_Material> const material = WithEveryOption();
    material->description = "a steel";
    nga_test::Owned<kmaC_Material> const copy(material->Copy());
    EXPECT_EQ(copy->uid, material->uid);
    EXPECT_EQ(copy->description.Text(), material->description.Text());
    for (mdl_Field const& field : Fields()) {
        if (field.Type().Kind() != mdl_FieldKind::Option) continue;
        EXPECT_EQ(field.Type().ConstObject(field.At(copy.get()), 0),
                  field.Type().ConstObject(field.At(material.get()), 0))
            << field.Name();
    }
    copy->elastic.Get().dependencies = 3;
    EXPECT_EQ(material->elastic.ConstGet().dependencies, 0);
    EXPECT_NE(copy->elastic.GetPtr(), material->elastic.GetPtr());
    EXPECT_EQ(copy->density.GetPtr(), material->density.GetPtr());
}

TEST_F(Material, BearsItsScriptNames) {
    EXPECT_STREQ(kmaC_Material::nameCmd().Text(), "name");
    EXPECT_STREQ(kmaC_Material::materialRepositoryCmd().Text(), "materials");
    EXPECT_STREQ(kmaC_Material::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(kmaC_Material::constructorCmd().Text(), "Material");
    EXPECT_STREQ(kmaC_Material::elasticCmd().Text(), "elastic");
    EXPECT_STREQ(kmaC_Material::foamCmd().Text(), "crushableFoam");
    EXPECT_EQ(kmaC_Material().DynTypeId(), 0x2380001u);
}

TEST_F(Material, ItsContainerAndWrapperStandInTheirDomains) {
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase}) {
        cls_ClassMetadata const* container = registrar.Domain(domain).Find(0x238005A);
        cls_ClassMetadata const* wrapper = registrar.Domain(domain).Find(0x238007D);
        EXPECT_EQ(container == nullptr, domain == cls_DomainDatabase);
        EXPECT_EQ(wrapper == nullptr, domain != cls_DomainDatabase);
        if (container) {
            EXPECT_STREQ(container->Name().Text(), "kmaC_MaterialContainer");
            EXPECT_EQ(container->Version(), 800);
            EXPECT_EQ(container->ParentTypeId(), 0xA0001u);
        } else {
            EXPECT_STREQ(wrapper->Name().Text(), "kmaC_MCWrapper");
            EXPECT_EQ(wrapper->Version(), 401);
            EXPECT_EQ(wrapper->ParentTypeId(), 0xA000Du);
        }
    }
}

TEST_F(Material, AModelReachesItsRepositoryThroughTheExtension) {
    ddr_Model a("a");
    ddr_Model b("b");
    auto repository = [](ddr_Model& model) -> kmaC_MaterialContainer& {
        mdl_Extension& payload = model.GetExtension(ddr_Model::materialCmd()).GetValue();
        EXPECT_TRUE(nex_canDynamicCastRef(mdl_Repository::TypeId(), payload.DynTypeId(), "", 0));
        EXPECT_EQ(payload.DynTypeId(), kmaC_MaterialContainer::TypeId());
        return static_cast<kmaC_MaterialContainer&>(payload);
    };
    repository(a).Insert("steel", kmaC_Material());
    EXPECT_EQ(repository(a).Size(), 1);
    EXPECT_EQ(repository(b).Size(), 0);
}

TEST(MaterialModule, FinalizeThenInitializeRegistersTheExtensionAnew) {
    auto registered = [] {
        return ddr_Model::RegisteredExtensions().Find(ddr_Model::materialCmd()) != nullptr;
    };
    int count = 0;
    kmaC_initialize(count);
    EXPECT_TRUE(registered());
    kmaC_finalize(count);
    EXPECT_FALSE(registered());
    kmaC_initialize(count);
    EXPECT_TRUE(registered());
    kmaC_finalize(count);
}

}  // namespace kmaC_Material_test
