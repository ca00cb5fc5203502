#include "rom_Transporter.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <climits>
#include <functional>

#include "DDB_NonGeometricAttributes.h"
#include "rfm_MemoryDatabase.h"

namespace {

using Element = cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>;

// Database: the domain that a model's file is written and read under.
class Transporter : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        m_registrar = &omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static kmaC_Material Steel() {
        kmaC_Material material;
        material.description = cow_String("a steel");
        auto* elastic = new kmaC_Elastic;
        elastic->type = kmaC_Elastic::TypeEnm::LAMINA;
        elastic->table = kmaC_MaterialTable(2, 2);
        elastic->table.MutableCell(0, 0) = 210e3;
        elastic->table.MutableCell(1, 1) = -0.0;
        elastic->failStress = new kmaC_FailStress;
        material.elastic = elastic;
        material.density = new kmaC_Density;
        return material;
    }
    std::string MessageOf(std::function<void()> const& action) {
        try {
            action();
        } catch (nex_Exception const& failure) {
            return failure.UserReport().Text();
        }
        return "";
    }
    // Puts a value into a stored row.
    void Poke(unsigned typeId, int oid, char const* column, rfm_Value const& value) {
        rfm_Table& table = *m_database.FindTable(typeId);
        std::unique_ptr<rfm_Cursor> cursor = table.OpenCursor();
        ASSERT_TRUE(cursor->Seek(oid));
        std::vector<rfm_Value> row;
        for (int i = 0; i < table.Metadata().ColumnCount(); ++i) row.push_back(cursor->Value(i));
        row[static_cast<std::size_t>(table.Metadata().Find(column))] = value;
        // The row's own views must outlive the replacement.
        std::vector<std::string> kept;
        kept.reserve(row.size());
        for (rfm_Value& cell : row) {
            if (cell.tag == rfm_Value::Text)
                cell.text = kept.emplace_back(cell.text, cell.length).c_str();
            else if (cell.tag == rfm_Value::Bytes)
                cell.bytes =
                    kept.emplace_back(static_cast<char const*>(cell.bytes), cell.length).c_str();
        }
        table.Replace(oid, row.data());
    }

    rfm_MemoryDatabase m_database;
    cls_ClassRegistrar const* m_registrar = nullptr;

private:
    int m_count = 0;
};

TEST_F(Transporter, BringsAMaterialThereAndBack) {
    kmaC_Material const material = Steel();
    rom_Transporter out(m_database, *m_registrar);
    EXPECT_EQ(out.Write(&material, material.DynTypeId()), 0);

    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(kmaC_Material::TypeId(), 0);
    auto const& back = *static_cast<kmaC_Material const*>(read.ErasedReferent());
    EXPECT_TRUE(kmaC_Material::Description().Same(&material, &back));
    EXPECT_EQ(back.uid, material.uid);
    EXPECT_EQ(back.elastic.ConstGet().uid, material.elastic.ConstGet().uid);
}

TEST_F(Transporter, WritesOneIdentityOnceAndReadsItAsOneObject) {
    kmaC_MaterialContainer repository;
    kmaC_Material material = Steel();
    repository.Insert("a", material);
    material.uid.NewUid();
    repository.Insert("b", material);  // shares the options of "a"
    kmaC_MCWrapper const wrapper(repository);
    rom_Transporter out(m_database, *m_registrar);
    out.Write(&wrapper, wrapper.DynTypeId());
    EXPECT_EQ(m_database.FindTable(kmaC_Material::TypeId())->RowCount(), 2);
    EXPECT_EQ(m_database.FindTable(kmaC_Elastic::TypeId())->RowCount(), 1);
    EXPECT_EQ(m_database.FindTable(kmaC_MaterialOption::TypeId())->RowCount(), 3);

    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(kmaC_MCWrapper::TypeId(), 0);
    auto& back = *static_cast<kmaC_MCWrapper*>(read.ErasedReferent());
    auto& materials = static_cast<kmaC_MaterialContainer&>(back.GetValue());
    ASSERT_EQ(materials.Size(), 2);
    EXPECT_EQ(materials.ConstGet("a").elastic.GetPtr(), materials.ConstGet("b").elastic.GetPtr());
}

TEST_F(Transporter, ReadsOneElementOfAMapByItsKeyAlone) {
    kmaC_MaterialContainer repository;
    for (int i = 0; i < 20; ++i) {
        kmaC_Material material;
        material.description = cow_String(i);
        repository.Insert(cow_String("m") + cow_String(i), material);
    }
    kmaC_MCWrapper const wrapper(repository);
    rom_Transporter(m_database, *m_registrar).Write(&wrapper, wrapper.DynTypeId());
    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const found =
        in.ReadMapElement(kmaC_MCWrapper::TypeId(), 0, "extension", "m17", kmaC_Material::TypeId());
    ASSERT_FALSE(found.IsNull());
    EXPECT_EQ(static_cast<kmaC_Material const*>(found.ErasedReferent())->description, "17");
    EXPECT_TRUE(
        in.ReadMapElement(kmaC_MCWrapper::TypeId(), 0, "extension", "m20", kmaC_Material::TypeId())
            .IsNull());
}

TEST_F(Transporter, KeepsLoadCasesWithTheirMaps) {
    klcC_LoadCase loadCase;
    loadCase.loads.Insert("Load-1", 1.5f);
    loadCase.loads.Insert("Load-2", -0.0f);
    loadCase.fields.Insert("Temp", 2.0f);
    loadCase.includeActiveBaseStateBC = false;
    rom_Transporter(m_database, *m_registrar).Write(&loadCase, loadCase.DynTypeId());
    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(klcC_LoadCase::TypeId(), 0);
    EXPECT_TRUE(klcC_LoadCase::Description().Same(&loadCase, read.ErasedReferent()));
}

TEST_F(Transporter, MissingValuesReadAsZeroAndFalseWhateverTheClassDefaults) {
    klcC_LoadCase const loadCase;
    rom_Transporter(m_database, *m_registrar).Write(&loadCase, loadCase.DynTypeId());
    Poke(klcC_LoadCase::TypeId(), 0, "includeActiveBaseStateBC", rfm_Value());
    Poke(klcC_LoadCase::TypeId(), 0, "loads#OID", rfm_Value());
    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(klcC_LoadCase::TypeId(), 0);
    auto const& back = *static_cast<klcC_LoadCase const*>(read.ErasedReferent());
    EXPECT_FALSE(back.includeActiveBaseStateBC);
    EXPECT_EQ(back.loads.Size(), 0);
}

TEST_F(Transporter, RefusesAReferenceToAMissingRow) {
    kmaC_Material const material = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&material, material.DynTypeId());
    Poke(kmaC_Material::TypeId(), 0, "elastic#OID", rfm_Value::OfInt(7));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { in.Read(kmaC_Material::TypeId(), 0); }),
              "Row 7 of table kmaC_Elastic is referred to and does not exist.");
}

TEST_F(Transporter, RefusesAReferenceToAClassThatTheFieldCannotHold) {
    kmaC_Material const material = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&material, material.DynTypeId());
    Poke(kmaC_Material::TypeId(), 0, "elastic#ClassID", rfm_Value::OfInt(kmaC_Density::TypeId()));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { in.Read(kmaC_Material::TypeId(), 0); }),
              "Row 0 of table kmaC_Material, field \"elastic\", refers to an object of a class "
              "that it cannot hold.");
}

TEST_F(Transporter, AReferenceWithoutAClassIsToTheRegisteredOne) {
    kmaC_Material const material = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&material, material.DynTypeId());
    Poke(kmaC_Material::TypeId(), 0, "elastic#ClassID", rfm_Value());
    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(kmaC_Material::TypeId(), 0);
    EXPECT_TRUE(kmaC_Material::Description().Same(&material, read.ErasedReferent()));
}

TEST_F(Transporter, RefusesAnArrayThatItsColumnsDoNotDivide) {
    kmaC_Material const material = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&material, material.DynTypeId());
    // Density comes before elastic among a material's members, and its table is empty.
    Poke(cls_ListTypeId, 1, "Target#Columns", rfm_Value::OfInt(3));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { in.Read(kmaC_Material::TypeId(), 0); }),
              "Row 1 of table cls_List holds an array whose length its columns do not divide.");
}

TEST_F(Transporter, KeepsRowsOfAnArrayWithoutColumns) {
    kmaC_Density density;
    density.table = kmaC_MaterialTable(3, 0);
    rom_Transporter(m_database, *m_registrar).Write(&density, density.DynTypeId());
    rom_Transporter in(m_database, *m_registrar);
    cow_ErasedHandle const read = in.Read(kmaC_Density::TypeId(), 0);
    EXPECT_EQ(static_cast<kmaC_Density const*>(read.ErasedReferent())->table.Rows(), 3);
}

TEST_F(Transporter, AStoredNumberOutsideTheTableIsRefusedAndNothingIsHalfWritten) {
    kmaC_Material material = Steel();
    material.elastic.Get().type = static_cast<kmaC_Elastic::TypeEnm>(99);
    rom_Transporter out(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { out.Write(&material, material.DynTypeId()); }),
              "omu_PrimEnum(Enum) - Enum value not allowed: 99  Permissible: ISOTROPIC, "
              "ORTHOTROPIC, ANISOTROPIC, ENGINEERING_CONSTANTS, LAMINA, TRACTION, "
              "COUPLED_TRACTION, SHORT_FIBER");
    EXPECT_EQ(m_database.FindTable(kmaC_Elastic::TypeId()), nullptr);
    EXPECT_EQ(m_database.FindTable(kmaC_Material::TypeId()), nullptr);
}

TEST_F(Transporter, NamesTheRowOfALiteralThatIsNone) {
    kmaC_Material const material = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&material, material.DynTypeId());
    Poke(kmaC_Elastic::TypeId(), 0, "type", rfm_Value::OfText("ISOTROPY", 8));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_THROW(in.Read(kmaC_Material::TypeId(), 0), omu_ValueErrorException);
    EXPECT_EQ(in.FailedAt(), "row 0 of table kmaC_Elastic");
}

TEST_F(Transporter, RefusesACircleOfReferences) {
    kmaC_MullinsEffect outer;
    outer.uniaxialTests.Append(Element(new kmaC_MullinsEffect));
    rom_Transporter(m_database, *m_registrar).Write(&outer, outer.DynTypeId());
    // The inner one is complete first, so it is row 0; its element becomes the outer one.
    Poke(rom_Layout::listEntryTypeId, 0, "value#OID", rfm_Value::OfInt(1));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { in.Read(kmaC_MullinsEffect::TypeId(), 1); }),
              "Row 1 of table kmaC_MullinsEffect is part of a circle of references.");
}

TEST_F(Transporter, WritesAndReadsUpToOneDepthAndRefusesBeyondItBothWays) {
    auto const nested = [](int levels) {
        kmaC_MullinsEffect effect;
        for (int i = 1; i < levels; ++i) {
            kmaC_MullinsEffect outer;
            outer.uniaxialTests.Append(Element(effect.Copy()));
            effect = outer;
        }
        return effect;
    };
    kmaC_MullinsEffect const deepest = nested(rom_Transporter::maxDepth);
    int const row = rom_Transporter(m_database, *m_registrar).Write(&deepest, deepest.DynTypeId());
    {
        rom_Transporter in(m_database, *m_registrar);
        cow_ErasedHandle const read = in.Read(kmaC_MullinsEffect::TypeId(), row);
        EXPECT_TRUE(kmaC_MullinsEffect::Description().Same(&deepest, read.ErasedReferent()));
    }
    kmaC_MullinsEffect const deeper = nested(rom_Transporter::maxDepth + 1);
    rfm_MemoryDatabase other;
    EXPECT_EQ(
        MessageOf([&] { rom_Transporter(other, *m_registrar).Write(&deeper, deeper.DynTypeId()); }),
        "An object of class kmaC_MullinsEffect is nested deeper than can be stored.");
    // A store that holds one more level all the same: the outermost row refers to itself's parent.
    kmaC_MullinsEffect outer;
    outer.uniaxialTests.Append(Element(new kmaC_MullinsEffect));
    int const top = rom_Transporter(m_database, *m_registrar).Write(&outer, outer.DynTypeId());
    rfm_Table& entries = *m_database.FindTable(rom_Layout::listEntryTypeId);
    Poke(rom_Layout::listEntryTypeId, entries.RowCount() - 1, "value#OID", rfm_Value::OfInt(row));
    rom_Transporter in(m_database, *m_registrar);
    EXPECT_EQ(MessageOf([&] { in.Read(kmaC_MullinsEffect::TypeId(), top); }),
              "Row 0 of table kmaC_MullinsEffect is nested deeper than 64 levels.");
}

TEST_F(Transporter, FindsWhatNothingRefersTo) {
    kmaC_Material const steel = Steel();
    kmaC_Material const other = Steel();
    int named = -1;
    {
        rom_Transporter transporter(m_database, *m_registrar);
        named = transporter.Write(&steel, kmaC_Material::TypeId());
        transporter.Write(&other, kmaC_Material::TypeId());
        transporter.Write(&steel.elastic.ConstGet(), kmaC_Elastic::TypeId());
    }
    rom_Transporter transporter(m_database, *m_registrar);
    transporter.Read(kmaC_Material::TypeId(), named);
    std::vector<rom_Transporter::Unreferenced> const found = transporter.ReadUnreferenced();
    // What was read is none of it, nor are the parts of the one that is.
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].typeId, kmaC_Material::TypeId());
    EXPECT_EQ(found[0].oid, 1 - named);
    ASSERT_TRUE(found[0].object);
    EXPECT_TRUE(kmaC_Material::Description().Same(found[0].object->ErasedReferent(), &other));
    // They were read now.
    EXPECT_TRUE(transporter.ReadUnreferenced().empty());
}

// A bit is kept for each row that something refers to, and a damaged number may be any.
TEST_F(Transporter, ARowThatIsNotThereTakesNoMemory) {
    kmaC_Material const steel = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&steel, kmaC_Material::TypeId());
    Poke(kmaC_Elastic::TypeId(), 0, "table#OID", rfm_Value::OfInt(INT_MAX));
    rusage before, after;
    getrusage(RUSAGE_SELF, &before);
    rom_Transporter transporter(m_database, *m_registrar);
    EXPECT_NE(MessageOf([&] { transporter.Read(kmaC_Material::TypeId(), 0); }), "");
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024);
}

TEST_F(Transporter, ToldWhatNothingRefersToAndCannotBeRead) {
    kmaC_Material const steel = Steel();
    rom_Transporter(m_database, *m_registrar).Write(&steel, kmaC_Material::TypeId());
    Poke(kmaC_Elastic::TypeId(), 0, "type", rfm_Value::OfText("SOFT", 4));
    rom_Transporter transporter(m_database, *m_registrar);
    std::vector<rom_Transporter::Unreferenced> const found = transporter.ReadUnreferenced();
    bool told = false;
    for (rom_Transporter::Unreferenced const& each : found) {
        if (each.typeId != kmaC_Material::TypeId()) continue;
        told = true;
        EXPECT_FALSE(each.object);
        EXPECT_EQ(
            each.failure.rfind("row 0 of table kmaC_Material: row 0 of table kmaC_Elastic: ", 0),
            0u)
            << each.failure;
    }
    EXPECT_TRUE(told);
}

}  // namespace
