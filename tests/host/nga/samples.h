#pragma once

#include <cfloat>

#include "DDB_NonGeometricAttributes.h"

// Described classes with a field of every kind, for tests of what runs over descriptions: the
// modules of the day may lack some kind.

/// The base of two classes that a list may hold.
class SampleBase : public mem_AllocationOperators {
    DD_ABSTRACT(SampleBase, 0x3850001, 203)
public:
    virtual ~SampleBase();
    virtual SampleBase* Copy() const = 0;
    virtual void AssertValid() const = 0;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    DD_FIELD(int, rank, 5)
    DD_END

protected:
    SampleBase();
    SampleBase(SampleBase const&);
    SampleBase& operator=(SampleBase const&);
    explicit SampleBase(cls_ReadVisitor const& visitor);
};

class SampleLeaf : public SampleBase {
    DD_CLASS(SampleLeaf, SampleBase, 0x3850002, 203, "Leaf")
public:
    DD_FIELD(double, weight, 1.5)
    DD_END
};

class SamplePart final : public mem_AllocationOperators {
    DD_ROOT_UNSCRIPTED(SamplePart, 0x3850003, 203)
public:
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    DD_FIELD(int, size, 3)
    DD_FIELD(cow_String, label)
    DD_END
    void AssertValid() const;
};

class SampleAll : public SampleBase {
    DD_CLASS(SampleAll, SampleBase, 0x3850004, 203, "All")
public:
    DD_ENUM(ColourEnm, RED, GREEN, BLUE)
    using BaseHandle = cow_ArrayCOW<SampleBase, cow_Virtual<SampleBase>>;
    using BaseList = mdl_1DArrayList<BaseHandle, SampleBase>;

    DD_FIELD(int, count, 7)
    DD_FIELD(double, factor, DBL_MAX)
    DD_FIELD_AS(cow_String, text, "label")
    DD_FIELD(bool, active, true)
    DD_FIELD(ColourEnm, colour, ColourEnm::GREEN)
    DD_FIELD(SamplePart, part)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(SampleLeaf, leaf)
    DD_FIELD(BaseHandle, any)
    DD_FIELD(BaseList, parts)
    DD_FIELD(cls_xo1DArrayList<SamplePart>, pieces)
    DD_FIELD(cls_xp1DArrayListInt, ints)
    DD_FIELD(cls_xp1DArrayListDouble, doubles)
    DD_FIELD(cls_xpMapString2Float, floats)
    DD_FIELD(cls_xp2DArrayDouble, cells)
    DD_END
};

/// Brings the library and the classes above up.
void StartSamples();
