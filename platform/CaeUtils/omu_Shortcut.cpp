#include "omu_ShortcutBase.h"
#include "omu_ShortcutImpl.h"

omu_ShortcutBase::~omu_ShortcutBase() = default;

bool operator==(omu_ShortcutBase const& a, omu_ShortcutBase const& b) {
    cow_String const pathA = a.IsSet() ? a.Path() : cow_String();
    cow_String const pathB = b.IsSet() ? b.Path() : cow_String();
    return pathA == pathB;
}

omu_ShortcutImpl::~omu_ShortcutImpl() = default;

cow_String omu_ShortcutImpl::PythonPath() const { return Path(); }
