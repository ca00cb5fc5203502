#pragma once

/// Bring this library up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void DDB_ROM_initialize(int& count);
void DDB_ROM_finalize(int& count);
