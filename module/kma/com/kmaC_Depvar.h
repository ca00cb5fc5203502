#pragma once

#include "kmaC_MaterialOption.h"

/// State variables that a user's routines keep at each point.
class kmaC_Depvar : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Depvar, kmaC_MaterialOption, 0x2380018, 203, "Depvar")
public:
    DD_FIELD(int, deleteVar, 0)  ///< number of the variable that deletes the point, 0 for none
    DD_FIELD(int, n, 0)          ///< how many
    DD_END
};
