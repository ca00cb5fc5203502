#include "dbc_DatabaseConverter.h"
#include "dbc_Moves.h"
#include "kbeC_oldClasses.h"

using namespace dbc_Moves;
using Field = rfm_FieldHandle;

// ---- literals ----------------------------------------------------------------------------------

void* kbeC_ConnectorDamageTo817(dbc_Row const&, dbc_Row& out, int) {
    static Field const evolution("evolutionPotentialOperator");
    static Field const initiation("initiationPotentialOperator");
    out.SetString(evolution, Mapped(out.GetString(evolution),
                                    {{"EVOLUTION_SUM", "SUM"}, {"EVOLUTION_MAXIMUM", "MAXIMUM"}}));
    out.SetString(initiation,
                  Mapped(out.GetString(initiation),
                         {{"INITIATION_SUM", "SUM"}, {"INITIATION_MAXIMUM", "MAXIMUM"}}));
    return nullptr;
}

// The name is not converted: derived components are objects now, and none bears it.
void* kbeC_ConnectorPotentialTo836(dbc_Row const& in, dbc_Row& out, int) {
    static Field const componentName("componentName");
    if (in.GetString(componentName).Length() > 0)
        out.Note("the name of its derived component is lost");
    return nullptr;
}

void* kbeC_ConnectorFrictionTo836(dbc_Row const&, dbc_Row&, int) { return nullptr; }
void* kbeC_CDCTermTo1026(dbc_Row const&, dbc_Row&, int) { return nullptr; }

// ---- options -----------------------------------------------------------------------------------

namespace {

void AddOptions(dbc_KeptTable& kept, char const* field, dbc_Row& out) {
    static Field const regularize("regularize"), defaultTolerance("defaultTolerance");
    static Field const regularization("regularization"), defaultRateFactor("defaultRateFactor");
    static Field const rateFactor("rateFactor"), interpolation("interpolation");
    static Field const extrapolation("extrapolation");
    dbc_HeldRow<dbc_Row> const row(dbc_Utils::SetObj(kept.Temporary(kbeC_ConnectorOptionsId), field,
                                                     out, kbeC_ConnectorOptionsId));
    row->SetInt(regularize, 1);
    row->SetInt(defaultTolerance, 1);
    row->SetDouble(regularization, 0.03);
    row->SetInt(defaultRateFactor, 1);
    row->SetDouble(rateFactor, 0.9);
    row->SetString(interpolation, "LINEAR");
    row->SetString(extrapolation, "CONSTANT");
}

void StoreOptions(dbc_KeptTable& kept) {
    dbc_TableMem* const table = kept.OpenTemporary();
    if (table) Run().Copier().Store(*table, "kbeC_ConnectorOptions", 1225, 0, -1);
    kept.Release();
}

/// The tables that collect the options of one class's field, open as long as its step runs.
template <int field>
dbc_KeptTable& Kept() {
    static dbc_KeptTable kept;
    return kept;
}

enum {
    FrictionOptions,
    DampingOptions,
    ElasticityOptions,
    TermOptions,
    IsotropicOptions,
    KinematicOptions,
    InitiationOptions,
    EvolutionOptions
};

}  // namespace

void* kbeC_ConnectorFrictionTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<FrictionOptions>(), "options", out);
    return nullptr;
}
void* kbeC_ConnectorFrictionFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<FrictionOptions>());
    return nullptr;
}

void* kbeC_ConnectorDampingTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<DampingOptions>(), "options", out);
    return nullptr;
}
void* kbeC_ConnectorDampingFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<DampingOptions>());
    return nullptr;
}

void* kbeC_ConnectorElasticityTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<ElasticityOptions>(), "options", out);
    return nullptr;
}
void* kbeC_ConnectorElasticityFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<ElasticityOptions>());
    return nullptr;
}

void* kbeC_ConnectorPlasticityTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<IsotropicOptions>(), "isotropicOptions", out);
    AddOptions(Kept<KinematicOptions>(), "kinematicOptions", out);
    return nullptr;
}
void* kbeC_ConnectorPlasticityFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<IsotropicOptions>());
    StoreOptions(Kept<KinematicOptions>());
    return nullptr;
}

void* kbeC_ConnectorDamageTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<InitiationOptions>(), "initiationOptions", out);
    AddOptions(Kept<EvolutionOptions>(), "evolutionOptions", out);
    return nullptr;
}
void* kbeC_ConnectorDamageFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<InitiationOptions>());
    StoreOptions(Kept<EvolutionOptions>());
    return nullptr;
}

void* kbeC_CDCTermTo1022(dbc_Row const&, dbc_Row& out, int) {
    AddOptions(Kept<TermOptions>(), "options", out);
    return nullptr;
}
void* kbeC_CDCTermFinalize(dbc_Table const&, dbc_Table&) {
    StoreOptions(Kept<TermOptions>());
    return nullptr;
}

void* kbeC_ConnectorOptionsTo1026(dbc_Row const& in, dbc_Row& out, int) {
    static Field const interpolation("interpolation");
    static Field const useBehRegSettings("useBehRegSettings");
    static Field const useBehExtSettings("useBehExtSettings");
    if (!in.IsSet(interpolation)) out.SetString(interpolation, "LINEAR");
    out.SetInt(useBehRegSettings, 1);
    out.SetInt(useBehExtSettings, 1);
    return nullptr;
}
