#include "kmaC_MaterialOptionShortcut.h"

#include <algorithm>
#include <iterator>

#include "nex_TextException.h"
#include "nex_TextTable.h"
#include "omu_PrimValues.h"

template class ddr_ShortcutImpl<kmaC_MaterialOption>;
template class ddr_Shortcut<kmaC_MaterialOption>;
template class ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
template class ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;

namespace {

char const* const kmaOptionSource = "generated/module/kma/com/impl/kmaC_MaterialOptionShortcut";

// clang-format off
constexpr char const* kmaShortcutTexts[] = {
    /*  0 */ "Unknown material option",
    /*  1 */ "Unknown material option name for jointed material",
    /*  2 */ "Unknown material option name for swelling",
    /*  3 */ "Unknown material option name for plastic",
    /*  4 */ "Unknown material option name for thickness behavior",
    /*  5 */ "Unknown material option name for hyperfoam",
    /*  6 */ "Unknown material option name for drucker prager",
    /*  7 */ "Unknown material option name for brittle cracking",
    /*  8 */ "Unknown material option name in eos",
    /*  9 */ "Unknown material option name for clay plasticity",
    /* 10 */ "Material option has no suboptions",
    /* 11 */ "Unknown material option name for foam",
    /* 12 */ "Unknown material option name for elastic",
    /* 13 */ "Unknown material option name for concrete",
    /* 14 */ "Unknown material option name for cap plasticity",
    /* 15 */ "Unknown material option name for hyperelastic",
    /* 16 */ "Unknown material option name for diffusivity",
    /* 17 */ "Unknown material option name for moisture swelling",
    /* 18 */ "Unknown material option name for porous metal plasticity",
    /* 19 */ "Unknown material option name for permeability",
    /* 20 */ "Unknown material option name for creep",
    /* 21 */ "Unknown material option name for viscoelastic",
    /* 22 */ "Unknown material option name for cast iron plasticity",
    /* 23 */ "Unknown material option name for Mohr Coulomb plasticity",
    /* 24 */ "Unknown material option name for Concrete Damaged Plasticity",
    /* 25 */ "Unknown material option name for brittle cracking",
};
// clang-format on

enum kmaShortcutError : int { kmaUnknownOption = 0, kmaNoSuboptions = 10 };

[[noreturn]] void Raise(int code, int line) {
    nex_TextException(kmaC_ShortcutErrorText(code)).Throw(kmaOptionSource, line);
}

// ---- members that hold an option -------------------------------------------------------------

template <class Owner, class Held, class Policy>
kmaC_MaterialOption const* ConstOption(Owner const& owner,
                                       cow_ArrayCOW<Held, Policy> Owner::*member) {
    return (owner.*member).GetPtr();
}
template <class Owner, class Held, class Policy>
kmaC_MaterialOption* Option(Owner& owner, cow_ArrayCOW<Held, Policy> Owner::*member) {
    return (owner.*member).IsNull() ? nullptr : &(owner.*member).Get();
}

// ---- options of a material -------------------------------------------------------------------

struct MaterialKey {
    omn_FixedString key;
    kmaC_MaterialOption const* (*constGet)(kmaC_Material const&);
    kmaC_MaterialOption* (*get)(kmaC_Material&);
};

#define KMA_OPTION(member)                                                                 \
    {                                                                                      \
        kmaC_Material::member##Cmd(),                                                      \
            [](kmaC_Material const& m) { return ConstOption(m, &kmaC_Material::member); }, \
            [](kmaC_Material& m) { return Option(m, &kmaC_Material::member); }             \
    }

// In the order in which keys are compared. mullinsEffect has no key.
// clang-format off
constexpr MaterialKey kmaMaterialKeys[] = {
    KMA_OPTION(acousticMedium),
    KMA_OPTION(brittleCracking),
    KMA_OPTION(capPlasticity),
    KMA_OPTION(clayPlasticity),
    KMA_OPTION(concrete),
    KMA_OPTION(conductivity),
    KMA_OPTION(creep),
    KMA_OPTION(ductileDamageInitiation),
    KMA_OPTION(fldDamageInitiation),
    KMA_OPTION(flsdDamageInitiation),
    KMA_OPTION(johnsonCookDamageInitiation),
    KMA_OPTION(maxeDamageInitiation),
    KMA_OPTION(maxsDamageInitiation),
    KMA_OPTION(mkDamageInitiation),
    KMA_OPTION(msfldDamageInitiation),
    KMA_OPTION(quadeDamageInitiation),
    KMA_OPTION(quadsDamageInitiation),
    KMA_OPTION(shearDamageInitiation),
    KMA_OPTION(hashinDamageInitiation),
    KMA_OPTION(damping),
    KMA_OPTION(deformationPlasticity),
    KMA_OPTION(density),
    KMA_OPTION(depvar),
    KMA_OPTION(dielectric),
    KMA_OPTION(diffusivity),
    KMA_OPTION(druckerPrager),
    KMA_OPTION(elastic),
    KMA_OPTION(electricalConductivity),
    KMA_OPTION(eos),
    KMA_OPTION(expansion),
    KMA_OPTION(foam),                  // "crushableFoam"
    KMA_OPTION(fluidLeakoff),
    KMA_OPTION(gapFlow),
    KMA_OPTION(gel),
    KMA_OPTION(heatGeneration),
    KMA_OPTION(hyperelastic),
    KMA_OPTION(hyperfoam),
    KMA_OPTION(hypoelastic),
    KMA_OPTION(inelasticHeatFraction),
    KMA_OPTION(jouleHeatFraction),
    KMA_OPTION(latentHeat),
    KMA_OPTION(regularization),
    KMA_OPTION(membraneElastic),       // "gasketMembraneElastic"
    KMA_OPTION(mohrCoulomb),           // "mohrCoulombPlasticity"
    KMA_OPTION(moistureSwelling),
    KMA_OPTION(permeability),
    KMA_OPTION(piezoelectric),
    KMA_OPTION(plastic),
    KMA_OPTION(poreFluidExpansion),
    KMA_OPTION(porousBulkModuli),
    KMA_OPTION(porousElastic),
    KMA_OPTION(porousMetalPlasticity),
    KMA_OPTION(solubility),
    KMA_OPTION(sorption),
    KMA_OPTION(specificHeat),
    KMA_OPTION(swelling),
    KMA_OPTION(thicknessBehavior),     // "gasketThicknessBehavior"
    KMA_OPTION(transShearElastic),     // "gasketTransverseShearElastic"
    KMA_OPTION(userDefinedField),
    KMA_OPTION(userMaterial),
    KMA_OPTION(userOutputVariables),
    KMA_OPTION(viscoelastic),
    KMA_OPTION(viscous),
    KMA_OPTION(castIronPlasticity),
    KMA_OPTION(concreteDamagedPlasticity),
};
// clang-format on

MaterialKey const& FindOption(cow_String const& key) {
    for (MaterialKey const& row : kmaMaterialKeys)
        if (key == row.key) return row;
    Raise(kmaUnknownOption, __LINE__);
}

// ---- sub-options of an option ----------------------------------------------------------------

struct SuboptionKey {
    omn_FixedString constGetKey;
    omn_FixedString getKey;
    kmaC_MaterialOption const* (*constGet)(kmaC_MaterialOption const&);
    kmaC_MaterialOption* (*get)(kmaC_MaterialOption&);
};

// Stands for a code where an unknown key raises nothing and yields the parent itself.
constexpr int kmaYieldsParent = -1;
constexpr int kmaMostSuboptions = 6;

struct SuboptionCase {
    unsigned parent;
    int unknownKey;
    SuboptionKey keys[kmaMostSuboptions];  ///< those without accesses are unused
};

template <class Parent>
Parent const& As(kmaC_MaterialOption const& option) {
    nex_canDynamicCastRef(Parent::TypeId(), option.DynTypeId(), kmaOptionSource, __LINE__);
    return static_cast<Parent const&>(option);
}
template <class Parent>
Parent& As(kmaC_MaterialOption& option) {
    nex_canDynamicCastRef(Parent::TypeId(), option.DynTypeId(), kmaOptionSource, __LINE__);
    return static_cast<Parent&>(option);
}

// A sub-option whose key for reading is not the one for writing.
#define KMA_SUBOPTION_AS(Parent, member, constGetKey, getKey)                                  \
    {constGetKey, getKey,                                                                      \
     [](kmaC_MaterialOption const& o) { return ConstOption(As<Parent>(o), &Parent::member); }, \
     [](kmaC_MaterialOption& o) { return Option(As<Parent>(o), &Parent::member); }},
#define KMA_SUBOPTION(Parent, member) \
    KMA_SUBOPTION_AS(Parent, member, Parent::member##Cmd(), Parent::member##Cmd())
#define KMA_CASE(Parent, unknownKey, ...)                                             \
    {                                                                                 \
        Parent::TypeId(), unknownKey, { DD_EACH(KMA_SUBOPTION, Parent, __VA_ARGS__) } \
    }

// A class: the code for a key that it does not know, and its sub-options by their script names in
// the order in which keys are compared. The test data of kmaC_MullinsEffect stand in lists, and the
// potential of kmaC_Viscous has no path.
// clang-format off
constexpr SuboptionCase kmaSuboptionCases[] = {
    KMA_CASE(kmaC_BrittleCracking,           25, brittleShear, brittleFailure),
    KMA_CASE(kmaC_CapPlasticity,             14, capCreepCohesion, capCreepConsolidation, capHardening),
    KMA_CASE(kmaC_ClayPlasticity,             9, clayHardening),
    KMA_CASE(kmaC_Concrete,                  13, failureRatios, shearRetention, tensionStiffening),
    KMA_CASE(kmaC_Creep,                     20, ornl, potential),
    KMA_CASE(kmaC_Diffusivity,               16, soretEffect, pressureEffect),
    KMA_CASE(kmaC_DruckerPrager,              6, druckerPragerCreep, druckerPragerHardening, rateDependent, triaxialTestData),
    KMA_CASE(kmaC_Elastic,                   12, failStress, failStrain),
    KMA_CASE(kmaC_Eos,                        8, eosShear, eosCompaction, detonationPoint),
    {kmaC_Foam::TypeId(),                    11, {
        // Reading knows the hardening by its script name alone, writing by its schema name alone.
        KMA_SUBOPTION_AS(kmaC_Foam, foamHardening, "crushableFoamHardening", "foamHardening")
        KMA_SUBOPTION(kmaC_Foam, rateDependent)
    }},
    KMA_CASE(kmaC_Hyperelastic,              15, biaxialTestData, planarTestData, uniaxialTestData, volumetricTestData, hysteresis),
    KMA_CASE(kmaC_Hyperfoam,                  5, biaxialTestData, planarTestData, uniaxialTestData, volumetricTestData, simpleShearTestData),
    KMA_CASE(kmaC_MoistureSwelling,          17, ratios),
    KMA_CASE(kmaC_Permeability,              19, saturationDependence, velocityDependence),
    KMA_CASE(kmaC_Plastic,                    3, rateDependent, potential, cyclicHardening, ornl, cycledPlastic, annealTemperature),
    KMA_CASE(kmaC_PorousMetalPlasticity,     18, porousFailureCriteria, voidNucleation),
    KMA_CASE(kmaC_Swelling,                   2, ratios),
    KMA_CASE(kmaC_Viscoelastic,              21, combinedTestData, shearTestData, trs, volumetricTestData),
    KMA_CASE(kmaC_ThicknessBehavior,          4, contactArea),
    KMA_CASE(kmaC_CastIronPlasticity,        22, castIronCompHard, castIronTensHard),
    KMA_CASE(kmaC_MohrCoulomb,               23, mohrCoulombHardening),
    KMA_CASE(kmaC_ConcreteDamagedPlasticity, 24, concreteCompressionHardening, concreteTensionStiffening, concreteCompressionDamage, concreteTensionDamage),
    KMA_CASE(kmaC_DamageInitiation, kmaYieldsParent, damageEvolution, damageStabilization),
};
// clang-format on

SuboptionCase const& FindCase(kmaC_MaterialOption const& option) {
    unsigned const type = option.DynTypeId();
    for (SuboptionCase const& row : kmaSuboptionCases)
        if (row.parent == type) return row;
    Raise(kmaNoSuboptions, __LINE__);
}

// Null where an unknown key yields the parent.
SuboptionKey const* FindSuboption(SuboptionCase const& suboptions, cow_String const& key,
                                  omn_FixedString SuboptionKey::*keyOf) {
    for (SuboptionKey const& row : suboptions.keys)
        if (row.get && key == row.*keyOf) return &row;
    if (suboptions.unknownKey == kmaYieldsParent) return nullptr;
    Raise(suboptions.unknownKey, __LINE__);
}

cow_String OptionsStep(cow_String const& key) {
    return cow_String(".options[") + omu_PrimString(key).AsRepr() + "]";
}

}  // namespace

atr_String kmaC_ShortcutErrorText(int code) { return nex_TextOfCode(kmaShortcutTexts, code); }

bool kmaC_IsOptionKey(unsigned typeId, char const* key) {
    cow_String const wanted(key);
    if (typeId == kmaC_Material::TypeId())
        return std::any_of(std::begin(kmaMaterialKeys), std::end(kmaMaterialKeys),
                           [&](MaterialKey const& row) { return wanted == row.key; });
    for (SuboptionCase const& row : kmaSuboptionCases)
        if (row.parent == typeId)
            return std::any_of(std::begin(row.keys), std::end(row.keys), [&](auto const& one) {
                return one.get && wanted == one.constGetKey;
            });
    return false;
}

using InMaterial = ddr_StepTraits<kmaC_MaterialOptionInMaterialShortcut>;
using InOption = ddr_StepTraits<kmaC_MaterialOptionInMaterialOptionShortcut>;

cow_String InMaterial::PathStep(cow_String const& key) { return OptionsStep(key); }
cow_String InOption::PathStep(cow_String const& key) { return OptionsStep(key); }

kmaC_MaterialOption const& InMaterial::ConstGet(kmaC_Material const& material,
                                                cow_String const& key) {
    return *FindOption(key).constGet(material);
}

kmaC_MaterialOption& InMaterial::Get(kmaC_Material& material, cow_String const& key) {
    return *FindOption(key).get(material);
}

kmaC_MaterialOption const& InOption::ConstGet(kmaC_MaterialOption const& option,
                                              cow_String const& key) {
    kmaC_MaterialOption const* const parent = &option;
    if (!parent) return *parent;
    SuboptionKey const* const row =
        FindSuboption(FindCase(*parent), key, &SuboptionKey::constGetKey);
    return row ? *row->constGet(*parent) : *parent;
}

kmaC_MaterialOption& InOption::Get(kmaC_MaterialOption& option, cow_String const& key) {
    kmaC_MaterialOption* const parent = &option;
    if (!parent) return *parent;
    SuboptionKey const* const row = FindSuboption(FindCase(*parent), key, &SuboptionKey::getKey);
    return row ? *row->get(*parent) : *parent;
}
