#include "kbeC_ArchEntry.h"
#include "omu_TypeIds.h"
#include "typ_Entry.h"

namespace {

constexpr unsigned kbe(std::uint16_t row) { return typ_MakeTypeId(kbeC_component, row); }

// From row 33 on the numbers that the classes return and the rows part ways; both are persistent
// and stay. A parent is always the number of the parent's row, so rows 37 and 43 name themselves.
// clang-format off
constexpr typ_Entry kbeRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
    /*   1 */ {typ_classKind, kbe(9),                "kbeC_Elasticity"},
    /*   2 */ {typ_classKind, kbe(9),                "kbeC_Damping"},
    /*   3 */ {typ_classKind, kbe(8),                "kbeC_Stops"},
    /*   4 */ {typ_classKind, kbe(10),               "kbeC_Lock"},
    /*   5 */ {typ_classKind, kbe(10),               "kbeC_Failure"},
    /*   6 */ {typ_classKind, kbe(9),                "kbeC_Friction"},
    /*   7 */ {typ_classKind, mdl_RepositoryTypeId,  "kbeC_BehaviorOptionContainer"},
    /*   8 */ {typ_classKind, typ_root,              "kbeC_ConnectorBehaviorOption"},
    /*   9 */ {typ_classKind, kbe(8),                "kbeC_Tabular"},
    /*  10 */ {typ_classKind, kbe(8),                "kbeC_MotionDiscontinuity"},
    /*  11 */ {typ_classKind, typ_root,              "kbeC_ContactForce"},
    /*  12 */ {typ_classKind, typ_root,              "kbeC_ContactForceList"},
    /*  13 */ {typ_classKind, typ_root,              "kbeC_TangentialBehavior"},
    /*  14 */ {typ_classKind, kbe(9),                "kbeC_Plasticity"},
    /*  15 */ {typ_classKind, kbe(8),                "kbeC_Damage"},
    /*  16 */ {typ_classKind, typ_noParent,          "kbeC_ConnectorBehaviorOptionIMPLSC"},
    /*  17 */ {typ_classKind, typ_noParent,          "kbeC_BehaviorOptionInBehaviorOptionContainerShortcut"},
    /*  18 */ {typ_classKind, kbe(16),               "kbeC_BehaviorOptionShortcut"},
    /*  19 */ {typ_classKind, kbe(20),               "kbeC_BehaviorOptionContainerShortcut"},
    /*  20 */ {typ_classKind, typ_noParent,          "kbeC_BehaviorOptionContainerIMPLSC"},
    /*  21 */ {typ_classKind, mdl_RepositoryTypeId,  "kbeC_PotentialContainer"},
    /*  22 */ {typ_classKind, typ_root,              "kbeC_Potential"},
    /*  23 */ {typ_classKind, kbe(8),                "kbeC_ConnectorElasticity"},
    /*  24 */ {typ_classKind, kbe(8),                "kbeC_ConnectorDamping"},
    /*  25 */ {typ_classKind, kbe(8),                "kbeC_ConnectorStop"},
    /*  26 */ {typ_classKind, kbe(8),                "kbeC_ConnectorLock"},
    /*  27 */ {typ_classKind, kbe(8),                "kbeC_ConnectorFailure"},
    /*  28 */ {typ_classKind, kbe(8),                "kbeC_ConnectorFriction"},
    /*  29 */ {typ_classKind, kbe(8),                "kbeC_ConnectorPlasticity"},
    /*  30 */ {typ_classKind, kbe(8),                "kbeC_ConnectorDamage"},
    /*  31 */ {typ_classKind, typ_root,              "kbeC_ConnectorPotential"},
    /*  32 */ {typ_classKind, typ_root,              "kbeC_ConnectorPotentialShortcut"},
    /*  33 */ {typ_classKind, mdl_RepositoryTypeId,  "kbeC_ConnectorPotentialListShortcut"},
    /*  34 */ {typ_classKind, typ_root,              "kbeC_ConnectorPotentialInConnectorPotentialListShortcut"},
    /*  35 */ {typ_classKind, typ_root,              "kbeC_ConnectorPotentialListIMPLSC"},
    /*  36 */ {typ_classKind, typ_root,              "kbeC_ConnectorPotentialListIMPLSC"},
    /*  37 */ {typ_classKind, kbe(37),               "kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut"},
    /*  38 */ {typ_classKind, kbe(37),               "kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut"},
    /*  39 */ {typ_classKind, kbe(37),               "kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut"},
    /*  40 */ {typ_classKind, kbe(37),               "kbeC_ConnectPotentialsListInConnectorFrictionShortcut"},
    /*  41 */ {typ_classKind, typ_root,              "kbeC_TangentialBehaviorShortcut"},
    /*  42 */ {typ_classKind, typ_root,              "kbeC_TangentialBehaviorIMPLSC"},
    /*  43 */ {typ_classKind, kbe(43),               "kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut"},
    /*  44 */ {typ_classKind, typ_noParent,          "kbeC_ConnectorBehaviorOptionList"},
    /*  45 */ {typ_classKind, typ_noParent,          "kbeC_ConnectorBehaviorOptionListShortcut"},
    /*  46 */ {typ_classKind, typ_noParent,          "kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut"},
    /*  47 */ {typ_classKind, typ_root,              "kbeC_CDCTerm"},
    /*  48 */ {typ_classKind, typ_root,              "kbeC_DerivedComponent"},
    /*  49 */ {typ_classKind, typ_root,              "kbeC_DerivedComponentShortcut"},
    /*  50 */ {typ_classKind, typ_root,              "kbeC_DerivedComponentIMPLSC"},
    /*  51 */ {typ_classKind, typ_root,              "kbeC_DerivedComponentInConnectorPotentialShortcut"},
    /*  52 */ {typ_classKind, typ_root,              "kbeC_DerivedComponentInConnectorBehaviorOptionShortcut"},
    /*  53 */ {typ_classKind, typ_root,              "kbeC_CDCTermIMPLSC"},
    /*  54 */ {typ_classKind, typ_root,              "kbeC_CDCTermInCDCTermListShortcut"},
    /*  55 */ {typ_classKind, typ_root,              "kbeC_CDCTermShortcut"},
    /*  56 */ {typ_classKind, typ_root,              "kbeC_CDCTermListShortcut"},
    /*  57 */ {typ_classKind, typ_root,              "kbeC_CDCTermListIMPLSC"},
    /*  58 */ {typ_classKind, typ_root,              "kbeC_CdcTermsListInDerivedComponentShortcut"},
    /*  59 */ {typ_classKind, typ_root,              "kbeC_ConnectorBehaviorOptionList"},
    /*  60 */ {typ_classKind, typ_root,              "kbeC_ConnectorBehaviorOptionListShortcut"},
    /*  61 */ {typ_classKind, typ_root,              "kbeC_ConnectorBehaviorOptionListIMPLSC"},
    /*  62 */ {typ_classKind, typ_root,              "kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut"},
    /*  63 */ {typ_classKind, kbe(16),               "kbeC_ConnectorBehaviorOptionShortcut"},
    /*  64 */ {typ_classKind, typ_root,              "kbeC_ConnectorOptions"},
    /*  65 */ {typ_classKind, typ_root,              "kbeC_ConnectorOptionsShortcut"},
    /*  66 */ {typ_classKind, typ_root,              "kbeC_ConnectorOptionsIMPLSC"},
    /*  67 */ {typ_classKind, kbe(64),               "kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut"},
    /*  68 */ {typ_classKind, kbe(64),               "kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut"},
    /*  69 */ {typ_classKind, kbe(64),               "kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut"},
    /*  70 */ {typ_classKind, kbe(64),               "kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut"},
    /*  71 */ {typ_classKind, kbe(64),               "kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut"},
    /*  72 */ {typ_classKind, kbe(64),               "kbeC_ConnectorOptionsInCDCTermShortcut"},
};
// clang-format on

}  // namespace

typ_ArchCompEntry kbeC_ArchEntry() {
    return typ_ArchCompEntry(kbeRows, sizeof kbeRows / sizeof kbeRows[0]);
}
