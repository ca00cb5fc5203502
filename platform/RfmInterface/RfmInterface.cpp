#include "RfmInterface.h"

#include "uti_Guard.h"

namespace {

uti_Guard rfmGuard;

}  // namespace

void UTI_RfmInterface_initialize(int& count) { rfmGuard.Raise(count); }
void UTI_RfmInterface_finalize(int& count) { rfmGuard.Lower(count); }
