#pragma once

#include <exception>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

#include "cls_WriteAgent.h"
#include "rom_Transporter.h"
#include "rom_UidTable.h"

/// The writing half of a transporter: agents that fill rows, and append each as it is complete.
/// Rows are appended children first, so a row's references are known when it is.
class rom_Writer {
public:
    explicit rom_Writer(rom_Transporter& transporter);
    ~rom_Writer();

    int Write(void const* object, cls_ClassMetadata const& metadata);

private:
    class Agent;
    friend class Agent;

    /// A class's table as the writer sees it: made in the store with its first row.
    struct TableWriter {
        rfm_TableMetadata layout;
        cls_ClassMetadata const* metadata;  // null for collections
        std::vector<int> columnOfField;     // by field index
        int baseColumn;
        int uidColumn;
        rfm_Table* table = nullptr;
        rom_UidTable written;

        explicit TableWriter(rfm_TableMetadata const& tableLayout) : layout(tableLayout) {}
        /// The number of a field among the class's attributes; raises if it is none.
        int Attribute(cls_FieldHandle const& field) const;
        int Column(cls_FieldHandle const& field) const {
            return columnOfField[static_cast<std::size_t>(Attribute(field))];
        }
    };
    struct Reference {
        unsigned typeId = 0;
        int oid = -1;
    };
    struct Range {
        int first;
        int count;
    };

    TableWriter& TableFor(unsigned typeId);
    int Append(TableWriter& table, rfm_Value const* values);
    Agent* Next();

    rom_Transporter& m_transporter;
    std::map<unsigned, std::unique_ptr<TableWriter>> m_tables;
    std::vector<TableWriter*> m_recent;  // by the low bits of the TypeId
    std::vector<std::unique_ptr<Agent>> m_agents;
    std::size_t m_depth = 0;
    Reference m_root;
    std::exception_ptr m_failure;
    int m_uncaught = 0;
    // The elements of object collections, so that a later write under one identity replaces them.
    std::unordered_map<long long, Range> m_ranges;
};
