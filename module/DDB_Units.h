#pragma once

/// The libraries below and the modules, in the order in which they come up; they go down in the
/// reverse of it. One list, so that the two orders cannot drift apart.
struct DDB_Unit {
    void (*initialize)(int& count);
    void (*finalize)(int& count);
};

inline constexpr int DDB_unitCount = 13;
extern DDB_Unit const DDB_units[DDB_unitCount];

/// From the first to the last, and from the last to the first.
void DDB_InitializeUnits(DDB_Unit const* units, int unitCount, int& count);
void DDB_FinalizeUnits(DDB_Unit const* units, int unitCount, int& count);
