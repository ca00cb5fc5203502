#pragma once

#include "cow_String.h"

/// The handle side of a shortcut: a path to an object that holds names and numbers and no pointer,
/// so that it stays good as long as the path exists.
class omu_ShortcutBase {
public:
    virtual ~omu_ShortcutBase();
    /// Whether there is a path at all; it says nothing of an object at its end.
    virtual bool IsSet() const = 0;
    virtual cow_String Name() const = 0;
    /// A script expression that evaluates to the object.
    virtual cow_String Path() const = 0;
    virtual cow_String PythonPath() const = 0;

    /// Shortcuts are equal if their paths are; one that is not set has the empty path.
    friend bool operator==(omu_ShortcutBase const& a, omu_ShortcutBase const& b);

protected:
    omu_ShortcutBase() = default;
    omu_ShortcutBase(omu_ShortcutBase const&) = default;
    omu_ShortcutBase& operator=(omu_ShortcutBase const&) = default;
};
