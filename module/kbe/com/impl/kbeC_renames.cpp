#include <climits>
#include <limits>

#include "dbc_DatabaseConverter.h"
#include "dbc_Moves.h"
#include "kbeC_oldClasses.h"
#include "nex_TextException.h"
#include "omu_TypeIds.h"

using namespace dbc_Moves;
using Field = rfm_FieldHandle;
using Object = dbc_ObjectField;

namespace {

constexpr int versionOfRenames = 811;
constexpr double noLimit = std::numeric_limits<double>::max();

[[noreturn]] void Fail(char const* text) {
    nex_TextException(atr_raw(text)).Throw("module/kbe/kbeC_renames", 0);
}

/// The input tables that row steps look into; null where the class needs none.
struct Bases {
    std::unique_ptr<dbc_TableRfm> options;  ///< of the common base
    std::unique_ptr<dbc_TableRfm> middle;   ///< of the abstract class between
    std::unique_ptr<dbc_TableRfm> tables;   ///< of property tables
};

/// How the table of one class moves.
struct Move {
    unsigned oldId;
    unsigned newId;
    bool temporary;  ///< through a temporary table; else straight to the output's
    char const* noTarget;
    char const* noInput;
    char const* noOptions;  ///< null: the class has no base
    unsigned middleId;
    char const* noMiddle;
    char const* noTables;
    void (*row)(dbc_Row const& in, dbc_Row& out, Bases& bases);
};

dbc_Table* TargetOf(Move const& move, dbc_DatabaseConverter& run) {
    if (!move.temporary) return run.Output().GetOutputTable(move.newId);
    rfm_TableMetadata const layout =
        run.Output().Transporter().GetTableMetadata(move.newId, versionOfRenames);
    dbc_TableMem* const table = run.Output().GetTempTable(move.newId, run.Output().TempTables(),
                                                          versionOfRenames, layout, 1);
    if (table) run.RenamedTables().Insert(move.newId, table);
    return table;
}

std::unique_ptr<dbc_TableRfm> Opened(dbc_DatabaseConverter& run, unsigned typeId,
                                     char const* otherwise) {
    std::unique_ptr<dbc_TableRfm> table = run.Input().GetInputTable(typeId);
    if (!table && otherwise) Fail(otherwise);
    return table;
}

void MoveTable(Move const& move, dbc_DatabaseConverter& run) {
    if (!run.Input().HasInputTable(move.oldId)) return;
    dbc_Table* const target = TargetOf(move, run);
    if (!target) Fail(move.noTarget);
    std::unique_ptr<dbc_TableRfm> const input = run.Input().GetInputTable(move.oldId);
    if (!input) Fail(move.noInput);
    int const rows = input->RowCount();
    for (int first = 0; first < rows; first += dbc_TableCopier::groupSize)
        run.Copier().CopyRows(*input, input->Metadata(), *target, target->Metadata(),
                              run.DeletedClasses(), run.ClassNames(), first,
                              dbc_TableCopier::groupSize, 0);
    if (rows == 0) return;
    Bases bases;
    if (move.noOptions) bases.options = Opened(run, kbeC_ConnectorBehaviorOptionId, move.noOptions);
    if (move.middleId) bases.middle = Opened(run, move.middleId, move.noMiddle);
    if (move.noTables) bases.tables = Opened(run, mdl_PropertyTableTypeId, move.noTables);
    for (int i = 0; i < rows; ++i) {
        dbc_HeldRow<dbc_Row const> const in(input->ConstRow(i));
        dbc_HeldRow<dbc_Row> const out(target->MutableRow(i));
        move.row(*in, *out, bases);
    }
}

// ---- what row steps have in common -------------------------------------------------------------

// Two forms of one guard: until both or until one of the tests tells that the field is there.
bool UnlessHasAndIsSet(dbc_Row const& in, Field const& field) { return !HasAndIsSet(in, field); }
bool IfNeither(dbc_Row const& in, Field const& field) {
    return !in.IsSet(field) && !in.HasField(field);
}

void ClearBase(dbc_Row& out) {
    static Field const base("##BaseClassOID");
    out.SetInt(base, -1);
}

/// Components moved from the common base down to each class.
void BaseRowStep(dbc_Row const& child, dbc_Row& out, dbc_TableRfm* options) {
    static Object const components("components");
    if (!options)
        Fail(
            "inputTable for connector_behavior_options cannot be empty in upgrade of derived "
            "objects");
    dbc_HeldRow<dbc_Row const> const base(dbc_Utils::GetBaseObj(*options, child));
    MoveObject(*base, out, components, components);
}

dbc_Row const& MiddleRow(dbc_Row const& in, Bases& bases, char const* name) {
    if (!bases.middle)
        Fail((in.Where() + " has its base in a table " + name + " that is not there.").c_str());
    return dbc_Utils::GetBaseObj(*bases.middle, in);
}

/// What stood in the class that all classes with one table derived from.
void TakeTable(dbc_Row const& in, dbc_Row const& tabular, dbc_Row& out) {
    static Object const table("table");
    static Field const dependencies("dependencies");
    static Field const temperatureDependency("temperatureDependency");
    if (!IfNeither(in, table.name)) return;
    MoveObjectAs(tabular, out, table, table, mdl_PropertyTableTypeId);
    CopyInt(tabular, out, dependencies);
    CopyInt(tabular, out, temperatureDependency);
}

void MovePotentialsTo(dbc_Row const& in, dbc_Row& out, Object const& from, Object const& to) {
    if (IfNeither(in, to.name))
        MovePotentials(in, out, from, to, kbeC_PotentialContainerId, kbeC_ConnectorPotentialId);
}

void MoveDoubleUnlessThere(dbc_Row const& in, dbc_Row const& from, dbc_Row& out,
                           Field const& oldName, Field const& newName) {
    if (UnlessHasAndIsSet(in, newName)) MoveDouble(from, out, oldName, newName);
}

void MoveLiteral(dbc_Row const& in, dbc_Row& out, Field const& from, Field const& to,
                 LiteralMap map) {
    out.SetString(to, Mapped(in.GetString(from), map));
    out.NoteMove(in, from, to);
}

// ---- the row steps -----------------------------------------------------------------------------

void PotentialRow(dbc_Row const& in, dbc_Row& out, Bases&) {
    static Field const componentStyle("componentStyle");
    static Field const positiveExp("positiveExp"), positiveExponent("positiveExponent");
    MoveLiteral(in, out, componentStyle, componentStyle,
                {{"NUMBER", "COMPONENT_NUMBER"}, {"DERIV_COMP", "DERIVED_COMPONENT"}});
    MoveDouble(in, out, positiveExp, positiveExponent);
}

struct MotionFields {
    Field const minDisplacement{"minDisplacement"}, maxDisplacement{"maxDisplacement"};
    Field const minMotion{"minMotion"}, maxMotion{"maxMotion"};

    static MotionFields const& Get() {
        static MotionFields const fields;
        return fields;
    }
};

void StopsRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    MotionFields const& motion = MotionFields::Get();
    BaseRowStep(in, out, bases.options.get());
    MoveDoubleUnlessThere(in, in, out, motion.minDisplacement, motion.minMotion);
    MoveDoubleUnlessThere(in, in, out, motion.maxDisplacement, motion.maxMotion);
}

void MoveForce(dbc_Row const& in, dbc_Row const& parent, dbc_Row& out, Field const& force) {
    if (!UnlessHasAndIsSet(in, force)) return;
    double const value = parent.GetDouble(force);
    out.SetDouble(force, value == -noLimit ? noLimit : value);
    if (!parent.IsSet(force)) out.NoteZero(force);
}

void DiscontinuityRow(dbc_Row const& in, dbc_Row& out, Bases& bases, Field const& component) {
    static Field const affectedComponent("affectedComponent");
    static Field const minForce("minForce"), maxForce("maxForce");
    MotionFields const& motion = MotionFields::Get();
    dbc_HeldRow<dbc_Row const> const parent(MiddleRow(in, bases, "kbeC_MotionDiscontinuity"));
    BaseRowStep(*parent, out, bases.options.get());
    if (IfNeither(in, component)) {
        int const affected = parent->GetInt(affectedComponent);
        out.SetInt(component, affected == -1 ? INT_MAX : affected);
        out.NoteMove(*parent, affectedComponent, component);
        if (!parent->IsSet(affectedComponent)) out.NoteZero(component);
    }
    MoveDoubleUnlessThere(in, *parent, out, motion.minDisplacement, motion.minMotion);
    MoveDoubleUnlessThere(in, *parent, out, motion.maxDisplacement, motion.maxMotion);
    MoveForce(in, *parent, out, minForce);
    MoveForce(in, *parent, out, maxForce);
    ClearBase(out);
}

void LockRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Field const lockingComponent("lockingComponent");
    DiscontinuityRow(in, out, bases, lockingComponent);
}

void FailureRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Field const releaseComponent("releaseComponent");
    DiscontinuityRow(in, out, bases, releaseComponent);
}

void DampingRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Object const dependentComponents("dependentComponents");
    static Object const independentComponents("independentComponents");
    dbc_HeldRow<dbc_Row const> const parent(MiddleRow(in, bases, "kbeC_Tabular"));
    BaseRowStep(*parent, out, bases.options.get());
    TakeTable(in, *parent, out);
    // One list under two names: the components on which the behaviour depends.
    if (IfNeither(in, independentComponents.name))
        MoveObjectAs(in, out, dependentComponents, independentComponents, cls_ListTypeId);
    ClearBase(out);
}

void FrictionRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Object const potentials("potentials"), connectorPotentials("connectorPotentials");
    static Object const independentComponents("independentComponents");
    static Object const tangentialBehavior("tangentialBehavior");
    static Field const frcPotExponent("frcPotExponent"), exponent("forcePotentialExponent");
    static Field const frcPotOperator("frcPotOperator"), operation("forcePotentialOperator");
    static Field const contForceStyle("contForceStyle"), style("contactForceStyle");
    static Field const contForceComponent("contForceComponent");
    static Field const contactForceComponent("contactForceComponent");
    static Field const useContForceComponent("useContForceComponent");
    static Field const useContactForceComponent("useContactForceComponent");
    static Field const tangentDirs("tangentDirs"), tangentDirection("tangentDirection");
    static Field const componentType("componentType"), slipDependency("slipDependency");
    static Field const stickStiffness("stickStiffness");
    static Field const texts[] = {Field("slipStyle"), Field("frictionModel"),
                                  Field("derivedComponent")};
    dbc_HeldRow<dbc_Row const> const parent(MiddleRow(in, bases, "kbeC_Tabular"));
    TakeTable(in, *parent, out);
    MovePotentialsTo(in, out, potentials, connectorPotentials);
    MoveDoubleUnlessThere(in, in, out, frcPotExponent, exponent);
    if (UnlessHasAndIsSet(in, operation)) MoveString(in, out, frcPotOperator, operation);
    if (UnlessHasAndIsSet(in, style))
        MoveLiteral(in, out, contForceStyle, style,
                    {{"NUMBER", "COMPONENT_NUMBER"}, {"DERIV_COMP", "DERIVED_COMPONENT"}});
    if (UnlessHasAndIsSet(in, contactForceComponent))
        MoveInt(in, out, contForceComponent, contactForceComponent);
    if (UnlessHasAndIsSet(in, useContactForceComponent))
        MoveInt(in, out, useContForceComponent, useContactForceComponent);
    if (UnlessHasAndIsSet(in, tangentDirection)) MoveInt(in, out, tangentDirs, tangentDirection);
    MoveLiteral(in, out, componentType, componentType,
                {{"NO_INDEP_COMPS", "NO_INDEPENDENT_COMPONENTS"}});
    for (Field const& text : texts) CopyString(in, out, text);
    CopyInt(in, out, slipDependency);
    CopyDouble(in, out, stickStiffness);
    MoveObjectAs(in, out, independentComponents, independentComponents, cls_ListTypeId);
    if (HasAndIsSet(in, tangentialBehavior.classId) && HasAndIsSet(in, tangentialBehavior.oid))
        MoveObjectAs(in, out, tangentialBehavior, tangentialBehavior, kbeC_TangentialBehaviorId);
    ClearBase(out);
}

void PlasticityRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Object const tables[] = {Object("isotropicTable"), Object("kinematicTable")};
    static Object const potentials("potentials"), connectorPotentials("connectorPotentials");
    static Field const frcPotExponent("frcPotExponent"), exponent("forcePotentialExponent");
    static Field const frcPotOperator("frcPotOperator"), operation("forcePotentialOperator");
    static Field const numbers[] = {Field("isotropicDependencies"),
                                    Field("isotropicTemperature"),
                                    Field("kinematicDependencies"),
                                    Field("kinematicTemperature"),
                                    Field("kinematic"),
                                    Field("isotropic")};
    static Field const texts[] = {Field("isotropicType"), Field("kinematicType"),
                                  Field("coupling")};
    BaseRowStep(in, out, bases.options.get());
    for (Object const& table : tables) MoveObjectAs(in, out, table, table, mdl_PropertyTableTypeId);
    MovePotentialsTo(in, out, potentials, connectorPotentials);
    MoveDoubleUnlessThere(in, in, out, frcPotExponent, exponent);
    if (UnlessHasAndIsSet(in, operation)) MoveString(in, out, frcPotOperator, operation);
    for (Field const& text : texts) CopyString(in, out, text);
    for (Field const& number : numbers) CopyInt(in, out, number);
    ClearBase(out);
}

void DamageRow(dbc_Row const& in, dbc_Row& out, Bases& bases) {
    static Field const iniPotExponent("iniPotExponent"), evoPotExponent("evoPotExponent");
    static Field const initiationExponent("initiationPotentialExponent");
    static Field const evolutionExponent("evolutionPotentialExponent");
    static Field const iniPotOperator("iniPotOperator"), evoPotOperator("evoPotOperator");
    static Field const initiationOperator("initiationPotentialOperator");
    static Field const evolutionOperator("evolutionPotentialOperator");
    static Field const evolutionType("evolutionType");
    static Object const iniPotentials("iniPotentials"), evoPotentials("evoPotentials");
    static Object const initiationPotentials("initiationPotentials");
    static Object const evolutionPotentials("evolutionPotentials");
    static Field const texts[] = {Field("softening"), Field("coupling"), Field("criterion"),
                                  Field("degradation")};
    static Field const numbers[] = {
        Field("evolutionDependencies"), Field("evolution"),   Field("initiationDependencies"),
        Field("initiationTemperature"), Field("useAffected"), Field("evolutionTemperature")};
    static Object const objects[] = {Object("evolutionTable"), Object("initiationTable"),
                                     Object("affectedComponents")};
    BaseRowStep(in, out, bases.options.get());
    ClearBase(out);
    MoveDoubleUnlessThere(in, in, out, iniPotExponent, initiationExponent);
    MoveDoubleUnlessThere(in, in, out, evoPotExponent, evolutionExponent);
    if (UnlessHasAndIsSet(in, initiationOperator))
        MoveLiteral(in, out, iniPotOperator, initiationOperator,
                    {{"SUM", "INITIATION_SUM"}, {"MAXIMUM", "INITIATION_MAXIMUM"}});
    if (UnlessHasAndIsSet(in, evolutionOperator))
        MoveLiteral(in, out, evoPotOperator, evolutionOperator,
                    {{"SUM", "EVOLUTION_SUM"}, {"MAXIMUM", "EVOLUTION_MAXIMUM"}});
    MoveLiteral(in, out, evolutionType, evolutionType,
                {{"MOTION", "MOTION_TYPE"}, {"ENERGY", "ENERGY_TYPE"}});
    for (Field const& text : texts) CopyString(in, out, text);
    for (Field const& number : numbers) CopyInt(in, out, number);
    for (Object const& object : objects) CopyObject(in, out, object);
    MovePotentialsTo(in, out, iniPotentials, initiationPotentials);
    MovePotentialsTo(in, out, evoPotentials, evolutionPotentials);
}

// ---- the moves ---------------------------------------------------------------------------------

// clang-format off
constexpr Move potential = {
    kbeC_PotentialId, kbeC_ConnectorPotentialId, true,
    "rename_kbeC_Potential failed: TempTable for ConnectorPotential(version 811) can't be NULL",
    "rename_kbeC_Potential failed: inputTable for kbeC_Potential can't be NULL",
    nullptr, 0, nullptr, nullptr, PotentialRow};
constexpr Move stops = {
    kbeC_StopsId, kbeC_ConnectorStopId, true,
    "rename_kbeC_Stops failed: TempTable for ConnectorStop(version 811) can't be NULL",
    "rename_kbeC_Stops failed: inputTable for kbeC_Stops can't be NULL",
    "rename_kbeC_Stops failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    0, nullptr, nullptr, StopsRow};
constexpr Move lock = {
    kbeC_LockId, kbeC_ConnectorLockId, true,
    "rename_kbeC_Lock failed: TempTable for ConnectorLock(version 811) can't be NULL",
    "rename_kbeC_Lock failed: inputTable can't be NULL",
    "rename_kbeC_Lock failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    kbeC_MotionDiscontinuityId,
    "rename_kbeC_Lock failed: inputTable for kbeC_MotionDiscontinuity can't be NULL",
    nullptr, LockRow};
constexpr Move failure = {
    kbeC_FailureId, kbeC_ConnectorFailureId, false,
    "rename_kbeC_Failure failed: outputTable can't be NULL",
    "rename_kbeC_Failure failed: inputTable can't be NULL",
    "rename_kbeC_Failure failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    kbeC_MotionDiscontinuityId,
    "rename_kbeC_Failure failed: inputTable for kbeC_MotionDiscontinuity can't be NULL",
    nullptr, FailureRow};
constexpr Move damping = {
    kbeC_DampingId, kbeC_ConnectorDampingId, false,
    "rename_kbeC_Damping failed: outputTable can't be NULL",
    "rename_kbeC_Damping failed: inputTable can't be NULL",
    "rename_kbeC_Damping failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    kbeC_TabularId, nullptr,
    "rename_kbeC_Damping failed: inputMdlPropertyTable can't be NULL", DampingRow};
constexpr Move elasticity = {
    kbeC_ElasticityId, kbeC_ConnectorElasticityId, true,
    "rename_kbeC_Elasticity failed: TempTable for ConnectorElasticity(version 811) can't be NULL",
    "rename_kbeC_Elasticity failed: inputTable can't be NULL",
    "rename_kbeC_Elasticity failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    kbeC_TabularId, nullptr,
    "rename_kbeC_Elasticity failed: inputMdlPropertyTable can't be NULL", DampingRow};
constexpr Move damage = {
    kbeC_DamageId, kbeC_ConnectorDamageId, true,
    "rename_kbeC_Damage failed: TempTable for ConnectorDamage(version 811) can't be NULL",
    "rename_kbeC_Damage failed: inputTable for kbeC_Damage can't be NULL",
    "rename_kbeC_Damage failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    0, nullptr, nullptr, DamageRow};
constexpr Move friction = {
    kbeC_FrictionId, kbeC_ConnectorFrictionId, true,
    "rename_kbeC_Friction failed: TempTable for ConnectorFriction(version 811) can't be NULL",
    "rename_kbeC_Friction failed: inputTable can't be NULL",
    "rename_kbeC_Friction failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    kbeC_TabularId, nullptr,
    "rename_kbeC_Friction failed: inputMdlPropertyTable can't be NULL", FrictionRow};
constexpr Move plasticity = {
    kbeC_PlasticityId, kbeC_ConnectorPlasticityId, true,
    "rename_kbeC_Plasticity failed: TempTable for ConnectorPlasticity(version 811) can't be NULL",
    "rename_kbeC_Plasticity failed: inputTable can't be NULL",
    "rename_kbeC_Plasticity failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL",
    0, nullptr,
    "rename_kbeC_Plasticity failed: inputMdlPropertyTable can't be NULL", PlasticityRow};
// clang-format on

}  // namespace

void kbeC_MovePotential(dbc_DatabaseConverter& run) { MoveTable(potential, run); }
void kbeC_MoveStops(dbc_DatabaseConverter& run) { MoveTable(stops, run); }
void kbeC_MoveLock(dbc_DatabaseConverter& run) { MoveTable(lock, run); }
void kbeC_MoveFailure(dbc_DatabaseConverter& run) { MoveTable(failure, run); }
void kbeC_MovePlasticity(dbc_DatabaseConverter& run) { MoveTable(plasticity, run); }
void kbeC_MoveFriction(dbc_DatabaseConverter& run) { MoveTable(friction, run); }

// These three enter their new names again; the map keeps one entry.
void kbeC_MoveDamage(dbc_DatabaseConverter& run) {
    run.ClassNames().Insert("kbeC_Damage", "kbeC_ConnectorDamage");
    MoveTable(damage, run);
}
void kbeC_MoveDamping(dbc_DatabaseConverter& run) {
    for (int i = 0; i < 2; ++i) run.ClassNames().Insert("kbeC_Damping", "kbeC_ConnectorDamping");
    MoveTable(damping, run);
}
void kbeC_MoveElasticity(dbc_DatabaseConverter& run) {
    for (int i = 0; i < 2; ++i)
        run.ClassNames().Insert("kbeC_Elasticity", "kbeC_ConnectorElasticity");
    MoveTable(elasticity, run);
}
