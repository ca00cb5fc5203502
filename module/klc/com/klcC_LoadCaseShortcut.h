#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_StepAccess.h"
#include "klcC_LoadCase.h"

// The shortcuts to load cases. There is none from the model to the container: its host holds it,
// and makes the step that leads to it.

using klcC_LoadCaseIMPLSC = ddr_ShortcutImpl<klcC_LoadCase>;
using klcC_LoadCaseShortcut = ddr_Shortcut<klcC_LoadCase>;
using klcC_LoadCaseContIMPLSC = ddr_ShortcutImpl<klcC_LoadCaseCont>;
using klcC_LoadCaseContShortcut = ddr_Shortcut<klcC_LoadCaseCont>;
using klcC_LoadCaseInLoadCaseContShortcut =
    ddr_DictionaryShortcut<klcC_LoadCaseCont, klcC_LoadCase, 1>;

template <>
struct ddr_ShortcutTraits<klcC_LoadCase> {
    static constexpr unsigned typeId = 0x2DC0004;
    static constexpr unsigned implTypeId = 0x2DC0003;
};
template <>
struct ddr_ShortcutTraits<klcC_LoadCaseCont> {
    static constexpr unsigned typeId = 0x2DC0007;
    static constexpr unsigned implTypeId = 0x2DC0006;
};
template <>
struct ddr_StepTraits<klcC_LoadCaseInLoadCaseContShortcut>
    : ddr_EntryByName<klcC_LoadCaseCont, klcC_LoadCase> {
    static constexpr unsigned typeId = 0x2DC0005;
};

extern template class ddr_ShortcutImpl<klcC_LoadCase>;
extern template class ddr_Shortcut<klcC_LoadCase>;
extern template class ddr_ShortcutImpl<klcC_LoadCaseCont>;
extern template class ddr_Shortcut<klcC_LoadCaseCont>;
extern template class ddr_DictionaryShortcut<klcC_LoadCaseCont, klcC_LoadCase, 1>;
