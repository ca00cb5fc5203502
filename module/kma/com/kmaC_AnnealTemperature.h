#pragma once

#include "kmaC_MaterialOption.h"

/// The temperature at which a metal forgets its hardening.
class kmaC_AnnealTemperature : public kmaC_MaterialOption {
    DD_CLASS(kmaC_AnnealTemperature, kmaC_MaterialOption, 0x2380071, 813, "AnnealTemperature")
public:
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
