#pragma once

/// Bring this library up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void UTI_CaeUtils_initialize(int& count);
void UTI_CaeUtils_finalize(int& count);
