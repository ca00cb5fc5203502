#pragma once

/// Bring the module up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void kflC_initialize(int& count);
void kflC_finalize(int& count);

/// A hook for hosts; does nothing.
void kflC_formalize();
