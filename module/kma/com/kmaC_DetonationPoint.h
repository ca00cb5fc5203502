#pragma once

#include "kmaC_MaterialOption.h"

/// Where and when an explosive is set off: each row a point and a delay.
class kmaC_DetonationPoint : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DetonationPoint, kmaC_MaterialOption, 0x2380061, 203, "DetonationPoint")
public:
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_END
};
