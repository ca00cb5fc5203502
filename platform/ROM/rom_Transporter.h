#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cls_ClassRegistrar.h"
#include "cow_ErasedHandle.h"
#include "rfm_Database.h"

class cls_WriteVisitor;
class dbc_OldLayouts;
class mdl_Extension;
class rom_Writer;
class rom_Reader;

/// The stored layout of a registered class, and of the collections. A scalar field has a column
/// under its schema name; an object or collection has two, name#ClassID and name#OID. Every row has
/// ##BaseClassOID, the number of its parent level's row (-1 for none), and ##Uid, its identity.
namespace rom_Layout {

inline constexpr unsigned listEntryTypeId = 0x230006;
inline constexpr unsigned mapEntryTypeId = 0x230007;

/// The column in which each fixed part of a collection's row or of an entry stands.
enum ListColumn { ListHandle, ListColumns, ListKind, ListFirst, ListCount, ListUid };
enum MapColumn { MapKind, MapFirst, MapCount, MapUid };
enum ListEntryColumn { ListEntryOwner, ListEntryClass, ListEntryOid };
enum MapEntryColumn { MapEntryOwner, MapEntryKey, MapEntryClass, MapEntryOid, MapEntryValue };

rfm_TableMetadata OfClass(cls_ClassMetadata const& metadata);
rfm_TableMetadata OfList();
rfm_TableMetadata OfMap();
rfm_TableMetadata OfListEntry();
rfm_TableMetadata OfMapEntry();
/// The layout of any of them; raises for a class that is not registered.
rfm_TableMetadata OfType(unsigned typeId, cls_ClassRegistrar const& registrar);

}  // namespace rom_Layout

/// Takes objects to rows of a record store and back. Objects of one identity are one record; on
/// reading, references to one record come back as handles on one object. Classes are those of a
/// metadata domain.
///
/// What is read is checked before it is followed: a reference to a table or row that is not there,
/// to a class that the field cannot hold, around in a circle, or nested deeper than maxDepth raises
/// a nex_TextException that names class, row and field.
class rom_Transporter {
public:
    static constexpr int maxDepth = 64;

    rom_Transporter(rfm_Database& database, cls_ClassRegistrar const& registrar);
    ~rom_Transporter();
    rom_Transporter(rom_Transporter const&) = delete;
    rom_Transporter& operator=(rom_Transporter const&) = delete;

    rfm_Database& Database() { return m_database; }
    cls_ClassRegistrar const& Registrar() const { return m_registrar; }
    /// The layout of a class in this store: that of its table, or the registered one.
    rfm_TableMetadata GetTableMetadata(unsigned typeId) const;
    /// The layout of a class at a version, where the transporter is one of an upgrade; without
    /// columns for a class that is not known.
    rfm_TableMetadata GetTableMetadata(unsigned typeId, int version) const;
    void SetOldLayouts(dbc_OldLayouts* layouts) { m_oldLayouts = layouts; }

    /// Writes an object through its class's metadata; the number of its row.
    int Write(void const* object, unsigned typeId);
    /// The object in a row, rebuilt once and shared by all that refer to it.
    cow_ErasedHandle Read(unsigned typeId, int oid);
    /// A map's element by its key alone, without reading the others: the map of a field of a row.
    /// A null handle if the map has no such key.
    cow_ErasedHandle ReadMapElement(unsigned typeId, int oid, cow_String const& field,
                                    cow_String const& key, unsigned elementTypeId);
    /// An object that no other refers to.
    struct Unreferenced {
        unsigned typeId;
        int oid;
        std::optional<cow_ErasedHandle> object;  ///< none where it cannot be read
        std::string failure;                     ///< why not, with the place
    };
    /// Reads what the reads so far did not come to: the objects that nothing refers to, and with
    /// them what they refer to, by rising class and row. Costs no pass over the rows that were
    /// read.
    std::vector<Unreferenced> ReadUnreferenced();
    /// Where the last read failed: "row 3 of table X". Failures that a class itself raises (an
    /// unknown literal) do not know it. Empty if none failed.
    std::string FailedAt() const;
    /// Forgets what was written and read, so that the next write or read starts anew.
    void Forget();

private:
    rfm_Database& m_database;
    cls_ClassRegistrar const& m_registrar;
    std::unique_ptr<rom_Writer> m_writer;
    std::unique_ptr<rom_Reader> m_reader;
    dbc_OldLayouts* m_oldLayouts = nullptr;
};
