#include <memory>

#include "ShortcutFixture.h"

namespace shortcut_metadata_test {

constexpr unsigned none = 0;
constexpr int smallTable = 0;
constexpr int mediumTable = 1;

struct Row {
    void (*initialize)(cls_ClassRegistrar&);
    unsigned typeId;
    char const* name;
    unsigned parent;
    char const* fields;  ///< n: name, i: index, p: parent, s: impl, in their order
    unsigned reference;  ///< the class of the parent or of the impl
    int quantum;
    bool rebuilt;  ///< whether it has a read constructor
};

// clang-format off
Row const rows[] = {
    {ddr_ModelShortcut::InitializeMetadata,                              0x140002, "ddr_ModelShortcut", 1, "s", 0x140003, smallTable, true},
    {ddr_ModelImplShortcut::InitializeMetadata,                          0x140003, "ddr_ModelIMPLSC", 1, "", none, smallTable, false},
    {ddr_ModelInSessionShortcut::InitializeMetadata,                     0x140004, "ddr_ModelInSessionShortcut", 0x140003, "n", none, smallTable, true},
    {kmaC_MaterialShortcut::InitializeMetadata,                          0x2380067, "kmaC_MaterialShortcut", 1, "s", 0x2380069, smallTable, true},
    {kmaC_MaterialInMaterialContainerShortcut::InitializeMetadata,       0x2380068, "kmaC_MaterialInMaterialContainerShortcut", 0x2380069, "np", 0x238006A, smallTable, true},
    {kmaC_MaterialIMPLSC::InitializeMetadata,                            0x2380069, "kmaC_MaterialIMPLSC", 1, "", none, smallTable, false},
    {kmaC_MaterialContainerShortcut::InitializeMetadata,                 0x238006A, "kmaC_MaterialContainerShortcut", 1, "s", 0x238006B, smallTable, true},
    {kmaC_MaterialContainerIMPLSC::InitializeMetadata,                   0x238006B, "kmaC_MaterialContainerIMPLSC", 1, "", none, smallTable, false},
    {kmaC_MaterialOptionShortcut::InitializeMetadata,                    0x238006C, "kmaC_MaterialOptionShortcut", 1, "s", 0x238006F, smallTable, true},
    {kmaC_MaterialOptionInMaterialShortcut::InitializeMetadata,          0x238006D, "kmaC_MaterialOptionInMaterialShortcut", 0x238006F, "np", 0x2380067, smallTable, true},
    {kmaC_MaterialOptionInMaterialOptionShortcut::InitializeMetadata,    0x238006E, "kmaC_MaterialOptionInMaterialOptionShortcut", 0x238006F, "np", 0x238006C, smallTable, true},
    {kmaC_MaterialOptionIMPLSC::InitializeMetadata,                      0x238006F, "kmaC_MaterialOptionIMPLSC", 1, "", none, smallTable, false},
    {kmaC_MaterialContainerInModelShortcut::InitializeMetadata,          0x238007C, "kmaC_MaterialContainerInModelShortcut", 0x238006B, "p", 0x140002, mediumTable, true},
    {kmaC_MaterialOptionListShortcut::InitializeMetadata,                0x2380088, "kmaC_MaterialOptionListShortcut", 1, "s", 0x2380089, smallTable, true},
    {kmaC_MaterialOptionListIMPLSC::InitializeMetadata,                  0x2380089, "kmaC_MaterialOptionListIMPLSC", 1, "", none, smallTable, false},
    {kmaC_MaterialOptionListInMullinsEffectShortcut::InitializeMetadata, 0x238008A, "kmaC_MaterialOptionListInMullinsEffectShortcut", 0x238006F, "ip", 0x2380088, mediumTable, true},
    {kmaC_UniaxialTestsListInMaterialOptionShortcut::InitializeMetadata, 0x238008B, "kmaC_UniaxialTestsListInMaterialOptionShortcut", 0x2380089, "p", 0x238006C, mediumTable, true},
    {kmaC_BiaxialTestsListInMaterialOptionShortcut::InitializeMetadata,  0x238008C, "kmaC_BiaxialTestsListInMaterialOptionShortcut", 0x2380089, "p", 0x238006C, mediumTable, true},
    {kmaC_PlanarTestsListInMaterialOptionShortcut::InitializeMetadata,   0x238008D, "kmaC_PlanarTestsListInMaterialOptionShortcut", 0x2380089, "p", 0x238006C, mediumTable, true},
    {kamC_AmplitudeShortcut::InitializeMetadata, 0x244000D, "kamC_AmplitudeShortcut", 1, "s", 0x244000F, smallTable, true},
    {kamC_AmplitudeInAmplitudeContainerShortcut::InitializeMetadata, 0x244000E, "kamC_AmplitudeInAmplitudeContainerShortcut", 0x244000F, "np", 0x2440010, smallTable, true},
    {kamC_AmplitudeIMPLSC::InitializeMetadata, 0x244000F, "kamC_AmplitudeIMPLSC", 1, "", none, smallTable, false},
    {kamC_AmplitudeContainerShortcut::InitializeMetadata, 0x2440010, "kamC_AmplitudeContainerShortcut", 1, "s", 0x2440011, smallTable, true},
    {kamC_AmplitudeContainerIMPLSC::InitializeMetadata, 0x2440011, "kamC_AmplitudeContainerIMPLSC", 1, "", none, smallTable, false},
    {kamC_BaselineCorrectionShortcut::InitializeMetadata, 0x2440012, "kamC_BaselineCorrectionShortcut", 1, "s", 0x2440015, smallTable, true},
    {kamC_BaselineCorrectionInEquallySpacedShortcut::InitializeMetadata, 0x2440013, "kamC_BaselineCorrectionInEquallySpacedShortcut", 0x2440015, "p", 0x244000D, mediumTable, true},
    {kamC_BaselineCorrectionInTabularShortcut::InitializeMetadata, 0x2440014, "kamC_BaselineCorrectionInTabularShortcut", 0x2440015, "p", 0x244000D, mediumTable, true},
    {kamC_BaselineCorrectionIMPLSC::InitializeMetadata, 0x2440015, "kamC_BaselineCorrectionIMPLSC", 1, "", none, smallTable, false},
    {kamC_AmplitudeContainerInModelShortcut::InitializeMetadata, 0x2440016, "kamC_AmplitudeContainerInModelShortcut", 0x2440011, "p", 0x140002, mediumTable, true},
    {kamC_BaselineCorrectionInAmplitudeShortcut::InitializeMetadata, 0x2440018, "kamC_BaselineCorrectionInAmplitudeShortcut", 0x2440015, "p", 0x244000D, mediumTable, true},
    {kbpC_BeamProfileContainerShortcut::InitializeMetadata, 0x264000E, "kbpC_BeamProfileContainerShortcut", 1, "s", 0x264000F, smallTable, true},
    {kbpC_BeamProfileContainerIMPLSC::InitializeMetadata, 0x264000F, "kbpC_BeamProfileContainerIMPLSC", 1, "", none, smallTable, false},
    {kbpC_BeamProfileShortcut::InitializeMetadata, 0x2640010, "kbpC_BeamProfileShortcut", 1, "s", 0x2640012, smallTable, true},
    {kbpC_BeamProfileInBeamProfileContainerShortcut::InitializeMetadata, 0x2640011, "kbpC_BeamProfileInBeamProfileContainerShortcut", 0x2640012, "np", 0x264000E, smallTable, true},
    {kbpC_BeamProfileIMPSC::InitializeMetadata, 0x2640012, "kbpC_BeamProfileIMPSC", 1, "", none, smallTable, false},
    {kbpC_BeamProfileContainerInModelShortcut::InitializeMetadata, 0x2640013, "kbpC_BeamProfileContainerInModelShortcut", 0x264000F, "p", 0x140002, mediumTable, true},
    {kflC_FilterShortcut::InitializeMetadata, 0x3510007, "kflC_FilterShortcut", 1, "s", 0x3510009, smallTable, true},
    {kflC_FilterInFilterContainerShortcut::InitializeMetadata, 0x3510008, "kflC_FilterInFilterContainerShortcut", 0x3510009, "np", 0x351000A, smallTable, true},
    {kflC_FilterIMPLSC::InitializeMetadata, 0x3510009, "kflC_FilterIMPLSC", 1, "", none, smallTable, false},
    {kflC_FilterContainerShortcut::InitializeMetadata, 0x351000A, "kflC_FilterContainerShortcut", 1, "s", 0x351000B, smallTable, true},
    {kflC_FilterContainerIMPLSC::InitializeMetadata, 0x351000B, "kflC_FilterContainerIMPLSC", 1, "", none, smallTable, false},
    {kflC_FilterContainerInModelShortcut::InitializeMetadata, 0x351000C, "kflC_FilterContainerInModelShortcut", 0x351000B, "p", 0x140002, mediumTable, true},
    {klcC_LoadCaseIMPLSC::InitializeMetadata,                            0x2DC0003, "klcC_LoadCaseIMPLSC", 1, "", none, smallTable, false},
    {klcC_LoadCaseShortcut::InitializeMetadata,                          0x2DC0004, "klcC_LoadCaseShortcut", 1, "s", 0x2DC0003, smallTable, true},
    {klcC_LoadCaseInLoadCaseContShortcut::InitializeMetadata,            0x2DC0005, "klcC_LoadCaseInLoadCaseContShortcut", 0x2DC0003, "np", 0x2DC0007, smallTable, true},
    {klcC_LoadCaseContIMPLSC::InitializeMetadata,                        0x2DC0006, "klcC_LoadCaseContIMPLSC", 1, "", none, smallTable, false},
    {klcC_LoadCaseContShortcut::InitializeMetadata,                      0x2DC0007, "klcC_LoadCaseContShortcut", 1, "s", 0x2DC0006, smallTable, true},
};
// clang-format on

class ShortcutMetadata : public ShortcutFixture {};

TEST_F(ShortcutMetadata, EveryClassRegistersWhatItsTableRowSays) {
    cls_ExtQuant const& quanta = thr_ThreadSingleton<cls_ExtQuant>::Instance();
    ASSERT_NE(quanta.ExtentQuantumConstSmall(), quanta.ExtentQuantumConstMedium());
    for (Row const& row : rows) {
        SCOPED_TRACE(row.name);
        cls_ClassRegistrar registrar;
        row.initialize(registrar);
        ASSERT_EQ(registrar.Classes().size(), 1u);
        cls_ClassMetadata const* const metadata = registrar.Find(row.typeId);
        ASSERT_NE(metadata, nullptr);
        EXPECT_STREQ(metadata->Name().Text(), row.name);
        EXPECT_EQ(metadata->Version(), 203);
        EXPECT_EQ(metadata->ParentTypeId(), row.parent);
        EXPECT_EQ(metadata->TableExtentQuantum(), row.quantum == smallTable
                                                      ? quanta.ExtentQuantumConstSmall()
                                                      : quanta.ExtentQuantumConstMedium());
        EXPECT_EQ(metadata->HasCtor(), row.rebuilt);
        std::string const fields = row.fields;
        ASSERT_EQ(metadata->Attributes().size(), fields.size());
        for (std::size_t i = 0; i < fields.size(); ++i) {
            cls_Attribute const& field = metadata->Attributes()[i];
            EXPECT_EQ(field.field.Index(), -1);
            EXPECT_EQ(field.collection, 0);
            switch (fields[i]) {
                case 'n':
                    EXPECT_STREQ(field.field.Name().Text(), "name");
                    EXPECT_EQ(field.type, 11);
                    EXPECT_EQ(field.arg, 1u);
                    break;
                case 'i':
                    EXPECT_STREQ(field.field.Name().Text(), "index");
                    EXPECT_EQ(field.type, 5);
                    EXPECT_EQ(field.arg, 1u);
                    break;
                default:
                    EXPECT_STREQ(field.field.Name().Text(), fields[i] == 'p' ? "parent" : "impl");
                    EXPECT_EQ(field.type, 15);
                    EXPECT_EQ(field.arg, row.reference);
            }
        }
    }
}

TEST_F(ShortcutMetadata, TheLibraryRegistersNoneOfThemByItself) {
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase}) {
        cls_ClassRegistrar const& registrar =
            omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain);
        for (Row const& row : rows) EXPECT_EQ(registrar.Find(row.typeId), nullptr) << row.name;
    }
}

TEST_F(ShortcutMetadata, EachReleaseFunctionReleasesAHandleAndFreesIt) {
    using Handle = cow_COW<kmaC_MaterialIMPLSC, cow_Virtual<kmaC_MaterialIMPLSC>>;
    kmaC_MaterialShortcut const shortcut = ToMaterial("steel");
    Handle* const onHeap =
        ::new (mem_OperatorNewThrow(sizeof(Handle))) Handle(shortcut.StepHandle());
    ASSERT_EQ(shortcut.StepHandle().Count(), 2);
    cls_ClassRegistrar registrar;
    kmaC_MaterialInMaterialContainerShortcut::InitializeMetadata(registrar);
    cls_ClassMetadata const& metadata =
        *registrar.Find(kmaC_MaterialInMaterialContainerShortcut::TypeId());
    metadata.DeleteCow(onHeap);
    EXPECT_EQ(shortcut.StepHandle().Count(), 1);
    metadata.DeleteCow(nullptr);
    kmaC_MaterialShortcut::CowDtor(nullptr);
    kmaC_MaterialIMPLSC::CowDtor(nullptr);
}

/// Written into records in memory and rebuilt from them.
template <class T>
T Rebuilt(T const& shortcut) {
    std::unique_ptr<T> const copy(DDB_DeepCopyPtr(&shortcut, T::TypeId()));
    EXPECT_NE(copy->Uid(), shortcut.Uid());
    return *copy;
}

TEST_F(ShortcutMetadata, EveryClassIsRebuiltFromWhatItWrites) {
    for (Row const& row : rows)
        omi_Singleton<cls_MetadataRegistrar>::Instance().initClassMetadata(row.initialize,
                                                                           cls_DomainMemory);
    Materials().Insert("steel", kmaC_Material());
    Materials().Get("steel").elastic = new kmaC_Elastic;
    Materials().Get("steel").elastic.Get().failStress = new kmaC_FailStress;

    kmaC_MaterialOptionShortcut const option = ToOption("steel", "elastic");
    kmaC_MaterialOptionShortcut const deep = ToSuboption(option, "failStress");
    kmaC_MaterialOptionShortcut const copy = Rebuilt(deep);
    EXPECT_TRUE(copy == deep);
    EXPECT_NE(copy.StepHandle().GetPtr(), deep.StepHandle().GetPtr());
    EXPECT_EQ(copy.StepHandle().ConstGet().DynTypeId(),
              kmaC_MaterialOptionInMaterialOptionShortcut::TypeId());
    EXPECT_EQ(&copy.Get(session), &deep.Get(session));

    EXPECT_TRUE(Rebuilt(ddr_ShortcutToModel("bridge")) == ddr_ShortcutToModel("bridge"));
    EXPECT_TRUE(Rebuilt(ToMaterials()) == ToMaterials());
    EXPECT_TRUE(Rebuilt(ToMaterial("")) == ToMaterial(""));
    EXPECT_FALSE(Rebuilt(kmaC_MaterialShortcut()).IsSet());

    kmaC_MaterialOptionListShortcut const lists[] = {
        kmaC_MaterialOptionListShortcut(new kmaC_UniaxialTestsListInMaterialOptionShortcut(option)),
        kmaC_MaterialOptionListShortcut(new kmaC_BiaxialTestsListInMaterialOptionShortcut(option)),
        kmaC_MaterialOptionListShortcut(new kmaC_PlanarTestsListInMaterialOptionShortcut(option))};
    for (kmaC_MaterialOptionListShortcut const& list : lists) {
        EXPECT_TRUE(Rebuilt(list) == list);
        kmaC_MaterialOptionShortcut const element(
            new kmaC_MaterialOptionListInMullinsEffectShortcut(list, 123456));
        EXPECT_TRUE(Rebuilt(element) == element);
    }

    kamC_AmplitudeContainerShortcut const amplitudes(
        new kamC_AmplitudeContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    EXPECT_TRUE(Rebuilt(amplitudes) == amplitudes);
    kamC_AmplitudeShortcut const amplitude(
        new kamC_AmplitudeInAmplitudeContainerShortcut(amplitudes, "gust"));
    EXPECT_TRUE(Rebuilt(amplitude) == amplitude);
    for (kamC_BaselineCorrectionShortcut const& correction :
         {kamC_BaselineCorrectionShortcut(
              new kamC_BaselineCorrectionInEquallySpacedShortcut(amplitude)),
          kamC_BaselineCorrectionShortcut(new kamC_BaselineCorrectionInTabularShortcut(amplitude)),
          kamC_BaselineCorrectionShortcut(
              new kamC_BaselineCorrectionInAmplitudeShortcut(amplitude))}) {
        kamC_BaselineCorrectionShortcut const again = Rebuilt(correction);
        EXPECT_TRUE(again == correction);
        EXPECT_EQ(again.StepHandle().ConstGet().DynTypeId(),
                  correction.StepHandle().ConstGet().DynTypeId());
    }
    kbpC_BeamProfileContainerShortcut const profiles(
        new kbpC_BeamProfileContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    kbpC_BeamProfileShortcut const profile(
        new kbpC_BeamProfileInBeamProfileContainerShortcut(profiles, "chord"));
    EXPECT_TRUE(Rebuilt(profiles) == profiles);
    EXPECT_TRUE(Rebuilt(profile) == profile);
    kflC_FilterContainerShortcut const filters(
        new kflC_FilterContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    kflC_FilterShortcut const filter(new kflC_FilterInFilterContainerShortcut(filters, "low"));
    EXPECT_TRUE(Rebuilt(filters) == filters);
    EXPECT_TRUE(Rebuilt(filter) == filter);

    klcC_LoadCaseShortcut const loadCase(
        new klcC_LoadCaseInLoadCaseContShortcut(klcC_LoadCaseContShortcut(), "dead load"));
    klcC_LoadCaseShortcut const rebuilt = Rebuilt(loadCase);
    EXPECT_TRUE(rebuilt == loadCase);
    EXPECT_FALSE(
        static_cast<klcC_LoadCaseInLoadCaseContShortcut const&>(rebuilt.StepHandle().ConstGet())
            .Parent()
            .IsSet());
}

}  // namespace shortcut_metadata_test
