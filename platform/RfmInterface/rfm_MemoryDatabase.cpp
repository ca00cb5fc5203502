#include "rfm_MemoryDatabase.h"

#include <cstring>
#include <string>

#include "nex_TextException.h"

rfm_Cursor::~rfm_Cursor() = default;
rfm_Table::~rfm_Table() = default;
rfm_Database::~rfm_Database() = default;

int rfm_TableMetadata::Find(cow_String const& name) const {
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].name == name) return static_cast<int>(i);
    return -1;
}

namespace {

// A value that owns its text or bytes.
struct Cell {
    rfm_Value value;
    std::string data;

    explicit Cell(rfm_Value const& given) : value(given) {
        if (given.tag == rfm_Value::Text)
            data.assign(given.text, static_cast<std::size_t>(given.length));
        else if (given.tag == rfm_Value::Bytes && given.length > 0)
            data.assign(static_cast<char const*>(given.bytes),
                        static_cast<std::size_t>(given.length));
    }
    rfm_Value View() const {
        rfm_Value view = value;
        if (view.tag == rfm_Value::Text) view.text = data.c_str();
        if (view.tag == rfm_Value::Bytes) view.bytes = data.data();
        return view;
    }
};

using Row = std::vector<Cell>;

class MemoryCursor final : public rfm_Cursor {
public:
    explicit MemoryCursor(std::vector<Row> const& rows) : m_rows(rows) {}
    bool Seek(int oid) override {
        m_oid = oid >= 0 && static_cast<std::size_t>(oid) < m_rows.size() ? oid : -1;
        return m_oid >= 0;
    }
    int Oid() const override { return m_oid; }
    rfm_Value Value(int column) override {
        return m_rows[static_cast<std::size_t>(m_oid)][static_cast<std::size_t>(column)].View();
    }

private:
    std::vector<Row> const& m_rows;
    int m_oid = -1;
};

class MemoryTable final : public rfm_Table {
public:
    explicit MemoryTable(rfm_TableMetadata const& metadata) : m_metadata(metadata) {}
    rfm_TableMetadata const& Metadata() const override { return m_metadata; }
    int RowCount() override { return static_cast<int>(m_rows.size()); }
    int Append(rfm_Value const* values) override {
        m_rows.push_back(MakeRow(values));
        return static_cast<int>(m_rows.size()) - 1;
    }
    void Replace(int oid, rfm_Value const* values) override {
        m_rows.at(static_cast<std::size_t>(oid)) = MakeRow(values);
    }
    std::unique_ptr<rfm_Cursor> OpenCursor() override {
        return std::make_unique<MemoryCursor>(m_rows);
    }
    int FindRow(int intColumn, long long integer, int textColumn, cow_String const& text) override {
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            rfm_Value const number = m_rows[row][static_cast<std::size_t>(intColumn)].View();
            rfm_Value const letters = m_rows[row][static_cast<std::size_t>(textColumn)].View();
            if (number.tag == rfm_Value::Int && number.integer == integer &&
                letters.tag == rfm_Value::Text && letters.length == text.Length() &&
                std::memcmp(letters.text, text.Text(), static_cast<std::size_t>(text.Length())) ==
                    0)
                return static_cast<int>(row);
        }
        return -1;
    }

private:
    Row MakeRow(rfm_Value const* values) const {
        Row row;
        row.reserve(m_metadata.Columns().size());
        for (int i = 0; i < m_metadata.ColumnCount(); ++i) row.emplace_back(values[i]);
        return row;
    }

    rfm_TableMetadata m_metadata;
    std::vector<Row> m_rows;
};

}  // namespace

std::unique_ptr<rfm_Array<double, 4>> rfm_Database::ArrayDouble(rfm_Handle const& handle, int,
                                                                int) {
    return std::make_unique<rfm_Array<double, 4>>(handle);
}

std::unique_ptr<rfm_Array<double, 4>> rfm_Database::ArrayDouble(int, int, int) {
    return std::make_unique<rfm_Array<double, 4>>(rfm_Handle());
}

rfm_MemoryDatabase::rfm_MemoryDatabase() = default;

void rfm_MemoryDatabase::CopyFrom(rfm_Database& other) {
    std::vector<rfm_Value> values;
    for (rfm_Table* from : other.Tables()) {
        rfm_Table& to = CreateTable(from->Metadata());
        values.resize(from->Metadata().Columns().size());
        std::unique_ptr<rfm_Cursor> const cursor = from->OpenCursor();
        for (int oid = 0; oid < from->RowCount() && cursor->Seek(oid); ++oid) {
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] = cursor->Value(static_cast<int>(i));
            to.Append(values.data());
        }
    }
}
rfm_MemoryDatabase::~rfm_MemoryDatabase() = default;

rfm_Table* rfm_MemoryDatabase::FindTable(unsigned typeId) {
    auto found = m_tables.find(typeId);
    return found == m_tables.end() ? nullptr : found->second.get();
}

rfm_Table& rfm_MemoryDatabase::CreateTable(rfm_TableMetadata const& metadata) {
    auto [place, made] = m_tables.try_emplace(metadata.TypeId());
    if (!made)
        nex_TextException(atr_raw("A table was to be made twice."))
            .Throw("platform/RfmInterface/rfm_MemoryDatabase", __LINE__);
    place->second = std::make_unique<MemoryTable>(metadata);
    return *place->second;
}

std::vector<rfm_Table*> rfm_MemoryDatabase::Tables() {
    std::vector<rfm_Table*> result;
    for (auto const& [typeId, table] : m_tables) result.push_back(table.get());
    return result;
}

rfm_Table& rfm_MemoryDatabase::MakeSuccessor(rfm_TableMetadata const& metadata, bool keepFormer) {
    auto [place, made] = m_successors.try_emplace(metadata.TypeId());
    if (!made)
        nex_TextException(atr_raw("A table was to get two successors at once."))
            .Throw("platform/RfmInterface/rfm_MemoryDatabase", __LINE__);
    place->second = std::make_unique<MemoryTable>(metadata);
    if (!keepFormer) m_tables.erase(metadata.TypeId());
    return *place->second;
}

void rfm_MemoryDatabase::Settle(unsigned typeId) {
    auto const successor = m_successors.find(typeId);
    if (successor == m_successors.end()) return;
    m_tables[typeId] = std::move(successor->second);
    m_successors.erase(successor);
}

void rfm_MemoryDatabase::DropTable(unsigned typeId) { m_tables.erase(typeId); }
