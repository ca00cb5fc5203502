#include "kbeC_oldClasses.h"

#include "dbc_OldClass.h"
#include "omu_TypeIds.h"

namespace {

// clang-format off
constexpr dbc_OldField connectorBehaviorOption453[] = {
    dbc_IntList("components"),
};
constexpr dbc_OldField tabular453[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"),
    dbc_Object("table", mdl_PropertyTableTypeId),
};
constexpr dbc_OldField motionDiscontinuity453[] = {
    dbc_Int("affectedComponent"), dbc_Real("minDisplacement"), dbc_Real("maxDisplacement"),
    dbc_Real("minForce"), dbc_Real("maxForce"),
};
constexpr dbc_OldField potential507[] = {
    dbc_Literal("componentStyle"), dbc_Int("componentNumber"), dbc_Text("componentName"),
    dbc_Real("scaleFactor"), dbc_Real("positiveExp"), dbc_Real("shiftFactor"),
    dbc_Literal("hFunction"), dbc_Literal("sign"),
};
constexpr dbc_OldField term836[] = {
    dbc_Literal("termOperator"), dbc_Literal("termSign"), dbc_Flag("localDependency"),
    dbc_Literal("indepCompType"), dbc_Flag("tempDependency"), dbc_Int("fieldDependencies"),
    dbc_IntList("intrinsicComponents"), dbc_IntList("indepComponents"),
    dbc_Object("table", mdl_PropertyTableTypeId),
};
constexpr dbc_OldField term1022[] = {
    dbc_Literal("termOperator"), dbc_Literal("termSign"), dbc_Flag("localDependency"),
    dbc_Literal("indepCompType"), dbc_Flag("tempDependency"), dbc_Int("fieldDependencies"),
    dbc_IntList("intrinsicComponents"), dbc_IntList("indepComponents"),
    dbc_Object("table", mdl_PropertyTableTypeId), dbc_Object("options", kbeC_ConnectorOptionsId),
};
constexpr dbc_OldField connectorPotential811[] = {
    dbc_Literal("componentStyle"), dbc_Int("componentNumber"), dbc_Literal("sign"),
    dbc_Real("scaleFactor"), dbc_Real("positiveExponent"), dbc_Real("shiftFactor"),
    dbc_Literal("hFunction"), dbc_Text("componentName"),
};
constexpr dbc_OldField connectorFriction811[] = {
    dbc_Literal("frictionModel"), dbc_Literal("slipStyle"), dbc_Int("tangentDirection"),
    dbc_Real("stickStiffness"), dbc_Literal("componentType"), dbc_Flag("slipDependency"),
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"),
    dbc_Flag("useContactForceComponent"), dbc_Literal("contactForceStyle"),
    dbc_Int("contactForceComponent"), dbc_Literal("forcePotentialOperator"),
    dbc_Real("forcePotentialExponent"), dbc_Objects("connectorPotentials"),
    dbc_Object("table", mdl_PropertyTableTypeId),
    dbc_Object("tangentialBehavior", kbeC_TangentialBehaviorId),
    dbc_IntList("independentComponents"), dbc_Text("derivedComponent"),
};
constexpr dbc_OldField connectorFriction836[] = {
    dbc_Literal("frictionModel"), dbc_Literal("slipStyle"), dbc_Int("tangentDirection"),
    dbc_Real("stickStiffness"), dbc_Literal("componentType"), dbc_Flag("slipDependency"),
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"),
    dbc_Flag("useContactForceComponent"), dbc_Literal("contactForceStyle"),
    dbc_Int("contactForceComponent"), dbc_Literal("forcePotentialOperator"),
    dbc_Real("forcePotentialExponent"), dbc_Objects("connectorPotentials"),
    dbc_Object("table", mdl_PropertyTableTypeId),
    dbc_Object("tangentialBehavior", kbeC_TangentialBehaviorId),
    dbc_IntList("independentComponents"),
    dbc_Object("derivedComponent", kbeC_DerivedComponentId),
};
constexpr dbc_OldField potentialContainer507[] = {
    dbc_IntMap("map"),
};
constexpr dbc_OldField connectorDamage811[] = {
    dbc_Literal("coupling"), dbc_Literal("criterion"), dbc_Flag("initiationTemperature"),
    dbc_Literal("initiationPotentialOperator"), dbc_Real("initiationPotentialExponent"),
    dbc_Int("initiationDependencies"), dbc_Flag("evolution"), dbc_Literal("evolutionType"),
    dbc_Literal("softening"), dbc_Flag("useAffected"), dbc_Literal("degradation"),
    dbc_Flag("evolutionTemperature"), dbc_Int("evolutionDependencies"),
    dbc_Literal("evolutionPotentialOperator"), dbc_Real("evolutionPotentialExponent"),
    dbc_Objects("initiationPotentials"), dbc_Objects("evolutionPotentials"),
    dbc_Object("initiationTable", mdl_PropertyTableTypeId),
    dbc_Object("evolutionTable", mdl_PropertyTableTypeId), dbc_IntList("affectedComponents"),
    dbc_IntList("components"),
};
constexpr dbc_OldField connectorDamping811[] = {
    dbc_Literal("behavior"), dbc_Literal("coupling"), dbc_Int("dependencies"),
    dbc_Flag("temperatureDependency"), dbc_Flag("frequencyDependency"),
    dbc_Object("table", mdl_PropertyTableTypeId), dbc_IntList("independentComponents"),
    dbc_IntList("components"),
};
constexpr dbc_OldField connectorOptions1022[] = {
    dbc_Flag("regularize"), dbc_Flag("defaultTolerance"), dbc_Real("regularization"),
    dbc_Flag("defaultRateFactor"), dbc_Real("rateFactor"), dbc_Literal("interpolation"),
    dbc_Literal("extrapolation"),
};
constexpr dbc_OldField connectorPlasticity811[] = {
    dbc_Literal("coupling"), dbc_Flag("isotropic"), dbc_Literal("isotropicType"),
    dbc_Flag("isotropicTemperature"), dbc_Int("isotropicDependencies"), dbc_Flag("kinematic"),
    dbc_Literal("kinematicType"), dbc_Flag("kinematicTemperature"),
    dbc_Int("kinematicDependencies"), dbc_Literal("forcePotentialOperator"),
    dbc_Real("forcePotentialExponent"), dbc_Objects("connectorPotentials"),
    dbc_Object("isotropicTable", mdl_PropertyTableTypeId),
    dbc_Object("kinematicTable", mdl_PropertyTableTypeId), dbc_IntList("components"),
};
constexpr dbc_OldField damage453[] = {
    dbc_Literal("criterion"), dbc_Flag("initiationTemperature"),
    dbc_Int("initiationDependencies"), dbc_Object("initiationTable", mdl_PropertyTableTypeId),
    dbc_Flag("evolution"), dbc_Literal("evolutionType"), dbc_Literal("softening"),
    dbc_Flag("useAffected"), dbc_IntList("affectedComponents"), dbc_Literal("degradation"),
    dbc_Flag("evolutionTemperature"), dbc_Int("evolutionDependencies"),
    dbc_Object("evolutionTable", mdl_PropertyTableTypeId),
};
constexpr dbc_OldField damage507[] = {
    dbc_Literal("criterion"), dbc_Flag("initiationTemperature"),
    dbc_Int("initiationDependencies"), dbc_Object("initiationTable", mdl_PropertyTableTypeId),
    dbc_Flag("evolution"), dbc_Literal("evolutionType"), dbc_Literal("softening"),
    dbc_Flag("useAffected"), dbc_IntList("affectedComponents"), dbc_Literal("degradation"),
    dbc_Flag("evolutionTemperature"), dbc_Int("evolutionDependencies"),
    dbc_Object("evolutionTable", mdl_PropertyTableTypeId), dbc_Literal("coupling"),
    dbc_Literal("iniPotOperator"), dbc_Real("iniPotExponent"),
    dbc_Object("iniPotentials", kbeC_PotentialContainerId), dbc_Int("lastIniId"),
    dbc_Literal("evoPotOperator"), dbc_Real("evoPotExponent"),
    dbc_Object("evoPotentials", kbeC_PotentialContainerId), dbc_Int("lastEvoId"),
};
constexpr dbc_OldField damping453[] = {
    dbc_Literal("coupling"), dbc_Literal("behavior"), dbc_IntList("dependentComponents"),
    dbc_Flag("frequencyDependency"),
};
constexpr dbc_OldField friction453[] = {
    dbc_Literal("frictionModel"), dbc_Real("stickStiffness"), dbc_Int("tangentDirs"),
    dbc_Literal("componentType"), dbc_IntList("independentComponents"),
    dbc_Flag("slipDependency"), dbc_Object("tangentialBehavior", kbeC_TangentialBehaviorId),
};
constexpr dbc_OldField friction507[] = {
    dbc_Literal("frictionModel"), dbc_Real("stickStiffness"), dbc_Int("tangentDirs"),
    dbc_Literal("componentType"), dbc_IntList("independentComponents"),
    dbc_Flag("slipDependency"), dbc_Object("tangentialBehavior", kbeC_TangentialBehaviorId),
    dbc_Literal("slipStyle"), dbc_Flag("useContForceComponent"), dbc_Literal("contForceStyle"),
    dbc_Int("contForceComponent"), dbc_Text("derivedComponent"), dbc_Literal("frcPotOperator"),
    dbc_Real("frcPotExponent"), dbc_Object("potentials", kbeC_PotentialContainerId),
    dbc_Int("lastId"),
};
constexpr dbc_OldField plasticity453[] = {
    dbc_Flag("isotropic"), dbc_Literal("isotropicType"), dbc_Flag("isotropicTemperature"),
    dbc_Int("isotropicDependencies"), dbc_Object("isotropicTable", mdl_PropertyTableTypeId),
    dbc_Flag("kinematic"), dbc_Literal("kinematicType"), dbc_Flag("kinematicTemperature"),
    dbc_Int("kinematicDependencies"), dbc_Object("kinematicTable", mdl_PropertyTableTypeId),
};
constexpr dbc_OldField plasticity507[] = {
    dbc_Flag("isotropic"), dbc_Literal("isotropicType"), dbc_Flag("isotropicTemperature"),
    dbc_Int("isotropicDependencies"), dbc_Object("isotropicTable", mdl_PropertyTableTypeId),
    dbc_Flag("kinematic"), dbc_Literal("kinematicType"), dbc_Flag("kinematicTemperature"),
    dbc_Int("kinematicDependencies"), dbc_Object("kinematicTable", mdl_PropertyTableTypeId),
    dbc_Literal("coupling"), dbc_Literal("frcPotOperator"), dbc_Real("frcPotExponent"),
    dbc_Object("potentials", kbeC_PotentialContainerId), dbc_Int("lastId"),
};
constexpr dbc_OldField stops453[] = {
    dbc_Real("minDisplacement"), dbc_Real("maxDisplacement"),
};

constexpr unsigned option = kbeC_ConnectorBehaviorOptionId;

constexpr dbc_OldClass oldClasses[] = {
    {"kbeC_ConnectorBehaviorOption_453", "kbeC_ConnectorBehaviorOption", kbeC_ConnectorBehaviorOptionId, 453, cls_RootTypeId, 5,
     connectorBehaviorOption453, dbc_Step(811)},
    {"kbeC_Tabular_453", "kbeC_Tabular", kbeC_TabularId, 453, option, 5,
     tabular453, dbc_Deleted()},
    {"kbeC_MotionDiscontinuity_453", "kbeC_MotionDiscontinuity", kbeC_MotionDiscontinuityId, 453, option, 5,
     motionDiscontinuity453, dbc_Deleted()},
    {"kbeC_Potential_507", "kbeC_Potential", kbeC_PotentialId, 507, cls_RootTypeId, 5,
     potential507, dbc_Renamed("kbeC_ConnectorPotential", kbeC_MovePotential)},
    {"kbeC_CDCTerm_836", "kbeC_CDCTerm", kbeC_CDCTermId, 836, cls_RootTypeId, 5,
     term836, dbc_Step(1022, kbeC_CDCTermTo1022, kbeC_CDCTermFinalize)},
    {"kbeC_CDCTerm_1022", "kbeC_CDCTerm", kbeC_CDCTermId, 1022, cls_RootTypeId, 5,
     term1022, dbc_Step(1026, kbeC_CDCTermTo1026)},
    {"kbeC_ConnectorPotential_811", "kbeC_ConnectorPotential", kbeC_ConnectorPotentialId, 811, 0, 5,
     connectorPotential811, dbc_Step(836, kbeC_ConnectorPotentialTo836)},
    {"kbeC_ConnectorFriction_811", "kbeC_ConnectorFriction", kbeC_ConnectorFrictionId, 811, option, 5,
     connectorFriction811, dbc_Step(836, kbeC_ConnectorFrictionTo836)},
    {"kbeC_ConnectorFriction_836", "kbeC_ConnectorFriction", kbeC_ConnectorFrictionId, 836, option, 5,
     connectorFriction836, dbc_Step(1022, kbeC_ConnectorFrictionTo1022, kbeC_ConnectorFrictionFinalize)},
    {"kbeC_PotentialContainer_507", "kbeC_PotentialContainer", kbeC_PotentialContainerId, 507, cls_RootTypeId, 5,
     potentialContainer507, dbc_Deleted()},
    {"kbeC_ConnectorDamage_811", "kbeC_ConnectorDamage", kbeC_ConnectorDamageId, 811, option, 5,
     connectorDamage811, dbc_Step(817, kbeC_ConnectorDamageTo817)},
    {"kbeC_ConnectorDamage_817", "kbeC_ConnectorDamage", kbeC_ConnectorDamageId, 817, option, 5,
     connectorDamage811, dbc_Step(1022, kbeC_ConnectorDamageTo1022, kbeC_ConnectorDamageFinalize)},
    {"kbeC_ConnectorDamping_811", "kbeC_ConnectorDamping", kbeC_ConnectorDampingId, 811, option, 5,
     connectorDamping811, dbc_Step(1022, kbeC_ConnectorDampingTo1022, kbeC_ConnectorDampingFinalize)},
    {"kbeC_ConnectorElasticity_811", "kbeC_ConnectorElasticity", kbeC_ConnectorElasticityId, 811, option, 5,
     connectorDamping811, dbc_Step(1022, kbeC_ConnectorElasticityTo1022, kbeC_ConnectorElasticityFinalize)},
    {"kbeC_ConnectorOptions_1022", "kbeC_ConnectorOptions", kbeC_ConnectorOptionsId, 1022, cls_RootTypeId, 5,
     connectorOptions1022, dbc_Step(1026, kbeC_ConnectorOptionsTo1026)},
    {"kbeC_ConnectorPlasticity_811", "kbeC_ConnectorPlasticity", kbeC_ConnectorPlasticityId, 811, option, 5,
     connectorPlasticity811, dbc_Step(1022, kbeC_ConnectorPlasticityTo1022, kbeC_ConnectorPlasticityFinalize)},
    {"kbeC_Damage_453", "kbeC_Damage", kbeC_DamageId, 453, option, 4,
     damage453, dbc_Step(507)},
    {"kbeC_Damage_507", "kbeC_Damage", kbeC_DamageId, 507, option, 5,
     damage507, dbc_Renamed("kbeC_ConnectorDamage", kbeC_MoveDamage)},
    {"kbeC_Damping_453", "kbeC_Damping", kbeC_DampingId, 453, kbeC_TabularId, 5,
     damping453, dbc_Renamed("kbeC_ConnectorDamping", kbeC_MoveDamping)},
    {"kbeC_Elasticity_453", "kbeC_Elasticity", kbeC_ElasticityId, 453, kbeC_TabularId, 5,
     damping453, dbc_Renamed("kbeC_ConnectorElasticity", kbeC_MoveElasticity)},
    {"kbeC_Friction_453", "kbeC_Friction", kbeC_FrictionId, 453, kbeC_TabularId, 4,
     friction453, dbc_Step(507)},
    {"kbeC_Friction_507", "kbeC_Friction", kbeC_FrictionId, 507, kbeC_TabularId, 5,
     friction507, dbc_Renamed("kbeC_ConnectorFriction", kbeC_MoveFriction)},
    {"kbeC_Failure_453", "kbeC_Failure", kbeC_FailureId, 453, kbeC_MotionDiscontinuityId, 5,
     {}, dbc_Renamed("kbeC_ConnectorFailure", kbeC_MoveFailure)},
    {"kbeC_Plasticity_453", "kbeC_Plasticity", kbeC_PlasticityId, 453, option, 4,
     plasticity453, dbc_Step(507)},
    {"kbeC_Plasticity_507", "kbeC_Plasticity", kbeC_PlasticityId, 507, option, 5,
     plasticity507, dbc_Renamed("kbeC_ConnectorPlasticity", kbeC_MovePlasticity)},
    {"kbeC_Lock_453", "kbeC_Lock", kbeC_LockId, 453, kbeC_MotionDiscontinuityId, 5,
     {}, dbc_Renamed("kbeC_ConnectorLock", kbeC_MoveLock)},
    {"kbeC_Stops_453", "kbeC_Stops", kbeC_StopsId, 453, option, 5,
     stops453, dbc_Renamed("kbeC_ConnectorStop", kbeC_MoveStops)},
};
// clang-format on

}  // namespace

void kbeC_RegisterOldClasses() { dbc_RegisterOldClasses(oldClasses); }
