#pragma once

#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;
class dbc_DatabaseConverter;

/// A superseded layout of a class: it enters the field list that was in force from its version on,
/// and declares either the step to the next layout, or what becomes of a class that was retired.
class dbc_OldClassVersion : public mem_AllocationOperators {
public:
    virtual ~dbc_OldClassVersion();
    virtual void InitializeMetadata(cls_ClassRegistrar& registrar) const = 0;
    virtual void SchemaChanges(dbc_DatabaseConverter& converter) const;
    virtual void ClassesToDelete(dbc_DatabaseConverter& converter) const;
    virtual void ClassesToRename(dbc_DatabaseConverter& converter) const;
    virtual void TablesToRename(dbc_DatabaseConverter& converter) const;

    /// What tells old classes of one C++ class apart; null where each has a C++ class of its own.
    virtual void const* Identity() const;
};
