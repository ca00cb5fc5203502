#pragma once

#include "cls_ClassRegistrar.h"
#include "omu_ShortcutImpl.h"

/// A step of a path that starts at a model, whatever it leads to; also what all shortcut classes
/// share of their persistence, so that it is compiled once.
class ddr_ShortcutBaseImpl : public omu_ShortcutImpl {
public:
    cow_String PythonPath() const override;
    /// The name of the database that the path starts in: each step asks the one before, and only
    /// the root knows.
    virtual cow_String DdbName() const;

    /// The frame's own fields of shortcut classes.
    static cls_FieldHandle const& ImplField();
    static cls_FieldHandle const& NameField();
    static cls_FieldHandle const& IndexField();
    static cls_FieldHandle const& ParentField();

    /// Where failures of shortcuts are raised.
    static char const* Source();
    [[noreturn]] static void RaiseUnset();

protected:
    /// The metadata of a shortcut class. They bear the names of the type tables, and their schema
    /// has never changed.
    static cls_ClassMetadata& Describe(cls_ClassRegistrar& registrar, unsigned typeId,
                                       cls_ClassMetadata::Constructor constructor,
                                       unsigned parentTypeId, void (*release)(cow_HandleBase*));
    static cls_ClassMetadata& WithSmallTable(cls_ClassMetadata& metadata);
    static cls_ClassMetadata& WithMediumTable(cls_ClassMetadata& metadata);

    template <class>
    friend class ddr_Shortcut;
};
