#pragma once

// Seconds since some moment before the first call. Every call in the process gives more than the
// one before it, so that two changes never bear the same time.
double omi_gettimecounter();
