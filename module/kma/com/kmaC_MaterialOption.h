#pragma once

#include <limits>

#include "kmaC_MaterialTable.h"
#include "kmaC_assert.h"
#include "mdl_Describe.h"

/// What a real field holds that was not set, where its class has no other default for it. There is
/// no separate flag, and databases hold this very value.
inline constexpr double kmaC_NotSet = std::numeric_limits<double>::max();

/// The base of all material options: what a material does, one behaviour a class. An option is a
/// few scalars and enumerations, usually one table of numbers, and some optional sub-options. It is
/// held behind a copy-on-write handle and copied by sharing.
///
/// Tables are stored without a meaning of their columns: no code derives a column count from
/// temperatureDependency or dependencies, and filling them is the caller's duty.
class kmaC_MaterialOption : public mem_AllocationOperators {
    DD_ABSTRACT(kmaC_MaterialOption, 0x2380002, 203)
public:
    virtual ~kmaC_MaterialOption();
    /// A new copy of the most derived object, which the caller owns.
    virtual kmaC_MaterialOption* Copy() const = 0;
    /// The option's rules; the first that fails raises through kmaC_Assert.
    virtual void AssertValid() const = 0;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    DD_END

protected:
    kmaC_MaterialOption();
    kmaC_MaterialOption(kmaC_MaterialOption const&);
    kmaC_MaterialOption& operator=(kmaC_MaterialOption const&);
    explicit kmaC_MaterialOption(cls_ReadVisitor const& visitor);
};
