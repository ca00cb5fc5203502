#include <map>

#include "ShortcutFixture.h"
#include "cow_Destroy.h"
#include "rfm_MemoryDatabase.h"
#include "rom_Transporter.h"

// The steps to and into connector behaviours, on every class of parent.

namespace kbeC_shortcuts_test {

/// A step that leads to an object wherever it is, as a host's own step would.
template <class T>
class To final : public ddr_ShortcutImpl<T> {
public:
    To(T& object, char const* path) : m_object(&object), m_path(path) {}
    cow_String Name() const override { return m_path; }
    cow_String Path() const override { return m_path; }
    To* Copy() const override { return new To(*this); }
    T const& ConstGet(ddr_Container const&) const override { return *m_object; }
    T& Get(ddr_Container&) const override { return *m_object; }

private:
    T* m_object;
    cow_String m_path;
};

using Option = kbeC_ConnectorBehaviorOption;
using OptionShortcut = kbeC_ConnectorBehaviorOptionShortcut;
using OptionHandle = cow_ArrayCOW<Option, cow_Virtual<Option>>;

template <class Step>
struct Facts;  // name and refusal of a step, from the table

#define MEMBER(Step, id, name)                    \
    template <>                                   \
    struct Facts<Step> {                          \
        static constexpr char const* text = name; \
        static constexpr unsigned typeId = id;    \
    };
#define SEQUENCE(Step, id)
#define HANDLE(T, id, implId)
#define REFUSAL(Step, text)
#include "kbeC_steps.inc"
#undef MEMBER
#undef REFUSAL

std::string RefusalOf(unsigned typeId) {
    static std::map<unsigned, std::string> const texts = {
#define MEMBER(Step, id, name)
#define REFUSAL(Step, text) {Facts<Step>::typeId, text},
#include "kbeC_steps.inc"
#undef MEMBER
#undef SEQUENCE
#undef HANDLE
#undef REFUSAL
    };
    return texts.at(typeId);
}

class ConnectorShortcuts : public ShortcutFixture {
protected:
    ConnectorShortcuts() {
        list.Append(OptionHandle(new kbeC_ConnectorElasticity));
        list.Append(OptionHandle(new kbeC_ConnectorDamping));
        list.Append(OptionHandle(new kbeC_ConnectorStop));
        list.Append(OptionHandle(new kbeC_ConnectorLock));
        list.Append(OptionHandle(new kbeC_ConnectorFailure));
        list.Append(OptionHandle(new kbeC_ConnectorFriction));
        list.Append(OptionHandle(new kbeC_ConnectorPlasticity));
        list.Append(OptionHandle(new kbeC_ConnectorDamage));
        list.Append(OptionHandle());
    }
    kbeC_ConnectorBehaviorOptionListShortcut ToList() {
        return kbeC_ConnectorBehaviorOptionListShortcut(
            new To<kbeC_ConnectorBehaviorOptionList>(list, "hinge.options"));
    }
    OptionShortcut ToOption(int index) {
        return OptionShortcut(
            new kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(ToList(), index));
    }
    template <class T>
    T& At(int index) {
        return static_cast<T&>(list.Get(index).Get());
    }
    /// Both accesses are refused, by the text of the table or by another.
    template <class Shortcut>
    void ExpectRefused(Shortcut const& shortcut, std::string const& text) {
        EXPECT_EQ(TextOf([&] { shortcut.ConstGet(session); }), text);
        EXPECT_EQ(TextOf([&] { shortcut.Get(session); }), text);
    }

    enum { elasticity, damping, stop, lock, failure, friction, plasticity, damage, none, count };
    kbeC_ConnectorBehaviorOptionList list;
};

TEST_F(ConnectorShortcuts, HaveTheirTypesAndNames) {
    int members = 0;
    OptionShortcut const option = ToOption(0);
    kbeC_ConnectorPotentialShortcut const potential;
    kbeC_DerivedComponentShortcut const derived;
    kbeC_CDCTermShortcut const term;
    auto const expect = [&](auto const& step, unsigned typeId, char const* name,
                            std::string const& before) {
        EXPECT_EQ(step.TypeId(), typeId);
        EXPECT_EQ(step.DynTypeId(), typeId);
        EXPECT_STREQ(step.Name().Text(), name);
        EXPECT_EQ(step.Path().Text(), before + "." + name);
        ++members;
    };
    auto const make = [&]<class Step>(Step const*) {
        if constexpr (std::is_constructible_v<Step, OptionShortcut const&>)
            expect(Step(option), Facts<Step>::typeId, Facts<Step>::text, "hinge.options[0]");
        else if constexpr (std::is_constructible_v<Step, kbeC_ConnectorPotentialShortcut const&>)
            expect(Step(potential), Facts<Step>::typeId, Facts<Step>::text, "");
        else if constexpr (std::is_constructible_v<Step, kbeC_DerivedComponentShortcut const&>)
            expect(Step(derived), Facts<Step>::typeId, Facts<Step>::text, "");
        else
            expect(Step(term), Facts<Step>::typeId, Facts<Step>::text, "");
    };
#define MEMBER(Step, id, name) make(static_cast<Step const*>(nullptr));
#define SEQUENCE(Step, id) EXPECT_EQ(Step::TypeId(), unsigned(id));
#define HANDLE(T, id, implId)                                   \
    EXPECT_EQ(ddr_Shortcut<T>::TypeId(), unsigned(id)) << #T;   \
    EXPECT_EQ(ddr_ShortcutImpl<T>::TypeId(), unsigned(implId)); \
    EXPECT_EQ(T##Shortcut::TypeId(), unsigned(id));             \
    EXPECT_EQ(T##IMPLSC::TypeId(), unsigned(implId));
#define REFUSAL(Step, text)
#include "kbeC_steps.inc"
#undef MEMBER
#undef SEQUENCE
#undef HANDLE
#undef REFUSAL
    EXPECT_EQ(members, 13);
}

TEST_F(ConnectorShortcuts, LeadIntoAListByNumber) {
    for (int i = 0; i < none; ++i) {
        EXPECT_EQ(&ToOption(i).ConstGet(session), list.ConstGet(i).GetPtr());
        EXPECT_EQ(ToOption(i).Path().Text(), "hinge.options[" + std::to_string(i) + "]");
        EXPECT_STREQ(ToOption(i).Name().Text(), std::to_string(i).c_str());
    }
    EXPECT_EQ(ToOption(none).ConstGetPtr(session), nullptr);
    EXPECT_EQ(ToOption(none).GetPtr(session), nullptr);
    kbeC_ConnectorBehaviorOptionList const before(list);
    static_cast<kbeC_ConnectorStop&>(ToOption(stop).Get(session)).minMotion = 1.0;
    EXPECT_NE(before.ConstGet(stop).GetPtr(), list.ConstGet(stop).GetPtr());
    EXPECT_EQ(before.ConstGet(lock).GetPtr(), list.ConstGet(lock).GetPtr());
}

TEST_F(ConnectorShortcuts, AnIndexOutsideAListEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(ToOption(count).ConstGet(session), "");
    EXPECT_DEATH(ToOption(-1).Get(session), "");
}

TEST_F(ConnectorShortcuts, LeadIntoARepositoryByNumber) {
    kbeC_BehaviorOptionContainer repository;
    repository.Insert(7, new kbeC_ConnectorStop);
    kbeC_BehaviorOptionContainerShortcut const toAll(
        new To<kbeC_BehaviorOptionContainer>(repository, "behaviors"));
    OptionShortcut const seven(new kbeC_BehaviorOptionInBehaviorOptionContainerShortcut(toAll, 7));
    OptionShortcut const eight(new kbeC_BehaviorOptionInBehaviorOptionContainerShortcut(toAll, 8));
    Changes();
    EXPECT_EQ(seven.ConstGetPtr(session), repository.ConstGetPtr(7));
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(seven.GetPtr(session), repository.ConstGetPtr(7));
    EXPECT_EQ(Changes(), 1u);
    EXPECT_STREQ(seven.Path().Text(), "behaviors[7]");
    EXPECT_EQ(eight.ConstGetPtr(session), nullptr);
}

// ---- options of behaviours -------------------------------------------------------------------

template <class Step>
kbeC_ConnectorOptionsShortcut OptionsBy(OptionShortcut const& option) {
    return kbeC_ConnectorOptionsShortcut(new Step(option));
}

TEST_F(ConnectorShortcuts, OptionsBelongToElasticityDampingAndFriction) {
    using Step = kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut;
    for (int i : {elasticity, damping, friction}) {
        kbeC_ConnectorOptionsShortcut const options = OptionsBy<Step>(ToOption(i));
        EXPECT_EQ(options.ConstGetPtr(session), nullptr);
        EXPECT_EQ(options.GetPtr(session), nullptr);
        auto* const made = new kbeC_ConnectorOptions;
        if (i == elasticity) At<kbeC_ConnectorElasticity>(i).options = made;
        if (i == damping) At<kbeC_ConnectorDamping>(i).options = made;
        if (i == friction) At<kbeC_ConnectorFriction>(i).options = made;
        EXPECT_EQ(options.ConstGetPtr(session), made);
        EXPECT_EQ(options.GetPtr(session), made);
        EXPECT_EQ(options.Path().Text(), "hinge.options[" + std::to_string(i) + "].options");
    }
    for (int i : {stop, lock, failure, plasticity, damage})
        ExpectRefused(OptionsBy<Step>(ToOption(i)), RefusalOf(Step::TypeId()));
    EXPECT_EQ(OptionsBy<Step>(ToOption(none)).ConstGetPtr(session), nullptr);
    EXPECT_EQ(OptionsBy<Step>(ToOption(none)).GetPtr(session), nullptr);
}

TEST_F(ConnectorShortcuts, GetMakesSharedOptionsUnsharedAndConstGetDoesNot) {
    At<kbeC_ConnectorDamping>(damping).options = new kbeC_ConnectorOptions;
    kbeC_ConnectorBehaviorOptionList const before(list);
    auto const& shared =
        static_cast<kbeC_ConnectorDamping const&>(before.ConstGet(damping).ConstGet());
    kbeC_ConnectorOptionsShortcut const options =
        OptionsBy<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut>(ToOption(damping));
    EXPECT_EQ(options.ConstGetPtr(session), shared.options.GetPtr());
    options.Get(session).rateFactor = 0.5;
    EXPECT_NE(options.ConstGetPtr(session), shared.options.GetPtr());
    EXPECT_EQ(shared.options.ConstGet().rateFactor, 0.9);
    EXPECT_EQ(options.ConstGet(session).rateFactor, 0.5);
}

TEST_F(ConnectorShortcuts, OptionsOfDamageAndPlasticityAreRefusedOnEveryParent) {
    At<kbeC_ConnectorDamage>(damage).initiationOptions = new kbeC_ConnectorOptions;
    At<kbeC_ConnectorDamage>(damage).evolutionOptions = new kbeC_ConnectorOptions;
    At<kbeC_ConnectorPlasticity>(plasticity).isotropicOptions = new kbeC_ConnectorOptions;
    At<kbeC_ConnectorPlasticity>(plasticity).kinematicOptions = new kbeC_ConnectorOptions;
    auto const expect = [&]<class Step>(Step const*) {
        for (int i = 0; i < count; ++i)
            ExpectRefused(OptionsBy<Step>(ToOption(i)), RefusalOf(Step::TypeId()));
    };
    expect(static_cast<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut const*>(nullptr));
    expect(static_cast<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut const*>(nullptr));
    expect(static_cast<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut const*>(nullptr));
    expect(static_cast<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut const*>(nullptr));
}

// ---- potentials ------------------------------------------------------------------------------

template <class Step>
kbeC_ConnectorPotentialListShortcut PotentialsBy(OptionShortcut const& option) {
    return kbeC_ConnectorPotentialListShortcut(new Step(option));
}

TEST_F(ConnectorShortcuts, PotentialsBelongToFrictionAndPlasticity) {
    using Step = kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut;
    At<kbeC_ConnectorFriction>(friction).connectorPotentials.Append(kbeC_ConnectorPotential());
    At<kbeC_ConnectorPlasticity>(plasticity).connectorPotentials.Append(kbeC_ConnectorPotential());
    EXPECT_EQ(&PotentialsBy<Step>(ToOption(friction)).ConstGet(session),
              &At<kbeC_ConnectorFriction>(friction).connectorPotentials);
    EXPECT_EQ(&PotentialsBy<Step>(ToOption(friction)).Get(session),
              &At<kbeC_ConnectorFriction>(friction).connectorPotentials);
    EXPECT_EQ(&PotentialsBy<Step>(ToOption(plasticity)).ConstGet(session),
              &At<kbeC_ConnectorPlasticity>(plasticity).connectorPotentials);
    EXPECT_EQ(&PotentialsBy<Step>(ToOption(plasticity)).Get(session),
              &At<kbeC_ConnectorPlasticity>(plasticity).connectorPotentials);
    for (int i : {elasticity, damping, stop, lock, failure, damage})
        ExpectRefused(PotentialsBy<Step>(ToOption(i)), RefusalOf(Step::TypeId()));
    EXPECT_EQ(PotentialsBy<Step>(ToOption(none)).ConstGetPtr(session), nullptr);
}

TEST_F(ConnectorShortcuts, PotentialsOfDamageAreRefusedOnEveryParent) {
    auto const expect = [&]<class Step>(Step const*) {
        for (int i = 0; i < count; ++i) {
            ExpectRefused(PotentialsBy<Step>(ToOption(i)), RefusalOf(Step::TypeId()));
            ExpectRefused(kbeC_ConnectorPotentialShortcut(
                              new kbeC_ConnectorPotentialInConnectorPotentialListShortcut(
                                  PotentialsBy<Step>(ToOption(i)), 0)),
                          RefusalOf(Step::TypeId()));
        }
    };
    expect(static_cast<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut const*>(
        nullptr));
    expect(
        static_cast<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut const*>(nullptr));
}

TEST_F(ConnectorShortcuts, GoDownToTheOptionsOfATermOfAPotential) {
    kbeC_CDCTerm term;
    term.options = new kbeC_ConnectorOptions;
    kbeC_ConnectorPotential potential;
    potential.derivedComponent = new kbeC_DerivedComponent;
    potential.derivedComponent.Get().cdcTerms.Append(kbeC_CDCTerm());
    potential.derivedComponent.Get().cdcTerms.Append(term);
    At<kbeC_ConnectorFriction>(friction).connectorPotentials.Append(potential);

    using InList = kbeC_ConnectorPotentialInConnectorPotentialListShortcut;
    kbeC_ConnectorPotentialShortcut const toPotential(
        new InList(PotentialsBy<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut>(
                       ToOption(friction)),
                   0));
    kbeC_DerivedComponentShortcut const toDerived(
        new kbeC_DerivedComponentInConnectorPotentialShortcut(toPotential));
    kbeC_CDCTermListShortcut const toTerms(
        new kbeC_CdcTermsListInDerivedComponentShortcut(toDerived));
    kbeC_CDCTermShortcut const toTerm(new kbeC_CDCTermInCDCTermListShortcut(toTerms, 1));
    kbeC_ConnectorOptionsShortcut const toOptions(
        new kbeC_ConnectorOptionsInCDCTermShortcut(toTerm));
    EXPECT_STREQ(toOptions.Path().Text(),
                 "hinge.options[5].connectorPotentials[0].derivedComponent.cdcTerms[1].options");

    kbeC_ConnectorBehaviorOptionList const before(list);
    auto const& kept =
        static_cast<kbeC_ConnectorFriction const&>(before.ConstGet(friction).ConstGet())
            .connectorPotentials.ConstGet(0)
            .derivedComponent.ConstGet()
            .cdcTerms.ConstGet(1);
    EXPECT_EQ(&toTerm.ConstGet(session), &kept);
    EXPECT_EQ(toOptions.ConstGetPtr(session), kept.options.GetPtr());
    toOptions.Get(session).rateFactor = 0.25;
    EXPECT_EQ(kept.options.ConstGet().rateFactor, 0.9);
    EXPECT_EQ(toOptions.ConstGet(session).rateFactor, 0.25);
    EXPECT_EQ(before.ConstGet(stop).GetPtr(), list.ConstGet(stop).GetPtr());
}

TEST_F(ConnectorShortcuts, WhatIsAbsentOnTheWayIsAbsentAtTheEnd) {
    At<kbeC_ConnectorFriction>(friction).connectorPotentials.Append(kbeC_ConnectorPotential());
    for (OptionShortcut const& option : {ToOption(friction), ToOption(none)}) {
        kbeC_DerivedComponentShortcut const ofFriction(
            new kbeC_DerivedComponentInConnectorBehaviorOptionShortcut(option));
        kbeC_DerivedComponentShortcut const ofPotential(
            new kbeC_DerivedComponentInConnectorPotentialShortcut(kbeC_ConnectorPotentialShortcut(
                new kbeC_ConnectorPotentialInConnectorPotentialListShortcut(
                    PotentialsBy<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut>(
                        option),
                    0))));
        for (kbeC_DerivedComponentShortcut const& derived : {ofFriction, ofPotential}) {
            kbeC_CDCTermListShortcut const terms(
                new kbeC_CdcTermsListInDerivedComponentShortcut(derived));
            kbeC_CDCTermShortcut const term(new kbeC_CDCTermInCDCTermListShortcut(terms, 0));
            kbeC_ConnectorOptionsShortcut const options(
                new kbeC_ConnectorOptionsInCDCTermShortcut(term));
            EXPECT_EQ(derived.ConstGetPtr(session), nullptr);
            EXPECT_EQ(derived.GetPtr(session), nullptr);
            EXPECT_EQ(terms.ConstGetPtr(session), nullptr);
            EXPECT_EQ(terms.GetPtr(session), nullptr);
            EXPECT_EQ(term.ConstGetPtr(session), nullptr);
            EXPECT_EQ(term.GetPtr(session), nullptr);
            EXPECT_EQ(options.ConstGetPtr(session), nullptr);
            EXPECT_EQ(options.GetPtr(session), nullptr);
        }
    }
}

// ---- friction --------------------------------------------------------------------------------

TEST_F(ConnectorShortcuts, AFrictionAloneHasALawAndADerivedComponent) {
    auto const toLaw = [](OptionShortcut const& option) {
        return kbeC_TangentialBehaviorShortcut(
            new kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut(option));
    };
    auto const toDerived = [](OptionShortcut const& option) {
        return kbeC_DerivedComponentShortcut(
            new kbeC_DerivedComponentInConnectorBehaviorOptionShortcut(option));
    };
    EXPECT_EQ(toLaw(ToOption(friction)).ConstGetPtr(session), nullptr);
    EXPECT_EQ(toLaw(ToOption(friction)).GetPtr(session), nullptr);
    kbeC_ConnectorFriction& owner = At<kbeC_ConnectorFriction>(friction);
    owner.tangentialBehavior = new kbeC_TangentialBehavior;
    owner.derivedComponent = new kbeC_DerivedComponent;
    EXPECT_EQ(toLaw(ToOption(friction)).ConstGetPtr(session), owner.tangentialBehavior.GetPtr());
    EXPECT_EQ(toDerived(ToOption(friction)).ConstGetPtr(session), owner.derivedComponent.GetPtr());
    kbeC_ConnectorFriction const before(owner);
    toLaw(ToOption(friction)).Get(session).dependencies = 1;
    toDerived(ToOption(friction)).Get(session).cdcTerms.Append(kbeC_CDCTerm());
    EXPECT_EQ(before.tangentialBehavior.ConstGet().dependencies, 0);
    EXPECT_EQ(before.derivedComponent.ConstGet().cdcTerms.Size(), 0);
    EXPECT_EQ(owner.tangentialBehavior.ConstGet().dependencies, 1);
    EXPECT_EQ(owner.derivedComponent.ConstGet().cdcTerms.Size(), 1);
    EXPECT_EQ(toLaw(ToOption(none)).ConstGetPtr(session), nullptr);

    std::map<int, std::string> const others = {{elasticity, "kbeC_ConnectorElasticity"},
                                               {damping, "kbeC_ConnectorDamping"},
                                               {stop, "kbeC_ConnectorStop"},
                                               {lock, "kbeC_ConnectorLock"},
                                               {failure, "kbeC_ConnectorFailure"},
                                               {plasticity, "kbeC_ConnectorPlasticity"},
                                               {damage, "kbeC_ConnectorDamage"}};
    for (auto const& [index, name] : others) {
        std::string const text = "Cannot cast " + name + " to kbeC_ConnectorFriction";
        ExpectRefused(toLaw(ToOption(index)), text);
        ExpectRefused(toDerived(ToOption(index)), text);
    }
}

// ---- persistence -----------------------------------------------------------------------------

/// All classes of these shortcuts, and nothing else.
void RegisterSteps(cls_ClassRegistrar& registrar) {
#define MEMBER(Step, id, name) Step::InitializeMetadata(registrar);
#define SEQUENCE(Step, id) Step::InitializeMetadata(registrar);
#define HANDLE(T, id, implId)                   \
    T##Shortcut::InitializeMetadata(registrar); \
    T##IMPLSC::InitializeMetadata(registrar);
#define REFUSAL(Step, text)
#include "kbeC_steps.inc"
#undef MEMBER
#undef SEQUENCE
#undef HANDLE
#undef REFUSAL
}

TEST_F(ConnectorShortcuts, AreRegisteredUnderTheNamesOfTheTypeTable) {
    cls_ClassRegistrar registrar;
    RegisterSteps(registrar);
    EXPECT_EQ(registrar.Classes().size(), 13u + 4u + 2u * 10u);
    for (cls_ClassMetadata const* metadata : registrar.Classes()) {
        EXPECT_STREQ(metadata->Name().Text(), typ_ArchCompTable::GetName(metadata->TypeId()));
        EXPECT_EQ(metadata->Version(), 203);
    }
    cls_ClassMetadata const* const container = registrar.Find(0x2A80013);
    ASSERT_NE(container, nullptr);
    EXPECT_STREQ(container->Name().Text(), "kbeC_BehaviorOptionContainerShortcut");
    ASSERT_NE(registrar.Find(0x2A80014), nullptr);
    EXPECT_STREQ(registrar.Find(0x2A80014)->Name().Text(), "kbeC_BehaviorOptionContainerIMPLSC");
    EXPECT_EQ(registrar.Find(0x2A80011)->ParentTypeId(), 0x2A80010u);
    EXPECT_EQ(registrar.Find(0x2A80023)->ParentTypeId(), 0x2A80024u);
    EXPECT_EQ(registrar.Find(0x2A80046)->ParentTypeId(), 0x2A80040u);
    // No library registers them by itself.
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase})
        for (cls_ClassMetadata const* metadata : registrar.Classes())
            EXPECT_EQ(omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain).Find(
                          metadata->TypeId()),
                      nullptr);
}

/// Written into a store in memory and read from it.
template <class Shortcut>
void ExpectRebuilt(Shortcut const& shortcut) {
    cls_ClassRegistrar registrar;
    RegisterSteps(registrar);
    rfm_MemoryDatabase database;
    int const oid = rom_Transporter(database, registrar).Write(&shortcut, Shortcut::TypeId());
    rom_Transporter in(database, registrar);
    cow_ErasedHandle const read = in.Read(Shortcut::TypeId(), oid);
    auto const& back = *static_cast<Shortcut const*>(read.ErasedReferent());
    EXPECT_TRUE(back == shortcut) << shortcut.Path().Text();
    EXPECT_EQ(back.Uid(), shortcut.Uid());
    EXPECT_EQ(back.StepHandle().ConstGet().DynTypeId(),
              shortcut.StepHandle().ConstGet().DynTypeId());
    Shortcut const copy(shortcut.StepHandle().ConstGet().Copy());
    EXPECT_TRUE(copy == shortcut);
}

TEST_F(ConnectorShortcuts, AreRebuiltFromWhatTheyWrite) {
    OptionShortcut const option(new kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(
        kbeC_ConnectorBehaviorOptionListShortcut(), 3));
    ExpectRebuilt(option);
    ExpectRebuilt(OptionShortcut(new kbeC_BehaviorOptionInBehaviorOptionContainerShortcut(
        kbeC_BehaviorOptionContainerShortcut(), -4)));
    ExpectRebuilt(OptionsBy<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(OptionsBy<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(OptionsBy<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(OptionsBy<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(OptionsBy<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(
        PotentialsBy<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut>(option));
    ExpectRebuilt(
        PotentialsBy<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut>(option));
    kbeC_ConnectorPotentialListShortcut const potentials =
        PotentialsBy<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut>(option);
    ExpectRebuilt(potentials);
    kbeC_ConnectorPotentialShortcut const potential(
        new kbeC_ConnectorPotentialInConnectorPotentialListShortcut(potentials, 1));
    ExpectRebuilt(potential);
    ExpectRebuilt(kbeC_TangentialBehaviorShortcut(
        new kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut(option)));
    ExpectRebuilt(kbeC_DerivedComponentShortcut(
        new kbeC_DerivedComponentInConnectorBehaviorOptionShortcut(option)));
    kbeC_DerivedComponentShortcut const derived(
        new kbeC_DerivedComponentInConnectorPotentialShortcut(potential));
    ExpectRebuilt(derived);
    kbeC_CDCTermListShortcut const terms(new kbeC_CdcTermsListInDerivedComponentShortcut(derived));
    ExpectRebuilt(terms);
    kbeC_CDCTermShortcut const term(new kbeC_CDCTermInCDCTermListShortcut(terms, 123456));
    ExpectRebuilt(term);
    ExpectRebuilt(kbeC_ConnectorOptionsShortcut(new kbeC_ConnectorOptionsInCDCTermShortcut(term)));
}

}  // namespace kbeC_shortcuts_test
