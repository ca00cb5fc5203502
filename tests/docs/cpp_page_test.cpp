// The examples of docs/cpp.md: what stands between a pair of marks is a block of the page.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

namespace {

// [make]
kmaC_Material MakeSteel() {
    auto* elastic = new kmaC_Elastic;  // isotropic, by default
    elastic->table = kmaC_MaterialTable(1, 2);
    elastic->table.MutableCell(0, 0) = 210000.0;  // Young's modulus
    elastic->table.MutableCell(0, 1) = 0.3;       // Poisson's ratio

    auto* density = new kmaC_Density;
    density->table = kmaC_MaterialTable(1, 1);
    density->table.MutableCell(0, 0) = 7.85e-9;

    kmaC_Material steel;
    steel.description = "structural steel, tonne and millimetre";
    steel.elastic = elastic;  // the member owns it from here on
    steel.density = density;
    return steel;
}
// [/make]

// [repository]
kmaC_MaterialContainer& MaterialsOf(ddr_Model& model) {
    mdl_Extension& extension = model.GetExtension(ddr_Model::materialCmd());
    return static_cast<kmaC_MaterialContainer&>(extension.GetValue());
}
// [/repository]

class CppPage : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

TEST_F(CppPage, SharesAndDetaches) {
    // [share]
    kmaC_Material const steel = MakeSteel();
    kmaC_Material warm = steel;  // no option is copied: both hold the same two objects
    bool const shared = warm.elastic.GetPtr() == steel.elastic.GetPtr();

    warm.elastic.Get().table.MutableCell(0, 0) = 180000.0;  // copies the option, and its table

    double const before = steel.elastic.ConstGet().table.Cell(0, 0);  // 210000
    double const after = warm.elastic.ConstGet().table.Cell(0, 0);    // 180000
    bool const stillShared = warm.density.GetPtr() == steel.density.GetPtr();
    // [/share]
    EXPECT_TRUE(shared);
    EXPECT_EQ(before, 210000.0);
    EXPECT_EQ(after, 180000.0);
    EXPECT_TRUE(stillShared);
    // [absent]
    if (kmaC_Expansion const* expansion = steel.expansion.GetPtr()) {
        expansion->AssertValid();
    }
    warm.density = nullptr;  // takes the option away
    // [/absent]
    EXPECT_TRUE(warm.density.IsNull());
    EXPECT_FALSE(steel.density.IsNull());
}

TEST_F(CppPage, CopiesCompletely) {
    kmaC_Material const steel = MakeSteel();
    // [deep-copy]
    kmaC_MaterialContainer::Handle const apart(DDB_DeepCopyPtr(&steel, steel.DynTypeId()));
    bool const sameContent = kmaC_Material::Description().Same(&steel, apart.GetPtr());  // true
    bool const sameRecord = apart.ConstGet().uid == steel.uid;                           // false
    // [/deep-copy]
    EXPECT_TRUE(sameContent);
    EXPECT_FALSE(sameRecord);
    EXPECT_NE(apart.ConstGet().elastic.GetPtr(), steel.elastic.GetPtr());
}

TEST_F(CppPage, ValidatesAndCatches) {
    // [validate]
    kmaC_Material material = MakeSteel();
    kmaC_Elastic& elastic = material.elastic.Get();
    elastic.noCompression = true;
    elastic.noTension = true;

    std::string message;
    try {
        material.AssertValid();  // asks the options too, and raises at the first failure
    } catch (nex_Exception const& failure) {
        message = failure.UserReport().Text();
    }
    // [/validate]
    EXPECT_EQ(message, kmaC_ErrorText(kmaC_ErrorEnm(34)).Text());
    EXPECT_NE(message, "");
}

// [collect-rules]
class FailedCodes : public mdl_RuleVisitor {
public:
    std::vector<int> codes;

protected:
    void Failed(int code) override { codes.push_back(code); }
    void Object(void const*, int, void const* object, mdl_Asked how) override {
        mdl_Description::Find(how.dynTypeId(object))->RunRules(object, *this);
    }
};
// [/collect-rules]

TEST_F(CppPage, CollectsAllFailures) {
    // [collect]
    kmaC_Material material = MakeSteel();
    material.elastic.Get().noCompression = true;
    material.elastic.Get().noTension = true;
    material.density.Get().table.MutableCell(0, 0) = 0.0;

    FailedCodes failed;
    material.Rules(failed);  // two codes, of the density's table and of the elasticity
    // [/collect]
    EXPECT_EQ(failed.codes, (std::vector<int>{21, 34}));
}

TEST_F(CppPage, WalksARepository) {
    std::string names;
    int withDensity = 0;
    // [walk]
    ddr_Model model("bracket");
    kmaC_MaterialContainer& materials = MaterialsOf(model);
    materials.Insert("steel-10", MakeSteel());
    materials.Insert("steel-9", MakeSteel());

    cow_List<cow_String> const keys = materials.Keys();  // natural order: steel-9, steel-10
    for (int i = 0; i < keys.Size(); ++i) {
        kmaC_Material const& material = materials.ConstGet(keys.ConstGet(i));
        if (material.density.GetPtr()) ++withDensity;
        names += keys.ConstGet(i).Text();
        names += ' ';
    }
    // [/walk]
    EXPECT_EQ(names, "steel-9 steel-10 ");
    EXPECT_EQ(withDensity, 2);
    // [look-up]
    if (kmaC_Material const* steel = materials.ConstGetPtr("steel-9")) steel->AssertValid();
    if (kmaC_Material* steel = materials.GetPtr("steel-10")) steel->description = "for the arm";
    bool const known = materials.IsMember("bronze");  // false
    // [/look-up]
    EXPECT_FALSE(known);
    EXPECT_EQ(materials.ConstGet("steel-10").description, "for the arm");
    // [snapshot]
    kmaC_MaterialContainer const snapshot = materials;  // the tree is shared: no time, no memory
    materials.Remove("steel-9");
    bool const kept = snapshot.IsMember("steel-9");  // true
    // [/snapshot]
    EXPECT_TRUE(kept);
    EXPECT_FALSE(materials.IsMember("steel-9"));
}

TEST_F(CppPage, ListensToChanges) {
    ddr_Model model("bracket");
    kmaC_MaterialContainer& materials = MaterialsOf(model);
    // [listen]
    std::vector<std::string> seen;
    omu_ChangeHistory& history = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    int const listener = history.Listen(
        [&](omu_PrimTuple const& change) { seen.push_back(change.AsRepr().Text()); });

    materials.Insert("steel", MakeSteel());
    materials.Get("steel").description = "checked";
    materials.Remove("steel");

    history.StopListening(listener);
    // [/listen]
    EXPECT_EQ(seen.size(), 3u);
    for (std::string const& record : seen) EXPECT_NE(record.find("'steel'"), record.npos);
    // [keep]
    history.StartKeeping();
    materials.Insert("steel", MakeSteel());
    std::vector<omu_PrimTuple> const changes = history.Drain();  // one change
    history.StopKeeping();
    // [/keep]
    EXPECT_EQ(changes.size(), 1u);
}

TEST_F(CppPage, WritesAndReads) {
    // [write]
    ddr_Model model("bracket");
    kmaC_Material const steel = MakeSteel();
    MaterialsOf(model).Insert("steel", steel);

    cls_ClassRegistrar const& classes =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    rfm_MemoryDatabase database;
    mdl_Extension const& extension = model.ConstGetExtension(ddr_Model::materialCmd());
    int const row = rom_Transporter(database, classes).Write(&extension, extension.DynTypeId());
    // [/write]
    EXPECT_EQ(row, 0);
    // [read]
    rom_Transporter reader(database, classes);
    cow_ErasedHandle const read = reader.Read(kmaC_MCWrapper::TypeId(), row);
    auto const& wrapper = *static_cast<kmaC_MCWrapper const*>(read.ErasedReferent());
    auto const& materials = static_cast<kmaC_MaterialContainer const&>(wrapper.ConstGetValue());
    bool const same = kmaC_Material::Description().Same(&steel, materials.ConstGetPtr("steel"));
    // [/read]
    EXPECT_TRUE(same);
    // [read-one]
    cow_ErasedHandle const one = reader.ReadMapElement(kmaC_MCWrapper::TypeId(), row, "extension",
                                                       "steel", kmaC_Material::TypeId());
    // [/read-one]
    EXPECT_FALSE(one.IsNull());
}

TEST_F(CppPage, FindsByPath) {
    ddr_Model model("bracket");
    MaterialsOf(model).Insert("steel", MakeSteel());
    // [path]
    ddr_Session session;
    session.Add(model);

    kmaC_MaterialContainerShortcut const materials(
        new kmaC_MaterialContainerInModelShortcut(ddr_ShortcutToModel("bracket")));
    kmaC_MaterialShortcut const steel(
        new kmaC_MaterialInMaterialContainerShortcut(materials, "steel"));

    cow_String const path = steel.Path();  // documents['bracket'].materials['steel']
    kmaC_Material const& found = steel.ConstGet(session);
    // [/path]
    EXPECT_EQ(path, "documents['bracket'].materials['steel']");
    EXPECT_FALSE(found.elastic.IsNull());
}

TEST_F(CppPage, ReadsTheDescription) {
    std::string shown;
    // [describe]
    mdl_Description const& description = kmaC_Elastic::Description();
    kmaC_Elastic const elastic;
    for (mdl_Field const* field : description.AllFields()) {
        shown += field->Script();
        if (field->Type().Kind() == mdl_FieldKind::Enum) {
            unsigned const number = field->Type().Number(field->At(&elastic));
            for (omu_EnumRow const* row = field->Type().Rows(); row->literal; ++row)
                if (row->value == number) shown += std::string("=") + row->literal;
        }
        shown += ' ';
    }
    // type=ISOTROPIC noCompression noTension ... moduli=LONG_TERM table failStress failStrain
    // [/describe]
    EXPECT_EQ(shown,
              "type=ISOTROPIC noCompression noTension temperatureDependency dependencies "
              "moduli=LONG_TERM table failStress failStrain ");
}

}  // namespace
