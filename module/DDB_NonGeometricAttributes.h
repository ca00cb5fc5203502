#pragma once

// Everything a user of the library needs, floor by floor.

#include "CoreUtils.h"
#include "atr_NaturalOrder.h"
#include "atr_String.h"
#include "atr_StringBase.h"
#include "atr_translate.h"
#include "cow_2DArray.h"
#include "cow_ArrayCOW.h"
#include "cow_Btree.h"
#include "cow_BtreeIterator.h"
#include "cow_BtreeNode.h"
#include "cow_BtreeUtils.h"
#include "cow_COW.h"
#include "cow_CountedHld.h"
#include "cow_Destroy.h"
#include "cow_DetachCounter.h"
#include "cow_Direct.h"
#include "cow_ErasedHandle.h"
#include "cow_HandleBase.h"
#include "cow_List.h"
#include "cow_ListBase.h"
#include "cow_ListIter.h"
#include "cow_Map.h"
#include "cow_String.h"
#include "cow_Virtual.h"
#include "mem_AllocationOperators.h"
#include "mem_Memory.h"
#include "omi_Singleton.h"
#include "omi_Time.h"
#include "omn_FixedString.h"
#include "thr_ThreadSingleton.h"

#include "BasicUtils.h"
#include "cls_Uid.h"
#include "nex_Cast.h"
#include "nex_CommandException.h"
#include "nex_Exception.h"
#include "nex_TextException.h"
#include "nex_TextTable.h"
#include "nex_TypeIds.h"
#include "typ_ArchCompEntry.h"
#include "typ_ArchCompTable.h"
#include "typ_Entry.h"
#include "uti_Guard.h"

#include "CaeUtils.h"
#include "omu_AccessErrorException.h"
#include "omu_TypeIds.h"
#include "omu_ValueErrorException.h"

#include "RfmInterface.h"

#include "ROM.h"

#include "DiagnosticExtractor.h"

#include "kbeC_ArchEntry.h"
#include "kbeC_assert.h"
#include "kbeC_module.h"

#include "kipC_ArchEntry.h"
#include "kipC_module.h"

#include "kamC_ArchEntry.h"
#include "kamC_assert.h"
#include "kamC_module.h"

#include "kbpC_ArchEntry.h"
#include "kbpC_assert.h"
#include "kbpC_module.h"

#include "kflC_ArchEntry.h"
#include "kflC_assert.h"
#include "kflC_module.h"

#include "kmaC_ArchEntry.h"
#include "kmaC_assert.h"
#include "kmaC_module.h"

#include "klcC_ArchEntry.h"
#include "klcC_assert.h"
#include "klcC_module.h"

/// Bring the whole library up and take it down, on one thread. Calls nest; between the outermost
/// pair every class is known to the type table and the registrars, and nothing runs by itself. The
/// integer counts the units of the process that are up.
void DDB_NonGeometricAttributes_initialize(int& count);
void DDB_NonGeometricAttributes_finalize(int& count);
