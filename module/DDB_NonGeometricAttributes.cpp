#include "DDB_NonGeometricAttributes.h"

#include "DDB_Units.h"

namespace {

uti_Guard ddbGuard;

}  // namespace

DDB_Unit const DDB_units[DDB_unitCount] = {
    {UTI_CoreUtils_initialize, UTI_CoreUtils_finalize},
    {UTI_BasicUtils_initialize, UTI_BasicUtils_finalize},
    {UTI_CaeUtils_initialize, UTI_CaeUtils_finalize},
    {UTI_RfmInterface_initialize, UTI_RfmInterface_finalize},
    {DDB_ROM_initialize, DDB_ROM_finalize},
    {DDB_DiagnosticExtractor_initialize, DDB_DiagnosticExtractor_finalize},
    {kbeC_initialize, kbeC_finalize},
    {kipC_initialize, kipC_finalize},
    {kamC_initialize, kamC_finalize},
    {kbpC_initialize, kbpC_finalize},
    {kflC_initialize, kflC_finalize},
    {kmaC_initialize, kmaC_finalize},
    {klcC_initialize, klcC_finalize},
};

void DDB_InitializeUnits(DDB_Unit const* units, int unitCount, int& count) {
    for (int unit = 0; unit < unitCount; ++unit) units[unit].initialize(count);
}

void DDB_FinalizeUnits(DDB_Unit const* units, int unitCount, int& count) {
    for (int unit = unitCount; unit-- > 0;) units[unit].finalize(count);
}

void DDB_NonGeometricAttributes_initialize(int& count) {
    if (!ddbGuard.Raise(count)) return;
    DDB_InitializeUnits(DDB_units, DDB_unitCount, count);
}

void DDB_NonGeometricAttributes_finalize(int& count) {
    if (!ddbGuard.Lower(count)) return;
    DDB_FinalizeUnits(DDB_units, DDB_unitCount, count);
}
