#pragma once

#include "dbc_TableRfm.h"

/// Collects the rows of a class that a conversion makes. They draw their numbers from the one
/// counter of the class's output table, in which they are stored as they come, so that memory does
/// not grow with them.
class dbc_TableMem : public dbc_Table {
public:
    explicit dbc_TableMem(std::unique_ptr<dbc_TableRfm> output) : m_output(std::move(output)) {}

    int RowCount() const override { return m_output->RowCount(); }
    rfm_TableMetadata const& Metadata() const override { return m_output->Metadata(); }
    dbc_Row const& ConstRow(int oid) override { return m_output->ConstRow(oid); }
    dbc_Row& MutableRow(int oid) override { return m_output->MutableRow(oid); }
    dbc_Row& NewRow() override { return m_output->NewRow(); }
    /// Stores what rows still hold.
    void Close() { m_output->Close(); }

private:
    std::unique_ptr<dbc_TableRfm> m_output;
};
