#include "dbc_Utils.h"

#include <cstdint>
#include <cstring>

#include "dbc_DatabaseConverter.h"
#include "dbc_Failure.h"
#include "dbc_Moves.h"

using dbc_Moves::Run;

namespace {

rfm_FieldHandle Column(cow_String const& field, char const* ending) {
    return rfm_FieldHandle((std::string(field.View()) + ending).c_str());
}

std::uint64_t Spread(std::uint64_t h) {
    h = (h ^ (h >> 30)) * 0xbf58476d1ce4e5b9u;
    h = (h ^ (h >> 27)) * 0x94d049bb133111ebu;
    return h ^ (h >> 31);
}

// A new row of the table of collections, to which the field of the owner refers.
dbc_Row& NewCollection(dbc_Row& owner, cow_String const& field, int kind) {
    static rfm_FieldHandle const kindColumn("Target#Kind", rom_Layout::ListKind);
    dbc_TableRfm& table = Run().Output().CreateClass(cls_ListTypeId, Run().StepVersion());
    dbc_Row& row = dbc_Utils::SetObj(table, field, owner, cls_ListTypeId);
    row.SetInt(kindColumn, kind);
    return row;
}

}  // namespace

namespace dbc_Utils {

std::string DerivedUid(dbc_Row const& owner, char const* field) {
    std::string seed = owner.Uid();
    // A row without an identity is known by where it stands.
    if (seed.empty()) seed = owner.Where();
    seed += '.';
    seed += field;
    seed += '@' + std::to_string(Run().StepVersion());
    return UidOf(seed);
}

std::string UidOf(std::string const& text) {
    unsigned char bytes[16];
    std::uint64_t low = 0xcbf29ce484222325u, high = 0x9e3779b97f4a7c15u;
    for (char letter : text) {
        auto const byte = static_cast<unsigned char>(letter);
        low = (low ^ byte) * 0x100000001b3u;
        high = Spread(high + byte + 1);
    }
    low = Spread(low);
    for (int i = 0; i < 8; ++i) {
        bytes[i] = static_cast<unsigned char>(low >> (8 * i));
        bytes[8 + i] = static_cast<unsigned char>(high >> (8 * i));
    }
    return std::string(reinterpret_cast<char const*>(bytes), sizeof bytes);
}

dbc_TableRfm& CreateClassInOutputDatabase(unsigned const& typeId, rom_Transporter&) {
    return Run().Output().CreateClass(typeId, Run().StepVersion());
}

dbc_Row const& GetBaseObj(dbc_TableRfm& parents, dbc_Row const& row) {
    static rfm_FieldHandle const base("##BaseClassOID");
    if (!row.IsSet(base) || row.GetInt(base) < 0)
        dbc_Fail(row.Where() +
                 ", field \"##BaseClassOID\", leads to no row, and its conversion "
                 "needs what stands there.");
    return parents.ConstRow(row.GetInt(base));
}

dbc_Row& SetObj(dbc_Table& table, cow_String const& field, dbc_Row& owner, unsigned const& typeId) {
    dbc_Row& row = table.NewRow();
    owner.SetInt(Column(field, "#ClassID"), static_cast<int>(typeId));
    owner.SetInt(Column(field, "#OID"), table.RowCount() - 1);
    row.SetUid(DerivedUid(owner, field.Text()));
    return row;
}

std::unique_ptr<dbc_TableRfm> GetAttributeMapFromInputDatabase(dbc_Row const& row,
                                                               cow_String const& field,
                                                               int collection) {
    static rfm_FieldHandle const kind("Target#Kind", rom_Layout::MapKind);
    static rfm_FieldHandle const first("#First", rom_Layout::MapFirst);
    static rfm_FieldHandle const count("#Count", rom_Layout::MapCount);
    int const oid = dbc_Moves::Reference(row, Column(field, "#OID"));
    std::unique_ptr<dbc_TableRfm> const maps = Run().Input().GetInputTable(cls_MapTypeId);
    if (!maps) dbc_Fail(row.Where() + ", field \"" + field.Text() + "\", refers to no map.");
    dbc_HeldRow<dbc_Row const> const map(maps->ConstRow(oid));
    if (map->GetInt(kind) != collection)
        dbc_Fail(map->Where() + " holds another kind of collection than the field \"" +
                 field.Text() + "\".");
    int const entries = map->GetInt(count);
    std::unique_ptr<dbc_TableRfm> table = Run().Input().GetInputTable(rom_Layout::mapEntryTypeId);
    int const there = table ? table->RowCount() : 0;
    if (entries < 0 || map->GetInt(first) < 0 || map->GetInt(first) > there ||
        entries > there - map->GetInt(first))
        dbc_Fail(map->Where() + " has a count that is out of range.");
    if (!table) return nullptr;
    table->Limit(map->GetInt(first), entries, -1);
    return table;
}

std::unique_ptr<dbc_TableRfm> SetNewAttributeListInOutputDatabase(dbc_Row& row,
                                                                  cow_String const& field,
                                                                  int count) {
    static rfm_FieldHandle const first("#First", rom_Layout::ListFirst);
    static rfm_FieldHandle const size("#Count", rom_Layout::ListCount);
    dbc_DatabaseConverter& run = Run();
    int const version = run.StepVersion();
    int const next = run.Output().CreateClass(rom_Layout::listEntryTypeId, version).RowCount();
    dbc_Row& list = NewCollection(row, field, cls_CollectionList);
    int const oid = list.Oid();
    list.SetInt(first, next);
    list.SetInt(size, count);
    list.ReleaseRow();
    std::unique_ptr<dbc_TableRfm> entries = run.Output().View(rom_Layout::listEntryTypeId);
    entries->Limit(next, 0, oid);
    return entries;
}

std::unique_ptr<rfm_Array<double, 4>> SetNewAttributeArrayDoubleInOutputDatabase(
    dbc_Row& row, cow_String const& field, int columnCount) {
    static rfm_FieldHandle const columns("Target#Columns", rom_Layout::ListColumns);
    static rfm_FieldHandle const handle("Target#Handle", rom_Layout::ListHandle);
    dbc_Row& list = NewCollection(row, field, cls_CollectionArray2DDouble);
    list.SetInt(columns, columnCount);
    std::unique_ptr<rfm_Array<double, 4>> array =
        Run().Output().Transporter().Database().ArrayDouble(1, -1, 0);
    list.SetHandle(handle, array->Handle());
    // The row waits with the array's bytes until the next one is made or the step ends.
    static_cast<dbc_RowRfm&>(list).abandoned = true;
    return array;
}

}  // namespace dbc_Utils
