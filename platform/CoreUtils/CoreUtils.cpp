#include "CoreUtils.h"

namespace {
int guard = 0;
}

void UTI_CoreUtils_initialize(int& units) {
    int const former = guard;
    ++guard;
    if (former != 0) return;
    ++units;
}

void UTI_CoreUtils_finalize(int& units) {
    int const former = guard;
    --guard;
    if (former != 1) return;
    --units;
}
