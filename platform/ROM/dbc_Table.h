#pragma once

#include "dbc_Row.h"
#include "rfm_TableMetadata.h"

/// A table while a database is converted. Its destructor gives the table up; rows that are still
/// held go with it.
class dbc_Table {
public:
    virtual ~dbc_Table();
    virtual int RowCount() const = 0;
    virtual rfm_TableMetadata const& Metadata() const = 0;
    /// A row for reading; raises if there is none of that number.
    virtual dbc_Row const& ConstRow(int oid) = 0;
    /// The same for writing, in an output table.
    virtual dbc_Row& MutableRow(int oid) = 0;
    /// Appends a row, whose number is RowCount() - 1 then.
    virtual dbc_Row& NewRow() = 0;
};
