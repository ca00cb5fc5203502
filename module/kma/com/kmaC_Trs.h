#pragma once

#include "kmaC_MaterialOption.h"

/// How temperature shifts the time scale of a viscoelastic material, by a WLF law or a user's
/// routine.
class kmaC_Trs : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Trs, kmaC_MaterialOption, 0x2380050, 203, "Trs")
public:
    DD_ENUM(DefinitionEnm, WLF, USER)

    DD_FIELD(DefinitionEnm, definition, DefinitionEnm::WLF)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
