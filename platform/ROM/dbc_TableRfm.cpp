#include "dbc_TableRfm.h"

#include "dbc_Failure.h"

dbc_TableRfm::dbc_TableRfm(dbc_WorkTables& tables, dbc_WorkTable& table, Side side)
    : m_tables(tables), m_table(table), m_side(side) {
    if (side == Side::Input)
        m_inputPlaces = std::make_unique<dbc_Places>(table.Frozen()->Metadata(), nullptr);
    m_tables.Enter(*this);
}

dbc_TableRfm::~dbc_TableRfm() {
    // A row that waits is stored by whoever ends the step; here it only must not be left behind.
    for (auto const& row : m_rows)
        if (m_table.Pending() == row.get()) m_table.SetPending(nullptr);
    m_tables.Leave(*this);
}

void dbc_TableRfm::Limit(int first, int count, int owner) {
    m_first = first;
    m_count = count;
    m_owner = owner;
}

int dbc_TableRfm::RowCount() const {
    if (m_count >= 0) return m_count;
    return m_side == Side::Input ? m_table.FrozenRows() : m_table.OutputRows();
}

rfm_TableMetadata const& dbc_TableRfm::Metadata() const {
    return m_side == Side::Input ? m_table.Frozen()->Metadata() : m_table.Storage()->Metadata();
}

dbc_RowRfm& dbc_TableRfm::Take() {
    if (m_free.empty()) {
        m_free.reserve(m_rows.size() + 1);
        m_rows.push_back(std::make_unique<dbc_RowRfm>(m_table));
        m_rows.back()->home = &m_free;
        m_free.push_back(m_rows.back().get());
    }
    dbc_RowRfm& row = *m_free.back();
    m_free.pop_back();
    return row;
}

void dbc_TableRfm::FailNoRow(int oid) const {
    dbc_Fail("Row " + std::to_string(oid) + " of table " + m_table.Name() +
             " is referred to and does not exist.");
}

dbc_Row const& dbc_TableRfm::ConstRow(int oid) {
    if (oid < 0 || oid >= RowCount()) FailNoRow(oid);
    oid += m_first;
    dbc_RowRfm& row = Take();
    auto const seek = [&](std::unique_ptr<rfm_Cursor>& cursor, rfm_Table& storage) {
        if (!cursor) cursor = storage.OpenCursor();
        if (!cursor->Seek(oid)) {
            cursor.reset();
            m_free.push_back(&row);
            FailNoRow(oid);
        }
    };
    if (m_side == Side::Input) {
        seek(row.ownCursor, *m_table.Frozen());
        row.StartRead(*m_inputPlaces, oid, row.ownCursor.get(), nullptr);
        return row;
    }
    if (m_table.Pending() && m_table.Pending()->Oid() == oid) m_table.FlushPending();
    bool const own = !m_table.Stepping() || oid < m_table.Streamed();
    // What stood before a write may not be what is there now.
    row.ownCursor.reset();
    if (own) seek(row.ownCursor, *m_table.Storage());
    if (m_table.Stepping()) seek(row.formerCursor, *m_table.Frozen());
    row.StartRead(m_table.OutputPlaces(), oid, own ? row.ownCursor.get() : nullptr,
                  m_table.Stepping() ? row.formerCursor.get() : nullptr);
    return row;
}

dbc_Row& dbc_TableRfm::MutableRow(int oid) {
    if (m_side == Side::Input) dbc_Fail("A row of the input was to be written to.");
    if (oid < 0 || oid >= RowCount()) FailNoRow(oid);
    oid += m_first;
    m_table.FlushPending();
    m_table.PrepareWrite(oid);
    dbc_RowRfm& row = Take();
    std::unique_ptr<rfm_Cursor> const cursor = m_table.Storage()->OpenCursor();
    if (!cursor->Seek(oid)) {
        m_free.push_back(&row);
        FailNoRow(oid);
    }
    row.StartWrite(m_table.OutputPlaces(), oid, *cursor, nullptr);
    return row;
}

dbc_Row& dbc_TableRfm::NewRow() {
    if (m_side == Side::Input) dbc_Fail("A row of the input was to be made.");
    static rfm_FieldHandle const owner("owner");
    static rfm_FieldHandle const base("##BaseClassOID");
    int const oid = m_table.OutputRows();
    m_table.FlushPending();
    dbc_RowRfm& row = Take();
    row.StartNew(m_table.OutputPlaces(), oid);
    m_table.SetPending(&row);
    if (m_owner >= 0) row.SetInt(owner, m_owner);
    if (m_table.OutputPlaces().Of(base).where == dbc_Places::Own) row.SetInt(base, -1);
    if (m_count >= 0) ++m_count;
    return row;
}

void dbc_TableRfm::Close() {
    for (auto const& row : m_rows) {
        row->ReleaseRow();
        row->ownCursor.reset();
        row->formerCursor.reset();
    }
}
