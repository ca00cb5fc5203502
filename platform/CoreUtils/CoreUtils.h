#pragma once

// The guarded pair of this floor: units counts the units that are up in the process. Only the first
// initialize and the last finalize act; they are the ones that change the count.
void UTI_CoreUtils_initialize(int& units);
void UTI_CoreUtils_finalize(int& units);
