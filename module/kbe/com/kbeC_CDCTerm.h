#pragma once

#include "kbeC_ConnectorOptions.h"
#include "mdl_PropertyTable.h"

/// One term of a derived component: how some intrinsic components of a connector are put together,
/// and the table of their scaling.
class kbeC_CDCTerm final : public mem_AllocationOperators {
    DD_ROOT(kbeC_CDCTerm, 0x2A8002D, 1026, "CDCTerm")
public:
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kbeC_CDCTerm* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_ENUM(TermOperatorEnm, RSS, SUM, MACAULEY)
    DD_ENUM(TermSignEnm, POSITIVE, NEGATIVE)
    DD_ENUM(IndepCompTypeEnm, POSITION, MOTION)

    DD_FIELD(TermOperatorEnm, termOperator, TermOperatorEnm::RSS)
    DD_FIELD(TermSignEnm, termSign, TermSignEnm::POSITIVE)
    DD_FIELD(bool, localDependency, false)
    DD_FIELD(IndepCompTypeEnm, indepCompType, IndepCompTypeEnm::POSITION)
    DD_FIELD(bool, tempDependency, false)
    DD_FIELD(int, fieldDependencies, 0)
    DD_FIELD(cls_xp1DArrayListInt, intrinsicComponents)
    DD_FIELD(cls_xp1DArrayListInt, indepComponents)
    DD_FIELD(mdl_PropertyTable, table)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, options)
    DD_END

    /// The independent components count only where the term depends on them.
    bool operator==(kbeC_CDCTerm const& other) const;
    bool operator!=(kbeC_CDCTerm const& other) const { return !(*this == other); }

    /// How many columns at the table's end are keys of its rows. A table of several rows that has
    /// fewer is not to be sorted: that ends the process.
    long long KeyColumns() const;
    /// Orders the rows by their keys.
    void SortDataTable();
};
