#pragma once

/// Bring the module up and take it down. Calls nest; only the outermost pair acts, and counts
/// itself in the caller's integer. One thread, by contract with the host.
void klcC_initialize(int& count);
void klcC_finalize(int& count);

/// A hook for hosts; does nothing.
void klcC_formalize();
