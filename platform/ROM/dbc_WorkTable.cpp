#include "dbc_WorkTable.h"

#include <algorithm>

#include "dbc_Failure.h"
#include "dbc_RowRfm.h"
#include "dbc_TableRfm.h"

namespace {

constexpr int rowsBetweenReports = 4096;

bool EndsWith(cow_String const& text, std::string_view ending) {
    std::string_view const view = text.View();
    return view.size() >= ending.size() && view.substr(view.size() - ending.size()) == ending;
}

std::vector<int> ClassColumns(rfm_TableMetadata const& layout) {
    std::vector<int> columns;
    for (int i = 0; i < layout.ColumnCount(); ++i)
        if (EndsWith(layout.Columns()[static_cast<std::size_t>(i)].name, "#ClassID"))
            columns.push_back(i);
    return columns;
}

// What a person calls a column; empty for the half of a reference that is told by the other.
std::string FieldName(cow_String const& column) {
    std::string const name(column.View());
    if (name.rfind("##", 0) == 0 || EndsWith(column, "#ClassID")) return std::string();
    if (EndsWith(column, "#OID")) return name.substr(0, name.size() - 4);
    return name;
}

std::string FieldName(rfm_FieldHandle const& field) { return FieldName(cow_String(field.Name())); }

}  // namespace

dbc_WorkTable::dbc_WorkTable(dbc_WorkTables& tables, unsigned typeId, rfm_Table* original,
                             rfm_Table* work)
    : m_tables(tables),
      m_typeId(typeId),
      m_original(original),
      m_work(work),
      m_pristine(original != nullptr) {
    if (work) KnowFields(work->Metadata());
}

void dbc_WorkTable::KnowFields(rfm_TableMetadata const& layout) {
    for (rfm_Column const& column : layout.Columns()) m_ownFields.insert(FieldName(column.name));
}

std::string dbc_WorkTable::Name() const {
    if (rfm_Table* const storage = Storage()) return storage->Metadata().Name().Text();
    if (m_frozen) return m_frozen->Metadata().Name().Text();
    return std::to_string(m_typeId);
}

dbc_ClassReport& dbc_WorkTable::Report() { return m_tables.Report().classes[m_typeId]; }

void dbc_WorkTable::StartStep() {
    m_frozen = m_pristine ? m_original : m_work;
    m_frozenRows = m_frozen ? m_frozen->RowCount() : 0;
}

void dbc_WorkTable::EndStep() {
    FlushPending();
    m_formerPlaces.clear();
    if (m_successor) {
        m_places.reset();
        m_placesOf = nullptr;
        m_tables.Work().Settle(m_typeId);
        m_work = m_successor;
        m_successor = nullptr;
        m_pristine = false;
    }
    m_stepping = false;
    m_streamed = 0;
    m_frozen = nullptr;
    m_frozenRows = 0;
    m_taken.clear();
}

void dbc_WorkTable::Create(rfm_TableMetadata const& layout) {
    m_work = &m_tables.Work().CreateTable(layout);
    KnowFields(layout);
    m_pristine = false;
    m_touched = true;
    m_mapped = true;
    dbc_ClassReport& report = Report();
    report.name = layout.Name().Text();
    if (report.versions.empty()) report.versions.push_back(layout.Version());
}

int dbc_WorkTable::OutputRows() {
    if (m_stepping) return m_frozenRows;
    return (m_work || m_successor ? Storage()->RowCount() : 0) + (m_pending ? 1 : 0);
}

dbc_Places& dbc_WorkTable::OutputPlaces() {
    if (!m_places || m_placesOf != Storage()) {
        // Rows that stand on the table go on with what they began with.
        if (m_places) m_formerPlaces.push_back(std::move(m_places));
        m_places = std::make_unique<dbc_Places>(Storage()->Metadata(),
                                                m_stepping ? &m_frozen->Metadata() : nullptr);
        m_placesOf = Storage();
    }
    return *m_places;
}

void dbc_WorkTable::SetPending(dbc_RowRfm* row) { m_pending = row; }

void dbc_WorkTable::FlushPending() {
    if (m_pending) m_pending->Store();
}

int dbc_WorkTable::Append(rfm_Value const* values) {
    if (m_stepping) dbc_Fail("Table " + Name() + " was to get rows in a step of its own.");
    m_pristine = false;
    m_touched = true;
    // Counted for a rewrite alone, and no longer true of the table.
    m_unset.clear();
    return Storage()->Append(values);
}

void dbc_WorkTable::PrepareWrite(int oid) {
    if (m_stepping) {
        if (oid >= m_streamed)
            dbc_Fail("Row " + std::to_string(oid) + " of table " + Name() +
                     " was to be written to before its step came to it.");
        return;
    }
    m_touched = true;
    m_unset.clear();
    if (m_frozen && m_frozen == m_work && !m_successor && oid < m_frozenRows) {
        // The input is what stands here, and must go on to be read as it is.
        rfm_Table& successor = m_tables.Work().MakeSuccessor(m_work->Metadata(), true);
        std::vector<rfm_Value> values(m_work->Metadata().Columns().size());
        std::unique_ptr<rfm_Cursor> const cursor = m_work->OpenCursor();
        for (int row = 0, rows = m_work->RowCount(); row < rows; ++row) {
            if (!cursor->Seek(row))
                dbc_Fail("Row " + std::to_string(row) + " of table " + Name() + " is missing.");
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] = cursor->Value(static_cast<int>(i));
            successor.Append(values.data());
        }
        m_successor = &successor;
    }
    m_pristine = false;
}

void dbc_WorkTable::StartRewrite(rfm_TableMetadata const& layout) {
    m_successor = &m_tables.Work().MakeSuccessor(layout, m_frozen == m_work);
    m_stepping = true;
    m_streamed = 0;
    m_touched = true;
    m_places.reset();
    m_placesOf = nullptr;
    dbc_Places& places = OutputPlaces();
    m_filled.assign(layout.Columns().size(), 0);
    m_unset.assign(layout.Columns().size(), 0);
    m_dropped.assign(places.Dropped().size(), 0);
    m_classColumns = m_tables.Renames().empty() ? std::vector<int>() : ClassColumns(layout);
}

void dbc_WorkTable::Rewrite(Function function) {
    dbc_Places inputPlaces(m_frozen->Metadata(), nullptr);
    dbc_Places& outputPlaces = OutputPlaces();
    dbc_RowRfm in(*this), out(*this);
    std::unique_ptr<rfm_Cursor> const cursor = m_frozen->OpenCursor();
    for (int oid = 0; oid < m_frozenRows; ++oid) {
        if (!cursor->Seek(oid))
            dbc_Fail("Row " + std::to_string(oid) + " of table " + Name() + " is missing.");
        out.StartCarried(outputPlaces, oid, *cursor);
        if (!m_classColumns.empty()) out.MapClasses(m_classColumns);
        if (function) {
            in.StartRead(inputPlaces, oid, cursor.get(), nullptr);
            function(in, out, 0);
        }
        m_successor->Append(out.Values());
        Count(out, *cursor);
        ++m_streamed;
        if (m_streamed % rowsBetweenReports == 0) m_tables.Progress();
    }
    m_mapped = !m_tables.Renames().empty();
    SumUp();
}

void dbc_WorkTable::Count(dbc_RowRfm const& out, rfm_Cursor& former) {
    std::vector<int> const& from = m_places->CarriedFrom();
    for (std::size_t i = 0; i < from.size(); ++i) {
        rfm_Value const value = out.Value(static_cast<int>(i));
        // A literal may be missing as an empty text, too.
        if (!IsHeld(value))
            ++m_unset[i];
        else if (from[i] < 0)
            ++m_filled[i];
    }
    std::vector<int> const& dropped = m_places->Dropped();
    for (std::size_t i = 0; i < dropped.size(); ++i)
        if (IsHeld(former.Value(dropped[i]))) ++m_dropped[i];
}

void dbc_WorkTable::SumUp() {
    dbc_ClassReport& report = Report();
    std::vector<rfm_Column> const& columns = m_successor->Metadata().Columns();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::string const name = FieldName(columns[i].name);
        if (m_filled[i] > 0 && !name.empty()) report.filled[name] += m_filled[i];
    }
    std::vector<rfm_Column> const& former = m_frozen->Metadata().Columns();
    for (std::size_t i = 0; i < m_dropped.size(); ++i) {
        auto const column = static_cast<std::size_t>(m_places->Dropped()[i]);
        std::string const name = FieldName(former[column].name);
        if (m_ownFields.erase(name) == 0 || name.empty()) continue;
        if (m_dropped[i] > 0) report.dropped[name] += m_dropped[i];
    }
}

void dbc_WorkTable::CountRetired() {
    rfm_TableMetadata const& layout = m_work->Metadata();
    std::vector<long long> held(layout.Columns().size());
    std::unique_ptr<rfm_Cursor> const cursor = m_work->OpenCursor();
    for (int oid = 0, rows = m_work->RowCount(); oid < rows; ++oid) {
        if (!cursor->Seek(oid)) continue;
        for (std::size_t i = 0; i < held.size(); ++i)
            if (IsHeld(cursor->Value(static_cast<int>(i)))) ++held[i];
    }
    for (std::size_t i = 0; i < held.size(); ++i) {
        std::string const name = FieldName(layout.Columns()[i].name);
        if (held[i] > 0 && !name.empty()) Report().dropped[name] += held[i];
    }
}

void dbc_WorkTable::NoteMove(rfm_FieldHandle const& from, rfm_FieldHandle const& to) {
    for (Move& move : m_moves)
        if (move.from == from.Number() && move.to == to.Number()) {
            ++*move.rows;
            return;
        }
    long long& rows = Report().renamed[{FieldName(from), FieldName(to)}];
    ++rows;
    m_moves.push_back({from.Number(), to.Number(), &rows});
}

void dbc_WorkTable::NoteTaken(rfm_FieldHandle const& from, int oid, bool byAnother) {
    auto taken = std::find_if(m_taken.begin(), m_taken.end(),
                              [&](Taken const& each) { return each.field == from.Number(); });
    if (taken == m_taken.end()) {
        m_taken.push_back({from.Number(), &Report().taken[FieldName(from)], -1, {}});
        taken = m_taken.end() - 1;
    }
    if (oid == taken->last) return;
    taken->last = oid;
    if (byAnother) {
        auto const row = static_cast<std::size_t>(oid);
        if (row >= taken->seen.size())
            taken->seen.resize(std::max(row + 1, static_cast<std::size_t>(m_frozenRows)));
        if (taken->seen[row]) return;
        taken->seen[row] = true;
    }
    ++*taken->rows;
}

void dbc_WorkTable::NoteZero(rfm_FieldHandle const& to) {
    for (Zero& zero : m_zeros)
        if (zero.field.Number() == to.Number()) {
            ++zero.rows;
            return;
        }
    m_zeros.push_back({to, 1});
}

long long dbc_WorkTable::Zeros(std::string const& field) const {
    for (Zero const& zero : m_zeros)
        if (field == zero.field.Name()) return zero.rows;
    return 0;
}

void dbc_WorkTable::CountDropped(dbc_RowRfm const& from, dbc_Places const& places) {
    for (int column : places.Dropped()) {
        if (!IsHeld(from.InputValue(column))) continue;
        auto const index = static_cast<std::size_t>(column);
        std::string const name = FieldName(places.FormerLayout()->Columns()[index].name);
        if (!name.empty()) ++Report().dropped[name];
    }
}

rfm_Value dbc_WorkTable::MappedClass(rfm_Value const& value) const {
    return m_tables.Mapped(value);
}

void dbc_WorkTable::MapReferences() {
    if (m_mapped || !m_work) return;
    m_mapped = true;
    std::vector<int> const columns = ClassColumns(m_work->Metadata());
    if (columns.empty()) return;
    dbc_Places places(m_work->Metadata(), nullptr);
    dbc_RowRfm row(*this);
    for (int oid = 0, rows = m_work->RowCount(); oid < rows;) {
        // Rows are looked for with a cursor that is closed before one is written.
        std::unique_ptr<rfm_Cursor> cursor = m_work->OpenCursor();
        bool found = false;
        for (; oid < rows && !found; ++oid) {
            if (!cursor->Seek(oid)) continue;
            for (int column : columns) {
                rfm_Value const value = cursor->Value(column);
                if (value.tag == rfm_Value::Int && m_tables.Mapped(value).integer != value.integer)
                    found = true;
            }
            if (found) row.StartWrite(places, oid, *cursor, nullptr);
        }
        cursor.reset();
        if (!found) break;
        row.MapClasses(columns);
        row.Store();
        m_pristine = false;
        m_touched = true;
    }
}

// ---- all tables --------------------------------------------------------------------------------

dbc_WorkTables::dbc_WorkTables(rfm_Database& original, rfm_WorkDatabase& work)
    : m_original(original), m_work(work) {
    for (rfm_Table* table : work.Tables()) Of(table->Metadata().TypeId());
}

dbc_WorkTables::~dbc_WorkTables() = default;

dbc_WorkTable& dbc_WorkTables::Of(unsigned typeId) {
    std::unique_ptr<dbc_WorkTable>& table = m_tables[typeId];
    if (!table)
        table = std::make_unique<dbc_WorkTable>(*this, typeId, m_original.FindTable(typeId),
                                                m_work.FindTable(typeId));
    return *table;
}

void dbc_WorkTables::StartStep() {
    for (auto const& [typeId, table] : m_tables) table->StartStep();
}

void dbc_WorkTables::EndStep() {
    for (dbc_TableRfm* view : m_views) view->Close();
    for (auto const& [typeId, table] : m_tables) table->EndStep();
}

void dbc_WorkTables::Drop(unsigned typeId) {
    m_work.DropTable(typeId);
    m_tables.erase(typeId);
}

rfm_Value dbc_WorkTables::Mapped(rfm_Value value) const {
    if (value.tag != rfm_Value::Int || value.integer < 0 || value.integer > 0xFFFFFFFFLL)
        return value;
    auto const renamed = m_renames.find(static_cast<unsigned>(value.integer));
    if (renamed != m_renames.end()) value.integer = renamed->second;
    return value;
}

void dbc_WorkTables::Progress() {
    m_rows += rowsBetweenReports;
    if (!progress) return;
    double const expected = static_cast<double>(std::max(rowsExpected, m_rows));
    progress(progressContext, static_cast<double>(m_rows) / expected);
}
