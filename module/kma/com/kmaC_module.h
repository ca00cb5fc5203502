#pragma once

/// Bring the module up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void kmaC_initialize(int& count);
void kmaC_finalize(int& count);
