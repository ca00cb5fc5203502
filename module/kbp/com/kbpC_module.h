#pragma once

/// Bring the module up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void kbpC_initialize(int& count);
void kbpC_finalize(int& count);
