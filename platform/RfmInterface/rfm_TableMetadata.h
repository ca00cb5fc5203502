#pragma once

#include <vector>

#include "cow_String.h"

/// What a column holds.
enum class rfm_ColumnKind {
    Int,
    Double,
    Text,
    Bytes,
    /// A map's key: text in one map, an integer in another.
    Key
};

struct rfm_Column {
    cow_String name;
    rfm_ColumnKind kind;
};

/// The layout of one table: that of a class at a version.
class rfm_TableMetadata {
public:
    rfm_TableMetadata(unsigned typeId, cow_String const& name, int version, unsigned parentTypeId)
        : m_typeId(typeId), m_name(name), m_version(version), m_parentTypeId(parentTypeId) {}

    void Add(cow_String const& name, rfm_ColumnKind kind) { m_columns.push_back({name, kind}); }

    unsigned TypeId() const { return m_typeId; }
    cow_String const& Name() const { return m_name; }
    int Version() const { return m_version; }
    unsigned ParentTypeId() const { return m_parentTypeId; }
    std::vector<rfm_Column> const& Columns() const { return m_columns; }
    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    /// The position of a column; -1 if there is none of that name.
    int Find(cow_String const& name) const;

private:
    unsigned m_typeId;
    cow_String m_name;
    int m_version;
    unsigned m_parentTypeId;
    std::vector<rfm_Column> m_columns;
};
