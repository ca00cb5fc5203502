#pragma once

#include <memory>
#include <vector>

#include "dbc_RowRfm.h"
#include "dbc_Table.h"
#include "dbc_WorkTable.h"

/// A table over a record store: that of a class as the running step finds it, or as it leaves it,
/// or the entries of one collection.
class dbc_TableRfm : public dbc_Table {
public:
    enum class Side { Input, Output };

    dbc_TableRfm(dbc_WorkTables& tables, dbc_WorkTable& table, Side side);
    ~dbc_TableRfm() override;
    dbc_TableRfm(dbc_TableRfm const&) = delete;
    dbc_TableRfm& operator=(dbc_TableRfm const&) = delete;

    /// Of the table, only \p count rows from \p first on; new rows get the owner.
    void Limit(int first, int count, int owner);

    int RowCount() const override;
    rfm_TableMetadata const& Metadata() const override;
    dbc_Row const& ConstRow(int oid) override;
    dbc_Row& MutableRow(int oid) override;
    dbc_Row& NewRow() override;

    unsigned TypeId() const { return m_table.TypeId(); }
    dbc_WorkTable& Work() { return m_table; }
    /// Stores what rows hold, and closes what they stand on.
    void Close();

private:
    dbc_RowRfm& Take();
    [[noreturn]] void FailNoRow(int oid) const;

    dbc_WorkTables& m_tables;
    dbc_WorkTable& m_table;
    Side m_side;
    int m_first = 0;
    int m_count = -1;  ///< all
    int m_owner = -1;
    /// Of the input, which stays the same as long as this table is used.
    std::unique_ptr<dbc_Places> m_inputPlaces;
    std::vector<std::unique_ptr<dbc_RowRfm>> m_rows;
    std::vector<dbc_RowRfm*> m_free;
};
