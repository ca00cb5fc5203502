#include <climits>

#include "dbc_DatabaseConverter.h"
#include "dbc_Failure.h"
#include "dbc_Moves.h"
#include "kmaC_CapCreepCohesion.h"
#include "kmaC_CapCreepConsolidation.h"
#include "kmaC_DamageEvolution.h"
#include "kmaC_DamageStabilization.h"
#include "kmaC_Hyperelastic.h"
#include "kmaC_MaterialTable.h"
#include "kmaC_Viscoelastic.h"
#include "kmaC_oldClasses.h"

using namespace dbc_Moves;
using Field = rfm_FieldHandle;

namespace {

// The literal stays the enumeration's own.
template <class E>
cow_String FirstLiteral() {
    return omu_PrimEnum<E, 1>(static_cast<E>(0)).AsString(0);
}

/// The columns that several steps know.
struct Known {
    Field const temperatureDependency{"temperatureDependency"};
    Field const dependencies{"dependencies"};
    Field const smoothing{"smoothing"};
    Field const lateralNominalStrain{"lateralNominalStrain"};
    Field const type{"type"};
    Field const law{"law"};
    Field const hardening{"hardening"};
    Field const dataType{"dataType"};
    Field const gamma{"gamma"};
    dbc_ObjectField const table{"table"};
};

Known const& The() {
    static Known const known;
    return known;
}

}  // namespace

void* kmaC_NothingTo(dbc_Row const&, dbc_Row&, int) { return nullptr; }

// ---- new fields --------------------------------------------------------------------------------

void* kmaC_AnnealTemperatureTo452(dbc_Row const&, dbc_Row& out, int) {
    out.SetInt(The().temperatureDependency, 0);
    return nullptr;
}

void* kmaC_TestDataTo324(dbc_Row const&, dbc_Row& out, int) {
    out.SetInt(The().smoothing, INT_MAX);
    out.SetInt(The().lateralNominalStrain, 0);
    out.SetInt(The().temperatureDependency, 0);
    out.SetInt(The().dependencies, 0);
    return nullptr;
}

void* kmaC_VolumetricTestDataTo324(dbc_Row const&, dbc_Row& out, int) {
    out.SetInt(The().lateralNominalStrain, 0);
    out.SetInt(The().temperatureDependency, 0);
    out.SetInt(The().dependencies, 0);
    return nullptr;
}

void* kmaC_VolumetricTestDataTo325(dbc_Row const&, dbc_Row& out, int) {
    out.SetInt(The().smoothing, INT_MAX);
    return nullptr;
}

void* kmaC_DampingTo1050(dbc_Row const&, dbc_Row& out, int) {
    static Field const structural("structural");
    out.SetDouble(structural, 0.0);
    return nullptr;
}

void* kmaC_HyperelasticTo324(dbc_Row const& in, dbc_Row& out, int step) {
    static Field const deviatoricResponse("deviatoricResponse"), poissonRatio("poissonRatio");
    static cow_String const uniaxial = FirstLiteral<kmaC_Hyperelastic::DeviatoricResponseEnm>();
    out.SetString(deviatoricResponse, uniaxial);
    kmaC_HyperelasticTo328(in, out, step);
    out.SetDouble(poissonRatio, 0.0);
    return nullptr;
}

void* kmaC_HyperelasticTo328(dbc_Row const&, dbc_Row& out, int) {
    static Field const volumetricResponse("volumetricResponse");
    static cow_String const byDefault = FirstLiteral<kmaC_Hyperelastic::VolumetricResponseEnm>();
    out.SetString(volumetricResponse, byDefault);
    return nullptr;
}

void* kmaC_MaterialTo1053(dbc_Row const&, dbc_Row& out, int) {
    static Field const description("description"), materialIdentifier("materialIdentifier");
    out.SetString(description, cow_String());
    out.SetString(materialIdentifier, cow_String());
    return nullptr;
}

void* kmaC_PiezoelectricTo516(dbc_Row const&, dbc_Row& out, int) {
    out.SetInt(The().temperatureDependency, 0);
    out.SetInt(The().dependencies, 0);
    return nullptr;
}

void* kmaC_ViscoelasticTo855(dbc_Row const&, dbc_Row& out, int) {
    static Field const preload("preload");
    static cow_String const isotropic = FirstLiteral<kmaC_Viscoelastic::TypeEnm>();
    static cow_String const none = FirstLiteral<kmaC_Viscoelastic::PreloadEnm>();
    out.SetString(The().type, isotropic);
    out.SetString(preload, none);
    return nullptr;
}

void* kmaC_ViscoelasticTo876(dbc_Row const&, dbc_Row& out, int) {
    static Field const allowEmptyFirstRow("allowEmptyFirstRow");
    unsigned const typeId = kmaC_MaterialTable::TypeId();
    // There may be none yet, where no option of the database had cells.
    dbc_TableRfm& tables =
        dbc_Utils::CreateClassInOutputDatabase(typeId, Run().Output().Transporter());
    dbc_HeldRow<dbc_Row> const row(dbc_Utils::SetObj(tables, "volumetricTable", out, typeId));
    row->SetInt(allowEmptyFirstRow, 1);
    dbc_Utils::SetNewAttributeArrayDoubleInOutputDatabase(*row, "table", 0);
    return nullptr;
}

// ---- new names ---------------------------------------------------------------------------------

void* kmaC_MohrCoulombTo404(dbc_Row const& in, dbc_Row& out, int) {
    static Field const from("eccentricity"), to("meridionalEccentricity");
    MoveDouble(in, out, from, to);
    return nullptr;
}

void* kmaC_PermeabilityTo404(dbc_Row const& in, dbc_Row& out, int) {
    static Field const specific("specific"), specificWeight("specificWeight");
    static dbc_ObjectField const saturation("saturation"), velocity("velocity");
    static dbc_ObjectField const saturationDependence("saturationDependence");
    static dbc_ObjectField const velocityDependence("velocityDependence");
    MoveDouble(in, out, specific, specificWeight);
    if (in.IsSet(saturation.classId)) MoveObject(in, out, saturation, saturationDependence);
    if (in.IsSet(velocity.classId)) MoveObject(in, out, velocity, velocityDependence);
    return nullptr;
}

void* kmaC_RegularizationTo404(dbc_Row const& in, dbc_Row& out, int) {
    static Field const from("rate"), to("strainRateRegularization");
    MoveString(in, out, from, to);
    return nullptr;
}

void* kmaC_UnitsTo404(dbc_Row const& in, dbc_Row& out, int) {
    static Field const from("units"), to("variableUnits");
    MoveString(in, out, from, to);
    return nullptr;
}

// ---- values that move --------------------------------------------------------------------------

void* kmaC_ExpansionTo435(dbc_Row const& in, dbc_Row& out, int) {
    static Field const userSubroutine("userSubroutine");
    bool const user = in.GetString(The().type) == "USER";
    if (user) out.SetString(The().type, "ISOTROPIC");
    out.SetInt(userSubroutine, user ? 1 : 0);
    return nullptr;
}

// The constants were the cells of a table; now they are the array itself.
void* kmaC_UserMaterialTo451(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_KeptTable kept;
    static dbc_ObjectField const mechanicalTable("mechanicalTable"), thermalTable("thermalTable");
    static dbc_ObjectField const mechanical("mechanicalConstants"), thermal("thermalConstants");
    dbc_Table& tables = kept.Input(kmaC_MaterialTable::TypeId());
    auto const unwrap = [&](dbc_ObjectField const& from, dbc_ObjectField const& to) {
        dbc_HeldRow<dbc_Row const> const wrapper(Follow(in, from.oid, tables));
        if (!wrapper->IsSet(The().table.oid)) return;
        out.SetInt(to.oid, wrapper->GetInt(The().table.oid));
        if (wrapper->IsSet(The().table.classId))
            out.SetInt(to.classId, wrapper->GetInt(The().table.classId));
        out.NoteMove(in, from.oid, to.oid);
    };
    unwrap(mechanicalTable, mechanical);
    unwrap(thermalTable, thermal);
    return nullptr;
}

void* kmaC_DamageInitiationTo883(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_KeptTable kept;
    static dbc_ObjectField const damageEvolution("damageEvolution");
    static dbc_ObjectField const stabilization("damageStabilization");
    // Databases have it so: the number of the class goes to a field that no layout has, and the
    // reference is to the class that the field is registered with.
    static Field const stabilizationClass("damageStabilization#ClassOID");
    if (!in.IsSet(damageEvolution.oid)) return nullptr;
    dbc_HeldRow<dbc_Row const> const evolution(
        Follow(in, damageEvolution.oid, kept.Output(kmaC_DamageEvolution::TypeId())));
    if (!evolution->IsSet(stabilization.oid)) return nullptr;
    out.SetInt(stabilization.oid, evolution->GetInt(stabilization.oid));
    out.NoteMove(*evolution, stabilization.oid, stabilization.oid);
    out.SetInt(stabilizationClass, static_cast<int>(kmaC_DamageStabilization::TypeId()));
    return nullptr;
}

void* kmaC_CapPlasticityTo452(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_KeptTable kept;
    static Field const mechanism("mechanism");
    static dbc_ObjectField const capCreep("capCreep"), capHardening("capHardening");
    static dbc_ObjectField const cohesionField("capCreepCohesion");
    static dbc_ObjectField const consolidationField("capCreepConsolidation");
    if (in.IsSet(capCreep.oid)) {
        dbc_HeldRow<dbc_Row const> const old(
            Follow(in, capCreep.oid, kept.Input(kmaC_CapCreepTypeId)));
        bool const cohesion = old->GetString(mechanism) == "COHESION";
        unsigned const typeId =
            cohesion ? kmaC_CapCreepCohesion::TypeId() : kmaC_CapCreepConsolidation::TypeId();
        dbc_ObjectField const& target = cohesion ? cohesionField : consolidationField;
        dbc_TableRfm& created =
            dbc_Utils::CreateClassInOutputDatabase(typeId, Run().Output().Transporter());
        dbc_HeldRow<dbc_Row> const row(created.NewRow());
        out.SetInt(target.classId, static_cast<int>(typeId));
        out.SetInt(target.oid, created.RowCount() - 1);
        out.NoteMove(in, capCreep.oid, target.oid);
        row->SetUid(dbc_Utils::DerivedUid(out, target.name.Name()));
        // A new row has no base from the start.
        CopyObject(*old, *row, The().table);
        CopyString(*old, *row, The().law);
        CopyInt(*old, *row, The().temperatureDependency);
        CopyInt(*old, *row, The().dependencies);
    }
    CopyBase(in, out);
    CopyObject(in, out, The().table);
    CopyOption(in, out, capHardening);
    CopyInt(in, out, The().temperatureDependency);
    CopyInt(in, out, The().dependencies);
    return nullptr;
}

// By hand, so that nothing of the reference to a deleted class is left.
void* kmaC_HyperelasticTo864(dbc_Row const& in, dbc_Row& out, int) {
    static Field const moduliTimeScale("moduliTimeScale"), n("n"), beta("beta");
    static Field const testData("testData"), compressible("compressible");
    static Field const properties("properties"), deviatoricResponse("deviatoricResponse");
    static Field const volumetricResponse("volumetricResponse"), poissonRatio("poissonRatio");
    static dbc_ObjectField const options[] = {
        dbc_ObjectField("biaxialTestData"), dbc_ObjectField("planarTestData"),
        dbc_ObjectField("uniaxialTestData"), dbc_ObjectField("volumetricTestData"),
        dbc_ObjectField("hysteresis")};
    CopyBase(in, out);
    CopyString(in, out, The().type);
    CopyString(in, out, moduliTimeScale);
    CopyInt(in, out, The().temperatureDependency);
    CopyInt(in, out, n);
    CopyDouble(in, out, beta);
    CopyInt(in, out, testData);
    CopyInt(in, out, compressible);
    CopyInt(in, out, properties);
    CopyString(in, out, deviatoricResponse);
    CopyString(in, out, volumetricResponse);
    CopyDouble(in, out, poissonRatio);
    CopyObject(in, out, The().table);
    for (dbc_ObjectField const& option : options) CopyOption(in, out, option);
    return nullptr;
}

void* kmaC_HyperfoamTo864(dbc_Row const& in, dbc_Row& out, int) {
    static Field const testData("testData"), poisson("poisson"), n("n"), moduli("moduli");
    static dbc_ObjectField const options[] = {
        dbc_ObjectField("biaxialTestData"), dbc_ObjectField("volumetricTestData"),
        dbc_ObjectField("planarTestData"), dbc_ObjectField("simpleShearTestData"),
        dbc_ObjectField("uniaxialTestData")};
    CopyBase(in, out);
    CopyInt(in, out, testData);
    CopyDouble(in, out, poisson);
    CopyInt(in, out, n);
    CopyInt(in, out, The().temperatureDependency);
    CopyString(in, out, moduli);
    CopyObject(in, out, The().table);
    for (dbc_ObjectField const& option : options) CopyOption(in, out, option);
    return nullptr;
}

// ---- plasticity --------------------------------------------------------------------------------

namespace {

/// Both steps read their tables through these; each finds them closed.
struct PlasticTables {
    dbc_KeptTable materials, arrays;
};

PlasticTables& Plastic() {
    static PlasticTables tables;
    return tables;
}

dbc_Row const& PlasticCells(dbc_Row const& in) {
    dbc_HeldRow<dbc_Row const> const material(
        Follow(in, The().table.oid, Plastic().materials.Input(kmaC_MaterialTable::TypeId())));
    return Follow(*material, The().table.oid, Plastic().arrays.Input(cls_ListTypeId));
}

Array PlasticArray(dbc_Row const& in) {
    dbc_HeldRow<dbc_Row const> const array(PlasticCells(in));
    return ReadArray(*array);
}

// The material table that the output row refers to gets a new array.
void SetPlasticArray(dbc_Row& out, Array const& array) {
    static dbc_KeptTable materials;
    dbc_HeldRow<dbc_Row> const material(
        materials.Output(kmaC_MaterialTable::TypeId()).MutableRow(Reference(out, The().table.oid)));
    material->SetInt(The().table.oid, AppendArray(out, "table", array));
}

bool Is(dbc_Row const& in, char const* hardeningLiteral, char const* dataTypeLiteral) {
    return in.GetString(The().hardening) == hardeningLiteral &&
           in.GetString(The().dataType) == dataTypeLiteral;
}

void RequireColumns(dbc_Row const& in, Array const& array, int columns) {
    if (array.columns < columns)
        dbc_Fail(in.Where() + ", field \"table\", leads to an array of " +
                 std::to_string(array.columns) + " columns, and its conversion needs " +
                 std::to_string(columns) + ".");
}

}  // namespace

void* kmaC_PlasticTo419(dbc_Row const& in, dbc_Row& out, int) {
    static Field const strainRangeDependency("strainRangeDependency");
    static Field const columns("Target#Columns", rom_Layout::ListColumns);
    if (!HasAndIsSet(in, strainRangeDependency)) {
        out.SetInt(strainRangeDependency, 0);
        if (Is(in, "COMBINED", "STABILIZED")) {
            // The cells themselves do not matter, so that a table without any passes.
            dbc_HeldRow<dbc_Row const> const array(PlasticCells(in));
            if (in.GetInt(The().dependencies) + 2 + in.GetInt(The().temperatureDependency) <
                array->GetInt(columns))
                out.SetInt(strainRangeDependency, 1);
        }
    }
    if (HasAndIsSet(in, The().gamma)) return nullptr;
    out.SetDouble(The().gamma, 0.0);
    if (!Is(in, "COMBINED", "PARAMETERS")) return nullptr;
    Array const old = PlasticArray(in);
    RequireColumns(in, old, 3);
    if (old.rows > 0) out.SetDouble(The().gamma, old.values[2]);
    Array narrower{old.columns - 1, old.rows, {}};
    narrower.values.reserve(old.values.size() - static_cast<std::size_t>(old.rows));
    for (std::size_t i = 0; i < old.values.size(); ++i)
        if (i % static_cast<std::size_t>(old.columns) != 2)
            narrower.values.push_back(old.values[i]);
    SetPlasticArray(out, narrower);
    return nullptr;
}

void* kmaC_PlasticTo1107(dbc_Row const& in, dbc_Row& out, int) {
    static Field const numBackstresses("numBackstresses");
    if (!HasAndIsSet(in, numBackstresses)) out.SetInt(numBackstresses, 1);
    if (!HasAndIsSet(in, The().gamma)) return nullptr;
    double const value = in.GetDouble(The().gamma);
    if (!Is(in, "COMBINED", "PARAMETERS")) return nullptr;
    Array const old = PlasticArray(in);
    RequireColumns(in, old, 2);
    Array wider{old.columns + 1, old.rows, {}};
    wider.values.reserve(old.values.size() + static_cast<std::size_t>(old.rows));
    for (std::size_t i = 0; i < old.values.size(); ++i) {
        wider.values.push_back(old.values[i]);
        if (i % static_cast<std::size_t>(old.columns) == 1) wider.values.push_back(value);
    }
    SetPlasticArray(out, wider);
    out.NoteMove(in, The().gamma, The().table.name);
    return nullptr;
}

void* kmaC_PlasticFinalize(dbc_Table const&, dbc_Table&) {
    Plastic().materials.Release();
    Plastic().arrays.Release();
    return nullptr;
}
