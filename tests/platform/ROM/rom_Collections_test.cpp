// Every kind of collection through the record store: what the agents of rows make of them.

#include <gtest/gtest.h>

#include <functional>

#include "DDB_NonGeometricAttributes.h"
#include "rfm_MemoryDatabase.h"
#include "support/FieldMutator.h"
#include "support/Specimen.h"

namespace {

class Collections : public testing::Test {
protected:
    Collections() {
        specimen_Part::InitializeMetadata(m_registrar);
        specimen_Base::InitializeMetadata(m_registrar);
        specimen_Whole::InitializeMetadata(m_registrar);
    }

    static specimen_Whole Full() {
        specimen_Whole whole;
        nga_test::MutateAll(specimen_Whole::Description(), &whole);
        whole.options.Append(specimen_BaseHandle());
        whole.options.Append(specimen_BaseHandle(new specimen_Whole));
        specimen_Part part;
        part.number = 11;
        whole.parts.Append(part);
        part.number = 12;
        part.uid.NewUid();  // one identity would be one record
        whole.parts.Append(part);
        whole.ints.Append(-7);
        whole.reals.Append(-0.0);
        whole.factors.Insert("x", 2.5f);
        return whole;
    }
    int Write(specimen_Whole const& whole) {
        return rom_Transporter(m_database, m_registrar).Write(&whole, whole.DynTypeId());
    }
    std::string FailureOfReading(int row) {
        try {
            rom_Transporter(m_database, m_registrar).Read(specimen_Whole::TypeId(), row);
        } catch (nex_Exception const& failure) {
            return failure.UserReport().Text();
        }
        return "";
    }
    // The rows of the table whose column holds the integer.
    std::vector<int> Rows(unsigned typeId, char const* column, long long value) {
        std::vector<int> rows;
        rfm_Table* table = m_database.FindTable(typeId);
        if (!table) return rows;
        int const place = table->Metadata().Find(column);
        std::unique_ptr<rfm_Cursor> cursor = table->OpenCursor();
        for (int row = 0; row < table->RowCount(); ++row) {
            cursor->Seek(row);
            rfm_Value const stored = cursor->Value(place);
            if (stored.tag == rfm_Value::Int && stored.integer == value) rows.push_back(row);
        }
        return rows;
    }
    void Poke(unsigned typeId, int row, char const* column, rfm_Value const& value) {
        rfm_Table& table = *m_database.FindTable(typeId);
        std::unique_ptr<rfm_Cursor> cursor = table.OpenCursor();
        ASSERT_TRUE(cursor->Seek(row));
        std::vector<rfm_Value> values;
        std::vector<std::string> kept(static_cast<std::size_t>(table.Metadata().ColumnCount()));
        for (int i = 0; i < table.Metadata().ColumnCount(); ++i) {
            rfm_Value cell = cursor->Value(i);
            std::string& copy = kept[static_cast<std::size_t>(i)];
            if (cell.tag == rfm_Value::Text) {
                copy.assign(cell.text, static_cast<std::size_t>(cell.length));
                cell.text = copy.c_str();
            } else if (cell.tag == rfm_Value::Bytes) {
                copy.assign(static_cast<char const*>(cell.bytes),
                            static_cast<std::size_t>(cell.length));
                cell.bytes = copy.data();
            }
            values.push_back(cell);
        }
        values[static_cast<std::size_t>(table.Metadata().Find(column))] = value;
        table.Replace(row, values.data());
    }

    cls_ClassRegistrar m_registrar;
    rfm_MemoryDatabase m_database;
};

TEST_F(Collections, OfEveryKindComeBackWithTheirNullElements) {
    specimen_Whole const whole = Full();
    int const row = Write(whole);
    rom_Transporter in(m_database, m_registrar);
    cow_ErasedHandle const read = in.Read(specimen_Whole::TypeId(), row);
    auto const& back = *static_cast<specimen_Whole const*>(read.ErasedReferent());
    EXPECT_TRUE(specimen_Whole::Description().Same(&whole, &back));
    int const nullPlace = whole.options.Size() - 2;
    EXPECT_EQ(back.options.ConstGet(nullPlace).GetPtr(), nullptr);
    EXPECT_NE(back.options.ConstGet(nullPlace + 1).GetPtr(), nullptr);
    EXPECT_EQ(back.parts.Last().number, 12);
    EXPECT_EQ(back.ints.uid, whole.ints.uid);
    EXPECT_EQ(back.options.list.uid, whole.options.list.uid);
}

TEST_F(Collections, AStoredKindOtherThanTheFieldsIsRefused) {
    int const row = Write(Full());
    for (auto const& [kind, other] :
         {std::pair{cls_CollectionListInt, cls_CollectionListDouble},
          std::pair{cls_CollectionListDouble, cls_CollectionListInt},
          std::pair{cls_CollectionArray2DDouble, cls_CollectionListDouble},
          std::pair{cls_CollectionList, cls_CollectionListInt}}) {
        std::vector<int> const rows = Rows(cls_ListTypeId, "Target#Kind", kind);
        ASSERT_FALSE(rows.empty()) << kind;
        Poke(cls_ListTypeId, rows.back(), "Target#Kind", rfm_Value::OfInt(other));
        EXPECT_NE(FailureOfReading(row).find("holds another kind of collection than its field."),
                  std::string::npos)
            << kind;
        Poke(cls_ListTypeId, rows.back(), "Target#Kind", rfm_Value::OfInt(kind));
    }
    EXPECT_EQ(FailureOfReading(row), "");
}

/// Two levels that agree on the field and not on what it holds: a list of integers is registered,
/// and one of doubles is written.
struct Mismatched : mem_AllocationOperators {
    static constexpr unsigned TypeId() { return 0x7770009; }
    static cls_FieldHandle Field() { return cls_FieldHandle(0, "values"); }
    Mismatched() = default;
    explicit Mismatched(cls_ReadVisitor const&) {}
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        registrar.AddClassMD(new cls_TypeAdapter<Mismatched>("Mismatched", 203, cls_RootTypeId))
            .AddAttribute(Field(), cls_AttributeObject, cls_ListTypeId, cls_CollectionListInt);
    }
    void DBWrite(cls_WriteVisitor const& visitor) const {
        if (visitor.StartWrite(TypeId(), uid) == 0) return;
        cls_WriteVisitor values(visitor, Field(), nullptr, nullptr);
        reals.DBWrite(values);
    }
    cls_xp1DArrayListDouble reals;
    cls_Uid uid = cls_Uid::AllocateUid();
};

TEST_F(Collections, AKindOtherThanTheFieldsIsNotWritten) {
    Mismatched::InitializeMetadata(m_registrar);
    Mismatched const object;
    std::string message;
    try {
        rom_Transporter(m_database, m_registrar).Write(&object, Mismatched::TypeId());
    } catch (nex_Exception const& failure) {
        message = failure.UserReport().Text();
    }
    EXPECT_EQ(message, "A collection was written to a field that holds another kind (Mismatched).");
    EXPECT_TRUE(Rows(cls_ListTypeId, "Target#Kind", cls_CollectionListDouble).empty());
}

TEST_F(Collections, AnElementByValueOfAnotherClassIsRefused) {
    specimen_Whole whole;
    whole.parts.Append(specimen_Part());
    int const row = Write(whole);
    rfm_Table& entries = *m_database.FindTable(rom_Layout::listEntryTypeId);
    Poke(rom_Layout::listEntryTypeId, entries.RowCount() - 1, "value#ClassID",
         rfm_Value::OfInt(specimen_Whole::TypeId()));
    EXPECT_EQ(FailureOfReading(row),
              "An element of a list refers to an object of a class that it cannot hold.");
    // Without a class it is of the one that the list holds.
    Poke(rom_Layout::listEntryTypeId, entries.RowCount() - 1, "value#ClassID", rfm_Value());
    EXPECT_EQ(FailureOfReading(row), "");
}

TEST_F(Collections, OneWrittenTwiceUnderOneIdentityHoldsTheElementsOfTheLastWrite) {
    for (int const second : {1, 5}) {
        rfm_MemoryDatabase database;
        specimen_Whole first;
        for (int i = 0; i < 3; ++i) first.options.Append(specimen_BaseHandle(new specimen_Whole));
        specimen_Whole later = first;
        later.uid.NewUid();
        static_cast<specimen_Base&>(later).uid.NewUid();
        later.options.list.Resize(0);
        for (int i = 0; i < second; ++i)
            later.options.Append(specimen_BaseHandle(new specimen_Whole));
        ASSERT_EQ(later.options.list.uid, first.options.list.uid);

        rom_Transporter out(database, m_registrar);
        int const firstRow = out.Write(&first, first.DynTypeId());
        int const laterRow = out.Write(&later, later.DynTypeId());
        rom_Transporter in(database, m_registrar);
        for (int const row : {firstRow, laterRow}) {
            cow_ErasedHandle const read = in.Read(specimen_Whole::TypeId(), row);
            auto const& back = *static_cast<specimen_Whole const*>(read.ErasedReferent());
            ASSERT_EQ(back.options.Size(), second);
            for (int i = 0; i < second; ++i)
                EXPECT_EQ(
                    static_cast<specimen_Whole const&>(back.options.ConstGet(i).ConstGet()).uid,
                    static_cast<specimen_Whole const&>(later.options.ConstGet(i).ConstGet()).uid);
        }
    }
}

TEST_F(Collections, ARegistrarWithoutTheCollectionsIsEnough) {
    EXPECT_EQ(m_registrar.Find(cls_ListTypeId), nullptr);
    EXPECT_EQ(FailureOfReading(Write(Full())), "");
}

class Repositories : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static cls_ClassRegistrar const& Domain(cls_MetadataDomain domain) {
        return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain);
    }

    rfm_MemoryDatabase m_database;

private:
    int m_count = 0;
};

TEST_F(Repositories, AreRecordsOfTheirOwnInALibraryOfOneRepository) {
    klcC_LoadCaseCont repository;
    klcC_LoadCase loadCase;
    loadCase.loads.Insert("Load-1", 2.0f);
    repository.Insert("service", loadCase);
    repository.GetMap().InsertUnlessMember("nothing", klcC_LoadCaseCont::Handle());
    cls_ClassRegistrar const& library = Domain(cls_DomainLibrary);
    EXPECT_EQ(rom_Transporter(m_database, library).Write(&repository, repository.DynTypeId()), 0);
    EXPECT_EQ(m_database.FindTable(mdl_Repository::TypeId())->RowCount(), 1);

    rom_Transporter in(m_database, library);
    cow_ErasedHandle const read = in.Read(klcC_LoadCaseCont::TypeId(), 0);
    auto const& back = *static_cast<klcC_LoadCaseCont const*>(read.ErasedReferent());
    EXPECT_EQ(back.Uid(), repository.Uid());
    EXPECT_EQ(back.ConstGetMap().uid, repository.ConstGetMap().uid);
    ASSERT_EQ(back.Size(), 2);
    EXPECT_TRUE(klcC_LoadCase::Description().Same(&back.ConstGet("service"), &loadCase));
    EXPECT_TRUE(back.IsMember("nothing"));
    EXPECT_EQ(back.ConstGetPtr("nothing"), nullptr);
    EXPECT_EQ(back.ChangedKeys().Size(), 0);
}

TEST_F(Repositories, OfLoadCasesStandInTwoDomainsAndTheirClassInAll) {
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase}) {
        int ofTheModule = 0;
        for (cls_ClassMetadata const* metadata : Domain(domain).Classes())
            ofTheModule += metadata->TypeId() >> 16 == 732;
        EXPECT_EQ(ofTheModule, domain == cls_DomainDatabase ? 1 : 2) << domain;
        EXPECT_NE(Domain(domain).Find(klcC_LoadCase::TypeId()), nullptr);
    }
}

TEST_F(Repositories, ShortcutsComeBackWithTheirChain) {
    cls_ClassRegistrar registrar;
    ddr_ModelShortcut::InitializeMetadata(registrar);
    ddr_ModelImplShortcut::InitializeMetadata(registrar);
    ddr_ModelInSessionShortcut::InitializeMetadata(registrar);
    ddr_ShortcutImpl<kmaC_MaterialContainer>::InitializeMetadata(registrar);
    ddr_ShortcutImpl<kmaC_Material>::InitializeMetadata(registrar);
    kmaC_MaterialContainerShortcut::InitializeMetadata(registrar);
    kmaC_MaterialContainerInModelShortcut::InitializeMetadata(registrar);
    kmaC_MaterialShortcut::InitializeMetadata(registrar);
    kmaC_MaterialInMaterialContainerShortcut::InitializeMetadata(registrar);
    kmaC_MaterialShortcut const steel(new kmaC_MaterialInMaterialContainerShortcut(
        kmaC_MaterialContainerShortcut(
            new kmaC_MaterialContainerInModelShortcut(ddr_ShortcutToModel("bridge"))),
        "steel"));
    kmaC_MaterialShortcut const unset;
    rom_Transporter out(m_database, registrar);
    int const setRow = out.Write(&steel, kmaC_MaterialShortcut::TypeId());
    int const unsetRow = out.Write(&unset, kmaC_MaterialShortcut::TypeId());

    rom_Transporter in(m_database, registrar);
    cow_ErasedHandle const readSet = in.Read(kmaC_MaterialShortcut::TypeId(), setRow);
    cow_ErasedHandle const readUnset = in.Read(kmaC_MaterialShortcut::TypeId(), unsetRow);
    auto const& back = *static_cast<kmaC_MaterialShortcut const*>(readSet.ErasedReferent());
    EXPECT_TRUE(back.IsSet());
    EXPECT_EQ(back.Path(), "documents['bridge'].materials['steel']");
    EXPECT_FALSE(static_cast<kmaC_MaterialShortcut const*>(readUnset.ErasedReferent())->IsSet());
}

}  // namespace
