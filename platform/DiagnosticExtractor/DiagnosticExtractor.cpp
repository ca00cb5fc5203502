#include "DiagnosticExtractor.h"

#include "uti_Guard.h"

namespace {

uti_Guard ddrGuard;

}  // namespace

void DDB_DiagnosticExtractor_initialize(int& count) { ddrGuard.Raise(count); }
void DDB_DiagnosticExtractor_finalize(int& count) { ddrGuard.Lower(count); }
