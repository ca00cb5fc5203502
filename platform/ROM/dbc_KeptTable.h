#pragma once

#include "dbc_OutputDatabase.h"

/// A table that a function keeps open across rows, as a constant of the function. What it keeps is
/// the running step's and ends with it, also if the step fails; the next step opens it anew.
class dbc_KeptTable {
public:
    /// Raises if the table is not there.
    dbc_Table& Input(unsigned typeId);
    dbc_TableRfm& Output(unsigned typeId);
    /// Collects rows of a class in its layout at the version of the step.
    dbc_TableMem& Temporary(unsigned typeId);
    bool IsOpen() const;
    /// The table that is open, if it is a temporary one.
    dbc_TableMem* OpenTemporary() const { return IsOpen() ? m_temporary : nullptr; }
    /// What a finalize function does.
    void Release();

private:
    unsigned long long m_step = 0;
    dbc_Table* m_table = nullptr;
    dbc_TableRfm* m_output = nullptr;
    dbc_TableMem* m_temporary = nullptr;
    dbc_TempTables m_tables;
};
