#pragma once

#include <algorithm>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "cls_ReadVisitor.h"
#include "rom_Transporter.h"

/// The reading half of a transporter: mementos over rows, and the objects read so far, so that a
/// record becomes one object however often it is referred to.
class rom_Reader {
public:
    explicit rom_Reader(rom_Transporter& transporter);
    ~rom_Reader();

    cow_HandleBase const& Object(unsigned typeId, int oid);
    cow_HandleBase const& MapElement(unsigned typeId, int oid, cow_String const& field,
                                     cow_String const& key, unsigned elementTypeId);

    std::vector<rom_Transporter::Unreferenced> Unreferenced();

    /// The row of the innermost object whose reading failed; empty if none did.
    std::string const& FailedAt() const { return m_failedAt; }

private:
    class Memento;
    struct Range;
    class ListReader;
    class MapReader;
    friend class Memento;

    /// One table as the reader sees it: its columns under the class's fields, cursors that are not
    /// in use, and the objects that were read from it.
    struct TableReader {
        rfm_Table* table = nullptr;  // null: nothing of the class was stored
        cls_ClassMetadata const* metadata = nullptr;
        cow_String name;
        std::vector<int> columnOfField;  // by field index; -1 where the table lacks the field
        int baseColumn = -1;
        int uidColumn = -1;
        std::vector<std::unique_ptr<rfm_Cursor>> free;
        struct Entry {
            std::optional<cow_ErasedHandle> handle;
            bool reading = false;
        };
        /// Rows are read mostly one after another, so their objects stand in pages by row number.
        struct Page {
            Entry entries[64];
        };
        std::unordered_map<int, std::unique_ptr<Page>> pages;
        Page* lastPage = nullptr;
        int lastNumber = -1;

        /// By row number, which rows something refers to; as long as the last of them.
        std::vector<bool> referred;
        void NoteReferred(int oid) {
            std::size_t const row = static_cast<std::size_t>(oid);
            if (row >= referred.size()) referred.resize(std::max(row + 1, referred.size() * 2));
            referred[row] = true;
        }
        bool IsReferred(int oid) const {
            std::size_t const row = static_cast<std::size_t>(oid);
            return row < referred.size() && referred[row];
        }

        bool IsRead(int oid) const {
            auto const page = pages.find(oid / 64);
            return page != pages.end() && page->second->entries[oid % 64].handle;
        }
        /// The place of a row's object; it stays where it is.
        Entry& ObjectOf(int oid);

        int cursors = 0;  // made so far, in use or free

        /// The number of a field among the class's attributes; -1 if it is none of this class.
        int Attribute(cls_FieldHandle const& field) const;
        std::unique_ptr<rfm_Cursor> Acquire(int oid);
        /// There is room for every cursor made, so this does not fail.
        void Release(std::unique_ptr<rfm_Cursor> cursor) noexcept {
            free.push_back(std::move(cursor));
        }
    };

    /// Where a reference stands, told only when it turns out bad.
    struct Origin {
        Memento const* memento;
        cls_FieldHandle const* field;
        char const* text;
    };

    void NoteFailure(TableReader const& table, int oid) noexcept;
    TableReader& TableFor(unsigned typeId);
    /// A memento over a row; without a table, one over nothing, whose reads give their defaults.
    Memento* Open(TableReader* table, int oid);
    /// The same for a row that is part of another.
    Memento* OpenPart(TableReader& table, int oid);
    /// A reference's class: checked against what the field may hold, and against what is stored.
    unsigned CheckedClass(rfm_Value const& stored, unsigned expected, Origin const& where);
    cow_HandleBase const& Referred(rfm_Value const& typeId, rfm_Value const& oid, unsigned expected,
                                   Origin const& where);
    static int CheckedOid(rfm_Value const& stored, Origin const& where);
    static std::string TextOf(Origin const& where);

    rom_Transporter& m_transporter;
    std::map<unsigned, std::unique_ptr<TableReader>> m_tables;
    std::vector<TableReader*> m_recent;                // by the low bits of the TypeId
    std::vector<std::unique_ptr<Memento>> m_mementos;  // not in use; room for all that were made
    std::size_t m_mementosMade = 0;
    cow_ErasedHandle m_null;
    int m_depth = 0;
    std::string m_failedAt;
};
