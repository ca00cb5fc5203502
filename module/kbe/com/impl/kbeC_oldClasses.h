#pragma once

class dbc_DatabaseConverter;
class dbc_Row;
class dbc_Table;

/// Registers the superseded layouts of this module.
void kbeC_RegisterOldClasses();

// The numbers that classes had and have in databases.
enum kbeC_StoredClass : unsigned {
    kbeC_ElasticityId = 0x2A80001,
    kbeC_DampingId = 0x2A80002,
    kbeC_StopsId = 0x2A80003,
    kbeC_LockId = 0x2A80004,
    kbeC_FailureId = 0x2A80005,
    kbeC_FrictionId = 0x2A80006,
    kbeC_ConnectorBehaviorOptionId = 0x2A80008,
    kbeC_TabularId = 0x2A80009,
    kbeC_MotionDiscontinuityId = 0x2A8000A,
    kbeC_TangentialBehaviorId = 0x2A8000D,
    kbeC_PlasticityId = 0x2A8000E,
    kbeC_DamageId = 0x2A8000F,
    kbeC_PotentialContainerId = 0x2A80015,
    kbeC_PotentialId = 0x2A80016,
    kbeC_ConnectorElasticityId = 0x2A80017,
    kbeC_ConnectorDampingId = 0x2A80018,
    kbeC_ConnectorStopId = 0x2A80019,
    kbeC_ConnectorLockId = 0x2A8001A,
    kbeC_ConnectorFailureId = 0x2A8001B,
    kbeC_ConnectorFrictionId = 0x2A8001C,
    kbeC_ConnectorPlasticityId = 0x2A8001D,
    kbeC_ConnectorDamageId = 0x2A8001E,
    kbeC_ConnectorPotentialId = 0x2A8001F,
    kbeC_CDCTermId = 0x2A8002D,
    kbeC_DerivedComponentId = 0x2A8002E,
    kbeC_ConnectorOptionsId = 0x2A8003E
};

// The tables whose classes took new names, and new places for their fields.
void kbeC_MovePotential(dbc_DatabaseConverter& run);
void kbeC_MoveStops(dbc_DatabaseConverter& run);
void kbeC_MoveLock(dbc_DatabaseConverter& run);
void kbeC_MoveFailure(dbc_DatabaseConverter& run);
void kbeC_MoveDamping(dbc_DatabaseConverter& run);
void kbeC_MoveElasticity(dbc_DatabaseConverter& run);
void kbeC_MoveFriction(dbc_DatabaseConverter& run);
void kbeC_MovePlasticity(dbc_DatabaseConverter& run);
void kbeC_MoveDamage(dbc_DatabaseConverter& run);

// What the steps do to a row, and at their end, named by the class and the version that they lead
// to.
void* kbeC_ConnectorDamageTo817(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorPotentialTo836(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorFrictionTo836(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorFrictionTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorFrictionFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_ConnectorDampingTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorDampingFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_ConnectorElasticityTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorElasticityFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_ConnectorPlasticityTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorPlasticityFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_ConnectorDamageTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorDamageFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_CDCTermTo1022(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_CDCTermFinalize(dbc_Table const& in, dbc_Table& out);
void* kbeC_CDCTermTo1026(dbc_Row const& in, dbc_Row& out, int);
void* kbeC_ConnectorOptionsTo1026(dbc_Row const& in, dbc_Row& out, int);
