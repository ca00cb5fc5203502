#include "ROM.h"

#include "uti_Guard.h"

namespace {

uti_Guard romGuard;

}  // namespace

void DDB_ROM_initialize(int& count) { romGuard.Raise(count); }
void DDB_ROM_finalize(int& count) { romGuard.Lower(count); }
