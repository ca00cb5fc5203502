#include "dbc_Moves.h"

#include "dbc_DatabaseConverter.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_Failure.h"
#include "omi_Singleton.h"

namespace dbc_Moves {

dbc_DatabaseConverter& Run() {
    return omi_Singleton<dbc_DatabaseConverterHolder>::Instance().GetDatabaseConverter();
}

bool HasAndIsSet(dbc_Row const& in, rfm_FieldHandle const& field) {
    return in.HasField(field) && in.IsSet(field);
}

bool IsSetAndHas(dbc_Row const& in, rfm_FieldHandle const& field) {
    return in.IsSet(field) && in.HasField(field);
}

namespace {

// What has no value becomes 0, which the report is to tell.
void CopyInt(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
             rfm_FieldHandle const& to) {
    out.SetInt(to, in.GetInt(from));
    if (!in.IsSet(from)) out.NoteZero(to);
}

void CopyDouble(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                rfm_FieldHandle const& to) {
    out.SetDouble(to, in.GetDouble(from));
    if (!in.IsSet(from)) out.NoteZero(to);
}

// A reference that has no value stays without one: 0 would be a row.
void CopyOrClear(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                 rfm_FieldHandle const& to) {
    if (in.IsSet(from))
        out.SetInt(to, in.GetInt(from));
    else
        out.Clear(to);
}

}  // namespace

void MoveInt(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
             rfm_FieldHandle const& to) {
    CopyInt(in, out, from, to);
    out.NoteMove(in, from, to);
}

void MoveDouble(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                rfm_FieldHandle const& to) {
    CopyDouble(in, out, from, to);
    out.NoteMove(in, from, to);
}

void MoveString(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                rfm_FieldHandle const& to) {
    out.SetString(to, in.GetString(from));
    out.NoteMove(in, from, to);
}

void MoveObject(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                dbc_ObjectField const& to) {
    CopyOrClear(in, out, from.classId, to.classId);
    CopyOrClear(in, out, from.oid, to.oid);
    out.NoteMove(in, from.oid, to.oid);
}

void MoveObjectAs(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                  dbc_ObjectField const& to, unsigned typeId) {
    if (!in.IsSet(from.oid)) return;
    out.SetInt(to.oid, in.GetInt(from.oid));
    out.SetInt(to.classId, static_cast<int>(typeId));
    out.NoteMove(in, from.oid, to.oid);
}

void CopyInt(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field) {
    CopyInt(in, out, field, field);
}

void CopyDouble(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field) {
    CopyDouble(in, out, field, field);
}

void CopyString(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field) {
    out.SetString(field, in.GetString(field));
}

void CopyObject(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& field) {
    CopyOrClear(in, out, field.classId, field.classId);
    CopyOrClear(in, out, field.oid, field.oid);
}

void CopyBase(dbc_Row const& in, dbc_Row& out) {
    static rfm_FieldHandle const base("##BaseClassOID");
    CopyOrClear(in, out, base, base);
}

void CopyOption(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& field) {
    if (!HasAndIsSet(in, field.oid)) return;
    CopyObject(in, out, field);
}

cow_String Mapped(cow_String const& literal, LiteralMap map) {
    for (auto const& [from, to] : map)
        if (literal == from) return cow_String(to);
    return literal;
}

int Reference(dbc_Row const& row, rfm_FieldHandle const& oid) {
    if (!row.IsSet(oid))
        dbc_Fail(row.Where() + ", field \"" + oid.Name() +
                 "\", has no value, and its conversion needs the row that it should lead to.");
    return row.GetInt(oid);
}

dbc_Row const& Follow(dbc_Row const& row, rfm_FieldHandle const& oid, dbc_Table& table) {
    int const number = Reference(row, oid);
    if (number < 0 || number >= table.RowCount())
        dbc_Fail(row.Where() + ", field \"" + oid.Name() + "\", refers to row " +
                 std::to_string(number) + " of table " + table.Metadata().Name().Text() +
                 ", which does not exist.");
    return table.ConstRow(number);
}

Array ReadArray(dbc_Row const& row) {
    static rfm_FieldHandle const handle("Target#Handle", rom_Layout::ListHandle);
    static rfm_FieldHandle const columns("Target#Columns", rom_Layout::ListColumns);
    Array result;
    result.columns = row.GetInt(columns);
    auto const array =
        Run().Input().Transporter().Database().ArrayDouble(row.GetHandle(handle), -1, 0);
    result.values.resize(static_cast<std::size_t>(array->Length() * array->FieldCount()));
    array->Read(result.values.data(), array->Length());
    if (result.columns <= 0)
        dbc_Fail(row.Where() + " holds an array without columns, which no conversion can divide.");
    if (array->Length() % result.columns != 0)
        dbc_Fail(row.Where() + " holds an array whose length its columns do not divide.");
    result.rows = array->Length() / result.columns;
    return result;
}

int AppendArray(dbc_Row const& owner, char const* field, Array const& array) {
    static rfm_FieldHandle const handle("Target#Handle", rom_Layout::ListHandle);
    static rfm_FieldHandle const columns("Target#Columns", rom_Layout::ListColumns);
    static rfm_FieldHandle const kind("Target#Kind", rom_Layout::ListKind);
    dbc_TableRfm& table = Run().Output().CreateClass(cls_ListTypeId, Run().StepVersion());
    dbc_Row& row = table.NewRow();
    int const oid = table.RowCount() - 1;
    row.SetInt(columns, array.columns);
    row.SetInt(kind, cls_CollectionArray2DDouble);
    row.SetUid(dbc_Utils::DerivedUid(owner, field));
    auto const stored = Run().Output().Transporter().Database().ArrayDouble(1, -1, 0);
    row.SetHandle(handle, stored->Handle());
    stored->Write(array.values.data(), static_cast<int>(array.values.size()));
    row.ReleaseRow();
    return oid;
}

void MovePotentials(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                    dbc_ObjectField const& to, unsigned containerTypeId, unsigned potentialTypeId) {
    static rfm_FieldHandle const classId("ClassID"), oid("OID");
    // Rows from before there were potentials have no container.
    if (!in.IsSet(from.oid)) return;
    int const number = in.GetInt(from.oid);
    std::unique_ptr<dbc_TableRfm> const containers = Run().Input().GetInputTable(containerTypeId);
    if (!containers)
        dbc_Fail(in.Where() + ", field \"" + from.oid.Name() + "\", refers to row " +
                 std::to_string(number) + " of a table that is not there.");
    dbc_HeldRow<dbc_Row const> const container(Follow(in, from.oid, *containers));
    std::unique_ptr<dbc_TableRfm> const map =
        dbc_Utils::GetAttributeMapFromInputDatabase(*container, "map", cls_CollectionMapInt);
    int const count = map ? map->RowCount() : 0;
    std::unique_ptr<dbc_TableRfm> const list =
        dbc_Utils::SetNewAttributeListInOutputDatabase(out, cow_String(to.name.Name()), count);
    for (int i = 0; i < count; ++i) {
        dbc_Row const& entry = map->ConstRow(i);
        bool const isSet = entry.IsSet(oid);
        int const value = entry.GetInt(oid);
        entry.ReleaseRow();
        dbc_HeldRow<dbc_Row> const element(list->NewRow());
        element->SetInt(classId, static_cast<int>(potentialTypeId));
        if (isSet) element->SetInt(oid, value);
    }
    out.NoteMove(in, from.oid, to.oid);
}

}  // namespace dbc_Moves
