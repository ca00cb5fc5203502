#pragma once

#include <cstring>
#include <deque>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cls_Codes.h"
#include "dbc_OldClassRegistrar.h"
#include "dbc_Upgrade.h"
#include "nex_Exception.h"
#include "omi_Singleton.h"
#include "rfm_MemoryDatabase.h"
#include "rom_Transporter.h"

namespace old_test {

using Value = std::variant<std::monostate, int, double, char const*, std::string>;
using Fields = std::vector<std::pair<std::string, Value>>;

/// The columns of a layout said in short: "flag a, int b, real c, text d, literal e, object f".
inline rfm_TableMetadata Layout(unsigned typeId, char const* name, int version, unsigned parent,
                                std::string const& fields) {
    rfm_TableMetadata layout(typeId, cow_String(name), version, parent);
    std::istringstream in(fields);
    std::string kind, field;
    while (in >> kind >> field) {
        if (!field.empty() && field.back() == ',') field.pop_back();
        if (kind == "object") {
            layout.Add(cow_String((field + "#ClassID").c_str()), rfm_ColumnKind::Int);
            layout.Add(cow_String((field + "#OID").c_str()), rfm_ColumnKind::Int);
        } else if (kind == "real") {
            layout.Add(cow_String(field.c_str()), rfm_ColumnKind::Double);
        } else if (kind == "text" || kind == "literal") {
            layout.Add(cow_String(field.c_str()), rfm_ColumnKind::Text);
        } else {
            layout.Add(cow_String(field.c_str()), rfm_ColumnKind::Int);
        }
    }
    layout.Add("##BaseClassOID", rfm_ColumnKind::Int);
    layout.Add("##Uid", rfm_ColumnKind::Bytes);
    return layout;
}

/// A database of an old schema in memory, filled row by row.
class OldDatabase {
public:
    rfm_MemoryDatabase& Store() { return m_store; }

    void Table(rfm_TableMetadata const& layout) { m_store.CreateTable(layout); }
    void Table(unsigned typeId, char const* name, int version, unsigned parent,
               std::string const& fields) {
        Table(Layout(typeId, name, version, parent, fields));
    }
    int Row(unsigned typeId, Fields const& fields) {
        rfm_Table* const table = m_store.FindTable(typeId);
        rfm_TableMetadata const& layout = table->Metadata();
        std::vector<rfm_Value> values(layout.Columns().size());
        for (auto const& [name, value] : fields) {
            int const column = layout.Find(cow_String(name.c_str()));
            if (column < 0) throw std::logic_error("no column " + name);
            rfm_Value& stored = values[static_cast<std::size_t>(column)];
            if (auto const* integer = std::get_if<int>(&value)) stored = rfm_Value::OfInt(*integer);
            if (auto const* real = std::get_if<double>(&value)) stored = rfm_Value::OfDouble(*real);
            if (auto const* text = std::get_if<char const*>(&value))
                stored = rfm_Value::OfText(*text, static_cast<int>(std::strlen(*text)));
            if (auto const* bytes = std::get_if<std::string>(&value))
                stored = rfm_Value::OfBytes(bytes->data(), static_cast<int>(bytes->size()));
        }
        return table->Append(values.data());
    }
    static std::string Bytes(std::vector<double> const& values) {
        return std::string(reinterpret_cast<char const*>(values.data()),
                           values.size() * sizeof(double));
    }
    /// A row of the table of collections.
    int Array(int columns, std::vector<double> const& values,
              int kind = cls_CollectionArray2DDouble) {
        if (!m_store.FindTable(cls_ListTypeId)) Table(rom_Layout::OfList());
        return Row(
            cls_ListTypeId,
            {{"Target#Handle", Bytes(values)}, {"Target#Columns", columns}, {"Target#Kind", kind}});
    }

    /// Makes the array of a row another kind of collection.
    void Retype(int oid, int kind) {
        rfm_Table* const table = m_store.FindTable(cls_ListTypeId);
        std::vector<rfm_Value> values(table->Metadata().Columns().size());
        std::unique_ptr<rfm_Cursor> const cursor = table->OpenCursor();
        cursor->Seek(oid);
        std::string const bytes(static_cast<char const*>(cursor->Value(0).bytes),
                                static_cast<std::size_t>(cursor->Value(0).length));
        std::string const uid(static_cast<char const*>(cursor->Value(5).bytes),
                              static_cast<std::size_t>(cursor->Value(5).length));
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = cursor->Value(static_cast<int>(i));
        values[0].bytes = bytes.data();
        values[5].bytes = uid.data();
        values[rom_Layout::ListKind] = rfm_Value::OfInt(kind);
        table->Replace(oid, values.data());
    }

private:
    rfm_MemoryDatabase m_store;
};

/// What an upgrade makes of a database in memory.
class Upgraded {
public:
    Upgraded(
        rfm_Database& original, cls_ClassRegistrar const& current,
        dbc_OldClassRegistrar const& oldClasses = omi_Singleton<dbc_OldClassRegistrar>::Instance(),
        dbc_UpgradeOptions const& options = {}) {
        m_store.CopyFrom(original);
        dbc_Upgrade upgrade(original, m_store, current, oldClasses, options);
        m_report = upgrade.Run();
    }

    rfm_MemoryDatabase& Store() { return m_store; }
    dbc_UpgradeReport const& Report() const { return m_report; }
    bool Has(unsigned typeId) { return m_store.FindTable(typeId) != nullptr; }
    int Rows(unsigned typeId) { return Has(typeId) ? m_store.FindTable(typeId)->RowCount() : 0; }
    int Version(unsigned typeId) { return m_store.FindTable(typeId)->Metadata().Version(); }
    bool HasColumn(unsigned typeId, char const* name) {
        return m_store.FindTable(typeId)->Metadata().Find(cow_String(name)) >= 0;
    }
    /// As text: "NULL", digits, a real as %g, a literal as it stands.
    std::string At(unsigned typeId, int oid, char const* name) {
        rfm_Table* const table = m_store.FindTable(typeId);
        if (!table) return "no table";
        int const column = table->Metadata().Find(cow_String(name));
        if (column < 0) return "no column";
        std::unique_ptr<rfm_Cursor> const cursor = table->OpenCursor();
        if (!cursor->Seek(oid)) return "no row";
        rfm_Value const value = cursor->Value(column);
        switch (value.tag) {
            case rfm_Value::Null:
                return "NULL";
            case rfm_Value::Int:
                return std::to_string(value.integer);
            case rfm_Value::Double: {
                char text[32];
                std::snprintf(text, sizeof text, "%.17g", value.real);
                return text;
            }
            case rfm_Value::Text:
                return std::string(value.text, static_cast<std::size_t>(value.length));
            case rfm_Value::Bytes:
                return std::string(static_cast<char const*>(value.bytes),
                                   static_cast<std::size_t>(value.length));
        }
        return "";
    }
    int Int(unsigned typeId, int oid, char const* name) {
        return std::atoi(At(typeId, oid, name).c_str());
    }
    /// The values of a row of the table of collections.
    std::vector<double> Array(int oid) {
        std::string const bytes = At(cls_ListTypeId, oid, "Target#Handle");
        std::vector<double> values(bytes.size() / sizeof(double));
        if (!values.empty()) std::memcpy(values.data(), bytes.data(), bytes.size());
        return values;
    }

private:
    rfm_MemoryDatabase m_store;
    dbc_UpgradeReport m_report;
};

/// The text that an upgrade fails with; empty if it does not.
inline std::string FailureOf(rfm_Database& original, cls_ClassRegistrar const& current) {
    try {
        Upgraded const upgraded(original, current);
    } catch (nex_Exception const& failure) {
        return failure.AsString().Text();
    }
    return std::string();
}

/// All of a store as one text, to compare with another.
inline std::string Dump(rfm_Database& store) {
    std::string text;
    for (rfm_Table* table : store.Tables()) {
        rfm_TableMetadata const& layout = table->Metadata();
        text += layout.Name().Text() + (" " + std::to_string(layout.Version())) + "\n";
        std::unique_ptr<rfm_Cursor> const cursor = table->OpenCursor();
        for (int oid = 0; oid < table->RowCount() && cursor->Seek(oid); ++oid) {
            for (int column = 0; column < layout.ColumnCount(); ++column) {
                rfm_Value const value = cursor->Value(column);
                text += layout.Columns()[static_cast<std::size_t>(column)].name.Text();
                text += '=' + std::to_string(value.tag) + ':';
                if (value.tag == rfm_Value::Int) text += std::to_string(value.integer);
                if (value.tag == rfm_Value::Double)
                    text.append(reinterpret_cast<char const*>(&value.real), sizeof(double));
                if (value.tag == rfm_Value::Text || value.tag == rfm_Value::Bytes)
                    text.append(static_cast<char const*>(value.bytes),
                                static_cast<std::size_t>(value.length));
                text += ' ';
            }
            text += '\n';
        }
    }
    return text;
}

}  // namespace old_test
